#pragma once

#include "elements/eltarc.h"

/// An arc or circle painted as a filled sector.
class EltDisque : public EltArc {
  public:
    EltDisque();
    EltDisque(const EltDisque&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Dessine(Trace& trace) const override;
};
