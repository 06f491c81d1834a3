#include "solids/eltsphere.h"

#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

EltSphere::EltSphere(int type) : EltArc(type) {
    h = 0.0;
}

std::unique_ptr<EltGeo> EltSphere::Clone() const {
    return std::make_unique<EltSphere>(*this);
}

void EltSphere::Copie(const EltGeo& source) {
    EltArc::Copie(source);
    const auto& sphere = static_cast<const EltSphere&>(source);
    CopieForme(sphere);
    facetisation = sphere.facetisation;
}

void EltSphere::ChangeElt3d(const Elt3d& source) {
    CopieCommun(source);
    facetisation = source.facetisation;
}

void EltSphere::Sauve(Ecrivain& sortie) const {
    EltArc::Sauve(sortie);
    Elt3d::Sauve(sortie);
}

void EltSphere::Charge(Lecteur& entree) {
    EltArc::Charge(entree);
    Elt3d::Charge(entree);
}

bool EltSphere::EstFini() const {
    return EltArc::EstFini() && Elt3d::EstFini();
}

void EltSphere::DessineCorps(DC3D& dc, bool couleur) const {
    AppliqueBrillance();
    ColoreCorps(Style, couleur);
    Habille(dc, *this, true);
    {
        const RepereLocal repere(Position, *this);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glFrontFace(GL_CW);
        Quadrique(GLU_OUTSIDE).Sphere(Rayon, Facettes(dc.GrainCorps()));
    }
    dc.FinTexture();
}

void EltSphere::Dessine3D(DC3D& dc, bool couleur) const {
    DessineCorps(dc, couleur);
}

void EltSphere::DessineFilaire(DC3D&) const {
    const RepereLocal repere(Position, *this);
    DessineCage(Rayon, Rayon, -Rayon, Rayon);
}

double EltSphere::Distance3D(const PointVek& p) const {
    return std::abs(::Distance3D(p, Position) - Rayon);
}
