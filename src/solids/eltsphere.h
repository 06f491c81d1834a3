#pragma once

#include "elements/eltarc.h"
#include "solids/elt3d.h"

/// A ball about the centre of a circle, of its radius. It has no height: `h` is 0 and shown by the
/// dialog only.
class EltSphere : public EltArc, public Elt3d {
  public:
    explicit EltSphere(int type = TypeSphere);
    EltSphere(const EltSphere&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// Leaves out the finish, the texture's scale and the faces.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool Proprietes() override;

    double Pieces(double facettes, bool) const override { return facettes * facettes; }
    void Dessine3D(DC3D& dc, bool couleur) const override;
    void DessineFilaire(DC3D& dc) const override;
    Elt3d* GetElt3d() override { return this; }

    /// The whole: in space there are no ends to grab.
    void DebutDeforme3D(const PointVek&) override { PoigneeCourante = 1; }
    void ChangeElt3d(const Elt3d& source) override;

    /// To the surface.
    double Distance3D(const PointVek& p) const override;

  protected:
    /// The ball itself, for whatever is not drawn as a solid.
    void DessineCorps(DC3D& dc, bool couleur) const;
};
