#pragma once

#include "elements/eltprofil.h"
#include "solids/elt3d.h"

/// A profile extruded along its local z axis, by `h`. On the sheet it is the profile.
class EltProfilElevation : public EltProfil, public Elt3d {
  public:
    explicit EltProfilElevation(int type = TypeProfilElevation);

    std::unique_ptr<EltGeo> Clone() const override;

    /// Takes every attribute.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool Proprietes() override;

    double Pieces(double facettes, bool anneaux) const override;
    void Dessine3D(DC3D& dc, bool couleur) const override;
    void DessineFilaire(DC3D& dc) const override;
    Elt3d* GetElt3d() override { return this; }
    void ChangeElt3d(const Elt3d& source) override { Elt3d::Copie(source); }

    /// To `PointProche3D`.
    double Distance3D(const PointVek& p) const override;

    /// The nearest of `Position` and of the vertices at both heights; arcs count by their ends.
    PointVek PointProche3D(const PointVek& p) const override;

  protected:
    PointVek VersAxes(const PointVek& v) const override { return VersLocal(v); }
    PointVek DepuisAxes(const PointVek& v) const override { return VersMonde(v); }
};
