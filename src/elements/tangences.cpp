// The circles tangent to elements, and the arcs that round two elements off.

#include <cmath>
#include <vector>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "elements/intersections.h"
#include "elements/vue.h"

namespace {

const EltSegment& CommeSegment(const EltGeo& elt) {
    return static_cast<const EltSegment&>(elt);
}

const EltArc& CommeArc(const EltGeo& elt) {
    return static_cast<const EltArc&>(elt);
}

struct Cercle {
    PointVek Centre;
    double Rayon;
};

/// The circle whose centre is nearest to p; of equals the last. Null when there is none.
const Cercle* PlusProcheCercle(const std::vector<Cercle>& cercles, const PointVek& p) {
    const Cercle* choisi = nullptr;
    for (const Cercle& c : cercles)
        if (!choisi || Distance(c.Centre, p) <= Distance(choisi->Centre, p)) choisi = &c;
    return choisi;
}

/// Keeps a candidate that is a true circle.
void Retient(std::vector<Cercle>& cercles, const PointVek& centre, double rayon) {
    if (centre.EstFini() && std::isfinite(rayon) && rayon >= vue::Epsilon())
        cercles.push_back({centre, rayon});
}

/// What a rounding arc keeps its centre on: the circle about the arc's centre that is rayon away
/// from it, on the side of p.
struct Decalage {
    EltArc Lieu;
    double Contact;  ///< From the arc's centre to the contact, along the way to the new centre.

    Decalage(const EltArc& arc, const PointVek& p, double rayon) {
        const bool dedans = Distance(p, arc.Centre()) <= arc.Rayon;
        const double somme = dedans ? arc.Rayon - rayon : arc.Rayon + rayon;
        Lieu.Position = arc.Centre();
        Lieu.Rayon = std::abs(somme);
        Contact = somme < 0.0 ? -arc.Rayon : arc.Rayon;
    }

    PointVek ContactDepuis(const PointVek& centre) const {
        return Lieu.Position + Unitaire(centre - Lieu.Position) * Contact;
    }
};

EltSegment DecalageSegment(const EltSegment& segment, const PointVek& p, double rayon) {
    EltSegment decale;
    decale.ParalleleCote(rayon, segment, p);
    return decale;
}

/// False for a null segment, which has no direction to be tangent to.
bool EstAppui(const EltGeo& elt) {
    return !SeLitCommeSegment(elt) || elt.EstValide();
}

PointVek PlusProcheDes2(const PointVek& p, const PointVek& a, const PointVek& b) {
    return Distance(p, b) <= Distance(p, a) ? b : a;
}

}  // namespace

void EltArc::TangentPoint(const EltGeo& elt, const PointVek& p) {
    double rayon = ::Distance(p, elt.Centre());
    if (EstDroit(elt))
        rayon = ::Distance(p, CommeSegment(elt).Projete(p));
    else if (EstArc(elt))
        rayon = std::abs(rayon - CommeArc(elt).Rayon);
    FaitCercle(p, rayon);
}

bool EltArc::Tangent2Elements(const EltGeo& premier, const EltGeo& second, const PointVek& p) {
    if (!EstAppui(premier) || !EstAppui(second)) return false;
    if (EstDroit(premier)) {
        if (EstDroit(second))
            return Tangent2Segments(CommeSegment(premier), CommeSegment(second), p);
        if (EstArc(second)) return TangentSegmentArc(CommeSegment(premier), CommeArc(second), p);
        return TangentSegmentPoint(second, CommeSegment(premier));
    }
    if (premier.Type == TypePoint || premier.Type == TypeTxt) {
        // With anything but a segment the method knows no circle. The present one is taken, as
        // users are used to see.
        return !EstDroit(second) || TangentSegmentPoint(premier, CommeSegment(second));
    }
    if (!EstArc(premier)) return false;
    if (EstArc(second)) return Tangent2Arcs(CommeArc(premier), CommeArc(second), p);
    if (EstDroit(second)) return TangentSegmentArc(CommeSegment(second), CommeArc(premier), p);
    return false;
}

bool EltArc::TangentSegmentPoint(const EltGeo& point, const EltSegment& segment) {
    const PointVek c = point.Centre();
    const PointVek q = segment.Projete(c);
    FaitCercle((q + c) / 2.0, ::Distance(c, q) / 2.0);
    return true;
}

bool EltArc::Tangent2Segments(const EltSegment& s1, const EltSegment& s2, const PointVek& p) {
    // The centre is the foot of p on a bisector of the two lines, where the signed distances to
    // them are equal or opposite. Worked out from p and not from the crossing, which is far away
    // and ill known when the lines are nearly parallel; where they are parallel one of the two
    // bisectors is the line in their middle and the other does not exist.
    const PointVek n1 = Normale(s1.Direction()), n2 = Normale(s2.Direction());
    const double d1 = Scalaire(n1, p - s1.Origine), d2 = Scalaire(n2, p - s2.Origine);
    std::vector<Cercle> candidats;
    for (const double signe : {-1.0, 1.0}) {
        const PointVek n = n1 - n2 * signe;
        const double carre = Scalaire(n, n);
        if (carre < 1e-24) continue;
        const PointVek centre = p - n * ((d1 - d2 * signe) / carre);
        candidats.push_back({centre, std::abs(Scalaire(n1, centre - s1.Origine))});
    }
    const Cercle* choisi = PlusProcheCercle(candidats, p);
    if (!choisi) return false;
    FaitCercle(choisi->Centre, choisi->Rayon);
    return true;
}

