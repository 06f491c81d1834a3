// Segments and endless lines, with their constructions.

#include <memory>
#include <vector>

#include "elements/intersections.h"
#include "model/bddgeo.h"
#include "zone/outils/communs.h"
#include "zone/zonedessin.h"

namespace {

const EltSegment& CommeSegment(const EltGeo& elt) {
    return static_cast<const EltSegment&>(elt);
}

bool AjouteSegment(ZoneDessin& zone) {
    zone.Ajoute(zone.Protos.Segment);
    return true;
}

Bande BandeSegment(ZoneDessin& zone) {
    return BandeDe(zone.Protos.Segment);
}

bool DebutDroite(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Droite.SetPoints(p, p);
    return true;
}

bool FinDroite(ZoneDessin& zone, const PointVek& p) {
    const EltDroite& proto = zone.Protos.Droite;
    // Built from its two points, since the line of a drawing carries that constructor's type code.
    auto droite = std::make_unique<EltDroite>(proto.Origine, p, proto.Calque);
    droite->ChangeTrait(proto.Style);
    BddCourante.Ajoute(std::move(droite));
    zone.Redessine();
    return true;
}

Bande ApercuDroite(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Droite.SetExtremite(p);
    return BandeDe(zone.Protos.Droite);
}

bool DebutSegment(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Segment.SetPoints(p, p);
    return true;
}

Bande ApercuSegment(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Segment.SetExtremite(p);
    return BandeSegment(zone);
}

bool FinSegment(ZoneDessin& zone, const PointVek& p) {
    ApercuSegment(zone, p);
    return AjouteSegment(zone);
}

Bande ApercuSymetrique(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Segment.SetExtremiteSymetrique(p);
    return BandeSegment(zone);
}

bool FinSymetrique(ZoneDessin& zone, const PointVek& p) {
    ApercuSymetrique(zone, p);
    return AjouteSegment(zone);
}

template <bool horaire>
Bande ApercuAccroche(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Segment.Accroche(p, *zone.EltCourant, horaire);
    return BandeSegment(zone);
}

template <bool horaire>
bool FinAccroche(ZoneDessin& zone, const PointVek& p) {
    ApercuAccroche<horaire>(zone, p);
    return AjouteSegment(zone);
}

bool PrendArc(ZoneDessin& zone, const PointVek& p) {
    return zone.Prend(BddCourante.ChercheType(p, TypeArc));
}

bool PrendSecondArc(ZoneDessin& zone, const PointVek& p) {
    return zone.PrendSecond(BddCourante.ChercheType(p, TypeArc));
}

Bande ApercuTangente(ZoneDessin& zone, const PointVek& p) {
    if (!zone.Protos.Segment.Tangente2Arcs(p, *zone.EltCourant, *zone.EltCopie)) return {};
    return BandeSegment(zone);
}

bool FinTangente(ZoneDessin& zone, const PointVek& p) {
    if (ApercuTangente(zone, p)) AjouteSegment(zone);
    return true;
}

bool PlaceParallele(ZoneDessin& zone, const PointVek& p) {
    const EltGeo* modele = BddCourante.ChercheType(p, TypeSegment);
    if (!modele || !zone.Protos.Segment.DemandeParallele(CommeSegment(*modele), p)) return false;
    return AjouteSegment(zone);
}

bool PrendModeleOrtho(ZoneDessin& zone, const PointVek& p) {
    EltGeo* modele = BddCourante.Cherche(p);
    if (!modele || !SeLitCommeSegment(*modele)) return false;
    zone.Protos.Segment.Orthogonal(CommeSegment(*modele));
    return zone.Prend(modele);
}

Bande ApercuOrtho(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Segment.Place(p);
    return BandeSegment(zone);
}

bool FinOrtho(ZoneDessin& zone, const PointVek& p) {
    ApercuOrtho(zone, p);
    return AjouteSegment(zone);
}

}  // namespace

