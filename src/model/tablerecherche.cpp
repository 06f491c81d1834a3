#include "model/tablerecherche.h"

#include <algorithm>

void TableRecherche::Refait(const Liste<EltGeo>& elements) {
    Lignes.clear();
    Lignes.reserve(static_cast<std::size_t>(elements.Nombre()));
    Groupes.clear();
    for (EltGeo* elt : elements) {
        Lignes.push_back({elt->MinorantDistance(), elt});
        if (elt->Type == TypeBDD) Groupes.push_back(elt);
    }
    std::reverse(Lignes.begin(), Lignes.end());
    std::reverse(Groupes.begin(), Groupes.end());
    AJour = true;
}
