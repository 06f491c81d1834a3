// What is taken away from a solid.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesSoustractifs() {
    return {
        LigneEtat(ETAT_PERCAGE_1, ETAT_PERCAGE_1, "Cliquer sur l'élément à percer"),
        LigneEtat(ETAT_PERCAGE_2, ETAT_PERCAGE_1, "Cliquer sur le centre du perçage"),
        LigneEtat(ETAT_PERCAGE_3, ETAT_PERCAGE_1, "Cliquer sur un point du diamètre de perçage"),
        LigneEtat(ETAT_RAINURE_1, ETAT_RAINURE_1, "Cliquer sur l'élément à rainurer"),
        LigneEtat(ETAT_RAINURE_2, ETAT_RAINURE_1, "Position de le point supérieur gauche du pavé"),
        LigneEtat(ETAT_RAINURE_3, ETAT_RAINURE_1, "Position de le point inférieur droit du pavé"),
        LigneEtat(ETAT_RAINURE_P_1, ETAT_RAINURE_P_1, "Cliquer sur l'élément à rainurer"),
        LigneEtat(ETAT_RAINURE_P_2, ETAT_RAINURE_P_1, "Position du centre du profil"),
        LigneEtat(ETAT_RAINURE_P_3, ETAT_RAINURE_P_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_RAINURE_P_4, ETAT_RAINURE_P_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_RAINURE_P_ELT_1, ETAT_RAINURE_P_ELT_1, "Cliquer sur l'élément à rainurer"),
        LigneEtat(ETAT_RAINURE_P_ELT_2, ETAT_RAINURE_P_ELT_1, "Position du centre du profil"),
        LigneEtat(ETAT_RAINURE_P_ELT_3, ETAT_RAINURE_P_ELT_1,
                  "Position du premier sommet du profil"),
        LigneEtat(ETAT_RAINURE_P_ELT_4, ETAT_RAINURE_P_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_ENVBOULE_1, ETAT_ENVBOULE_1, "Cliquer sur l'élément à envellopper"),
        LigneEtat(ETAT_ENVBOULE_2, ETAT_ENVBOULE_1, "Cliquer sur le centre de la boule"),
        LigneEtat(ETAT_ENVBOULE_3, ETAT_ENVBOULE_1, "Cliquer sur un point du diamètre de la boule"),
    };
}