std::vector<LigneEtat> LignesSegments() {
    return {
        LigneEtat(ETAT_DROITE_1, ETAT_DROITE_1, "premier point").AuClic(DebutDroite, ETAT_DROITE_2),
        LigneEtat(ETAT_DROITE_2, ETAT_DROITE_1, "Deuxième point")
            .AuClic(FinDroite, ETAT_DROITE_1)
            .Montre(ApercuDroite),

        LigneEtat(ETAT_SEGMENT_1, ETAT_SEGMENT_1, "Position de l'origine du segment")
            .AuClic(DebutSegment, ETAT_SEGMENT_2),
        LigneEtat(ETAT_SEGMENT_2, ETAT_SEGMENT_1, "Position de l'extrémité du segment")
            .AuClic(FinSegment, ETAT_SEGMENT_1)
            .Montre(ApercuSegment),

        LigneEtat(ETAT_SEGMENT_CE_1, ETAT_SEGMENT_CE_1, "Position du milieu du segment")
            .AuClic(DebutSegment, ETAT_SEGMENT_CE_2),
        LigneEtat(ETAT_SEGMENT_CE_2, ETAT_SEGMENT_CE_1, "Position de l'extrémité du segment")
            .AuClic(FinSymetrique, ETAT_SEGMENT_CE_1)
            .Montre(ApercuSymetrique),

        LigneEtat(ETAT_SEGMENT_AE_1, ETAT_SEGMENT_AE_1, "Arc tangent horaire au segment")
            .AuClic(PrendElement, ETAT_SEGMENT_AE_2),
        LigneEtat(ETAT_SEGMENT_AE_2, ETAT_SEGMENT_AE_1, "Position de l'extrémité du segment")
            .AuClic(FinAccroche<true>, ETAT_SEGMENT_AE_1)
            .Montre(ApercuAccroche<true>),

        LigneEtat(ETAT_SEGMENT_AEANTI_1, ETAT_SEGMENT_AEANTI_1,
                  "Arc tangent antihoraire au segment")
            .AuClic(PrendElement, ETAT_SEGMENT_AEANTI_2),
        LigneEtat(ETAT_SEGMENT_AEANTI_2, ETAT_SEGMENT_AEANTI_1,
                  "Position de l'extrémité du segment")
            .AuClic(FinAccroche<false>, ETAT_SEGMENT_AEANTI_1)
            .Montre(ApercuAccroche<false>),

        LigneEtat(ETAT_SEGMENT_AA_1, ETAT_SEGMENT_AA_1, "Arc tangent")
            .AuClic(PrendArc, ETAT_SEGMENT_AA_2),
        LigneEtat(ETAT_SEGMENT_AA_2, ETAT_SEGMENT_AA_1, "Deuxième arc tangent")
            .AuClic(PrendSecondArc, ETAT_SEGMENT_AA_3),
        LigneEtat(ETAT_SEGMENT_AA_3, ETAT_SEGMENT_AA_1, "Deuxième arc tangent")
            .AuClic(FinTangente, ETAT_SEGMENT_AA_1)
            .Montre(ApercuTangente),

        LigneEtat(ETAT_SEGMENT_PARA, ETAT_SEGMENT_PARA, "Quel segment ? De quel côté du segment ?")
            .AuClic(PlaceParallele, ETAT_SEGMENT_PARA)
            .SansRepere(),

        LigneEtat(ETAT_SEGMENT_ORTHO_1, ETAT_SEGMENT_ORTHO_1, "Quel segment ?")
            .AuClic(PrendModeleOrtho, ETAT_SEGMENT_ORTHO_2)
            .SansRepere(),
        LigneEtat(ETAT_SEGMENT_ORTHO_2, ETAT_SEGMENT_ORTHO_1, "Position du milieu du segment")
            .AuClic(FinOrtho, ETAT_SEGMENT_ORTHO_1)
            .Montre(ApercuOrtho),
    };
}
