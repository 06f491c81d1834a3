// Diameter, radius and angular dimensions.

#include <vector>

#include "elements/eltarc.h"
#include "model/bddgeo.h"
#include "zone/outils/cotes.h"

namespace {

template <auto Proto>
bool PrendArc(ZoneDessin& zone, const PointVek& p) {
    const EltGeo* arc = BddCourante.ChercheType(p, TypeArc);
    if (!arc) return false;
    (zone.Protos.*Proto).DepuisArc(static_cast<const EltArc&>(*arc));
    return true;
}

Bande ApercuExtremite2(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.CoteAng.PlaceExtremite2(p);
    return BandeDe(zone.Protos.CoteAng);
}

bool PrendExtremite1(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.CoteAng.PlaceLigne(p);
    return true;
}

bool PoseAngle(ZoneDessin& zone, const PointVek& p) {
    ApercuExtremite2(zone, p);
    zone.Ajoute(zone.Protos.CoteAng);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesCotesCirculaires() {
    return {
        LigneEtat(ETAT_COTE_DIA_1, ETAT_COTE_DIA_1, "Position du centre du cercle")
            .AuClic(PrendPoint1<&Prototypes::CoteDia>, ETAT_COTE_DIA_2),
        LigneEtat(ETAT_COTE_DIA_2, ETAT_COTE_DIA_1, "Position d'un point du cercle")
            .AuClic(PrendPoint2<&Prototypes::CoteDia>, ETAT_COTE_DIA_3)
            .Montre(ApercuPoint2<&Prototypes::CoteDia>),
        LigneEtat(ETAT_COTE_DIA_3, ETAT_COTE_DIA_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteDia>, ETAT_COTE_DIA_1)
            .Montre(ApercuLigne<&Prototypes::CoteDia>),

        LigneEtat(ETAT_COTE_DIA_ARC_1, ETAT_COTE_DIA_ARC_1, "Donner l'arc")
            .AuClic(PrendArc<&Prototypes::CoteDia>, ETAT_COTE_DIA_ARC_2),
        LigneEtat(ETAT_COTE_DIA_ARC_2, ETAT_COTE_DIA_ARC_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteDia>, ETAT_COTE_DIA_ARC_1)
            .Montre(ApercuLigne<&Prototypes::CoteDia>),

        LigneEtat(ETAT_COTE_RAYON_1, ETAT_COTE_RAYON_1, "Position du centre du cercle")
            .AuClic(PrendPoint1<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_2),
        LigneEtat(ETAT_COTE_RAYON_2, ETAT_COTE_RAYON_1, "Position d'un point du cercle")
            .AuClic(PrendPoint2<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_3)
            .Montre(ApercuPoint2<&Prototypes::CoteRayon>),
        LigneEtat(ETAT_COTE_RAYON_3, ETAT_COTE_RAYON_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_1)
            .Montre(ApercuLigne<&Prototypes::CoteRayon>),

        LigneEtat(ETAT_COTE_RAYON_ARC_1, ETAT_COTE_RAYON_ARC_1, "Donner l'arc")
            .AuClic(PrendArc<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_ARC_2),
        LigneEtat(ETAT_COTE_RAYON_ARC_2, ETAT_COTE_RAYON_ARC_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_ARC_1)
            .Montre(ApercuLigne<&Prototypes::CoteRayon>),

        LigneEtat(ETAT_COTE_ANG_1, ETAT_COTE_ANG_1,
                  "Position origine du premier segment du secteur")
            .AuClic(PrendPoint1<&Prototypes::CoteAng>, ETAT_COTE_ANG_2),
        LigneEtat(ETAT_COTE_ANG_2, ETAT_COTE_ANG_1,
                  "Position origine du deuxième segment du secteur")
            .AuClic(PrendPoint2<&Prototypes::CoteAng>, ETAT_COTE_ANG_3)
            .Montre(ApercuPoint2<&Prototypes::CoteAng>),
        LigneEtat(ETAT_COTE_ANG_3, ETAT_COTE_ANG_1,
                  "Position extrémité du premier segment du secteur")
            .AuClic(PrendExtremite1, ETAT_COTE_ANG_4)
            .Montre(ApercuLigne<&Prototypes::CoteAng>),
        LigneEtat(ETAT_COTE_ANG_4, ETAT_COTE_ANG_1,
                  "Position extrémité du deuxième segment du secteur")
            .AuClic(PoseAngle, ETAT_COTE_ANG_1)
            .Montre(ApercuExtremite2),
    };
}
