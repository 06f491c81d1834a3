#include "solids/eltprofiltube.h"

#include "elements/angles.h"
#include "elements/eltprofil.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

EltProfilTube::EltProfilTube(int type) : EltGeo(type) {}

void EltProfilTube::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    Elt3d::Copie(static_cast<const EltProfilTube&>(source));
}

void EltProfilTube::Sauve(Ecrivain& sortie) const {
    EltGeo::Sauve(sortie);
    Elt3d::Sauve(sortie);
}

void EltProfilTube::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    Elt3d::Charge(entree);
}

bool EltProfilTube::EstFini() const {
    return EltGeo::EstFini() && Elt3d::EstFini();
}

const EltProfil* EltProfilTube::Chemin() const {
    const EltGeo* chemin = Fils.Premier();
    return chemin && chemin->Type == TypeProfil ? static_cast<const EltProfil*>(chemin) : nullptr;
}

void EltProfilTube::Dessine3D(DC3D& dc, bool couleur) const {
    const EltProfil* chemin = Chemin();
    if (!chemin) return;
    AppliqueBrillance();
    Habille(dc, *this, dessus);
    {
        const RepereLocal repere(Position, *this);
        ColoreCorps(Style, couleur);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glFrontFace(GL_CW);
        Balaie(*chemin, dc.GrainCorps());
    }
    dc.FinTexture();
}

void EltProfilTube::DessineFilaire(DC3D&) const {
    const RepereLocal repere(Position, *this);
    DessineCage(20.0, 20.0, 0.0, 20.0);
}

RepereTroncon::RepereTroncon(const PointVek& p, const PointVek& u) {
    glPushMatrix();
    glTranslated(p.x, p.y, p.z);
    glRotatef(90.0f, 0.0f, 1.0f, 0.0f);
    glRotatef(static_cast<GLfloat>(-EnDegres(Angle(u))), 1.0f, 0.0f, 0.0f);
}

RepereTroncon::~RepereTroncon() {
    glPopMatrix();
}
