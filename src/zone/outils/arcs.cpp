// Arcs, tangent circles and rounding arcs.

#include <vector>

#include "elements/intersections.h"
#include "model/bddgeo.h"
#include "zone/outils/communs.h"
#include "zone/zonedessin.h"

namespace {

bool AjouteArc(ZoneDessin& zone) {
    zone.Ajoute(zone.Protos.Arc);
    return true;
}

Bande BandeArc(ZoneDessin& zone) {
    return BandeDe(zone.Protos.Arc);
}

bool CentreArc(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.SetCentreDefaut(p);
    return true;
}

Bande ApercuDebut(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.SetDebutPoint(p);
    return BandeArc(zone);
}

bool DebutArc(ZoneDessin& zone, const PointVek& p) {
    ApercuDebut(zone, p);
    return true;
}

Bande ApercuFin(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.SetFinPoint(p);
    return BandeArc(zone);
}

bool FinArc(ZoneDessin& zone, const PointVek& p) {
    ApercuFin(zone, p);
    return AjouteArc(zone);
}

bool Premier3Points(ZoneDessin& zone, const PointVek& p) {
    zone.PointDepart = p;
    return true;
}

Bande Apercu2Points(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.Arc2Points(zone.PointDepart, p);
    return BandeArc(zone);
}

bool Deuxieme3Points(ZoneDessin& zone, const PointVek& p) {
    zone.PointPrecedent = p;
    Apercu2Points(zone, p);
    return true;
}

Bande Apercu3Points(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.Arc3Points(zone.PointDepart, zone.PointPrecedent, p);
    return BandeArc(zone);
}

bool Fin3Points(ZoneDessin& zone, const PointVek& p) {
    Apercu3Points(zone, p);
    return AjouteArc(zone);
}

bool PrendSecond(ZoneDessin& zone, const PointVek& p) {
    return zone.PrendSecond(BddCourante.Cherche(p));
}

/// Also what is shown while a second element is sought.
Bande ApercuTangent(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.TangentPoint(*zone.EltCourant, p);
    return BandeArc(zone);
}

bool FinTangent(ZoneDessin& zone, const PointVek& p) {
    ApercuTangent(zone, p);
    return AjouteArc(zone);
}

Bande ApercuTangent2(ZoneDessin& zone, const PointVek& p) {
    if (!zone.Protos.Arc.Tangent2Elements(*zone.EltCourant, *zone.EltCopie, p)) return {};
    return BandeArc(zone);
}

bool FinTangent2(ZoneDessin& zone, const PointVek& p) {
    if (ApercuTangent2(zone, p)) AjouteArc(zone);
    return true;
}

/// What a rounding arc can lean on; anything else counts as nothing found.
EltGeo* Appui(const PointVek& p) {
    EltGeo* elt = BddCourante.Cherche(p);
    return elt && (SeLitCommeSegment(*elt) || EstArc(*elt)) ? elt : nullptr;
}

bool PrendAppui(ZoneDessin& zone, const PointVek& p) {
    return zone.Prend(Appui(p));
}

bool PrendSecondAppui(ZoneDessin& zone, const PointVek& p) {
    return zone.PrendSecond(Appui(p));
}

Bande ApercuConge(ZoneDessin& zone, const PointVek& p) {
    if (!zone.Protos.Arc.Tangent2ElementsRayon(*zone.EltCourant, *zone.EltCopie, p, zone.Rayon))
        return {};
    return BandeArc(zone);
}

bool FinConge(ZoneDessin& zone, const PointVek& p) {
    if (ApercuConge(zone, p)) AjouteArc(zone);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesArcs() {
    return {
        LigneEtat(ETAT_ARC_CDF_1, ETAT_ARC_CDF_1, "Position du centre de l'arc de cercle")
            .AuClic(CentreArc, ETAT_ARC_CDF_2),
        LigneEtat(ETAT_ARC_CDF_2, ETAT_ARC_CDF_1, "Position du début de l'arc")
            .AuClic(DebutArc, ETAT_ARC_CDF_3)
            .Montre(ApercuDebut),
        LigneEtat(ETAT_ARC_CDF_3, ETAT_ARC_CDF_1, "Position de la fin de l'arc")
            .AuClic(FinArc, ETAT_ARC_CDF_1)
            .Montre(ApercuFin),

        LigneEtat(ETAT_ARC_DFC_1, ETAT_ARC_DFC_1, "Position du début de l'arc")
            .AuClic(Premier3Points, ETAT_ARC_DFC_2),
        LigneEtat(ETAT_ARC_DFC_2, ETAT_ARC_DFC_1, "Position de la fin de l'arc")
            .AuClic(Deuxieme3Points, ETAT_ARC_DFC_3)
            .Montre(Apercu2Points),
        LigneEtat(ETAT_ARC_DFC_3, ETAT_ARC_DFC_1, "Position du centre de l'arc de cercle")
            .AuClic(Fin3Points, ETAT_ARC_DFC_1)
            .Montre(Apercu3Points),

        LigneEtat(ETAT_ARC_TE_1, ETAT_ARC_TE_1, "Elément auquel l'arc sera tangent")
            .AuClic(PrendElement, ETAT_ARC_TE_2),
        LigneEtat(ETAT_ARC_TE_2, ETAT_ARC_TE_1, "Position du centre de l'arc")
            .AuClic(FinTangent, ETAT_ARC_TE_1)
            .Montre(ApercuTangent),

        LigneEtat(ETAT_ARC_TT_1, ETAT_ARC_TT_1, "Premier élément auquel le cercle sera tangent")
            .AuClic(PrendElement, ETAT_ARC_TT_2),
        LigneEtat(ETAT_ARC_TT_2, ETAT_ARC_TT_1, "Deuxième élément auquel le cercle sera tangent")
            .AuClic(PrendSecond, ETAT_ARC_TT_3)
            .Montre(ApercuTangent),
        LigneEtat(ETAT_ARC_TT_3, ETAT_ARC_TT_1, "choisir un des cercles")
            .AuClic(FinTangent2, ETAT_ARC_TT_1)
            .Montre(ApercuTangent2),

        LigneEtat(ETAT_ARC_RAYON_1, ETAT_ARC_RAYON_1, "Premier élément auquel le arc sera tangent")
            .Demande([](ZoneDessin& zone) { return zone.DemandeRayon(); })
            .AuClic(PrendAppui, ETAT_ARC_RAYON_2),
        LigneEtat(ETAT_ARC_RAYON_2, ETAT_ARC_RAYON_1, "Deuxième élément auquel le arc sera tangent")
            .AuClic(PrendSecondAppui, ETAT_ARC_RAYON_3)
            .Montre(ApercuTangent),
        LigneEtat(ETAT_ARC_RAYON_3, ETAT_ARC_RAYON_1, "Choisir un des arcs")
            .AuClic(FinConge, ETAT_ARC_RAYON_1)
            .Montre(ApercuConge),
    };
}
