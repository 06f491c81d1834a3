#include "rayons.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr double Proche = 0.1, Loin = 1000.0;
constexpr double Presque = 1e-6;

/// Half the side of what shows, at one unit along the view.
const double Bord = std::tan(22.5 * std::acos(-1.0) / 180.0);

/// Three rows.
struct Matrice {
    PointVek L[3];

    PointVek operator*(const PointVek& v) const {
        return {Scalaire(L[0], v), Scalaire(L[1], v), Scalaire(L[2], v)};
    }
    PointVek Transposee(const PointVek& v) const { return L[0] * v.x + L[1] * v.y + L[2] * v.z; }
};

/// Rz(alpha) Ry(beta) Rx(gamma), written out.
Matrice Rotation(double alpha, double beta, double gamma) {
    if (alpha == 0.0 && beta == 0.0 && gamma == 0.0) return {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    const double r = std::acos(-1.0) / 180.0;
    const double ca = std::cos(alpha * r), sa = std::sin(alpha * r);
    const double cb = std::cos(beta * r), sb = std::sin(beta * r);
    const double cg = std::cos(gamma * r), sg = std::sin(gamma * r);
    return {{{ca * cb, ca * sb * sg - sa * cg, ca * sb * cg + sa * sg},
             {sa * cb, sa * sb * sg + ca * cg, sa * sb * cg - ca * sg},
             {-sb, cb * sg, cb * cg}}};
}

using Intervalle = std::pair<double, double>;

/// Cuts what is left of a ray by a <= p + t d <= b.
void Tranche(std::optional<Intervalle>& reste, double p, double d, double a, double b) {
    if (!reste) return;
    if (std::abs(d) < 1e-12) {
        if (p < a || p > b) reste.reset();
        return;
    }
    double t0 = (a - p) / d, t1 = (b - p) / d;
    if (t0 > t1) std::swap(t0, t1);
    reste->first = std::max(reste->first, t0);
    reste->second = std::min(reste->second, t1);
    if (reste->first >= reste->second) reste.reset();
}

/// Cuts it by a t^2 + 2 b t + c <= 0.
void Quadrique(std::optional<Intervalle>& reste, double a, double b, double c) {
    if (!reste) return;
    const double delta = b * b - a * c;
    if (a < 1e-12) {
        if (c > 0.0) reste.reset();
        return;
    }
    if (delta <= 0.0) {
        reste.reset();
        return;
    }
    Tranche(reste, b / a, 1.0, -std::sqrt(delta) / a, std::sqrt(delta) / a);
}

/// Where the ray is in the body.
std::optional<Intervalle> Dedans(const Forme& forme, const PointVek& depart,
                                 const PointVek& direction) {
    const Matrice axes = Rotation(forme.Alpha, forme.Beta, forme.Gamma);
    const PointVek p = axes.Transposee(depart - forme.Position), d = axes.Transposee(direction);
    std::optional<Intervalle> reste = Intervalle(-HUGE_VAL, HUGE_VAL);
    if (forme.Quoi == Forme::Boule) {
        Quadrique(reste, Scalaire(d, d), Scalaire(p, d), Scalaire(p, p) - forme.A * forme.A);
        return reste;
    }
    Tranche(reste, p.z, d.z, std::min(0.0, forme.H), std::max(0.0, forme.H));
    if (forme.Quoi < Forme::Cylindre) {
        Tranche(reste, p.x, d.x, -forme.A, forme.A);
        Tranche(reste, p.y, d.y, -forme.B, forme.B);
    } else {
        Quadrique(reste, d.x * d.x + d.y * d.y, p.x * d.x + p.y * d.y,
                  p.x * p.x + p.y * p.y - forme.A * forme.A);
    }
    return reste;
}

/// Where a ray meets a face, of a body or of a hollow seen from within.
struct Rencontre {
    double T;
    const Forme* Ou;
    bool DansCreux;
};

/// The first point of the solid on the ray. Holes meet the surface exactly, so that a skin of no
/// thickness is none.
std::optional<Rencontre> Premier(const Solide& solide, const PointVek& depart,
                                 const PointVek& direction) {
    auto corps = Dedans(solide.Corps, depart, direction);
    if (!corps) return {};
    Rencontre face{corps->first, &solide.Corps, false};
    for (const Forme& enveloppe : solide.Enveloppes) {
        const auto dedans = Dedans(enveloppe, depart, direction);
        if (!dedans) return {};
        if (dedans->first > corps->first) face = {dedans->first, &enveloppe, false};
        Tranche(corps, 0.0, 1.0, dedans->first, dedans->second);
        if (!corps) return {};
    }
    for (bool avance = true; avance;) {
        avance = false;
        for (const Creux& creux : solide.Enleves) {
            const auto vide = Dedans(creux.Place, depart, direction);
            if (!vide || vide->first > face.T + Presque || vide->second <= face.T + Presque)
                continue;
            face = {vide->second, &creux.Place, true};
            avance = true;
        }
    }
    if (face.T >= corps->second - Presque || face.T < Proche) return {};
    return face;
}

/// A piece of a ray in a part of a body.
struct Morceau {
    Intervalle Ou;
    const Forme* Part;

    bool operator<(const Morceau& autre) const { return Ou < autre.Ou; }
};

/// The pieces of a ray in a body of several parts, from the nearest on.
std::vector<Morceau> Morceaux(const Solide& solide, const PointVek& depart,
                              const PointVek& direction) {
    std::vector<Morceau> parts, morceaux;
    const auto ajoute = [&](const Forme& part) {
        if (const auto dedans = Dedans(part, depart, direction)) parts.push_back({*dedans, &part});
    };
    ajoute(solide.Corps);
    std::for_each(solide.Suite.begin(), solide.Suite.end(), ajoute);
    std::sort(parts.begin(), parts.end());
    for (const Morceau& part : parts)
        if (morceaux.empty() || part.Ou.first > morceaux.back().Ou.second + Presque)
            morceaux.push_back(part);
        else
            morceaux.back().Ou.second = std::max(morceaux.back().Ou.second, part.Ou.second);
    return morceaux;
}

/// Whether the point lies in the plane of one of the ends.
bool SurFond(const Forme& forme, const PointVek& p) {
    const double z =
        Rotation(forme.Alpha, forme.Beta, forme.Gamma).Transposee(p - forme.Position).z;
    return std::min(std::abs(z), std::abs(z - forme.H)) < Presque;
}

/// What the passes leave on the ray: the farthest near side, where the body and its envelopes have
/// as many far sides as they are; then hole after hole, where its mouth is not behind what stands
/// there: its wall, or its far end, which a through hole opens whatever is behind.
std::optional<Rencontre> ParPasses(const Solide& solide, const PointVek& depart,
                                   const PointVek& direction) {
    constexpr double avance = 0.25;  // The mark comes forward by some steps of the depth.
    constexpr Rencontre rien{Loin, nullptr, false};
    const auto morceaux = Morceaux(solide, depart, direction);
    std::size_t fonds = morceaux.size();
    Rencontre reste = rien;
    if (!morceaux.empty()) reste = {morceaux.back().Ou.first, morceaux.back().Part, false};
    for (std::size_t i = 0; i < solide.Enveloppes.size(); ++i) {
        const auto dedans = Dedans(solide.Enveloppes[i], depart, direction);
        if (!dedans) continue;
        ++fonds;
        if (i >= solide.Avant && (morceaux.empty() || dedans->first > reste.T))
            reste = {dedans->first, &solide.Enveloppes[i], false};
    }
    if (fonds != 1 + solide.Enveloppes.size()) reste = rien;
    for (const Creux& creux : solide.Enleves) {
        const auto vide = Dedans(creux.Place, depart, direction);
        if (!vide || !SurFond(creux.Place, depart + direction * vide->first)) continue;
        if (vide->first > reste.T + avance) continue;
        reste = {vide->second, &creux.Place, true};
        if (creux.Debouchant && SurFond(creux.Place, depart + direction * vide->second))
            reste = rien;
    }
    if (!reste.Ou) return {};
    return reste;
}

/// Which face of a box a point lies on: 0 and 1 the ends, 2 and 3 across y from the upper one on, 4
/// and 5 across x from the lower one on.
int FaceDe(const Forme& forme, const PointVek& p) {
    const double ecarts[] = {p.z,           p.z - forme.H, p.y - forme.B,
                             p.y + forme.B, p.x + forme.A, p.x - forme.A};
    const auto moindre = [](double a, double b) { return std::abs(a) < std::abs(b); };
    return static_cast<int>(std::min_element(ecarts, ecarts + 6, moindre) - ecarts);
}

/// How the face looks: outward in the body's own axes, and how much its shade is raised.
struct Aspect {
    PointVek Normale;
    double Ecart;
};

Aspect AspectPave(const Forme& forme, int face, bool creux) {
    static const PointVek dehors[] = {{0, 0, -1}, {0, 0, 1},  {0, 1, 0},
                                      {0, -1, 0}, {-1, 0, 0}, {1, 0, 0}};
    static const double teintes[][6] = {{0.0, 0.01, 0.02, 0.03, 0.04, 0.05},
                                        {0.0, 0.005, 0.015, 0.015, 0.01, 0.01},
                                        {0.01, 0.0, 0.0, 0.03, 0.04, 0.05},
                                        {0.0, 0.0, 0.015, 0.015, 0.01, 0.01}};
    const bool eleve = forme.Quoi != Forme::Pave, bout = face < 2;
    PointVek normale = dehors[face];
    if (bout && forme.H < 0.0) normale = -normale;
    // The ends of a groove look outward as those of a box do, whose faces it has.
    if (creux && (eleve || !bout)) normale = -normale;
    return {normale, teintes[2 * creux + eleve][face]};
}

Aspect AspectDe(const Rencontre& ou, const PointVek& p) {
    const Forme& forme = *ou.Ou;
    if (forme.Quoi < Forme::Cylindre) return AspectPave(forme, FaceDe(forme, p), ou.DansCreux);
    if (forme.Quoi == Forme::Boule) return {Unitaire(p), 0.0};
    const double haut = forme.H < 0.0 ? -1.0 : 1.0;
    // Both ends of a hole look upward.
    if (std::abs(p.z - forme.H) < Presque) return {{0.0, 0.0, haut}, 0.0};
    if (std::abs(p.z) < Presque) return {{0.0, 0.0, ou.DansCreux ? haut : -haut}, 0.0};
    return {Unitaire(PointVek(p.x, p.y)) * (ou.DansCreux ? -1.0 : 1.0), 0.0};
}

/// Light 0: a half of its intensity of 0.5 from all sides, all of it from (0, 1, 1), and a shine of
/// 0.1 where it falls at all.
Touche Eclaire(const Rencontre& ou, const PointVek& p) {
    const Forme& forme = *ou.Ou;
    const Matrice axes = Rotation(forme.Alpha, forme.Beta, forme.Gamma);
    const Aspect aspect = AspectDe(ou, axes.Transposee(p - forme.Position));
    const double cosinus = Scalaire(axes * aspect.Normale, {0.0, std::sqrt(0.5), std::sqrt(0.5)});
    const bool tombe = cosinus > Presque;
    Touche touche;
    touche.Rien = false;
    touche.Jeu = forme.Quoi < Forme::Cylindre ? 2.0 : 30.0;
    for (int canal = 0; canal < 3; ++canal) {
        const double couleur = (forme.Couleur >> canal & 1) + aspect.Ecart;
        const double part = couleur * (0.25 + (tombe ? 0.5 * cosinus : 0.0)) + (tombe ? 0.1 : 0.0);
        touche.Canaux[canal] = 255.0 * std::min(part, 1.0);
    }
    return touche;
}

}  // namespace

