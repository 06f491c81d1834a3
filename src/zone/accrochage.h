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

/// The special point within the pick distance of p, in drawing units: a crossing before a centre or
/// an end, and of these the nearer one.
std::optional<PointVek> ChercheAccroche(BDDGeo& bdd, const PointVek& p,
                                        const OptionsAccrochage& options);
