#include "elements/eltsegment.h"

#include <cmath>

#include "elements/angles.h"
#include "elements/distances.h"
#include "elements/ecrivain.h"
#include "elements/eltarc.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/vue.h"

EltSegment::EltSegment(int type) : EltGeo(type) {}

EltSegment::EltSegment(const PointVek& origine, const PointVek& extremite, int calque)
    : EltGeo(TypeSegment), Origine(origine), Extremite(extremite) {
    Calque = calque;
    EltSegment::Recalcule();
}

std::unique_ptr<EltGeo> EltSegment::Clone() const {
    return std::make_unique<EltSegment>(*this);
}

void EltSegment::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    const auto& segment = static_cast<const EltSegment&>(source);
    SetPoints(segment.Origine, segment.Extremite);
}

void EltSegment::Dessine(Trace& trace) const {
    const PointVek a = vue::VersEcran(Origine), b = vue::VersEcran(Extremite);
    if (!trace.Touche(Boite::Autour(a, b), Style)) return;
    trace.AppliqueTrait(Style, Trace::Ligne);
    trace.Segment(a, b);
}

void EltSegment::DessinePoignees(Trace& trace) const {
    trace.AppliqueTrait(Style, Trace::Ligne);
    for (const PointVek& p : {Position, Origine, Extremite})
        trace.Poignee(vue::VersEcran(p));
}

void EltSegment::Place(const PointVek& p) {
    const PointVek v = p - Position;
    Position = p;
    Origine += v;
    Extremite += v;
}

void EltSegment::Deplace(const PointVek& v) {
    Position += v;
    Origine += v;
    Extremite += v;
}

void EltSegment::Transforme(const TransformeColle& t) {
    Position.Transforme(t);
    Origine.Transforme(t);
    Extremite.Transforme(t);
}

void EltSegment::DebutDeforme(const PointVek& p) {
    const double proche = vue::Proche10();
    if (::Distance(p, Position) < proche)
        PoigneeCourante = 1;
    else if (::Distance(p, Origine) < proche)
        PoigneeCourante = 3;
    else if (::Distance(p, Extremite) < proche)
        PoigneeCourante = 2;
    else
        PoigneeCourante = 1;
}

void EltSegment::Deforme(const PointVek& v) {
    if (PoigneeCourante == 2)
        SetPoints(Origine, Extremite + v);
    else if (PoigneeCourante == 3)
        SetPoints(Origine + v, Extremite);
    else
        EltGeo::Deforme(v);
}

void EltSegment::Sauve(Ecrivain& sortie) const {
    // The middle of the ends as they are written, so that a drawing that is opened and saved again
    // gives the same file.
    SauveCommun(sortie, (CommeEcrit(Origine) + CommeEcrit(Extremite)) / 2.0);
    sortie << Origine << ' ' << Extremite << '\n';
}

void EltSegment::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    entree >> Origine >> Extremite;
    Recalcule();
}

double EltSegment::Distance(const PointVek& p) const {
    return DistanceSegment(p, Origine, Extremite);
}

double EltSegment::DistanceSupport(const PointVek& p) const {
    return DistanceDroite(p, Origine, Extremite);
}

Minorant EltSegment::MinorantDistance() const {
    return Minorant::Droite(Origine, Extremite);
}

void EltSegment::Recalcule() {
    Position = (Origine + Extremite) / 2.0;
}

PointVek EltSegment::PointProche(const PointVek& p) const {
    return PlusProche(p, {Position, Extremite, Origine});
}

PointVek EltSegment::Direction() const {
    return (Extremite - Origine) / Longueur();
}

bool EltSegment::EstFini() const {
    // Their middle is the position.
    return (Origine + Extremite).EstFini();
}

bool EltSegment::EstValide() const {
    return EstFini() && Longueur() >= vue::Epsilon();
}

void EltSegment::SetOrigine(const PointVek& p) {
    SetPoints(p, Extremite);
}

void EltSegment::SetLongueur(double longueur) {
    const PointVek demi = Direction() * (longueur * 0.5);
    const PointVek milieu = Position;
    SetPoints(milieu - demi, milieu + demi);
}

void EltSegment::SetAngle(double angle) {
    const PointVek demi = PointPolaire({}, Longueur() * 0.5, angle);
    const PointVek milieu = Position;
    SetPoints(milieu - demi, milieu + demi);
}

void EltSegment::SetExtremite(const PointVek& p) {
    SetPoints(Origine, p);
}

void EltSegment::SetPoints(PointVek origine, PointVek extremite) {
    Origine = origine;
    Extremite = extremite;
    Recalcule();
}

void EltSegment::SetExtremiteSymetrique(const PointVek& p) {
    Extremite = p;
    Origine = Position * 2.0 - p;
}

double EltSegment::Longueur() const {
    return ::Distance(Origine, Extremite);
}

