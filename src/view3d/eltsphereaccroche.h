#pragma once

#include "solids/eltsphere.h"

/// A ball that belongs to the 3D view and to no drawing: its pointer, and its snap marker.
class EltSphereAccroche : public EltSphere {
  public:
    /// couleur: as the toolkit reads it.
    EltSphereAccroche(double rayon, const Glib::ustring& couleur);

    /// A cage, with the three axes through the centre.
    void DessineFilaire(DC3D& dc) const override;
};
