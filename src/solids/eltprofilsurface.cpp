#include "solids/eltprofilsurface.h"

#include <cstdint>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/corps.h"

EltProfilSurface::EltProfilSurface() : EltProfilVertex(TypeProfilSurface) {}

std::unique_ptr<EltGeo> EltProfilSurface::Clone() const {
    return std::make_unique<EltProfilSurface>(*this);
}

void EltProfilSurface::Copie(const EltGeo& source) {
    EltProfil::Copie(source);
    const auto& surface = static_cast<const EltProfilSurface&>(source);
    const bool repete = repetition;
    CopieCommun(surface);
    repetition = repete;
    echelleTexture = surface.echelleTexture;
    facetisation = surface.facetisation;
    nbX = surface.nbX;
    nbY = surface.nbY;
}

void EltProfilSurface::Sauve(Ecrivain& sortie) const {
    EltProfilVertex::Sauve(sortie);
    sortie << nbX << ' ' << nbY << '\n';
}

void EltProfilSurface::Charge(Lecteur& entree) {
    EltProfilVertex::Charge(entree);
    entree >> nbX >> nbY;
}

void EltProfilSurface::SetNbX(int nombre) {
    if (nombre > 2) nbX = nombre;
}

void EltProfilSurface::SetNbY(int nombre) {
    if (nombre > 2) nbY = nombre;
}

void EltProfilSurface::Grille(double longueurX, double longueurY) {
    constexpr std::int64_t nombreMax = 100000;
    Sommets.clear();
    if (std::int64_t(nbX) * nbY > nombreMax) return;
    for (int i = 0; i < nbX; ++i)
        for (int j = 0; j < nbY; ++j)
            Sommets.emplace_back(PointVek(i * longueurX / nbX, j * longueurY / nbY));
}

const PointVek& EltProfilSurface::Point(std::size_t i, std::size_t j) const {
    return Sommets[i * static_cast<std::size_t>(nbY) + j];
}

void EltProfilSurface::DessineVertex() const {
    constexpr std::int64_t nombreMax = 1000;
    const std::int64_t nombre = std::int64_t(nbX) * nbY;
    if (nbX < 1 || nbY < 1 || nombre > nombreMax) return;
    if (nombre != static_cast<std::int64_t>(Sommets.size())) return;
    glBegin(GL_TRIANGLES);
    for (std::size_t i = 1; i < static_cast<std::size_t>(nbX); ++i)
        for (std::size_t j = 1; j < static_cast<std::size_t>(nbY); ++j)
            DessineMaille(i, j);
    glEnd();
}

void EltProfilSurface::DessineMaille(std::size_t i, std::size_t j) const {
    const auto coin = [](const PointVek& p, float s, float t) {
        glTexCoord2f(s, t);
        glVertex3d(p.x, p.y, p.z);
    };
    const PointVek &a = Point(i, j), &b = Point(i - 1, j);
    const PointVek &c = Point(i - 1, j - 1), &d = Point(i, j - 1);
    PoseNormale(a, b, c);
    coin(a, 0.0f, 0.0f);
    coin(c, 0.0f, 1.0f);
    coin(b, 1.0f, 0.0f);
    PoseNormale(a, c, d);
    coin(a, 0.0f, 0.0f);
    coin(d, 0.0f, 1.0f);
    coin(c, 1.0f, 0.0f);
}
