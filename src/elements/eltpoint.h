#pragma once

#include "elements/eltgeo.h"

/// A marker: the base element under its own type.
class EltPoint : public EltGeo {
  public:
    EltPoint() : EltGeo(TypePoint) {}
    EltPoint(const EltPoint&) = default;

    std::unique_ptr<EltGeo> Clone() const override { return std::make_unique<EltPoint>(*this); }
    Minorant MinorantDistance() const override { return Minorant::Point(Position, 0.0); }
};
