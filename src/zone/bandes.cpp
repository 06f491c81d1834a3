#include "zone/bandes.h"

#include <memory>
#include <utility>

#include "elements/eltgeo.h"
#include "elements/traceecran.h"

Bande BandeDe(const EltGeo& elt) {
    const std::shared_ptr<EltGeo> copie = elt.Clone();
    return [copie](Trace& trace) { copie->Dessine(trace); };
}

void Bandes::Montre(Place place, Bande bande) {
    if (!RepeinteAttendue) Peint(Montrees[place]);
    Montrees[place] = std::move(bande);
    if (!RepeinteAttendue) Peint(Montrees[place]);
}

void Bandes::CacheTout() {
    for (const Place place : {Poignees, Outil, Repere})
        Montre(place, {});
}

void Bandes::Expose(bool entiere) {
    if (entiere) RepeinteAttendue = false;
    for (const Bande& bande : Montrees)
        Peint(bande);
}

void Bandes::Peint(const Bande& bande) const {
    if (!bande || !Fenetre) return;
    int largeur = 0, hauteur = 0;
    Fenetre->get_size(largeur, hauteur);
    TraceEcran trace(Fenetre, largeur, hauteur, Fond);
    bande(trace);
}
