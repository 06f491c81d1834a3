#include "zone/prototypes.h"

template <class Action>
void Prototypes::Chacun(const Action& action) {
    for (EltGeo* elt :
         {static_cast<EltGeo*>(&Droite), static_cast<EltGeo*>(&Segment), static_cast<EltGeo*>(&Arc),
          static_cast<EltGeo*>(&Disque), static_cast<EltGeo*>(&Rectangle)})
        action(*elt);
}

void Prototypes::DiffuseTrait(const Trait& trait) {
    Chacun([&trait](EltGeo& elt) { elt.ChangeTrait(trait); });
}

void Prototypes::SetCalque(int calque) {
    Chacun([calque](EltGeo& elt) { elt.Calque = calque; });
}
