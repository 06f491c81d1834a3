#pragma once

#include "elements/eltgeo.h"

class EltArc;
class EltSegment;

/// True for what the constructions take as a straight line: segments and lines.
bool EstDroit(const EltGeo& elt);
bool EstArc(const EltGeo& elt);

/// Segments and lines, and rectangles too, which are then read as the segment between their
/// corners: a line drawn with the mouse carries their code.
bool SeLitCommeSegment(const EltGeo& elt);

/// Crossings of two segments, lines or arcs taken as endless lines and full circles: 0, 1 or 2
/// points in a and b. A line and a circle, or two circles, give 2, equal where they touch. Any
/// other type gives 0.
int Intersecte(const EltGeo& e1, const EltGeo& e2, PointVek& a, PointVek& b);

/// The crossings with a line, in the order from its origin to its end.
int IntersecteDroite(const EltSegment& droite, const EltArc& arc, PointVek& a, PointVek& b);

/// The crossings of two circles, first the one on the left when looking from c1 to c2.
int IntersecteCercle(const EltArc& c1, const EltArc& c2, PointVek& a, PointVek& b);
