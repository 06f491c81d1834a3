#pragma once

#include "elements/eltcote.h"

/// The vertical distance of two points, which may be 0.
class EltCoteVert : public EltCote {
  public:
    EltCoteVert() : EltCote(TypeCoteVert) {}
    EltCoteVert(const EltCoteVert&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// (0, 1).
    PointVek Direction() const override;
    bool EstValide() const override;
};
