#pragma once

#include "solids/eltprofilelevation.h"

/// A skin through the vertices of a profile, each at its own z: what its heirs make of them. It has
/// no thickness.
class EltProfilVertex : public EltProfilElevation {
  public:
    using EltProfilElevation::EltProfilElevation;

    double Pieces(double, bool) const override { return 2.0 * static_cast<double>(Sommets.size()); }
    void Dessine3D(DC3D& dc, bool couleur) const override;

  protected:
    virtual void DessineVertex() const = 0;

    /// The vertices in order, as that primitive. The normal of each is the way to it from the one
    /// before, taken by the next: no surface has it, but it gives the shading users know.
    void DessineSuite(unsigned primitive) const;
};
