#pragma once

#include "elements/eltgeo.h"

/// A marker: the base element under its own type. On paper it is a dot.
class EltPoint : public EltGeo {
  public:
    EltPoint() : EltGeo(TypePoint) {}
    EltPoint(const EltPoint&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Dessine(Trace& trace) const override;
    Minorant MinorantDistance() const override;
};
