#pragma once

#include <gdkmm/drawable.h>
#include <gdkmm/pixmap.h>

#include "elements/trait.h"

/// Hatch angle (radians) and step (pixels) of a style, held within what can be painted.
double AngleHachureBorne(const Trait& trait);
double PasHachureBorne(const Trait& trait);

/// Line width of a style held within 0 to 100 pixels.
int EpaisseurBornee(const Trait& trait);

/// A hatch tile made for the style's angle, of the drawable's depth, whose lines meet across tiles.
Glib::RefPtr<Gdk::Pixmap> TuileHachure(const Glib::RefPtr<Gdk::Drawable>& surface,
                                       const Trait& trait);
