#pragma once

#include "elements/eltgeo.h"
#include "solids/elt3d.h"

class EltProfil;

/// A round section swept along a plain profile, the first child, which is taken to be flat; hung up
/// at `Position`, where the sheet shows a cross. Without such a child there is no body. `h` is kept
/// for the file.
class EltProfilTube : public EltGeo, public Elt3d {
  public:
    /// Takes every attribute.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;

    void Dessine3D(DC3D& dc, bool couleur) const override;
    void DessineFilaire(DC3D& dc) const override;
    Elt3d* GetElt3d() override { return this; }
    void ChangeElt3d(const Elt3d& source) override { Elt3d::Copie(source); }

  protected:
    explicit EltProfilTube(int type);

    /// The first child where it is a profile; else null.
    const EltProfil* Chemin() const;

    /// Draws the body along the path, in its axes.
    virtual void Balaie(const EltProfil& chemin, const Grain& grain) const = 0;
};

/// While it lives, the z axis starts at p along the plane vector u.
class RepereTroncon {
  public:
    RepereTroncon(const PointVek& p, const PointVek& u);
    ~RepereTroncon();
    RepereTroncon(const RepereTroncon&) = delete;
    RepereTroncon& operator=(const RepereTroncon&) = delete;
};
