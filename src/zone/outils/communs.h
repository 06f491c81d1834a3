#pragma once

#include "zone/ligneetat.h"

// Clicks and previews that several families share.

/// Takes the element nearest to p as the tool's first one.
bool PrendElement(ZoneDessin& zone, const PointVek& p);

/// Takes the first corner of the prototype rectangle.
bool PrendPremierCoin(ZoneDessin& zone, const PointVek& p);

/// The prototype rectangle from its first corner to p.
Bande ApercuRectangle(ZoneDessin& zone, const PointVek& p);
