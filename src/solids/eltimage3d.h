#pragma once

#include <functional>

#include "model/eltimage.h"
#include "solids/elt3d.h"

/// Shows the solids of a named group in space, at its own place and turned, without holding them;
/// what their holes take away is not taken away here. On the sheet it is the group's image.
class EltImage3d : public EltImage, public Elt3d {
  public:
    EltImage3d();

    std::unique_ptr<EltGeo> Clone() const override;

    /// Takes every attribute.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool Proprietes() override;

    /// None of its own.
    double Pieces(double, bool) const override { return 0.0; }
    void Dessine3D(DC3D& dc, bool couleur) const override;
    void DessineFilaire(DC3D& dc) const override;

    /// Calls visite for the elements it shows, those of images within included, at most limite of
    /// them. Their number, or one more than limite where there are more.
    int ParcourtContenus(int limite, const std::function<void(const EltGeo&)>& visite) const;

    Elt3d* GetElt3d() override { return this; }
    void ChangeElt3d(const Elt3d& source) override;

  private:
    void DessineGroupe3D(DC3D& dc, bool couleur) const;
};