bool EltArc::TangentSegmentArc(const EltSegment& segment, const EltArc& arc, const PointVek& p) {
    // The centre is q + n s r, with q the foot of p on the line, n its normal, s the side and r the
    // radius. Its distance to the arc's centre is R + r for a circle outside the arc's and
    // |R - r| for one inside or around it; squared, the terms in r^2 cancel and r follows.
    const PointVek q = segment.Projete(p);
    const PointVek n = Unitaire(Normale(segment.Extremite - segment.Origine));
    const PointVek w(q.x - arc.Position.x, q.y - arc.Position.y);
    const double puissance = Scalaire(w, w) - arc.Rayon * arc.Rayon;
    std::vector<Cercle> candidats;
    for (const double s : {1.0, -1.0}) {
        const double dehors = puissance / (2.0 * (arc.Rayon - s * Scalaire(w, n)));
        Retient(candidats, q + n * (s * dehors), dehors);
        const double dedans = -puissance / (2.0 * (arc.Rayon + s * Scalaire(w, n)));
        Retient(candidats, q + n * (s * dedans), dedans);
    }
    const Cercle* choisi = PlusProcheCercle(candidats, p);
    if (!choisi) return false;
    FaitCercle(choisi->Centre, choisi->Rayon);
    return true;
}

bool EltArc::Tangent2Arcs(const EltArc& a1, const EltArc& a2, const PointVek& p) {
    // The centre is taken on the line through the first centre and p, at R1 + k along u, which
    // points to p or away from it: |k| is the radius. Its distance to the second centre is R2 + k
    // or R2 - k; squared, the terms in k^2 cancel and k follows.
    const PointVek v(a1.Position.x - a2.Position.x, a1.Position.y - a2.Position.y);
    PointVek vers(p.x - a1.Position.x, p.y - a1.Position.y);
    if (Norme(vers) < vue::Epsilon()) vers = Norme(v) < vue::Epsilon() ? PointVek(1.0, 0.0) : -v;
    const double r1 = a1.Rayon, r2 = a2.Rayon;
    std::vector<Cercle> candidats;
    for (const PointVek& u : {-Unitaire(vers), Unitaire(vers)}) {
        const double vu = Scalaire(v, u);
        const double numerateur = r2 * r2 - r1 * r1 - Scalaire(v, v) - 2.0 * r1 * vu;
        for (const double signe : {1.0, -1.0}) {
            const double k = numerateur / (2.0 * (vu + r1 - signe * r2));
            Retient(candidats, a1.Position + u * (r1 + k), std::abs(k));
        }
    }
    const Cercle* choisi = PlusProcheCercle(candidats, p);
    if (!choisi) return false;
    FaitCercle(choisi->Centre, choisi->Rayon);
    return true;
}

bool EltArc::Tangent2ElementsRayon(const EltGeo& premier, const EltGeo& second, const PointVek& p,
                                   double rayon) {
    const bool droit1 = SeLitCommeSegment(premier), droit2 = SeLitCommeSegment(second);
    if (!EstAppui(premier) || !EstAppui(second)) return false;
    if ((!droit1 && !EstArc(premier)) || (!droit2 && !EstArc(second))) return false;
    if (droit1 && droit2)
        return Conge2Segments(CommeSegment(premier), CommeSegment(second), p, rayon);
    if (droit1) return CongeSegmentArc(CommeSegment(premier), CommeArc(second), p, rayon);
    if (droit2) return CongeSegmentArc(CommeSegment(second), CommeArc(premier), p, rayon);
    return Conge2Arcs(CommeArc(premier), CommeArc(second), p, rayon);
}

bool EltArc::Conge2Segments(const EltSegment& s1, const EltSegment& s2, const PointVek& p,
                            double rayon) {
    PointVek centre;
    if (!DecalageSegment(s1, p, rayon).Intersection(DecalageSegment(s2, p, rayon), centre))
        return false;
    FaitConge(centre, rayon, s1.Projete(centre), s2.Projete(centre));
    return true;
}

bool EltArc::CongeSegmentArc(const EltSegment& segment, const EltArc& arc, const PointVek& p,
                             double rayon) {
    const Decalage decalage(arc, p, rayon);
    PointVek a, b;
    if (!IntersecteDroite(DecalageSegment(segment, p, rayon), decalage.Lieu, a, b)) return false;
    const PointVek centre = PlusProcheDes2(p, a, b);
    FaitConge(centre, rayon, segment.Projete(centre), decalage.ContactDepuis(centre));
    return true;
}

bool EltArc::Conge2Arcs(const EltArc& a1, const EltArc& a2, const PointVek& p, double rayon) {
    const Decalage d1(a1, p, rayon), d2(a2, p, rayon);
    PointVek a, b;
    if (!IntersecteCercle(d1.Lieu, d2.Lieu, a, b)) return false;
    const PointVek centre = PlusProcheDes2(p, a, b);
    FaitConge(centre, rayon, d1.ContactDepuis(centre), d2.ContactDepuis(centre));
    return true;
}

void EltArc::FaitConge(const PointVek& centre, double rayon, const PointVek& c1,
                       const PointVek& c2) {
    FaitArc(centre, rayon, c1, c2);
    if (Ouverture > Pi) FaitArc(centre, rayon, c2, c1);
}
