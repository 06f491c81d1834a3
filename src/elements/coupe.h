#pragma once

#include <optional>
#include <vector>

#include "elements/boite.h"

/// Cutting of lines, polygons and arcs to a box, in doubles. All coordinates are pixels, y
/// downward.

/// Cuts the segment a b to the box. False when nothing of it lies there.
bool CoupeLigne(PointVek& a, PointVek& b, const Boite& boite);

/// The part of a filled polygon that lies in the box; its edges may run along the border.
std::vector<PointVek> CoupePolygone(std::vector<PointVek> sommets, const Boite& boite);

struct ArcEcran {
    PointVek Centre;
    double Rayon;
    double Debut;      ///< Radians, counter-clockwise as seen.
    double Ouverture;  ///< Radians, at most one turn either way.

    PointVek Point(double angle) const;
};

/// Angles along the arc, both ends included, whose chords stay within fleche pixels of it wherever
/// it may touch the box. Their number grows with the logarithm of the radius.
std::vector<double> PasArc(const ArcEcran& arc, const Boite& boite, double fleche = 0.25);

/// One piece of a contour: a line or an arc of at most half a turn.
struct LienEcran {
    PointVek Debut;
    PointVek Fin;
    std::optional<ArcEcran> Arc;
    bool Visible = true;  ///< What is not visible still bounds the surface, as a line.

    /// A box that holds it.
    Boite Cadre() const;
};
