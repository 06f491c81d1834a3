#pragma once

#include <functional>

class EltGeo;
class Trace;

/// What the pointer shows over the picture, painted so that painting it a second time erases it. It
/// holds all that it needs: it paints the same whatever changes around it. Empty: nothing.
using Bande = std::function<void(Trace&)>;

/// A band that paints the element as it is now.
Bande BandeDe(const EltGeo& elt);
