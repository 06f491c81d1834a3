#pragma once

#include "elements/eltrectangle.h"
#include "solids/elt3d.h"

/// A box on a rectangle: in its own axes it reaches from z = 0 to z = `h` about `Position`.
class EltPave : public EltRectangle, public Elt3d {
  public:
    explicit EltPave(int type = TypePave);
    EltPave(const EltPave&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// Takes all but `facetisation`.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool Proprietes() override;

    void Dessine3D(DC3D& dc, bool couleur) const override;
    void DessineFilaire(DC3D& dc) const override;
    Elt3d* GetElt3d() override { return this; }
    void ChangeElt3d(const Elt3d& source) override;

    /// To the nearest corner or axis end: a box is picked by its corners, not by its faces.
    double Distance3D(const PointVek& p) const override;
    PointVek PointProche3D(const PointVek& p) const override;

    /// Grabs one of the two corners that the rectangle is kept by, or the whole.
    void DebutDeforme3D(const PointVek& p) override;

    /// A corner moves in the plane of the base; the opposite one stays.
    void Deforme3D(const PointVek& v) override;

  protected:
    /// One face by the signs of its corners in the box's own axes: z is -1 at the base, 1 at `h`.
    struct Face {
        struct Coin {
            int x, y, z;
        } Coins[4];
        struct Normale {
            int x, y, z;
        } Dehors;
    };

    /// The faces differ by a shade, so that the edges show without lines.
    void ColoreFace(int face, bool couleur) const;

    /// Half the sides. The faces are wound for corners in the class's order, in which y falls.
    PointVek DemiCotes() const;

    /// s and t: how often the texture repeats along the face. hauteur is that of an `Elevation`.
    void PeintFace(const Face& face, double hauteur, double s, double t, bool arrondie) const;

  private:
    /// The special points in the box's own axes.
    std::vector<PointVek> PointsAccroche() const;
};
