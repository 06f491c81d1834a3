#pragma once

#include "solids/eltpave.h"
#include "solids/soustractif.h"

/// A box-shaped groove in the solid that holds it as a child, which alone draws it.
class EltRainure : public EltPave, public Soustractif {
  public:
    EltRainure();
    EltRainure(const EltRainure&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool Proprietes() override;

    void Dessine3D(DC3D&, bool) const override {}
    void DessineFonds(DC3D& dc, bool couleur) const override;
    void DessineParoi(DC3D& dc, bool couleur) const override;
};
