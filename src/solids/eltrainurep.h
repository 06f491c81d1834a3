#pragma once

#include "solids/eltprofilelevation.h"
#include "solids/soustractif.h"

/// A groove with the section of a profile, in the solid that holds it as a child, which alone draws
/// it.
class EltRainureP : public EltProfilElevation, public Soustractif {
  public:
    EltRainureP();
    EltRainureP(const EltRainureP&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool Proprietes() override;

    void Dessine3D(DC3D&, bool) const override {}
    void DessineFonds(DC3D& dc, bool couleur) const override;
    void DessineParoi(DC3D& dc, bool couleur) const override;
};
