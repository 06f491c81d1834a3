#pragma once

#include "elements/eltcotecercle.h"

/// A diameter. From an arc the points are the ends of a diameter; placed by two clicks they are the
/// clicks. Their distance is the value either way: a record does not tell which way they came.
class EltCoteDia : public EltCoteCercle {
  public:
    EltCoteDia() : EltCoteCercle(TypeCoteDia, "Nice") {}
    EltCoteDia(const EltCoteDia&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void DepuisArc(const EltArc& arc) override;

  protected:
    double PorteeLignes() const override;
    void DessineLignes(Trace& trace) const override;
};
