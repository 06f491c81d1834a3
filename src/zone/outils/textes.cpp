// Points, texts and images of groups.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesTextes() {
    return {
        LigneEtat(ETAT_POINT, ETAT_POINT, "Position du Point"),
        LigneEtat(ETAT_TEXTE, ETAT_TEXTE, "Position du texte").Pointe(Gdk::TCROSS),
        LigneEtat(ETAT_IMAGE, ETAT_IMAGE, "Position de l'image de BDD"),
        LigneEtat(ETAT_IMAGE3D, ETAT_IMAGE3D, "Position de l'image de BDD"),
    };
}
