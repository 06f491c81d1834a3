#pragma once

#include "elements/pointvek.h"

/// What an element needs of the view, whatever it is. While a page is painted, its units stand in
/// place of pixels. Defined by the model beside `Echelle`.
namespace vue {

/// Zero of the geometric tests, in drawing units at the present zoom.
double Epsilon();

/// Ten pixels in drawing units: the pick distance.
double Proche10();

/// The pick distance of the 3D view in drawing units, whatever the zoom.
constexpr double Proche3D = 10.0;

/// Drawing units to pixels of the area, y downward; not rounded.
PointVek VersEcran(const PointVek& p);

/// A length in drawing units as pixels.
double LongueurEcran(double longueur);

/// Rotation of what is being painted (radians), 0 but inside images.
double Rotation();

}  // namespace vue
