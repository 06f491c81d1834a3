#include "solids/eltpercage.h"

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

EltPercage::EltPercage() : EltCylindre(TypePercage) {}

std::unique_ptr<EltGeo> EltPercage::Clone() const {
    return std::make_unique<EltPercage>(*this);
}

void EltPercage::Copie(const EltGeo& source) {
    const auto& percage = static_cast<const EltPercage&>(source);
    CopieCylindre(percage);
    debouchant = percage.debouchant;
}

void EltPercage::Sauve(Ecrivain& sortie) const {
    EltCylindre::Sauve(sortie);
    sortie << debouchant << '\n';
}

void EltPercage::Charge(Lecteur& entree) {
    EltCylindre::Charge(entree);
    entree >> debouchant;
}

void EltPercage::DessineFonds(DC3D& dc, bool couleur) const {
    ColoreCorps(Style, couleur);
    const int facettes = Facettes(dc.GrainCorps());
    // Rings only matter to the light: what covers pixels unseen needs none.
    const bool anneaux = couleur && dc.GrainCorps().Anneaux;
    {
        const RepereLocal repere(Position, *this);
        const Elevation elevation(h);
        elevation.Sens(GL_CW);
        Habille(dc, *this, true);
        Quadrique(GLU_OUTSIDE).Disque(Rayon, facettes, anneaux);
        elevation.Sens(GL_CCW);
        glTranslated(0.0, 0.0, elevation.Hauteur);
        Habille(dc, *this, dessus);
        Quadrique(GLU_OUTSIDE).Disque(rayonHaut, facettes, anneaux);
    }
    dc.FinTexture();
}

void EltPercage::DessineParoi(DC3D& dc, bool couleur) const {
    ColoreCorps(Style, couleur);
    Habille(dc, *this, pourtour);
    {
        const RepereLocal repere(Position, *this);
        const Elevation elevation(h);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        elevation.Sens(GL_CW);
        glTexCoord2f(0.0f, 0.0f);
        Quadrique(GLU_INSIDE)
            .Cylindre(Rayon, rayonHaut, elevation.Hauteur, Facettes(dc.GrainCorps()),
                      dc.GrainCorps().Anneaux);
    }
    dc.FinTexture();
}
