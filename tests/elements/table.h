#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "commun/record.h"

/// Plays a table of data: each line is a question and, behind " =", what is to come out of it; "#"
/// opens a remark. The answer to a question is given what the table expects.
template <class Reponse>
void ExigeTable(const std::string& nom, const Reponse& reponse) {
    std::istringstream lignes(Contenu(std::string(KRVEK_ESSAIS "/") + nom));
    std::string ligne, vues;
    while (std::getline(lignes, ligne)) {
        if (ligne[0] != '#') {
            const std::size_t fin = std::min(ligne.size(), ligne.find(" ="));
            const std::string question = ligne.substr(0, fin);
            SCOPED_TRACE(question);
            ligne = question + " =" + reponse(question, ligne.substr(fin + 2));
        }
        vues += ligne + '\n';
    }
    ExigeFichier(nom, vues);
}
