// From DIMENSION entities to dimensions.

#include <cmath>
#include <utility>

#include "elements/angles.h"
#include "elements/eltcoteang.h"
#include "elements/eltcotedia.h"
#include "elements/eltcotehori.h"
#include "elements/eltcoterayon.h"
#include "elements/eltcotevert.h"
#include "exchange/dxfcreation.h"
#include "exchange/dxfentite.h"

namespace {

using Cote = std::unique_ptr<EltCote>;

/// Drawing units, whatever the file says.
constexpr double Taille = 3.3;

/// What the decimals of a file may make of a point on the side of an angle: radians, or parts of
/// that side.
constexpr double Epsilon = 1e-4;

/// Sine below which two lines are parallel.
constexpr double Parallele = 1e-9;

bool EstProche(double angle, double degres) {
    return std::abs(angle - degres) < 1e-6;
}

Cote CreeLineaire(const EntiteDxf& entite) {
    Cote cote;
    if (EstProche(entite.Reel(50), 0.0))
        cote = std::make_unique<EltCoteHori>();
    else if (EstProche(entite.Reel(50), 90.0))
        cote = std::make_unique<EltCoteVert>();
    else
        cote = std::make_unique<EltCote>();
    cote->SetPoint1(entite.Points[3]);
    cote->SetPoint2(entite.Points[4]);
    cote->PlaceLigne(entite.Points[0]);
    return cote;
}

/// Between P5 and P0, with its text at P1, else at P0.
template <class Circulaire>
Cote CreeCirculaire(const EntiteDxf& entite) {
    auto cote = std::make_unique<Circulaire>();
    cote->SetPoint1(entite.Points[5]);
    cote->SetPoint2(entite.Points[0]);
    cote->PlaceLigne(entite.Point(1, entite.Points[0]));
    return cote;
}

double Vectoriel(const PointVek& a, const PointVek& b) {
    return a.x * b.y - a.y * b.x;
}

/// How far a turns, counter-clockwise, to point like b: radians in [0, 2 pi).
double Tour(const PointVek& a, const PointVek& b) {
    return AngleReduit(std::atan2(Vectoriel(a, b), a.x * b.x + a.y * b.y), Epsilon);
}

/// One side of an angle: where its line begins, and where it goes to from the apex.
struct Branche {
    PointVek Origine;
    PointVek Direction;
};

/// The angle between two sides in which p lies, with its arc through p.
Cote CreeAngle(const PointVek& sommet, Branche a, Branche b, const PointVek& p) {
    const double rayon = Distance(sommet, p);
    if (!(rayon > 0.0)) return nullptr;
    if (Tour(a.Direction, p - sommet) > Tour(a.Direction, b.Direction) + Epsilon) std::swap(a, b);
    const auto bout = [&](const Branche& branche) {
        return sommet + branche.Direction * (rayon / Distance({}, branche.Direction));
    };
    auto cote = std::make_unique<EltCoteAng>();
    cote->Point1 = a.Origine;
    cote->Point2 = b.Origine;
    cote->Extremite1 = bout(a);
    cote->Extremite2 = bout(b);
    cote->Sommet = sommet;
    cote->Recalcule();
    return cote;
}

/// Of the lines P3-P4 and P5-P0, with its arc through P6, else P1.
Cote CreeAngleDeLignes(const EntiteDxf& entite) {
    const PointVek &a = entite.Points[3], &b = entite.Points[4];
    const PointVek &c = entite.Points[5], &d = entite.Points[0];
    const PointVek u = b - a, w = d - c;
    const double aire = Vectoriel(u, w);
    if (!(std::abs(aire) > Parallele * Distance(a, b) * Distance(c, d))) return nullptr;
    const PointVek sommet = a + u * (Vectoriel(c - a, w) / aire);
    const PointVek p = entite.Point(6, entite.Point(1, d));

    // Each side goes to that half of its line which bounds the quarter of p.
    const PointVek v = p - sommet;
    const auto branche = [&sommet](const PointVek& debut, const PointVek& fin, double part) {
        const bool proche = Distance(sommet, debut) <= Distance(sommet, fin);
        return Branche{proche ? debut : fin, part < -Epsilon ? debut - fin : fin - debut};
    };
    return CreeAngle(sommet, branche(a, b, Vectoriel(v, w) / aire),
                     branche(c, d, Vectoriel(u, v) / aire), p);
}

/// About P5, from P3 to P4, with its arc through P0.
Cote CreeAngleDePoints(const EntiteDxf& entite) {
    const PointVek& sommet = entite.Points[5];
    return CreeAngle(sommet, {sommet, entite.Points[3] - sommet},
                     {sommet, entite.Points[4] - sommet}, entite.Points[0]);
}

/// By the kind of the dimension.
constexpr Cote (*Creations[])(const EntiteDxf&) = {
    CreeLineaire,
    nullptr,
    CreeAngleDeLignes,
    CreeCirculaire<EltCoteDia>,
    CreeCirculaire<EltCoteRayon>,
    CreeAngleDePoints,
};

}  // namespace

std::unique_ptr<EltGeo> CreeCote(const EntiteDxf& entite) {
    const auto genre = static_cast<std::size_t>(entite.Drapeaux & 31);
    if (genre >= std::size(Creations) || !Creations[genre]) return nullptr;
    Cote cote = Creations[genre](entite);
    if (!cote) return nullptr;
    const bool mesure = entite.Texte.empty() || entite.Texte == "<>";
    cote->SetTexte(mesure ? Glib::ustring("*") : EnTexte(entite.Texte));
    cote->Police = "Arial";
    cote->SetTaille(Taille);
    return cote;
}
