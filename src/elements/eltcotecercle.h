#pragma once

#include "elements/eltcote.h"

class EltArc;

/// What the two dimensions of a circle share. The points are the centre and a point of the circle,
/// or what the arc gives; the text is level and stands where it was put.
class EltCoteCercle : public EltCote {
  public:
    void SetPoint1(const PointVek& p) override;
    void SetPoint2(const PointVek& p) override;
    void PlaceLigne(const PointVek& p) override;

    /// Takes the two points from the arc; the text is at its centre until it is placed.
    virtual void DepuisArc(const EltArc& arc);

  protected:
    using EltCote::EltCote;

    double AngleCote() const override;
};
