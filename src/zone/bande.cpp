#include "zone/bande.h"

#include <memory>

#include "elements/eltgeo.h"

Bande BandeDe(const EltGeo& elt) {
    const std::shared_ptr<EltGeo> copie = elt.Clone();
    return [copie](Trace& trace) { copie->Dessine(trace); };
}
