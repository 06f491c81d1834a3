#include "zone/outils/communs.h"

#include "model/bddgeo.h"
#include "zone/zonedessin.h"

bool PrendElement(ZoneDessin& zone, const PointVek& p) {
    return zone.Prend(BddCourante.Cherche(p));
}

bool PrendPremierCoin(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Rectangle.SetPoints(p, p);
    return true;
}

Bande ApercuRectangle(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Rectangle.SetExtremite(p);
    return BandeDe(zone.Protos.Rectangle);
}
