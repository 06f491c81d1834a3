#include "commun/record.h"

#include <fstream>
#include <sstream>

#include "elements/ecrivain.h"
#include "elements/eltgeo.h"
#include "model/bilanlecture.h"

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

std::string Resume(const BilanLecture& bilan) {
    std::string resume = std::to_string(bilan.Lus) + '/' + std::to_string(bilan.Annonces);
    if (!bilan.Entier) resume += " cut";
    for (const auto& [genre, nombre] : bilan.Laisses)
        resume += ", " + std::to_string(nombre) + ' ' + genre;
    return resume;
}

std::string Contenu(const std::string& chemin) {
    std::ostringstream texte;
    texte << std::ifstream(chemin, std::ios::binary).rdbuf();
    return texte.str();
}