void Vue::Avance(const PointVek& v) {
    Translation += Rotation(Alpha, Beta, Gamma).Transposee(v);
}

Touche Lance(const std::vector<Solide>& scene, const Vue& vue, int x, int y, int cote) {
    const Matrice axes = Rotation(vue.Alpha, vue.Beta, vue.Gamma);
    // One unit along the view for each unit of t.
    const PointVek oeil(Bord * (2.0 * (x + 0.5) / cote - 1.0),
                        Bord * (2.0 * (y + 0.5) / cote - 1.0), -1.0);
    const PointVek depart = -vue.Translation, direction = axes.Transposee(oeil);
    Rencontre proche{Loin, nullptr, false};
    for (const Solide& solide : scene) {
        const auto premier = (solide.ParPasses ? ParPasses : Premier)(solide, depart, direction);
        if (premier && premier->T < proche.T) proche = *premier;
    }
    return proche.Ou ? Eclaire(proche, depart + direction * proche.T) : Touche();
}

PointVek OuApparait(const Vue& vue, const PointVek& p, int cote) {
    const PointVek q = Rotation(vue.Alpha, vue.Beta, vue.Gamma) * (p + vue.Translation);
    const double echelle = cote / (-2.0 * q.z * Bord);
    return {cote / 2.0 + q.x * echelle, cote / 2.0 - q.y * echelle};
}
