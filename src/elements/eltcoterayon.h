#pragma once

#include "elements/eltcotecercle.h"

/// A radius. From an arc `Point2` is the centre; placed by two clicks `Point1` is: files hold both
/// orders.
class EltCoteRayon : public EltCoteCercle {
  public:
    EltCoteRayon() : EltCoteCercle(TypeCoteRayon) {}
    EltCoteRayon(const EltCoteRayon&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

  protected:
    double PorteeLignes() const override;
    void DessineLignes(Trace& trace) const override;
};
