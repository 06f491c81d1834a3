// Circles and discs.

#include <vector>

#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

namespace {

bool CentreCercle(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.SetCentreDefaut(p);
    return true;
}

Bande ApercuCercle(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Arc.SetRayonPoint(p);
    return BandeDe(zone.Protos.Arc);
}

bool FinCercle(ZoneDessin& zone, const PointVek& p) {
    ApercuCercle(zone, p);
    zone.Ajoute(zone.Protos.Arc);
    return true;
}

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

bool CentreDisque(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Disque.SetCentreDefaut(p);
    return true;
}

Bande ApercuDisque(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Disque.SetRayonPoint(p);
    return BandeDe(zone.Protos.Disque);
}

bool FinDisque(ZoneDessin& zone, const PointVek& p) {
    ApercuDisque(zone, p);
    zone.Ajoute(zone.Protos.Disque);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesCercles() {
    return {
        LigneEtat(ETAT_CERCLE_1, ETAT_CERCLE_1, "Cliquer sur le centre du cercle")
            .AuClic(CentreCercle, ETAT_CERCLE_2),
        LigneEtat(ETAT_CERCLE_2, ETAT_CERCLE_1, "Cliquer sur un point du cercle")
            .AuClic(FinCercle, ETAT_CERCLE_1)
            .Montre(ApercuCercle),

        LigneEtat(ETAT_CERCLE_RAYON, ETAT_CERCLE_RAYON, "Centre du cercle")
            .Demande([](ZoneDessin& zone) { return zone.DemandeRayon(); })
            .AuClic(PlaceCercleRayon, ETAT_CERCLE_RAYON)
            .Montre(ApercuCercleRayon),

        LigneEtat(ETAT_DISQUE_1, ETAT_DISQUE_1, "Position du centre du disque")
            .AuClic(CentreDisque, ETAT_DISQUE_2),
        LigneEtat(ETAT_DISQUE_2, ETAT_DISQUE_1, "Position d'un point du périmètre du disque")
            .AuClic(FinDisque, ETAT_DISQUE_1)
            .Montre(ApercuDisque),
    };
}
