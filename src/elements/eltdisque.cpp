#include "elements/eltdisque.h"

EltDisque::EltDisque() : EltArc(TypeDisque) {}

std::unique_ptr<EltGeo> EltDisque::Clone() const {
    return std::make_unique<EltDisque>(*this);
}

void EltDisque::Dessine(Trace& trace) const {
    DessinePlein(trace);
}
