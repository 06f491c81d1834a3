#include "zone/outils/communs.h"

#include "model/bddgeo.h"

bool PrendElement(Machine& outils, const PointVek& p) {
    return outils.Prend(BddCourante.Cherche(p));
}

void Attache(Machine& outils, const EltGeo& prototype) {
    BddCourante.AjouteFils(*outils.EltCourant, prototype);
    outils.Redessine();
}
