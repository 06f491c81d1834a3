#include "solids/eltprofiltourne.h"

#include <cmath>

#include "elements/angles.h"
#include "solids/chaine.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

namespace {

PointVek Tourne(const PointVek& p, double angle) {
    return {p.x * std::cos(angle), p.y, p.x * std::sin(angle) + p.z};
}

/// The normal of the four corners: where some of them are one, that of three which are not.
void PoseNormaleQuad(const PointVek (&coins)[4], bool dehors, bool premier) {
    if (PoseNormale(coins[1], coins[0], coins[2], dehors)) return;
    if (PoseNormale(coins[1], coins[0], coins[3], dehors)) return;
    if (PoseNormale(coins[2], coins[0], coins[3], dehors)) return;
    glNormal3d(0.0, 0.0, premier ? -1.0 : 1.0);
}

/// dehors: the normals that the way of the profile gives look outside.
void DessineQuad(const PointVek (&coins)[4], bool lisse, bool dehors, bool premier) {
    constexpr double coordonnees[4][2] = {{0.0, 0.0}, {0.0, 1.0}, {1.0, 1.0}, {1.0, 0.0}};
    glBegin(GL_POLYGON);
    if (!lisse) PoseNormaleQuad(coins, dehors, premier);
    for (int i = 0; i < 4; ++i) {
        const PointVek& coin = coins[i];
        // As on a sphere about the origin.
        if (lisse) glNormal3d(coin.x, coin.y, coin.z);
        glTexCoord2d(coordonnees[i][0], coordonnees[i][1]);
        glVertex3d(coin.x, coin.y, coin.z);
    }
    glEnd();
}

/// What lies between two half planes about the axis, at the angles a and b (radians).
void DessineTranche(const std::vector<Troncon>& meridien, double a, double b, bool lisse,
                    bool dehors) {
    bool premier = true;
    for (const Troncon& troncon : meridien) {
        const PointVek &p = troncon.Debut, &q = troncon.Fin;
        DessineQuad({Tourne(p, a), Tourne(q, a), Tourne(q, b), Tourne(p, b)}, lisse, dehors,
                    premier);
        premier = false;
    }
}

}  // namespace

EltProfilTourne::EltProfilTourne() : EltProfil(TypeProfilTourne) {}

std::unique_ptr<EltGeo> EltProfilTourne::Clone() const {
    return std::make_unique<EltProfilTourne>(*this);
}

void EltProfilTourne::Copie(const EltGeo& source) {
    EltProfil::Copie(source);
    Elt3d::Copie(static_cast<const EltProfilTourne&>(source));
}

void EltProfilTourne::Sauve(Ecrivain& sortie) const {
    EltProfil::Sauve(sortie);
    Elt3d::Sauve(sortie);
}

void EltProfilTourne::Charge(Lecteur& entree) {
    EltProfil::Charge(entree);
    Elt3d::Charge(entree);
}

bool EltProfilTourne::EstFini() const {
    return EltProfil::EstFini() && Elt3d::EstFini();
}

double EltProfilTourne::Pieces(double facettes, bool) const {
    const CompteLiens liens(*this);
    return facettes * (liens.Droits + liens.Arcs * facettes);
}

void EltProfilTourne::Dessine3D(DC3D& dc, bool couleur) const {
    const bool dehors = !EstAntihoraireAutourDeY(*this);
    const int f = Facettes(dc.GrainCorps());
    AppliqueBrillance();
    ColoreCorps(Style, couleur);
    dc.ActiveTexture(texture);
    {
        const RepereLocal repere(Position, *this);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glFrontFace(dehors ? GL_CCW : GL_CW);
        const std::vector<Troncon> meridien = Chaine(*this, f);
        for (int i = 0; i < f; ++i)
            DessineTranche(meridien, DeuxPi * i / f, DeuxPi * (i + 1) / f, gourault, dehors);
    }
    dc.FinTexture();
}
