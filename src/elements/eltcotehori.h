#pragma once

#include "elements/eltcote.h"

/// The horizontal distance of two points, which may be 0.
class EltCoteHori : public EltCote {
  public:
    EltCoteHori() : EltCote(TypeCoteHori, "Nice") {}
    EltCoteHori(const EltCoteHori&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// (1, 0).
    PointVek Direction() const override;
    bool EstValide() const override;
};
