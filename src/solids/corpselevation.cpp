#include "solids/corpselevation.h"

#include <algorithm>
#include <cmath>

CorpsElevation::CorpsElevation(const EltProfil& profil, const Elt3d& solide, int facettes)
    : Profil(profil),
      Solide(solide),
      Montee(solide.h),
      Gauche(EstAntihoraire(profil)),
      Facettes(facettes) {}

CorpsElevation::Cadre::Cadre(const EltProfil& profil) {
    double xMax = -1e6, yMax = -1e6;
    for (const SommetProfil& sommet : profil.Sommets) {
        XMin = std::min(XMin, sommet.x);
        YMin = std::min(YMin, sommet.y);
        xMax = std::max(xMax, sommet.x);
        yMax = std::max(yMax, sommet.y);
    }
    Largeur = std::max(xMax - XMin, 1e-6);
    Hauteur = std::max(yMax - YMin, 1e-6);
}

void CorpsElevation::Couvercle(double z, bool bas, bool lisse) const {
    Montee.Sens(bas != Gauche ? GL_CW : GL_CCW);
    const double normale = bas ? -1.0 : 1.0;
    DessineCouvercle(lisse ? CoinsLisses(z, normale) : CoinsPlats(z, normale), Gauche);
}

void CorpsElevation::Coordonnees(const Cadre& cadre, double x, double y,
                                 CoinCouvercle& coin) const {
    coin.S = Solide.repetition ? x * Solide.echelleTexture : x / cadre.Largeur;
    coin.T = Solide.repetition ? y * Solide.echelleTexture : y / cadre.Hauteur;
}

std::vector<CoinCouvercle> CorpsElevation::CoinsPlats(double z, double normale) const {
    const Cadre cadre(Profil);
    std::vector<CoinCouvercle> coins;
    CoinCouvercle coin{{}, {0.0, 0.0, normale}, 0.0, 0.0};
    const auto ajoute = [&](const PointVek& p) {
        coin.Point = {p.x, p.y, Altitude(p) + z};
        coins.push_back(coin);
    };
    for (std::size_t i = 0; i < Profil.Sommets.size(); ++i) {
        const SommetProfil& sommet = Profil.Sommets[i];
        Coordonnees(cadre, sommet.x - cadre.XMin, sommet.y - cadre.YMin, coin);
        if (i == 0)
            ajoute(sommet);
        else
            for (const Troncon& troncon : Troncons(Profil.Sommets[i - 1], sommet, Facettes))
                ajoute(troncon.Fin);
    }
    return coins;
}

// This cap leaves the arcs and the last vertex out, and each corner bears the coordinates of the
// one before it, with the plus signs: textures of existing drawings are set to that look.
std::vector<CoinCouvercle> CorpsElevation::CoinsLisses(double z, double normale) const {
    const Cadre cadre(Profil);
    const double cote = Gauche ? -1.0 : 1.0;
    std::vector<CoinCouvercle> coins;
    CoinCouvercle coin{{}, {}, 0.0, 0.0};
    for (std::size_t i = 1; i < Profil.Sommets.size(); ++i) {
        const SommetProfil& sommet = Profil.Sommets[i - 1];
        const PointVek v = Unitaire(Profil.Sommets[i] - sommet) * cote;
        coin.Point = {sommet.x, sommet.y, Altitude(sommet) + z};
        coin.Normale = {-v.y, v.x, Altitude(v) + normale};
        coins.push_back(coin);
        Coordonnees(cadre, sommet.x + cadre.XMin, sommet.y + cadre.YMin, coin);
    }
    return coins;
}

void CorpsElevation::Cote(bool couleur, bool dehors) const {
    const auto& sommets = Profil.Sommets;
    if (sommets.size() < 2) return;
    Montee.Sens(dehors != Gauche ? GL_CCW : GL_CW);
    double s = 1.0, t = 1.0;
    const auto colore = [&](std::size_t lien) {
        ColoreCorps(Profil.Style, couleur, EcartTeinte * (lien % 2 + 2.0));
    };
    for (std::size_t i = 1; i < sommets.size(); ++i) {
        if (Solide.repetition) {
            s = (sommets[i].x - sommets[i - 1].x) * Solide.echelleTexture;
            t = (sommets[i].y - sommets[i - 1].y) * Solide.echelleTexture;
        }
        colore(i - 1);
        for (const Troncon& troncon : Troncons(sommets[i - 1], sommets[i], Facettes))
            Pan(troncon, s, t, dehors);
    }
    colore(sommets.size() - 1);
    Pan({sommets.back(), sommets.front(), false, 0.0, 0.0}, s, t, dehors);
}

void CorpsElevation::Coin(const PointVek& p, double z, double s, double t) const {
    glTexCoord2d(s, t);
    glVertex3d(p.x, p.y, Altitude(p) + z);
}

void CorpsElevation::Pan(const Troncon& troncon, double s, double t, bool dehors) const {
    if (troncon.SurArc) return PanArrondi(troncon, s, t, dehors);
    const PointVek &p = troncon.Debut, &q = troncon.Fin;
    const PointVek bas(p.x, p.y, Altitude(p));
    glBegin(GL_POLYGON);
    PoseNormale({q.x, q.y, Altitude(q)}, bas, bas + PointVek(0.0, 0.0, Montee.Hauteur),
                dehors != Gauche);
    Coin(p, 0.0, 0.0, 0.0);
    Coin(q, 0.0, 0.0, t);
    Coin(q, Montee.Hauteur, s, t);
    Coin(p, Montee.Hauteur, s, 0.0);
    glEnd();
}

void CorpsElevation::PanArrondi(const Troncon& troncon, double s, double t, bool dehors) const {
    // An arc that turns like the outline bulges: its outside is away from the centre.
    const bool bombe = (troncon.AngleFin > troncon.AngleDebut) == Gauche;
    const double k = bombe == dehors ? 1.0 : -1.0;
    const auto normale = [k](double angle) {
        glNormal3d(k * std::cos(angle), k * std::sin(angle), 0.0);
    };
    glBegin(GL_POLYGON);
    normale(troncon.AngleDebut);
    Coin(troncon.Debut, Montee.Hauteur, s, 0.0);
    Coin(troncon.Debut, 0.0, 0.0, 0.0);
    normale(troncon.AngleFin);
    Coin(troncon.Fin, 0.0, 0.0, t);
    Coin(troncon.Fin, Montee.Hauteur, s, t);
    glEnd();
}
