// Segments and endless lines, with their constructions.

#include <memory>
#include <vector>

#include "elements/intersections.h"
#include "model/bddgeo.h"
#include "zone/machine.h"
#include "zone/outils/communs.h"

namespace {

const EltSegment& CommeSegment(const EltGeo& elt) {
    return static_cast<const EltSegment&>(elt);
}

bool AjouteSegment(Machine& outils) {
    outils.Ajoute(outils.Protos.Segment);
    return true;
}

Bande BandeProto(Machine& outils) {
    return BandeDe(outils.Protos.Segment);
}

bool DebutDroite(Machine& outils, const PointVek& p) {
    outils.Protos.Droite.SetPoints(p, p);
    return true;
}

bool FinDroite(Machine& outils, const PointVek& p) {
    const EltDroite& proto = outils.Protos.Droite;
    // Built from its two points, since the line of a drawing carries that constructor's type code.
    auto droite = std::make_unique<EltDroite>(proto.Origine, p, proto.Calque);
    droite->ChangeTrait(proto.Style);
    BddCourante.Ajoute(std::move(droite));
    outils.Redessine();
    return true;
}

Bande BandeDroite(Machine& outils, const PointVek& p) {
    outils.Protos.Droite.SetExtremite(p);
    return BandeDe(outils.Protos.Droite);
}

bool DebutSegment(Machine& outils, const PointVek& p) {
    outils.Protos.Segment.SetPoints(p, p);
    return true;
}

Bande BandeSegment(Machine& outils, const PointVek& p) {
    outils.Protos.Segment.SetExtremite(p);
    return BandeProto(outils);
}

bool FinSegment(Machine& outils, const PointVek& p) {
    BandeSegment(outils, p);
    return AjouteSegment(outils);
}

Bande BandeSymetrique(Machine& outils, const PointVek& p) {
    outils.Protos.Segment.SetExtremiteSymetrique(p);
    return BandeProto(outils);
}

bool FinSymetrique(Machine& outils, const PointVek& p) {
    BandeSymetrique(outils, p);
    return AjouteSegment(outils);
}

template <bool horaire>
Bande BandeAccroche(Machine& outils, const PointVek& p) {
    outils.Protos.Segment.Accroche(p, *outils.EltCourant, horaire);
    return BandeProto(outils);
}

template <bool horaire>
bool FinAccroche(Machine& outils, const PointVek& p) {
    BandeAccroche<horaire>(outils, p);
    return AjouteSegment(outils);
}

bool PrendArc(Machine& outils, const PointVek& p) {
    return outils.Prend(BddCourante.ChercheType(p, TypeArc));
}

bool PrendSecondArc(Machine& outils, const PointVek& p) {
    return outils.PrendSecond(BddCourante.ChercheType(p, TypeArc));
}

Bande BandeTangente(Machine& outils, const PointVek& p) {
    if (!outils.Protos.Segment.Tangente2Arcs(p, *outils.EltCourant, *outils.EltSecond)) return {};
    return BandeProto(outils);
}

bool FinTangente(Machine& outils, const PointVek& p) {
    if (BandeTangente(outils, p)) AjouteSegment(outils);
    return true;
}

bool PlaceParallele(Machine& outils, const PointVek& p) {
    const EltGeo* modele = BddCourante.ChercheType(p, TypeSegment);
    if (!modele || !outils.Protos.Segment.DemandeParallele(CommeSegment(*modele), p)) return false;
    return AjouteSegment(outils);
}

bool PrendModeleOrtho(Machine& outils, const PointVek& p) {
    EltGeo* modele = BddCourante.Cherche(p);
    if (!modele || !SeLitCommeSegment(*modele)) return false;
    outils.Protos.Segment.Orthogonal(CommeSegment(*modele));
    return outils.Prend(modele);
}

Bande BandeOrtho(Machine& outils, const PointVek& p) {
    outils.Protos.Segment.Place(p);
    return BandeProto(outils);
}

bool FinOrtho(Machine& outils, const PointVek& p) {
    BandeOrtho(outils, p);
    return AjouteSegment(outils);
}

}  // namespace

