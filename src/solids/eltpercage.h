#pragma once

#include "solids/eltcylindre.h"
#include "solids/soustractif.h"

/// A round hole in the solid that holds it as a child, which alone draws it.
class EltPercage : public EltCylindre, public Soustractif {
  public:
    EltPercage();
    EltPercage(const EltPercage&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// As `CopieCylindre`, and whether it goes through.
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool Proprietes() override;

    void Dessine3D(DC3D&, bool) const override {}
    void DessineFonds(DC3D& dc, bool couleur) const override;
    void DessineParoi(DC3D& dc, bool couleur) const override;
};
