#include "solids/eltrainure.h"

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

EltRainure::EltRainure() : EltPave(TypeRainure) {}

std::unique_ptr<EltGeo> EltRainure::Clone() const {
    return std::make_unique<EltRainure>(*this);
}

void EltRainure::Copie(const EltGeo& source) {
    EltPave::Copie(source);
    debouchant = static_cast<const EltRainure&>(source).debouchant;
}

void EltRainure::Sauve(Ecrivain& sortie) const {
    EltPave::Sauve(sortie);
    sortie << debouchant << '\n';
}

void EltRainure::Charge(Lecteur& entree) {
    EltPave::Charge(entree);
    entree >> debouchant;
}

// Each face is wound against the same one of a box: a groove is seen from inside.

void EltRainure::DessineFonds(DC3D& dc, bool couleur) const {
    static const Face haut = {{{-1, -1, 1}, {-1, 1, 1}, {1, 1, 1}, {1, -1, 1}}, {0, 0, 1}};
    static const Face bas = {{{1, -1, -1}, {1, 1, -1}, {-1, 1, -1}, {-1, -1, -1}}, {0, 0, -1}};
    {
        const RepereLocal repere(Position, *this);
        const Elevation elevation(h);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        elevation.Sens(GL_CCW);
        ColoreFace(0, couleur);
        PeintFace(haut, elevation.Hauteur, 1.0, 1.0, false);
        ColoreFace(1, couleur);
        Habille(dc, *this, dessous);
        PeintFace(bas, elevation.Hauteur, 1.0, 1.0, false);
    }
    dc.FinTexture();
}

void EltRainure::DessineParoi(DC3D& dc, bool couleur) const {
    static const Face faces[4] = {
        {{{-1, -1, 1}, {1, -1, 1}, {1, -1, -1}, {-1, -1, -1}}, {0, -1, 0}},
        {{{-1, 1, -1}, {1, 1, -1}, {1, 1, 1}, {-1, 1, 1}}, {0, 1, 0}},
        {{{-1, 1, -1}, {-1, 1, 1}, {-1, -1, 1}, {-1, -1, -1}}, {1, 0, 0}},
        {{{1, -1, -1}, {1, -1, 1}, {1, 1, 1}, {1, 1, -1}}, {-1, 0, 0}},
    };
    AppliqueBrillance();
    Habille(dc, *this, pourtour);
    {
        const RepereLocal repere(Position, *this);
        const Elevation elevation(h);
        glPolygonMode(GL_BACK, GL_FILL);
        elevation.Sens(GL_CCW);
        for (int i = 0; i < 4; ++i) {
            // The shades of the box's sides, the first of them plain.
            ColoreFace(i == 0 ? 0 : i + 2, couleur);
            PeintFace(faces[i], elevation.Hauteur, 1.0, 1.0, false);
        }
    }
    dc.FinTexture();
}
