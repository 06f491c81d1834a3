#include "elements/eltpoint.h"

#include "elements/angles.h"
#include "elements/trace.h"
#include "elements/vue.h"

namespace {

constexpr double RayonSurPapier = 0.25;  ///< Drawing units.

}  // namespace

std::unique_ptr<EltGeo> EltPoint::Clone() const {
    return std::make_unique<EltPoint>(*this);
}

void EltPoint::Dessine(Trace& trace) const {
    EltGeo::Dessine(trace);
    if (!trace.SurPapier()) return;
    const ArcEcran disque{vue::VersEcran(Position), vue::LongueurEcran(RayonSurPapier), 0.0,
                          DeuxPi};
    trace.AppliqueTrait(Style, Trace::Ligne);
    trace.Arc(disque, true);
    trace.Arc(disque, false);
}

Minorant EltPoint::MinorantDistance() const {
    return Minorant::Point(Position, 0.0);
}
