#include "commun/record.h"

#include <glib/gstdio.h>
#include <glibmm/regex.h>
#include <gtest/gtest.h>

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

std::string Remplace(const std::string& texte, const char* motif, const char* par) {
    const auto regle = Glib::Regex::create(motif, Glib::REGEX_RAW);
    return regle->replace(texte, 0, par, static_cast<Glib::RegexMatchFlags>(0));
}

std::string Contenu(const std::string& chemin) {
    std::ostringstream texte;
    texte << std::ifstream(chemin, std::ios::binary).rdbuf();
    return texte.str();
}

void ExigeFichier(const std::string& nom, const std::string& vu) {
    const std::string attendu = Contenu(std::string(KRVEK_ESSAIS "/") + nom);
    if (vu == attendu) return;
    std::istringstream vues(vu), attendues(attendu);
    std::string ligne, autre;
    int rang = 0;
    do {
        ++rang;
        if (!std::getline(vues, ligne)) ligne = "(end)";
        if (!std::getline(attendues, autre)) autre = "(end)";
    } while (ligne == autre && ligne != "(end)");
    g_mkdir_with_parents(KRVEK_IMAGES, 0777);
    const std::string copie = std::string(KRVEK_IMAGES "/") + nom.substr(nom.rfind('/') + 1);
    std::ofstream(copie, std::ios::binary) << vu;
    ADD_FAILURE() << nom << ", line " << rang << ":\n  seen     " << ligne << "\n  expected "
                  << autre << "\nall that was seen: " << copie;
}
