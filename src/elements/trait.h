#pragma once

#include <gdkmm/color.h>

class Ecrivain;
class Lecteur;

enum StyleDeLigne { Continu = 0, Tirets = 1, Axe = 2, Pointille = 3 };

/// Style of an element: what a drawing file keeps of its look. Stored values may be anything that a
/// file holds; they are bounded where they are painted.
class Trait {
  public:
    double PasHachure = 1.0;    ///< Distance between hatch lines, in pixels.
    double AngleHachure = 0.0;  ///< Radians, between -pi/2 and pi/2.
    int StyleLigne = Continu;
    int Hachure = 0;           ///< 1 hatched, 0 not.
    bool Remplissage = false;  ///< The closed shape is filled.
    bool Contour = true;       ///< The outline of a closed shape is drawn.
    Gdk::Color Couleur;        ///< Lines and text; black at first.
    Gdk::Color CouleurFond;    ///< Fill, and background of the hatch; white at first.
    int Epaisseur = 1;         ///< Line width in pixels.

    Trait();

    /// Steps of 2 pixels and below become 2.
    void SetPasHachure(double pas);

    /// Below 1 degree in absolute value gives 0; held within plus or minus 90.
    void SetAngleHachureDegres(double degres);
    double AngleHachureDegres() const;
};

Ecrivain& operator<<(Ecrivain& sortie, const Trait& trait);
Lecteur& operator>>(Lecteur& entree, Trait& trait);
