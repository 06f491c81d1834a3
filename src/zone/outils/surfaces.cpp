// Grids of points, ribbons and fans.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesSurfaces() {
    return {
        LigneEtat(ETAT_SURFACE_PROFIL_1, ETAT_SURFACE_PROFIL_1, "?"),
        LigneEtat(ETAT_SURFACE_PROFIL_2, ETAT_SURFACE_PROFIL_1, "?"),
        LigneEtat(ETAT_SURFACE_PROFIL_3, ETAT_SURFACE_PROFIL_1, "?"),
        LigneEtat(ETAT_SURFACE_1, ETAT_SURFACE_1, "?"),
        LigneEtat(ETAT_SURFACE_2, ETAT_SURFACE_1, "?"),
        LigneEtat(ETAT_RUBAN_1, ETAT_RUBAN_1, "?"),
        LigneEtat(ETAT_RUBAN_2, ETAT_RUBAN_1, "?"),
        LigneEtat(ETAT_RUBAN_3, ETAT_RUBAN_1, "?"),
        LigneEtat(ETAT_EVANTAIL_1, ETAT_EVANTAIL_1, "?"),
        LigneEtat(ETAT_EVANTAIL_2, ETAT_EVANTAIL_1, "?"),
        LigneEtat(ETAT_EVANTAIL_3, ETAT_EVANTAIL_1, "?"),
    };
}
