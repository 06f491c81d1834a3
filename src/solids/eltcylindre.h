#pragma once

#include "elements/eltarc.h"
#include "solids/elt3d.h"

/// A cylinder, or a cone, on a circle: in its own axes it stands on `Rayon` at z = 0 and ends on
/// `rayonHaut` at z = `h`.
class EltCylindre : public EltArc, public Elt3d {
  public:
    explicit EltCylindre(int type = TypeCylindre);
    EltCylindre(const EltCylindre&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// Leaves out the finish, the texture's scale and the facets.
    void Copie(const EltGeo& source) override;

    /// Takes the finish too.
    void CopieCylindre(const EltCylindre& source);
    void Transforme(const TransformeColle& t) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool EstValide() const override;
    bool Proprietes() override;

    // Both radii.

    void SetRayonPoint(const PointVek& p) override;
    void SetCentreDefaut(const PointVek& p) override;

    double Pieces(double facettes, bool anneaux) const override;
    void Dessine3D(DC3D& dc, bool couleur) const override;
    void DessineFilaire(DC3D& dc) const override;
    Elt3d* GetElt3d() override { return this; }

    /// The whole: in space there are no ends to grab.
    void DebutDeforme3D(const PointVek&) override { PoigneeCourante = 1; }
    void ChangeElt3d(const Elt3d& source) override;

    /// To the spheres of the two radii about the ends of the axis.
    double Distance3D(const PointVek& p) const override;
    PointVek PointProche3D(const PointVek& p) const override;

    double rayonHaut = 10.0;  ///< In drawing units.
};
