// Circles and discs.

#include <vector>

#include "zone/outils/communs.h"

namespace {

Bande ApercuCercleRayon(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.SetCentreDefaut(p);
    zone.Protos.Arc.Rayon = zone.Rayon;
    return BandeDe(zone.Protos.Arc);
}

bool PlaceCercleRayon(ZoneDessin& zone, const PointVek& p) {
    ApercuCercleRayon(zone, p);
    zone.Ajoute(zone.Protos.Arc);
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
            .Montre(ApercuRond<cercle>),

        LigneEtat(ETAT_CERCLE_RAYON, ETAT_CERCLE_RAYON, "Centre du cercle")
            .Demande([](ZoneDessin& zone) { return zone.DemandeRayon(); })
            .AuClic(PlaceCercleRayon, ETAT_CERCLE_RAYON)
            .Montre(ApercuCercleRayon),

        LigneEtat(ETAT_DISQUE_1, ETAT_DISQUE_1, "Position du centre du disque")
            .AuClic(PrendCentre<disque>, ETAT_DISQUE_2),
        LigneEtat(ETAT_DISQUE_2, ETAT_DISQUE_1, "Position d'un point du périmètre du disque")
            .AuClic(FinRond<disque>, ETAT_DISQUE_1)
            .Montre(ApercuRond<disque>),
    };
}
