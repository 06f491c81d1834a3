// Arcs, tangent circles and rounding arcs.

#include <vector>

#include "elements/intersections.h"
#include "model/bddgeo.h"
#include "zone/machine.h"
#include "zone/outils/communs.h"

namespace {

bool AjouteArc(Machine& outils) {
    outils.Ajoute(outils.Protos.Arc);
    return true;
}

Bande BandeProto(Machine& outils) {
    return BandeDe(outils.Protos.Arc);
}

bool CentreArc(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.SetCentreDefaut(p);
    return true;
}

Bande BandeDebut(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.SetDebutPoint(p);
    return BandeProto(outils);
}

bool DebutArc(Machine& outils, const PointVek& p) {
    BandeDebut(outils, p);
    return true;
}

Bande BandeFin(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.SetFinPoint(p);
    return BandeProto(outils);
}

bool FinArc(Machine& outils, const PointVek& p) {
    BandeFin(outils, p);
    return AjouteArc(outils);
}

bool Premier3Points(Machine& outils, const PointVek& p) {
    outils.PointDepart = p;
    return true;
}

Bande Bande2Points(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.Arc2Points(outils.PointDepart, p);
    return BandeProto(outils);
}

bool Deuxieme3Points(Machine& outils, const PointVek& p) {
    outils.PointPrecedent = p;
    Bande2Points(outils, p);
    return true;
}

Bande Bande3Points(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.Arc3Points(outils.PointDepart, outils.PointPrecedent, p);
    return BandeProto(outils);
}

bool Fin3Points(Machine& outils, const PointVek& p) {
    Bande3Points(outils, p);
    return AjouteArc(outils);
}

bool PrendSecond(Machine& outils, const PointVek& p) {
    return outils.PrendSecond(BddCourante.Cherche(p));
}

/// Also what is shown while a second element is sought.
Bande BandeTangent(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.TangentPoint(*outils.EltCourant, p);
    return BandeProto(outils);
}

bool FinTangent(Machine& outils, const PointVek& p) {
    BandeTangent(outils, p);
    return AjouteArc(outils);
}

Bande BandeTangent2(Machine& outils, const PointVek& p) {
    if (!outils.Protos.Arc.Tangent2Elements(*outils.EltCourant, *outils.EltSecond, p)) return {};
    return BandeProto(outils);
}

bool FinTangent2(Machine& outils, const PointVek& p) {
    if (BandeTangent2(outils, p)) AjouteArc(outils);
    return true;
}

/// What a rounding arc can lean on; anything else counts as nothing found.
EltGeo* Appui(const PointVek& p) {
    EltGeo* elt = BddCourante.Cherche(p);
    return elt && (SeLitCommeSegment(*elt) || EstArc(*elt)) ? elt : nullptr;
}

bool PrendAppui(Machine& outils, const PointVek& p) {
    return outils.Prend(Appui(p));
}

bool PrendSecondAppui(Machine& outils, const PointVek& p) {
    return outils.PrendSecond(Appui(p));
}

Bande BandeConge(Machine& outils, const PointVek& p) {
    if (!outils.Protos.Arc.Tangent2ElementsRayon(*outils.EltCourant, *outils.EltSecond, p,
                                                 outils.Rayon))
        return {};
    return BandeProto(outils);
}

bool FinConge(Machine& outils, const PointVek& p) {
    if (BandeConge(outils, p)) AjouteArc(outils);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesArcs() {
    return {
        LigneEtat(ETAT_ARC_CDF_1, ETAT_ARC_CDF_1, "Position du centre de l'arc de cercle")
            .AuClic(CentreArc, ETAT_ARC_CDF_2),
        LigneEtat(ETAT_ARC_CDF_2, ETAT_ARC_CDF_1, "Position du début de l'arc")
            .AuClic(DebutArc, ETAT_ARC_CDF_3)
            .Montre(BandeDebut),
        LigneEtat(ETAT_ARC_CDF_3, ETAT_ARC_CDF_1, "Position de la fin de l'arc")
            .AuClic(FinArc, ETAT_ARC_CDF_1)
            .Montre(BandeFin),

        LigneEtat(ETAT_ARC_DFC_1, ETAT_ARC_DFC_1, "Position du début de l'arc")
            .AuClic(Premier3Points, ETAT_ARC_DFC_2),
        LigneEtat(ETAT_ARC_DFC_2, ETAT_ARC_DFC_1, "Position de la fin de l'arc")
            .AuClic(Deuxieme3Points, ETAT_ARC_DFC_3)
            .Montre(Bande2Points),
        LigneEtat(ETAT_ARC_DFC_3, ETAT_ARC_DFC_1, "Position du centre de l'arc de cercle")
            .AuClic(Fin3Points, ETAT_ARC_DFC_1)
            .Montre(Bande3Points),

        LigneEtat(ETAT_ARC_TE_1, ETAT_ARC_TE_1, "Elément auquel l'arc sera tangent")
            .AuClic(PrendElement, ETAT_ARC_TE_2),
        LigneEtat(ETAT_ARC_TE_2, ETAT_ARC_TE_1, "Position du centre de l'arc")
            .AuClic(FinTangent, ETAT_ARC_TE_1)
            .Montre(BandeTangent),

        LigneEtat(ETAT_ARC_TT_1, ETAT_ARC_TT_1, "Premier élément auquel le cercle sera tangent")
            .AuClic(PrendElement, ETAT_ARC_TT_2),
        LigneEtat(ETAT_ARC_TT_2, ETAT_ARC_TT_1, "Deuxième élément auquel le cercle sera tangent")
            .AuClic(PrendSecond, ETAT_ARC_TT_3)
            .Montre(BandeTangent),
        LigneEtat(ETAT_ARC_TT_3, ETAT_ARC_TT_1, "choisir un des cercles")
            .AuClic(FinTangent2, ETAT_ARC_TT_1)
            .Montre(BandeTangent2),

        LigneEtat(ETAT_ARC_RAYON_1, ETAT_ARC_RAYON_1, "Premier élément auquel le arc sera tangent")
            .Demande([](Machine& outils) { return outils.DemandeRayon(); })
            .AuClic(PrendAppui, ETAT_ARC_RAYON_2),
        LigneEtat(ETAT_ARC_RAYON_2, ETAT_ARC_RAYON_1, "Deuxième élément auquel le arc sera tangent")
            .AuClic(PrendSecondAppui, ETAT_ARC_RAYON_3)
            .Montre(BandeTangent),
        LigneEtat(ETAT_ARC_RAYON_3, ETAT_ARC_RAYON_1, "Choisir un des arcs")
            .AuClic(FinConge, ETAT_ARC_RAYON_1)
            .Montre(BandeConge),
    };
}
