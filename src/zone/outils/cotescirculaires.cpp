// Diameter, radius and angular dimensions.

#include <vector>

#include "elements/eltarc.h"
#include "model/bddgeo.h"
#include "zone/outils/cotes.h"

namespace {

template <auto Proto>
bool PrendArc(Machine& outils, const PointVek& p) {
    const EltGeo* arc = BddCourante.ChercheType(p, TypeArc);
    if (!arc) return false;
    (outils.Protos.*Proto).DepuisArc(static_cast<const EltArc&>(*arc));
    return true;
}

Bande BandeExtremite2(Machine& outils, const PointVek& p) {
    outils.Protos.CoteAng.PlaceExtremite2(p);
    return BandeDe(outils.Protos.CoteAng);
}

bool PrendExtremite1(Machine& outils, const PointVek& p) {
    outils.Protos.CoteAng.PlaceLigne(p);
    return true;
}

bool PoseAngle(Machine& outils, const PointVek& p) {
    BandeExtremite2(outils, p);
    outils.Ajoute(outils.Protos.CoteAng);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesCotesCirculaires() {
    return {
        LigneEtat(ETAT_COTE_DIA_1, ETAT_COTE_DIA_1, "Position du centre du cercle")
            .AuClic(PrendPoint1<&Prototypes::CoteDia>, ETAT_COTE_DIA_2),
        LigneEtat(ETAT_COTE_DIA_2, ETAT_COTE_DIA_1, "Position d'un point du cercle")
            .AuClic(PrendPoint2<&Prototypes::CoteDia>, ETAT_COTE_DIA_3)
            .Montre(BandePoint2<&Prototypes::CoteDia>),
        LigneEtat(ETAT_COTE_DIA_3, ETAT_COTE_DIA_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteDia>, ETAT_COTE_DIA_1)
            .Montre(BandeLigne<&Prototypes::CoteDia>),

        LigneEtat(ETAT_COTE_DIA_ARC_1, ETAT_COTE_DIA_ARC_1, "Donner l'arc")
            .AuClic(PrendArc<&Prototypes::CoteDia>, ETAT_COTE_DIA_ARC_2),
        LigneEtat(ETAT_COTE_DIA_ARC_2, ETAT_COTE_DIA_ARC_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteDia>, ETAT_COTE_DIA_ARC_1)
            .Montre(BandeLigne<&Prototypes::CoteDia>),

        LigneEtat(ETAT_COTE_RAYON_1, ETAT_COTE_RAYON_1, "Position du centre du cercle")
            .AuClic(PrendPoint1<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_2),
        LigneEtat(ETAT_COTE_RAYON_2, ETAT_COTE_RAYON_1, "Position d'un point du cercle")
            .AuClic(PrendPoint2<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_3)
            .Montre(BandePoint2<&Prototypes::CoteRayon>),
        LigneEtat(ETAT_COTE_RAYON_3, ETAT_COTE_RAYON_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_1)
            .Montre(BandeLigne<&Prototypes::CoteRayon>),

        LigneEtat(ETAT_COTE_RAYON_ARC_1, ETAT_COTE_RAYON_ARC_1, "Donner l'arc")
            .AuClic(PrendArc<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_ARC_2),
        LigneEtat(ETAT_COTE_RAYON_ARC_2, ETAT_COTE_RAYON_ARC_1, "Position du texte de la cote")
            .AuClic(PoseLigne<&Prototypes::CoteRayon>, ETAT_COTE_RAYON_ARC_1)
            .Montre(BandeLigne<&Prototypes::CoteRayon>),

        LigneEtat(ETAT_COTE_ANG_1, ETAT_COTE_ANG_1,
                  "Position origine du premier segment du secteur")
            .AuClic(PrendPoint1<&Prototypes::CoteAng>, ETAT_COTE_ANG_2),
        LigneEtat(ETAT_COTE_ANG_2, ETAT_COTE_ANG_1,
                  "Position origine du deuxième segment du secteur")
            .AuClic(PrendPoint2<&Prototypes::CoteAng>, ETAT_COTE_ANG_3)
            .Montre(BandePoint2<&Prototypes::CoteAng>),
        LigneEtat(ETAT_COTE_ANG_3, ETAT_COTE_ANG_1,
                  "Position extrémité du premier segment du secteur")
            .AuClic(PrendExtremite1, ETAT_COTE_ANG_4)
            .Montre(BandeLigne<&Prototypes::CoteAng>),
        LigneEtat(ETAT_COTE_ANG_4, ETAT_COTE_ANG_1,
                  "Position extrémité du deuxième segment du secteur")
            .AuClic(PoseAngle, ETAT_COTE_ANG_1)
            .Montre(BandeExtremite2),
    };
}
