#pragma once

#include <gtest/gtest.h>

#include "elements/pointvek.h"

/// Where p is, in the plane, to the rounding of a few operations.
#define EXPECT_POINT(p, abscisse, ordonnee)                     \
    do {                                                        \
        const PointVek vu = (p);                                \
        EXPECT_NEAR(vu.x, static_cast<double>(abscisse), 1e-9); \
        EXPECT_NEAR(vu.y, static_cast<double>(ordonnee), 1e-9); \
    } while (false)
