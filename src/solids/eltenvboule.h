#pragma once

#include "solids/eltsphere.h"

/// A sphere that the solid which holds it as a child must lie inside; the solid alone draws it.
class EltEnvBoule : public EltSphere {
  public:
    EltEnvBoule();
    EltEnvBoule(const EltEnvBoule&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Dessine3D(DC3D&, bool) const override {}
    void DessineBoule(DC3D& dc, bool couleur) const { DessineCorps(dc, couleur); }
};
