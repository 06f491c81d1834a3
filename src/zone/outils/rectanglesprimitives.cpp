// Rectangles, and the solids drawn like a rectangle or a circle.

#include <vector>

#include "zone/outils/communs.h"

std::vector<LigneEtat> LignesRectanglesPrimitives() {
    constexpr auto rectangle = &Prototypes::Rectangle;
    constexpr auto pave = &Prototypes::Pave;
    constexpr auto sphere = &Prototypes::Sphere;
    constexpr auto cylindre = &Prototypes::Cylindre;
    return {
        LigneEtat(ETAT_RECTANGLE_1, ETAT_RECTANGLE_1,
                  "Position de le point supérieur gauche du rectangle")
            .AuClic(PrendCoin<rectangle>, ETAT_RECTANGLE_2),
        LigneEtat(ETAT_RECTANGLE_2, ETAT_RECTANGLE_1,
                  "Position de le point inférieur droit du rectangle")
            .AuClic(FinCoins<rectangle>, ETAT_RECTANGLE_1)
            .Montre(BandeCoins<rectangle>),

        LigneEtat(ETAT_PAVE_1, ETAT_PAVE_1, "Position de le point supérieur gauche du pavé")
            .AuClic(PrendCoin<pave>, ETAT_PAVE_2),
        LigneEtat(ETAT_PAVE_2, ETAT_PAVE_1, "Position de le point inférieur droit du pavé")
            .AuClic(FinCoins<pave>, ETAT_PAVE_1)
            .Montre(BandeCoins<pave>),

        LigneEtat(ETAT_SPHERE_1, ETAT_SPHERE_1, "Cliquer sur le centre de la sphère")
            .AuClic(PrendCentre<sphere>, ETAT_SPHERE_2),
        LigneEtat(ETAT_SPHERE_2, ETAT_SPHERE_1, "Cliquer sur un point de la sphère")
            .AuClic(FinRond<sphere>, ETAT_SPHERE_1)
            .Montre(BandeRond<sphere>),

        LigneEtat(ETAT_CYLINDRE_1, ETAT_CYLINDRE_1, "Cliquer sur le centre du cylindre")
            .AuClic(PrendCentre<cylindre>, ETAT_CYLINDRE_2),
        LigneEtat(ETAT_CYLINDRE_2, ETAT_CYLINDRE_1, "Cliquer sur un point du cylindre")
            .AuClic(FinRond<cylindre>, ETAT_CYLINDRE_1)
            .Montre(BandeRond<cylindre>),
    };
}
