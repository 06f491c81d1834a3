#pragma once

#include <initializer_list>
#include <vector>

#include "elements/pointvek.h"

/// Distance in the plane from p to the segment a b, to a where it is null.
double DistanceSegment(const PointVek& p, const PointVek& a, const PointVek& b);

/// Distance in the plane from p to the endless line through a and b, to a where they are one point.
double DistanceDroite(const PointVek& p, const PointVek& a, const PointVek& b);

/// The candidate nearest to p; of equals the earliest.
PointVek PlusProche(const PointVek& p, std::initializer_list<PointVek> candidats);

/// The same in space.
PointVek PlusProche3D(const PointVek& p, const std::vector<PointVek>& candidats);
