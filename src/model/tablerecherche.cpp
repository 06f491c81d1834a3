#include "model/tablerecherche.h"

#include <algorithm>

void TableRecherche::Refait(const Liste<EltGeo>& elements) {
    Lignes.clear();
    Lignes.reserve(static_cast<std::size_t>(elements.Nombre()));
    for (EltGeo* elt : elements)
        Lignes.push_back({elt->MinorantDistance(), elt});
    std::reverse(Lignes.begin(), Lignes.end());
    AJour = true;
}
