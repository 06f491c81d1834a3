#pragma once

#include <glib.h>
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <istream>
#include <memory>
#include <sstream>
#include <string>

#include "elements/lecteur.h"
#include "model/registre.h"

// Elements and numbers as the files of expectations write them.

/// What a file holds of an element before its position. couleur: red 1, green 2, blue 4.
inline std::string Entete(int type, int couleur) {
    std::string entete = std::to_string(type) + " 1 0\n#";
    for (int canal = 0; canal < 3; ++canal)
        entete += couleur >> canal & 1 ? "ffff" : "0000";
    return entete + "\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
}

/// The record of type, colour, then the lines behind the colour with bars between them; ~ is the
/// home.
inline std::string LitRecord(std::istream& mots) {
    int type = 0, couleur = 0;
    std::string suite;
    std::getline(mots >> type >> couleur >> std::ws, suite);
    for (char& lettre : suite)
        if (lettre == '|') lettre = '\n';
    const std::size_t ici = suite.find('~');
    if (ici != std::string::npos) suite.replace(ici, 1, g_get_home_dir());
    return Entete(type, couleur) + suite + '\n';
}

/// The element of a record.
inline std::unique_ptr<EltGeo> EltDe(const std::string& record) {
    Lecteur entree(record);
    int type = 0;
    entree >> type;
    auto elt = CreeElement(type);
    elt->Charge(entree);
    EXPECT_FALSE(entree.Echec()) << record;
    return elt;
}

/// Numbers with three decimals at most.
inline std::string Dit(std::initializer_list<double> nombres) {
    std::ostringstream texte;
    for (const double nombre : nombres)
        texte << (texte.tellp() > 0 ? " " : "") << std::round(nombre * 1e3) / 1e3 + 0.0;
    return texte.str();
}

inline std::string Dit(const PointVek& p) {
    return Dit({p.x, p.y, p.z});
}

inline std::istream& operator>>(std::istream& mots, PointVek& p) {
    return mots >> p.x >> p.y >> p.z;
}

inline PointVek LitPoint(std::istream& mots) {
    PointVek p;
    mots >> p;
    return p;
}

/// What stands behind the sign of equality of a line; ligne is cut before it.
inline std::string Attente(std::string& ligne) {
    const std::size_t egal = ligne.find(" =");
    if (egal == std::string::npos) return {};
    const std::size_t debut = ligne.find_first_not_of(' ', egal + 2);
    const std::string attente = debut == std::string::npos ? "" : ligne.substr(debut);
    ligne.resize(egal);
    return attente;
}
