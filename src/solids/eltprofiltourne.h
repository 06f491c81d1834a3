#pragma once

#include "elements/eltprofil.h"
#include "solids/elt3d.h"

/// A profile turned about its local y axis, as an open meridian: what closes it is not drawn. On
/// the sheet it is the profile. The 3D view does not take it for a solid: it is picked by its
/// position and shows no wire.
class EltProfilTourne : public EltProfil, public Elt3d {
  public:
    EltProfilTourne();

    std::unique_ptr<EltGeo> Clone() const override;

    /// Takes every attribute.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool Proprietes() override;

    double Pieces(double facettes, bool anneaux) const override;
    void Dessine3D(DC3D& dc, bool couleur) const override;
    void ChangeElt3d(const Elt3d& source) override { Elt3d::Copie(source); }

  protected:
    PointVek VersAxes(const PointVek& v) const override { return VersLocal(v); }
    PointVek DepuisAxes(const PointVek& v) const override { return VersMonde(v); }
};
