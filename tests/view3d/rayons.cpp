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
    Tranche(reste, p.z, d.z, 0.0, forme.H);
    if (forme.Quoi == Forme::Pave) {
        Tranche(reste, p.x, d.x, -forme.A, forme.A);
        Tranche(reste, p.y, d.y, -forme.B, forme.B);
    } else {
        Quadrique(reste, d.x * d.x + d.y * d.y, p.x * d.x + p.y * d.y,
                  p.x * p.x + p.y * p.y - forme.A * forme.A);
    }
    return reste;
}

/// Where a ray meets something, and of which colour.
using Rencontre = std::pair<double, int>;

/// The first point of the solid on the ray. Holes meet the surface exactly, so that a skin of no
/// thickness is none.
std::optional<Rencontre> Premier(const Solide& solide, const PointVek& depart,
                                 const PointVek& direction) {
    auto corps = Dedans(solide.Corps, depart, direction);
    if (!corps) return {};
    int couleur = solide.Corps.Couleur;
    for (const Forme& enveloppe : solide.Enveloppes) {
        const auto dedans = Dedans(enveloppe, depart, direction);
        if (!dedans) return {};
        if (dedans->first > corps->first) couleur = enveloppe.Couleur;
        Tranche(corps, 0.0, 1.0, dedans->first, dedans->second);
        if (!corps) return {};
    }
    double t = corps->first;
    for (bool avance = true; avance;) {
        avance = false;
        for (const Creux& creux : solide.Enleves) {
            const auto vide = Dedans(creux.Place, depart, direction);
            if (!vide || vide->first > t + Presque || vide->second <= t + Presque) continue;
            t = vide->second;
            couleur = creux.Place.Couleur;
            avance = true;
        }
    }
    if (t >= corps->second - Presque || t < Proche) return {};
    return Rencontre(t, couleur);
}

/// The pieces of a ray in a body of several parts, from the nearest on.
std::vector<Intervalle> Morceaux(const Solide& solide, const PointVek& depart,
                                 const PointVek& direction) {
    std::vector<Intervalle> parts, morceaux;
    if (const auto dedans = Dedans(solide.Corps, depart, direction)) parts.push_back(*dedans);
    for (const Forme& suite : solide.Suite)
        if (const auto dedans = Dedans(suite, depart, direction)) parts.push_back(*dedans);
    std::sort(parts.begin(), parts.end());
    for (const Intervalle& part : parts)
        if (morceaux.empty() || part.first > morceaux.back().second + Presque)
            morceaux.push_back(part);
        else
            morceaux.back().second = std::max(morceaux.back().second, part.second);
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
    const auto morceaux = Morceaux(solide, depart, direction);
    std::size_t fonds = morceaux.size();
    Rencontre reste(Loin, 0);
    if (!morceaux.empty()) reste = {morceaux.back().first, solide.Corps.Couleur};
    for (std::size_t i = 0; i < solide.Enveloppes.size(); ++i) {
        const auto dedans = Dedans(solide.Enveloppes[i], depart, direction);
        if (!dedans) continue;
        ++fonds;
        if (i >= solide.Avant && (morceaux.empty() || dedans->first > reste.first))
            reste = {dedans->first, solide.Enveloppes[i].Couleur};
    }
    if (fonds != 1 + solide.Enveloppes.size()) reste = {Loin, 0};
    for (const Creux& creux : solide.Enleves) {
        const auto vide = Dedans(creux.Place, depart, direction);
        if (!vide || !SurFond(creux.Place, depart + direction * vide->first)) continue;
        if (vide->first > reste.first + avance) continue;
        reste = {vide->second, creux.Place.Couleur};
        if (creux.Debouchant && SurFond(creux.Place, depart + direction * vide->second))
            reste = {Loin, 0};
    }
    if (!reste.second) return {};
    return reste;
}

}  // namespace

PointVek TranslationRecul(const Vue& vue, double distance) {
    return Rotation(vue.Alpha, vue.Beta, vue.Gamma).Transposee({0.0, 0.0, -distance});
}

Touche Lance(const std::vector<Solide>& scene, const Vue& vue, int x, int y, int cote) {
    const Matrice axes = Rotation(vue.Alpha, vue.Beta, vue.Gamma);
    // One unit along the view for each unit of t.
    const PointVek oeil(Bord * (2.0 * (x + 0.5) / cote - 1.0),
                        Bord * (2.0 * (y + 0.5) / cote - 1.0), -1.0);
    const PointVek depart = -vue.Translation, direction = axes.Transposee(oeil);
    double t = Loin;
    Touche touche;
    for (const Solide& solide : scene) {
        const auto premier = (solide.ParPasses ? ParPasses : Premier)(solide, depart, direction);
        if (!premier || premier->first >= t) continue;
        t = premier->first;
        touche.Couleur = premier->second;
    }
    if (touche.Couleur) touche.Profondeur = Loin / (Loin - Proche) * (1.0 - Proche / t);
    return touche;
}

PointVek OuApparait(const Vue& vue, const PointVek& p, int cote) {
    const PointVek q = Rotation(vue.Alpha, vue.Beta, vue.Gamma) * (p + vue.Translation);
    const double echelle = cote / (-2.0 * q.z * Bord);
    return {cote / 2.0 + q.x * echelle, cote / 2.0 - q.y * echelle};
}
