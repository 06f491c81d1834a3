// Diameter, radius and angular dimensions.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesCotesCirculaires() {
    return {
        LigneEtat(ETAT_COTE_DIA_1, ETAT_COTE_DIA_1, "Position du centre du cercle"),
        LigneEtat(ETAT_COTE_DIA_2, ETAT_COTE_DIA_1, "Position d'un point du cercle"),
        LigneEtat(ETAT_COTE_DIA_3, ETAT_COTE_DIA_1, "Position du texte de la cote"),
        LigneEtat(ETAT_COTE_DIA_ARC_1, ETAT_COTE_DIA_ARC_1, "Donner l'arc"),
        LigneEtat(ETAT_COTE_DIA_ARC_2, ETAT_COTE_DIA_ARC_1, "Position du texte de la cote"),
        LigneEtat(ETAT_COTE_RAYON_1, ETAT_COTE_RAYON_1, "Position du centre du cercle"),
        LigneEtat(ETAT_COTE_RAYON_2, ETAT_COTE_RAYON_1, "Position d'un point du cercle"),
        LigneEtat(ETAT_COTE_RAYON_3, ETAT_COTE_RAYON_1, "Position du texte de la cote"),
        LigneEtat(ETAT_COTE_RAYON_ARC_1, ETAT_COTE_RAYON_ARC_1, "Donner l'arc"),
        LigneEtat(ETAT_COTE_RAYON_ARC_2, ETAT_COTE_RAYON_ARC_1, "Position du texte de la cote"),
        LigneEtat(ETAT_COTE_ANG_1, ETAT_COTE_ANG_1,
                  "Position origine du premier segment du secteur"),
        LigneEtat(ETAT_COTE_ANG_2, ETAT_COTE_ANG_1,
                  "Position origine du deuxième segment du secteur"),
        LigneEtat(ETAT_COTE_ANG_3, ETAT_COTE_ANG_1,
                  "Position extrémité du premier segment du secteur"),
        LigneEtat(ETAT_COTE_ANG_4, ETAT_COTE_ANG_1,
                  "Position extrémité du deuxième segment du secteur"),
    };
}
