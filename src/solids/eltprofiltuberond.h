#pragma once

#include "solids/eltprofiltube.h"

/// A rod: the same radius all along, with a ball at each joint.
class EltProfilTubeRond : public EltProfilTube {
  public:
    EltProfilTubeRond();

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool EstValide() const override;
    double Pieces(double facettes, bool anneaux) const override;
    bool Proprietes() override;

    double rayon = 10.0;  ///< In drawing units.

  protected:
    void Balaie(const EltProfil& chemin, const Grain& grain) const override;

  private:
    /// The rod from p to q, of that many slices.
    void DessineTroncon(const PointVek& p, const PointVek& q, bool premier, bool dernier,
                        int tranches, bool anneaux) const;
};
