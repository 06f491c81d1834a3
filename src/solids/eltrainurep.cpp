#include "solids/eltrainurep.h"

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/corps.h"
#include "solids/corpselevation.h"
#include "view3d/dc3d.h"

EltRainureP::EltRainureP() : EltProfilElevation(TypeRainureP) {}

std::unique_ptr<EltGeo> EltRainureP::Clone() const {
    return std::make_unique<EltRainureP>(*this);
}

void EltRainureP::Copie(const EltGeo& source) {
    EltProfilElevation::Copie(source);
    debouchant = static_cast<const EltRainureP&>(source).debouchant;
}

void EltRainureP::Sauve(Ecrivain& sortie) const {
    EltProfilElevation::Sauve(sortie);
    sortie << debouchant << '\n';
}

void EltRainureP::Charge(Lecteur& entree) {
    EltProfilElevation::Charge(entree);
    entree >> debouchant;
}

void EltRainureP::DessineFonds(DC3D& dc, bool couleur) const {
    ColoreCorps(Style, couleur);
    {
        const RepereLocal repere(Position, *this);
        const CorpsElevation corps(*this, *this, Facettes(dc.GrainCorps()));
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        corps.Bas(false);
        corps.Haut(false);
    }
    dc.FinTexture();
}

void EltRainureP::DessineParoi(DC3D& dc, bool couleur) const {
    AppliqueBrillance();
    Habille(dc, *this, pourtour);
    {
        const RepereLocal repere(Position, *this);
        const CorpsElevation corps(*this, *this, Facettes(dc.GrainCorps()));
        glPolygonMode(GL_BACK, GL_FILL);
        corps.Cote(couleur, false);
    }
    dc.FinTexture();
}
