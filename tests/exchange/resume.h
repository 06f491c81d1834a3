#pragma once

#include <string>

#include "commun/record.h"
#include "model/eltbdd.h"

/// The elements of a drawing, each with its type code and what its record holds behind the style;
/// a group with its name and its content.
inline std::string Resume(const BDDGeoBase& bdd) {
    std::string texte;
    for (const EltGeo* elt : bdd.Elements) {
        texte += std::to_string(elt->Type) + ": ";
        if (elt->Type == TypeBDD) {
            const auto& groupe = static_cast<const EltBDD&>(*elt);
            texte += groupe.Identificateur.raw() + " {" + Resume(groupe.Contenu) + "}\n";
            continue;
        }
        const std::string record = Record(*elt);
        std::size_t debut = 0;
        for (int ligne = 0; ligne < 4; ++ligne)
            debut = record.find('\n', debut) + 1;
        texte += record.substr(debut);
    }
    return texte;
}
