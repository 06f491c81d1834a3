#include "elements/eltcoteang.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/eltsegment.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/vue.h"

namespace {

/// Zero of the directions on the screen, in pixels.
constexpr double EpsilonEcran = 1e-6;

}  // namespace

std::unique_ptr<EltGeo> EltCoteAng::Clone() const {
    return std::make_unique<EltCoteAng>(*this);
}

void EltCoteAng::Copie(const EltGeo& source) {
    EltCote::Copie(source);
    const auto& cote = static_cast<const EltCoteAng&>(source);
    Extremite1 = cote.Extremite1;
    Extremite2 = cote.Extremite2;
    Sommet = cote.Sommet;
    Recalcule();
}

void EltCoteAng::Deplace(const PointVek& v) {
    EltCote::Deplace(v);
    Extremite1 += v;
    Extremite2 += v;
    Sommet += v;
    Recalcule();
}

void EltCoteAng::Transforme(const TransformeColle& t) {
    EltCote::Transforme(t);
    Extremite1.Transforme(t);
    Extremite2.Transforme(t);
    Sommet.Transforme(t);
    if (t.SymetrieX != t.SymetrieY) {
        std::swap(Point1, Point2);
        std::swap(Extremite1, Extremite2);
    }
    Recalcule();
}

void EltCoteAng::Sauve(Ecrivain& sortie) const {
    // The text and its place as they follow from the points that are written, so that a drawing
    // that is opened and saved again gives the same file.
    EltCoteAng ecrite(*this);
    for (PointVek* p : {&ecrite.Sommet, &ecrite.Extremite1, &ecrite.Extremite2})
        *p = CommeEcrit(*p);
    ecrite.Recalcule();
    ecrite.EltCote::Sauve(sortie);
    sortie << Sommet << ' ' << Extremite1 << ' ' << Extremite2 << '\n';
}

void EltCoteAng::Charge(Lecteur& entree) {
    EltCote::Charge(entree);
    entree >> Sommet >> Extremite1 >> Extremite2;
    Recalcule();
}

EltCoteAng::Ouvert EltCoteAng::Secteur(const PointVek& a, const PointVek& b, double epsilon) {
    const auto nul = [epsilon](const PointVek& v) {
        return std::abs(v.x) < epsilon && std::abs(v.y) < epsilon;
    };
    if (nul(a) || nul(b)) return {0.0, DeuxPi};
    const double debut = std::atan2(a.y, a.x), fin = std::atan2(b.y, b.x);
    return {AngleReduit(debut, epsilon), AngleReduit(fin - debut, epsilon)};
}

EltCoteAng::Ouvert EltCoteAng::Secteur() const {
    return Secteur(Extremite1 - Sommet, Extremite2 - Sommet, vue::Epsilon());
}

void EltCoteAng::Recalcule() {
    Position = PointPolaire(Sommet, ::Distance(Sommet, Extremite2), Secteur().Milieu());
    AccordeAngle();
}

bool EltCoteAng::EstFini() const {
    return EltCote::EstFini() && Extremite1.EstFini() && Extremite2.EstFini() && Sommet.EstFini();
}

bool EltCoteAng::EstValide() const {
    const double epsilon = vue::Epsilon();
    const auto longs = [epsilon](const PointVek& depart, const PointVek& sommet,
                                 const PointVek& fin) {
        return ::Distance(depart, fin) >= epsilon && ::Distance(sommet, fin) >= epsilon;
    };
    return EstFini() && longs(Point1, Sommet, Extremite1) && longs(Point2, Sommet, Extremite2);
}

double EltCoteAng::Valeur() const {
    return EnDegres(Secteur().Ouverture);
}

void EltCoteAng::SetPoint1(const PointVek& p) {
    Point1 = Position = Sommet = p;
    AccordeAngle();
}

void EltCoteAng::SetPoint2(const PointVek& p) {
    Point2 = Extremite1 = Position = Sommet = p;
    Extremite2 = Point1;
    AccordeAngle();
}

void EltCoteAng::PlaceLigne(const PointVek& p) {
    Extremite1 = p;
    PlaceExtremite2(p - Point2 + Point1);
}

void EltCoteAng::PlaceExtremite2(const PointVek& p) {
    Extremite2 = p;
    CalculeSommet();
    Recalcule();
    Texte = TexteValeur();
}

void EltCoteAng::CalculeSommet() {
    const double epsilon = vue::Epsilon();
    const EltSegment premier(Point1, Extremite1, 0), second(Point2, Extremite2, 0);
    // A common corner is the apex, whatever the angle.
    if (::Distance(Point1, Point2) < epsilon) {
        Sommet = Point1;
        return;
    }
    PointVek croisement;
    if (second.Intersection(premier, croisement)) {
        Sommet = croisement + PointVek();  // No -0 in the file.
        return;
    }
    // Of parallel segments: the second end goes to where its direction points from the apex.
    Sommet = (Extremite1 + Extremite2) / 2.0;
    if (second.Longueur() < epsilon) return;
    const double rayon = ::Distance(Sommet, Extremite2);
    const PointVek u = second.Direction();
    const bool derriere = Scalaire(Extremite2 - Sommet, u) < -epsilon;
    Extremite2 = Sommet + u * (derriere ? -rayon : rayon);
}

Glib::ustring EltCoteAng::TexteValeur() const {
    return EltCote::TexteValeur() + "°";
}

double EltCoteAng::AngleCote() const {
    const double angle = Secteur().Milieu() - Pi / 2.0;
    return angle > Pi ? angle - DeuxPi : angle;
}

double EltCoteAng::Flou() const {
    const PointVek a = Extremite1 - Sommet, b = Extremite2 - Sommet;
    if (!(Scalaire(a, a) > 0.0) || !(Scalaire(b, b) > 0.0)) return 0.0;
    // How much the angle of each side turns with its end; the apex turns both.
    const PointVek pa = Normale(a) / Scalaire(a, a), pb = Normale(b) / Scalaire(b, b);
    const auto part = [](const PointVek& pente, const PointVek& p) {
        return std::abs(pente.x) * EcartEcrit(p.x) + std::abs(pente.y) * EcartEcrit(p.y);
    };
    return EnDegres(part(pa, Extremite1) + part(pb, Extremite2) + part(pb - pa, Sommet));
}

double EltCoteAng::PorteeLignes() const {
    return std::max({::Distance(Position, Sommet) + ::Distance(Sommet, Extremite2),
                     ::Distance(Position, Extremite1), ::Distance(Position, Point1),
                     ::Distance(Position, Point2)});
}

void EltCoteAng::DessineLignes(Trace& trace) const {
    const PointVek a = vue::VersEcran(Point1), b = vue::VersEcran(Point2);
    const PointVek e1 = vue::VersEcran(Extremite1), e2 = vue::VersEcran(Extremite2);
    const PointVek s = vue::VersEcran(Sommet);
    const auto versHaut = [&s](const PointVek& p) { return PointVek(p.x - s.x, s.y - p.y); };
    const Ouvert secteur = Secteur(versHaut(e1), versHaut(e2), EpsilonEcran);
    trace.Segment(a, e1);
    trace.Segment(b, e2);
    trace.Arc({s, ::Distance(s, e2), secteur.Debut, secteur.Ouverture}, false);
    // From the origins of the segments and not from the apex: dimensions drawn so far keep their
    // look.
    DessineFleche(trace, e1, Normale(b - e1));
    DessineFleche(trace, e2, Normale(e2 - a));
}
