// Rectangles, and the solids drawn like a rectangle or a circle.

#include <vector>

#include "zone/outils/communs.h"
#include "zone/zonedessin.h"

namespace {

bool FinRectangle(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Rectangle.SetExtremite(p);
    zone.Protos.Rectangle.Ordonne();
    zone.Ajoute(zone.Protos.Rectangle);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesRectanglesPrimitives() {
    return {
        LigneEtat(ETAT_RECTANGLE_1, ETAT_RECTANGLE_1,
                  "Position de le point supérieur gauche du rectangle")
            .AuClic(PrendPremierCoin, ETAT_RECTANGLE_2),
        LigneEtat(ETAT_RECTANGLE_2, ETAT_RECTANGLE_1,
                  "Position de le point inférieur droit du rectangle")
            .AuClic(FinRectangle, ETAT_RECTANGLE_1)
            .Montre(ApercuRectangle),

        LigneEtat(ETAT_PAVE_1, ETAT_PAVE_1, "Position de le point supérieur gauche du pavé"),
        LigneEtat(ETAT_PAVE_2, ETAT_PAVE_1, "Position de le point inférieur droit du pavé"),
        LigneEtat(ETAT_SPHERE_1, ETAT_SPHERE_1, "Cliquer sur le centre de la sphère"),
        LigneEtat(ETAT_SPHERE_2, ETAT_SPHERE_1, "Cliquer sur un point de la sphère"),
        LigneEtat(ETAT_CYLINDRE_1, ETAT_CYLINDRE_1, "Cliquer sur le centre du cylindre"),
        LigneEtat(ETAT_CYLINDRE_2, ETAT_CYLINDRE_1, "Cliquer sur un point du cylindre"),
    };
}
