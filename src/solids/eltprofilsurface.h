#pragma once

#include "solids/eltprofilvertex.h"

/// A grid of points, whose vertices stand row after row: the point (i, j) is the one of rank
/// i * `nbY` + j. A grid of more than 1000 points, or of another number than it says, is not shown.
class EltProfilSurface : public EltProfilVertex {
  public:
    EltProfilSurface();

    std::unique_ptr<EltGeo> Clone() const override;

    /// Leaves out which faces bear the texture, and its wrapping.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool Proprietes() override;

    // Taken only when above 2.

    void SetNbX(int nombre);
    void SetNbY(int nombre);

    /// Lays the points out again, flat, from `Position` on. The last ones fall one step short of
    /// the lengths, as in the grids that files hold. No points for a number that no drawing can
    /// hold.
    void Grille(double longueurX, double longueurY);

    int nbX = 4;
    int nbY = 4;

  protected:
    void DessineVertex() const override;

  private:
    void DessineMaille(std::size_t i, std::size_t j) const;
    const PointVek& Point(std::size_t i, std::size_t j) const;
};
