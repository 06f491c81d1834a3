// Linear dimensions.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesCotesLineaires() {
    return {
        LigneEtat(ETAT_COTE_1, ETAT_COTE_1, "Position origine"),
        LigneEtat(ETAT_COTE_2, ETAT_COTE_1, "Position extrémité"),
        LigneEtat(ETAT_COTE_3, ETAT_COTE_1, "Position du texte de la ĉote"),
        LigneEtat(ETAT_COTE_VERT_1, ETAT_COTE_VERT_1, "Position origine"),
        LigneEtat(ETAT_COTE_VERT_2, ETAT_COTE_VERT_1, "Position extrémité"),
        LigneEtat(ETAT_COTE_VERT_3, ETAT_COTE_VERT_1, "Position du texte de la ĉote"),
        LigneEtat(ETAT_COTE_HORI_1, ETAT_COTE_HORI_1, "Position origine"),
        LigneEtat(ETAT_COTE_HORI_2, ETAT_COTE_HORI_1, "Position extrémité"),
        LigneEtat(ETAT_COTE_HORI_3, ETAT_COTE_HORI_1, "Position du texte de la ĉote"),
    };
}