std::vector<LigneEtat> LignesSegments() {
    return {
        LigneEtat(ETAT_DROITE_1, ETAT_DROITE_1, "premier point").AuClic(DebutDroite, ETAT_DROITE_2),
        LigneEtat(ETAT_DROITE_2, ETAT_DROITE_1, "Deuxième point")
            .AuClic(FinDroite, ETAT_DROITE_1)
            .Montre(BandeDroite),

        LigneEtat(ETAT_SEGMENT_1, ETAT_SEGMENT_1, "Position de l'origine du segment")
            .AuClic(DebutSegment, ETAT_SEGMENT_2),
        LigneEtat(ETAT_SEGMENT_2, ETAT_SEGMENT_1, "Position de l'extrémité du segment")
            .AuClic(FinSegment, ETAT_SEGMENT_1)
            .Montre(BandeSegment),

        LigneEtat(ETAT_SEGMENT_CE_1, ETAT_SEGMENT_CE_1, "Position du milieu du segment")
            .AuClic(DebutSegment, ETAT_SEGMENT_CE_2),
        LigneEtat(ETAT_SEGMENT_CE_2, ETAT_SEGMENT_CE_1, "Position de l'extrémité du segment")
            .AuClic(FinSymetrique, ETAT_SEGMENT_CE_1)
            .Montre(BandeSymetrique),

        LigneEtat(ETAT_SEGMENT_AE_1, ETAT_SEGMENT_AE_1, "Arc tangent horaire au segment")
            .AuClic(PrendElement, ETAT_SEGMENT_AE_2),
        LigneEtat(ETAT_SEGMENT_AE_2, ETAT_SEGMENT_AE_1, "Position de l'extrémité du segment")
            .AuClic(FinAccroche<true>, ETAT_SEGMENT_AE_1)
            .Montre(BandeAccroche<true>),

        LigneEtat(ETAT_SEGMENT_AEANTI_1, ETAT_SEGMENT_AEANTI_1,
                  "Arc tangent antihoraire au segment")
            .AuClic(PrendElement, ETAT_SEGMENT_AEANTI_2),
        LigneEtat(ETAT_SEGMENT_AEANTI_2, ETAT_SEGMENT_AEANTI_1,
                  "Position de l'extrémité du segment")
            .AuClic(FinAccroche<false>, ETAT_SEGMENT_AEANTI_1)
            .Montre(BandeAccroche<false>),

        LigneEtat(ETAT_SEGMENT_AA_1, ETAT_SEGMENT_AA_1, "Arc tangent")
            .AuClic(PrendArc, ETAT_SEGMENT_AA_2),
        LigneEtat(ETAT_SEGMENT_AA_2, ETAT_SEGMENT_AA_1, "Deuxième arc tangent")
            .AuClic(PrendSecondArc, ETAT_SEGMENT_AA_3),
        LigneEtat(ETAT_SEGMENT_AA_3, ETAT_SEGMENT_AA_1, "Deuxième arc tangent")
            .AuClic(FinTangente, ETAT_SEGMENT_AA_1)
            .Montre(BandeTangente),

        LigneEtat(ETAT_SEGMENT_PARA, ETAT_SEGMENT_PARA, "Quel segment ? De quel côté du segment ?")
            .AuClic(PlaceParallele, ETAT_SEGMENT_PARA)
            .SansRepere(),

        LigneEtat(ETAT_SEGMENT_ORTHO_1, ETAT_SEGMENT_ORTHO_1, "Quel segment ?")
            .AuClic(PrendModeleOrtho, ETAT_SEGMENT_ORTHO_2)
            .SansRepere(),
        LigneEtat(ETAT_SEGMENT_ORTHO_2, ETAT_SEGMENT_ORTHO_1, "Position du milieu du segment")
            .AuClic(FinOrtho, ETAT_SEGMENT_ORTHO_1)
            .Montre(BandeOrtho),
    };
}
