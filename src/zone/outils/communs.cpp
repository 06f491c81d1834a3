#include "zone/outils/communs.h"

#include "model/bddgeo.h"

bool PrendElement(ZoneDessin& zone, const PointVek& p) {
    return zone.Prend(BddCourante.Cherche(p));
}

void Attache(ZoneDessin& zone, const EltGeo& prototype) {
    if (EltGeo* fils = BddCourante.Ajoute(prototype)) zone.EltCourant->AjouteFils(fils);
    zone.Redessine();
}
