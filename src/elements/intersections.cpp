#include "elements/intersections.h"

#include <cmath>

#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "elements/vue.h"

bool EstDroit(const EltGeo& elt) {
    return elt.Type == TypeSegment || elt.Type == TypeDroite;
}

bool EstArc(const EltGeo& elt) {
    return elt.Type == TypeArc;
}

bool SeLitCommeSegment(const EltGeo& elt) {
    return EstDroit(elt) || elt.Type == TypeRectangle;
}

int Intersecte(const EltGeo& e1, const EltGeo& e2, PointVek& a, PointVek& b) {
    if (EstDroit(e1) && EstDroit(e2)) {
        const auto& s1 = static_cast<const EltSegment&>(e1);
        return s1.Intersection(static_cast<const EltSegment&>(e2), a) ? 1 : 0;
    }
    if (EstDroit(e1) && EstArc(e2))
        return IntersecteDroite(static_cast<const EltSegment&>(e1), static_cast<const EltArc&>(e2),
                                a, b);
    if (EstArc(e1) && EstDroit(e2))
        return IntersecteDroite(static_cast<const EltSegment&>(e2), static_cast<const EltArc&>(e1),
                                a, b);
    if (EstArc(e1) && EstArc(e2))
        return IntersecteCercle(static_cast<const EltArc&>(e1), static_cast<const EltArc&>(e2), a,
                                b);
    return 0;
}

int IntersecteDroite(const EltSegment& droite, const EltArc& arc, PointVek& a, PointVek& b) {
    const PointVek d = droite.Extremite - droite.Origine;
    const PointVek w = droite.Origine - arc.Centre();
    const double carre = Scalaire(d, d);
    if (carre < vue::Epsilon()) return 0;
    const double moitie = Scalaire(w, d);
    const double discriminant = moitie * moitie - carre * (Scalaire(w, w) - arc.Rayon * arc.Rayon);
    if (!(discriminant >= 0.0)) return 0;
    const double racine = std::sqrt(discriminant);
    a = droite.Origine + d * ((-moitie - racine) / carre);
    b = droite.Origine + d * ((-moitie + racine) / carre);
    return 2;
}

int IntersecteCercle(const EltArc& c1, const EltArc& c2, PointVek& a, PointVek& b) {
    const double d = Distance(c1.Centre(), c2.Centre());
    if (d > c1.Rayon + c2.Rayon || d < vue::Epsilon()) return 0;
    const PointVek u = (c2.Centre() - c1.Centre()) / d;
    // Distance from c1 to the common chord, then half the chord's length squared.
    const double h = (d * d + c1.Rayon * c1.Rayon - c2.Rayon * c2.Rayon) * 0.5 / d;
    const double carre = c1.Rayon * c1.Rayon - h * h;
    if (!(carre >= 0.0)) return 0;
    const PointVek pied = c1.Centre() + u * h;
    const PointVek demiCorde = Normale(u) * std::sqrt(carre);
    a = pied + demiCorde;
    b = pied - demiCorde;
    return 2;
}
