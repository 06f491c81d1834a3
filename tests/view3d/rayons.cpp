#include "rayons.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr double Proche = 0.1, Loin = 1000.0;
constexpr double Presque = 1e-6;

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

/// The first point of the solid on the ray: where, and of which colour. Holes meet the surface
/// exactly, so that a skin of no thickness is none.
std::optional<std::pair<double, int>> Premier(const Solide& solide, const PointVek& depart,
                                              const PointVek& direction) {
    const auto corps = Dedans(solide.Corps, depart, direction);
    if (!corps) return {};
    double t = corps->first;
    int couleur = solide.Corps.Couleur;
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
    return std::make_pair(t, couleur);
}

}  // namespace

PointVek TranslationRecul(const Vue& vue, double distance) {
    return Rotation(vue.Alpha, vue.Beta, vue.Gamma).Transposee({0.0, 0.0, -distance});
}

Touche Lance(const std::vector<Solide>& scene, const Vue& vue, int x, int y, int cote) {
    const Matrice axes = Rotation(vue.Alpha, vue.Beta, vue.Gamma);
    const double bord = std::tan(22.5 * std::acos(-1.0) / 180.0);
    // One unit along the view for each unit of t.
    const PointVek oeil(bord * (2.0 * (x + 0.5) / cote - 1.0),
                        bord * (2.0 * (y + 0.5) / cote - 1.0), -1.0);
    const PointVek depart = -vue.Translation, direction = axes.Transposee(oeil);
    double t = Loin;
    Touche touche;
    for (const Solide& solide : scene) {
        const auto premier = Premier(solide, depart, direction);
        if (!premier || premier->first >= t) continue;
        t = premier->first;
        touche.Couleur = premier->second;
    }
    if (touche.Couleur) touche.Profondeur = Loin / (Loin - Proche) * (1.0 - Proche / t);
    return touche;
}
