#pragma once

#include <vector>

#include "elements/pointvek.h"

/// A corner of a flat face, as GL takes it.
struct CoinCouvercle {
    PointVek Point;
    PointVek Normale;
    double S;
    double T;
};

/// Draws the closed polygon of the corners as one face. gauche: its surface lies on the left of the
/// way, seen from above; the face shows the same side whether or not it is convex. An outline that
/// crosses itself thousands of times is left to GL as it is.
void DessineCouvercle(const std::vector<CoinCouvercle>& coins, bool gauche);
