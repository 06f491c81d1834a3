#include "solids/eltpave.h"

#include <algorithm>
#include <cmath>

#include "elements/distances.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/vue.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

EltPave::EltPave(int type) : EltRectangle(type) {}

std::unique_ptr<EltGeo> EltPave::Clone() const {
    return std::make_unique<EltPave>(*this);
}

void EltPave::Copie(const EltGeo& source) {
    EltRectangle::Copie(source);
    const auto& pave = static_cast<const EltPave&>(source);
    CopieCommun(pave);
    CopieFaces(pave);
    echelleTexture = pave.echelleTexture;
}

void EltPave::ChangeElt3d(const Elt3d& source) {
    CopieCommun(source);
    CopieFaces(source);
    echelleTexture = source.echelleTexture;
}

void EltPave::Sauve(Ecrivain& sortie) const {
    EltRectangle::Sauve(sortie);
    Elt3d::Sauve(sortie);
}

void EltPave::Charge(Lecteur& entree) {
    EltRectangle::Charge(entree);
    Elt3d::Charge(entree);
}

bool EltPave::EstFini() const {
    return EltRectangle::EstFini() && Elt3d::EstFini();
}

PointVek EltPave::DemiCotes() const {
    return {std::abs(Extremite.x - Origine.x) / 2.0, -std::abs(Extremite.y - Origine.y) / 2.0};
}

void EltPave::ColoreFace(int face, bool couleur) const {
    ColoreCorps(Style, couleur, 0.01 * face);
}

void EltPave::PeintFace(const Face& face, double hauteur, double s, double t, bool arrondie) const {
    const double coordonnees[4][2] = {{0.0, 0.0}, {0.0, t}, {s, t}, {s, 0.0}};
    const PointVek demi = DemiCotes();
    const auto& dehors = face.Dehors;
    glBegin(GL_POLYGON);
    glNormal3d(dehors.x, dehors.y, dehors.z);
    for (int i = 0; i < 4; ++i) {
        const auto& coin = face.Coins[i];
        // A corner that looks three ways at once makes the box look round.
        if (arrondie)
            glNormal3d(dehors.x ? dehors.x : coin.x, dehors.y ? dehors.y : coin.y,
                       dehors.z ? dehors.z : coin.z);
        glTexCoord2d(coordonnees[i][0], coordonnees[i][1]);
        glVertex3d(coin.x * demi.x, coin.y * demi.y, coin.z > 0 ? hauteur : 0.0);
    }
    glEnd();
}

void EltPave::Dessine3D(DC3D& dc, bool couleur) const {
    static const Face faces[6] = {
        {{{-1, -1, -1}, {-1, 1, -1}, {1, 1, -1}, {1, -1, -1}}, {0, 0, -1}},
        {{{1, -1, 1}, {1, 1, 1}, {-1, 1, 1}, {-1, -1, 1}}, {0, 0, 1}},
        {{{-1, -1, -1}, {1, -1, -1}, {1, -1, 1}, {-1, -1, 1}}, {0, 1, 0}},
        {{{-1, 1, 1}, {1, 1, 1}, {1, 1, -1}, {-1, 1, -1}}, {0, -1, 0}},
        {{{-1, -1, -1}, {-1, -1, 1}, {-1, 1, 1}, {-1, 1, -1}}, {-1, 0, 0}},
        {{{1, 1, -1}, {1, 1, 1}, {1, -1, 1}, {1, -1, -1}}, {1, 0, 0}},
    };
    const PointVek demi = DemiCotes();
    const double s = repetition ? demi.x * echelleTexture : 1.0;
    const double t = repetition ? demi.y * echelleTexture : 1.0;
    AppliqueBrillance();
    {
        const RepereLocal repere(Position, *this);
        const Elevation elevation(h);
        glPolygonMode(GL_FRONT, GL_FILL);
        elevation.Sens(GL_CCW);
        for (int i = 0; i < 6; ++i) {
            ColoreFace(i, couleur);
            if (i == 0) Habille(dc, *this, dessus);
            if (i == 1) Habille(dc, *this, dessous);
            if (i == 2) Habille(dc, *this, pourtour);
            // One side shows the image once, whatever the others do.
            const bool entiere = i == 4;
            PeintFace(faces[i], elevation.Hauteur, entiere ? 1.0 : s, entiere ? 1.0 : t, gourault);
        }
    }
    dc.FinTexture();
}

void EltPave::DessineFilaire(DC3D&) const {
    constexpr double marge = 2.0;
    const RepereLocal repere(Position, *this);
    const PointVek demi = DemiCotes();
    DessineCage(demi.x + marge, marge - demi.y, std::min(0.0, h) - marge, std::max(0.0, h) + marge);
}

std::vector<PointVek> EltPave::PointsAccroche() const {
    const PointVek demi = DemiCotes();
    std::vector<PointVek> reperes = {{}, {0.0, 0.0, h}};
    for (const double z : {0.0, h, h * 0.5})
        for (const int sx : {-1, 1})
            for (const int sy : {-1, 1})
                reperes.emplace_back(sx * demi.x, sy * demi.y, z);
    return reperes;
}

double EltPave::Distance3D(const PointVek& p) const {
    const PointVek local = VersLocal(p - Position);
    return ::Distance3D(local, PlusProche3D(local, PointsAccroche()));
}

PointVek EltPave::PointProche3D(const PointVek& p) const {
    return Position + VersMonde(PlusProche3D(VersLocal(p - Position), PointsAccroche()));
}

void EltPave::DebutDeforme3D(const PointVek& p) {
    const PointVek local = VersLocal(p - Position);
    const auto proche = [&](const PointVek& coin) {
        return ::Distance3D(local, coin - Position) < vue::Proche3D;
    };
    PoigneeCourante = 1;
    if (proche(Position)) return;
    if (proche(Origine))
        PoigneeCourante = 3;
    else if (proche(Extremite))
        PoigneeCourante = 2;
}

void EltPave::Deforme3D(const PointVek& v) {
    if (PoigneeCourante == 1) return Deplace(v);
    const PointVek local = VersLocal(v);
    const PointVek coin(local.x, local.y);
    Deforme(coin);
    // The box turns about its centre, which has moved.
    Deplace((VersMonde(coin) - coin) / 2.0);
}
