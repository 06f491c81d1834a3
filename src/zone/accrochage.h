#pragma once

#include <optional>

#include "elements/pointvek.h"

class BDDGeo;

/// Which special points a click may jump to.
struct OptionsAccrochage {
    bool Actif = false;         ///< Any at all.
    bool Intersections = true;  ///< Crossings of the two nearest elements.
    bool Supports = true;       ///< Near elements are sought along their endless lines and circles.
    bool Extremites = true;     ///< Centres, ends, middles and corners.
};

/// A place that a click jumps to, in drawing units, and what it is to the user.
struct PointAccroche {
    PointVek Point;
    const char* Genre;
};

/// The special point within the pick distance of p, in drawing units: a crossing before a centre or
/// an end, and of these the nearer one. With boutsDevant a crossing out of that distance hides no
/// centre or end.
std::optional<PointAccroche> ChercheAccroche(BDDGeo& bdd, const PointVek& p,
                                             const OptionsAccrochage& options,
                                             bool boutsDevant = false);