double EltSegment::Angle() const {
    return ::Angle(Extremite - Origine);
}

PointVek EltSegment::Projete(const PointVek& p) const {
    return Projection(p, Origine, Extremite);
}

bool EltSegment::Cote(const PointVek& p) const {
    const double a = Origine.x - Extremite.x;
    const double b = Extremite.y - Origine.y;
    return Origine.x * b + Origine.y * a < b * p.x + a * p.y;
}

bool EltSegment::Intersection(const EltSegment& autre, PointVek& croisement) const {
    // Each line as b x + a y = c.
    const double a1 = Extremite.x - Origine.x, b1 = Origine.y - Extremite.y;
    const double a2 = autre.Extremite.x - autre.Origine.x;
    const double b2 = autre.Origine.y - autre.Extremite.y;
    const double c1 = Extremite.x * b1 + Extremite.y * a1;
    const double c2 = autre.Extremite.x * b2 + autre.Extremite.y * a2;
    const double determinant = b1 * a2 - b2 * a1;
    if (!(std::abs(determinant) > vue::Epsilon())) return false;
    croisement = {(a2 * c1 - a1 * c2) / determinant, (b1 * c2 - b2 * c1) / determinant,
                  croisement.z};
    return true;
}

void EltSegment::Parallele(const PointVek& p, const EltSegment& segment) {
    SetPoints(p, p + (segment.Extremite - segment.Origine));
}

void EltSegment::DepuisCentre(const PointVek& p, const EltGeo& elt) {
    SetPoints(elt.Centre(), p);
}

void EltSegment::ParalleleDistance(const EltSegment& segment, double distance) {
    Parallele(segment.Origine + Normale(segment.Direction()) * distance, segment);
}

void EltSegment::ParalleleCote(double distance, const EltSegment& segment, const PointVek& p) {
    ParalleleDistance(segment, segment.Cote(p) ? -distance : distance);
}

void EltSegment::Orthogonal(const EltSegment& segment) {
    const PointVek demi = Normale(segment.Extremite - segment.Origine) / 2.0;
    SetPoints(demi, -demi);
}

void EltSegment::Tangente(const PointVek& p, const EltArc& arc, bool horaire) {
    const PointVek centre = arc.Centre();
    const double rayon = arc.Rayon;
    PointVek v(p.x - centre.x, p.y - centre.y);
    const double n = Norme(v);
    if (n <= 1e-6) {
        SetPoints(centre, p);
        return;
    }
    if (rayon < n) {
        const double angle = std::asin(rayon / n) - Pi / 2.0;
        v.Tourne(horaire ? -angle : angle);
    }
    SetPoints(centre + v * (rayon / n), p);
}

void EltSegment::Accroche(const PointVek& p, const EltGeo& elt, bool horaire) {
    switch (elt.Type) {
        case TypeArc:
            Tangente(p, static_cast<const EltArc&>(elt), horaire);
            break;
        case TypeSegment:
        case TypeDroite:
            Parallele(p, static_cast<const EltSegment&>(elt));
            break;
        default:
            DepuisCentre(p, elt);
    }
}

bool EltSegment::Tangente2Arcs(const PointVek& p, const EltGeo& premier, const EltGeo& second) {
    if (premier.Type != TypeArc || second.Type != TypeArc) return false;
    const PointVek c1 = premier.Centre(), c2 = second.Centre();
    const double r1 = static_cast<const EltArc&>(premier).Rayon;
    const double r2 = static_cast<const EltArc&>(second).Rayon;
    const PointVek v(c2.x - c1.x, c2.y - c1.y);
    const double n = Norme(v);
    if (std::abs(v.x) < 1e-6 && std::abs(v.y) < 1e-6) return false;

    // Both contacts lie along one unit vector from their centres, on the far side of the second
    // circle for an inner tangent; its angle to v follows from the tangent being at right angle.
    // Tangents that cross at their middles are as near as each other, whatever the last digit says.
    const double egales = 1e-9 * (n + r1 + r2);
    double meilleure = HUGE_VAL;
    PointVek p1, p2;
    for (const double signe : {1.0, -1.0}) {
        const double e = signe * r2 - r1;
        if (std::abs(e) > n) continue;
        const double b = std::acos(-e / n);
        for (const double th : {::Angle(v) + b, ::Angle(v) - b}) {
            const PointVek q1 = PointPolaire(c1, r1, th);
            const PointVek q2 = PointPolaire(c2, signe * r2, th);
            // Where the circles touch, the contacts are one point.
            if (::Distance(q1, q2) < vue::Epsilon()) continue;
            const double d = ::Distance((q1 + q2) / 2.0, p);
            if (!(d < meilleure - egales)) continue;
            meilleure = d;
            p1 = q1;
            p2 = q2;
        }
    }
    if (meilleure == HUGE_VAL) return false;
    SetPoints(p1, p2);
    return true;
}
