#include "view3d/eltsphereaccroche.h"

#include "solids/corps.h"

EltSphereAccroche::EltSphereAccroche(double rayon, const Glib::ustring& couleur) {
    // A few pixels on the screen: finer steps would not show.
    constexpr int facettes = 20;
    Rayon = rayon;
    facetisation = facettes;
    Style.Couleur = Gdk::Color(couleur);
}

void EltSphereAccroche::DessineFilaire(DC3D&) const {
    const RepereLocal repere(Position, *this);
    DessineCage(Rayon, Rayon, -Rayon, Rayon);
    glBegin(GL_LINES);
    for (const PointVek& bout :
         {PointVek(Rayon, 0.0), PointVek(0.0, Rayon), PointVek(0.0, 0.0, Rayon)}) {
        glVertex3d(-bout.x, -bout.y, -bout.z);
        glVertex3d(bout.x, bout.y, bout.z);
    }
    glEnd();
}
