#pragma once

#include "solids/eltprofiltube.h"

/// A tube whose radius at each vertex is the y of the vertex of the same rank in the second child,
/// the envelope, without its sign; beyond the envelope's end it stays. Without a second child there
/// is no body.
class EltProfilBoaRond : public EltProfilTube {
  public:
    EltProfilBoaRond();

    std::unique_ptr<EltGeo> Clone() const override;
    double Pieces(double facettes, bool anneaux) const override;
    bool Proprietes() override;

  protected:
    void Balaie(const EltProfil& chemin, const Grain& grain) const override;
};
