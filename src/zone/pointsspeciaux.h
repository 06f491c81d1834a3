#pragma once

#include <optional>
#include <vector>

#include "zone/accrochage.h"

/// Which special points a click may jump to besides those of `OptionsAccrochage`.
struct OptionsSpeciales {
    bool BoutsDevant = true;  ///< A far crossing does not hide the end that is near.
    bool Milieux = false;     ///< Of arcs and of the sides of rectangles and profiles.
    bool Quadrants = false;
    bool Pieds = false;      ///< Of the perpendiculars from the reference point.
    bool Tangentes = false;  ///< The contacts of the tangents from the reference point.
    bool Proches = false;    ///< The nearest point on an element.

    /// Whether there is any to look for.
    bool Cherche() const { return Milieux || Quadrants || Pieds || Tangentes || Proches; }
};

/// All special points within the pick distance of p (drawing units), the nearest first, and
/// those that are merely on an element last; points that are one to the eye come once. reference:
/// the point that perpendiculars and tangents come from.
std::vector<PointAccroche> ChercheAccroches(BDDGeo& bdd, const PointVek& p,
                                            const OptionsAccrochage& options,
                                            const OptionsSpeciales& speciales,
                                            const PointVek& reference);
