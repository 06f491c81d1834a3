#include "elements/distances.h"

#include <cmath>

#include "elements/vue.h"

namespace {

/// What both distances to a line need: the vector from a to p, the squared length of a b, and the
/// parameter of the foot of p, 0 at a and 1 at b.
struct PiedSurLigne {
    PointVek w;
    double Carre;
    double t;

    PiedSurLigne(const PointVek& p, const PointVek& a, const PointVek& b) : w(p - a) {
        const PointVek d = b - a;
        Carre = d.x * d.x + d.y * d.y;
        t = (d.x * w.x + d.y * w.y) / Carre;
    }

    double Ecart() const {
        // The absolute value protects the root from rounding.
        return std::sqrt(std::abs(w.x * w.x + w.y * w.y - t * t * Carre));
    }
};

}  // namespace

double DistanceSegment(const PointVek& p, const PointVek& a, const PointVek& b) {
    const PiedSurLigne pied(p, a, b);
    if (pied.Carre < vue::Epsilon() || pied.t < 0.0) return Distance(p, a);
    if (pied.t > 1.0) return Distance(p, b);
    return pied.Ecart();
}

double DistanceDroite(const PointVek& p, const PointVek& a, const PointVek& b) {
    const PiedSurLigne pied(p, a, b);
    if (pied.Carre < vue::Epsilon()) return Distance(p, a);
    return pied.Ecart();
}

namespace {

template <class Points, class Mesure>
PointVek Premier(const Points& candidats, const Mesure& mesure) {
    double meilleure = HUGE_VAL;
    PointVek proche;
    for (const PointVek& candidat : candidats) {
        const double d = mesure(candidat);
        if (!(d < meilleure)) continue;
        meilleure = d;
        proche = candidat;
    }
    return proche;
}

}  // namespace

PointVek PlusProche(const PointVek& p, std::initializer_list<PointVek> candidats) {
    return Premier(candidats, [&p](const PointVek& candidat) { return Distance(p, candidat); });
}

PointVek PlusProche3D(const PointVek& p, const std::vector<PointVek>& candidats) {
    return Premier(candidats, [&p](const PointVek& candidat) { return Distance3D(p, candidat); });
}
