#include "solids/eltprofilvertex.h"

#include "solids/corps.h"
#include "view3d/dc3d.h"

void EltProfilVertex::Dessine3D(DC3D& dc, bool couleur) const {
    AppliqueBrillance();
    ColoreCorps(Style, couleur);
    dc.ActiveTexture(texture);
    {
        const RepereLocal repere(Position, *this);
        glTexCoord2f(1.0f, 1.0f);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glFrontFace(GL_CCW);
        DessineVertex();
    }
    dc.FinTexture();
}

void EltProfilVertex::DessineSuite(unsigned primitive) const {
    glBegin(primitive);
    for (std::size_t i = 0; i < Sommets.size(); ++i) {
        const PointVek& sommet = Sommets[i];
        glVertex3d(sommet.x, sommet.y, sommet.z);
        if (i == 0) continue;
        const PointVek arete = sommet - Sommets[i - 1];
        glNormal3d(arete.x, arete.y, arete.z);
    }
    glEnd();
}
