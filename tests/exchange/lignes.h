#pragma once

#include <string>

#include "commun/record.h"
#include "elements/lecteur.h"
#include "model/eltbdd.h"
#include "model/registre.h"

/// What a record has behind the type of an element in the style of a new one, on layer 0.
inline const std::string StyleNeuf = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";

/// An element on one line: its record, bars between its lines, after a colon in the place of the
/// style where that is a new one's. A group with its content between braces.
inline std::string EnLigne(const EltGeo& elt) {
    std::string texte = Record(elt), contenu;
    if (elt.Type == TypeBDD) {
        for (const EltGeo* dedans : static_cast<const EltBDD&>(elt).Contenu.Elements)
            contenu += (contenu.empty() ? " {" : "; ") + EnLigne(*dedans);
        texte.erase(texte.find("VERSION"));
        contenu += contenu.empty() ? " {}" : "}";
    }
    if (const std::size_t style = texte.find(StyleNeuf); style < 3)
        texte.replace(style, StyleNeuf.size(), ": ");
    texte.pop_back();
    for (std::size_t ou = 0; (ou = texte.find('\n', ou)) != std::string::npos;)
        texte.replace(ou, 1, " | ");
    return texte.substr(0, texte.find_last_not_of(' ') + 1) + contenu;
}

/// The element of such a line; null where there is no such type.
inline std::unique_ptr<EltGeo> DepuisLigne(std::string ligne) {
    const std::size_t deuxPoints = ligne.find(": ");
    if (deuxPoints < 3) ligne.replace(deuxPoints, 2, StyleNeuf);
    for (std::size_t ou = 0; (ou = ligne.find(" | ", ou)) != std::string::npos;)
        ligne.replace(ou, 3, "\n");
    Lecteur entree(ligne);
    int type = 0;
    entree >> type;
    auto elt = CreeElement(type);
    if (elt) elt->Charge(entree);
    return elt;
}

/// The elements of a drawing, each on a line of its own that begins so.
inline std::string Resume(const BDDGeoBase& bdd, const std::string& debut = "    ") {
    std::string texte;
    for (const EltGeo* elt : bdd.Elements)
        texte += debut + EnLigne(*elt) + '\n';
    return texte;
}
