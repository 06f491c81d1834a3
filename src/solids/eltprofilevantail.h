#pragma once

#include "solids/eltprofilvertex.h"

/// A fan: each vertex makes a triangle with the first and the one before it.
class EltProfilEvantail : public EltProfilVertex {
  public:
    EltProfilEvantail();

    std::unique_ptr<EltGeo> Clone() const override;

  protected:
    void DessineVertex() const override;
};
