#include "commun/record.h"

#include <fstream>
#include <sstream>

#include "elements/ecrivain.h"
#include "elements/eltgeo.h"

std::string Record(const EltGeo& elt) {
    Ecrivain sortie;
    elt.Sauve(sortie);
    return sortie.Texte();
}

std::string DerniereLigne(const EltGeo& elt) {
    std::string texte = Record(elt);
    texte.pop_back();
    return texte.substr(texte.rfind('\n') + 1);
}

std::string Contenu(const std::string& chemin) {
    std::ostringstream texte;
    texte << std::ifstream(chemin, std::ios::binary).rdbuf();
    return texte.str();
}
