#include "solids/eltprofilelevation.h"

#include <vector>

#include "elements/distances.h"
#include "solids/chaine.h"
#include "solids/corps.h"
#include "solids/corpselevation.h"
#include "view3d/dc3d.h"

EltProfilElevation::EltProfilElevation(int type) : EltProfil(type) {}

std::unique_ptr<EltGeo> EltProfilElevation::Clone() const {
    return std::make_unique<EltProfilElevation>(*this);
}

void EltProfilElevation::Copie(const EltGeo& source) {
    EltProfil::Copie(source);
    Elt3d::Copie(static_cast<const EltProfilElevation&>(source));
}

void EltProfilElevation::Sauve(Ecrivain& sortie) const {
    EltProfil::Sauve(sortie);
    Elt3d::Sauve(sortie);
}

void EltProfilElevation::Charge(Lecteur& entree) {
    EltProfil::Charge(entree);
    Elt3d::Charge(entree);
}

bool EltProfilElevation::EstFini() const {
    return EltProfil::EstFini() && Elt3d::EstFini();
}

double EltProfilElevation::Pieces(double facettes, bool) const {
    const CompteLiens liens(*this);
    return liens.Droits + liens.Arcs * facettes;
}

void EltProfilElevation::Dessine3D(DC3D& dc, bool couleur) const {
    AppliqueBrillance();
    {
        const RepereLocal repere(Position, *this);
        const CorpsElevation corps(*this, *this, Facettes(dc.GrainCorps()));
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        ColoreCorps(Style, couleur);
        Habille(dc, *this, dessous);
        corps.Bas(true);
        ColoreCorps(Style, couleur, EcartTeinte);
        Habille(dc, *this, dessus);
        corps.Haut(true);
        Habille(dc, *this, pourtour);
        corps.Cote(couleur, true);
    }
    dc.FinTexture();
}

// A mark, not a bound: it does not fit the profile.
void EltProfilElevation::DessineFilaire(DC3D&) const {
    const RepereLocal repere(Position, *this);
    DessineCage(20.0, 20.0, 0.0, h + 2.0);
}

double EltProfilElevation::Distance3D(const PointVek& p) const {
    return ::Distance3D(p, EltProfilElevation::PointProche3D(p));
}

PointVek EltProfilElevation::PointProche3D(const PointVek& p) const {
    std::vector<PointVek> reperes = {{}};
    for (const SommetProfil& sommet : Sommets) {
        reperes.push_back(sommet);
        reperes.push_back(sommet + PointVek(0.0, 0.0, h));
    }
    return Position + VersMonde(PlusProche3D(VersLocal(p - Position), reperes));
}
