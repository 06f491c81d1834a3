#include "solids/corps.h"

#include <cmath>

#include "view3d/dc3d.h"

RepereLocal::RepereLocal(const PointVek& position, const Elt3d& solide) {
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glTranslatef(static_cast<GLfloat>(position.x), static_cast<GLfloat>(position.y),
                 static_cast<GLfloat>(position.z));
    solide.AppliqueRotation();
}

RepereLocal::~RepereLocal() {
    glPopMatrix();
}

Elevation::Elevation(double h) : Hauteur(std::abs(h)), Renversee(h < 0.0) {
    if (Renversee) glScalef(1.0f, 1.0f, -1.0f);
}

void Elevation::Sens(GLenum sens) const {
    if (Renversee) sens = sens == GL_CW ? GL_CCW : GL_CW;
    glFrontFace(sens);
}

Quadrique::Quadrique(GLenum orientation) : Forme(gluNewQuadric()) {
    gluQuadricDrawStyle(Forme, GLU_FILL);
    gluQuadricNormals(Forme, GLU_SMOOTH);
    gluQuadricTexture(Forme, GL_TRUE);
    gluQuadricOrientation(Forme, orientation);
}

Quadrique::~Quadrique() {
    gluDeleteQuadric(Forme);
}

void Quadrique::Cylindre(double bas, double haut, double hauteur, int facettes,
                         bool anneaux) const {
    gluCylinder(Forme, bas, haut, hauteur, facettes, anneaux || bas != haut ? facettes : 1);
}

void Quadrique::Disque(double rayon, int facettes, bool anneaux) const {
    gluDisk(Forme, 0.0, rayon, facettes, anneaux ? facettes : 1);
}

void Quadrique::Sphere(double rayon, int facettes) const {
    gluSphere(Forme, rayon, facettes, facettes);
}

void ColoreCorps(const Trait& trait, bool couleur, double ecart) {
    if (!couleur) {
        glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
        return;
    }
    const Gdk::Color& c = trait.Couleur;
    glColor3f(static_cast<GLfloat>(c.get_red_p() + ecart),
              static_cast<GLfloat>(c.get_green_p() + ecart),
              static_cast<GLfloat>(c.get_blue_p() + ecart));
}

void Enroule(bool repetition) {
    const GLint mode = repetition ? GL_REPEAT : GL_CLAMP;
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, mode);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, mode);
}

void Habille(DC3D& dc, const Elt3d& solide, bool porte) {
    dc.ActiveTexture(porte ? solide.texture : Glib::ustring());
    Enroule(solide.repetition);
}

bool PoseNormale(const PointVek& a, const PointVek& b, const PointVek& c, bool sens) {
    const PointVek u = b - a, v = c - a;
    PointVek n(u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x);
    if (!sens) n = -n;
    glNormal3f(static_cast<GLfloat>(n.x), static_cast<GLfloat>(n.y), static_cast<GLfloat>(n.z));
    return std::hypot(n.x, n.y, n.z) > 1e-6;
}

void DessineCage(double a, double b, double bas, double haut) {
    const double coins[4][2] = {{-a, -b}, {a, -b}, {a, b}, {-a, b}};
    glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
    glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    glFrontFace(GL_CW);
    for (const double z : {bas, haut}) {
        glBegin(GL_POLYGON);
        for (const auto& coin : coins)
            glVertex3d(coin[0], coin[1], z);
        glEnd();
    }
    glBegin(GL_LINES);
    for (const auto& coin : coins) {
        glVertex3d(coin[0], coin[1], bas);
        glVertex3d(coin[0], coin[1], haut);
    }
    glEnd();
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}
