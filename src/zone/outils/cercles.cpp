// Circles and discs.

#include <vector>

#include "zone/outils/communs.h"

namespace {

Bande BandeCercleRayon(Machine& outils, const PointVek& p) {
    outils.Protos.Arc.SetCentreDefaut(p);
    outils.Protos.Arc.Rayon = outils.Rayon;
    return BandeDe(outils.Protos.Arc);
}

bool PlaceCercleRayon(Machine& outils, const PointVek& p) {
    BandeCercleRayon(outils, p);
    outils.Ajoute(outils.Protos.Arc);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesCercles() {
    constexpr auto cercle = &Prototypes::Arc;
    constexpr auto disque = &Prototypes::Disque;
    return {
        LigneEtat(ETAT_CERCLE_1, ETAT_CERCLE_1, "Cliquer sur le centre du cercle")
            .AuClic(PrendCentre<cercle>, ETAT_CERCLE_2),
        LigneEtat(ETAT_CERCLE_2, ETAT_CERCLE_1, "Cliquer sur un point du cercle")
            .AuClic(FinRond<cercle>, ETAT_CERCLE_1)
            .Montre(BandeRond<cercle>),

        LigneEtat(ETAT_CERCLE_RAYON, ETAT_CERCLE_RAYON, "Centre du cercle")
            .Demande([](Machine& outils) { return outils.DemandeRayon(); })
            .AuClic(PlaceCercleRayon, ETAT_CERCLE_RAYON)
            .Montre(BandeCercleRayon),

        LigneEtat(ETAT_DISQUE_1, ETAT_DISQUE_1, "Position du centre du disque")
            .AuClic(PrendCentre<disque>, ETAT_DISQUE_2),
        LigneEtat(ETAT_DISQUE_2, ETAT_DISQUE_1, "Position d'un point du périmètre du disque")
            .AuClic(FinRond<disque>, ETAT_DISQUE_1)
            .Montre(BandeRond<disque>),
    };
}
