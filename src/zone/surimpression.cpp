#include "zone/surimpression.h"

#include <utility>

#include "elements/traceecran.h"

void Surimpression::Montre(Place place, Bande bande) {
    if (!RepeinteAttendue) Peint(Bandes[place]);
    Bandes[place] = std::move(bande);
    if (!RepeinteAttendue) Peint(Bandes[place]);
}

void Surimpression::Expose(bool entiere) {
    if (entiere) RepeinteAttendue = false;
    for (const Bande& bande : Bandes)
        Peint(bande);
}

void Surimpression::Peint(const Bande& bande) const {
    if (!bande || !Fenetre) return;
    int largeur = 0, hauteur = 0;
    Fenetre->get_size(largeur, hauteur);
    TraceEcran trace(Fenetre, largeur, hauteur, Fond);
    bande(trace);
}
