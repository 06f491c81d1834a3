// Profiles, plain, extruded and turned.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesProfils() {
    return {
        LigneEtat(ETAT_PROFIL_1, ETAT_PROFIL_1, "Position du centre du profil"),
        LigneEtat(ETAT_PROFIL_2, ETAT_PROFIL_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_PROFIL_3, ETAT_PROFIL_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_PROFIL_ELT_1, ETAT_PROFIL_ELT_1, "Position du centre du profil"),
        LigneEtat(ETAT_PROFIL_ELT_2, ETAT_PROFIL_ELT_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_PROFIL_ELT_3, ETAT_PROFIL_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_ELEVATION_1, ETAT_ELEVATION_1, "Position du centre du profil"),
        LigneEtat(ETAT_ELEVATION_2, ETAT_ELEVATION_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_ELEVATION_3, ETAT_ELEVATION_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_TOURNE_1, ETAT_TOURNE_1, "Position du centre du profil ( axe de tournage )"),
        LigneEtat(ETAT_TOURNE_2, ETAT_TOURNE_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_TOURNE_3, ETAT_TOURNE_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_ELEVATION_ELT_1, ETAT_ELEVATION_ELT_1, "Position du centre du profil"),
        LigneEtat(ETAT_ELEVATION_ELT_2, ETAT_ELEVATION_ELT_1,
                  "Position du premier sommet du profil"),
        LigneEtat(ETAT_ELEVATION_ELT_3, ETAT_ELEVATION_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_TOURNE_ELT_1, ETAT_TOURNE_ELT_1,
                  "Position du centre du profil ( axe de tournage )"),
        LigneEtat(ETAT_TOURNE_ELT_2, ETAT_TOURNE_ELT_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_TOURNE_ELT_3, ETAT_TOURNE_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil"),
    };
}
