#pragma once

#include "solids/eltprofilvertex.h"

/// A ribbon: each vertex makes a triangle with the two before it.
class EltProfilRuban : public EltProfilVertex {
  public:
    EltProfilRuban();

    std::unique_ptr<EltGeo> Clone() const override;

  protected:
    void DessineVertex() const override;
};
