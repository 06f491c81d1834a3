#pragma once

#include <cstddef>
#include <vector>

#include "elements/pointvek.h"

// An independent answer to what the 3D view shows: one ray a pixel, cut with convex bodies that
// light 0 falls on as it does at the start.

/// A body in its own axes: a box of half sides A and B, a cylinder of radius A, both from z = 0 to
/// H, or a ball of radius A. Turned by Alpha, Beta, Gamma degrees about Z, Y, X, X first.
struct Forme {
    /// Two of the boxes are profiles drawn clockwise, and the other way round.
    enum Genre { Pave, Eleve, Retour, Cylindre, Boule } Quoi;
    PointVek Position;
    double A, B, H;
    int Couleur;  ///< 1 to 7: which of red (1), green (2), blue (4) it is made of.
    double Alpha = 0.0;
    double Beta = 0.0;
    double Gamma = 0.0;
};

struct Creux {
    Forme Place;
    bool Debouchant;
};

struct Solide {
    Forme Corps;
    std::vector<Creux> Enleves = {};
    std::vector<Forme> Enveloppes = {};  ///< Balls that it lies inside.

    /// Seen as the passes of the view leave it, pixel by pixel, and not as it is.
    bool ParPasses = false;
    std::size_t Avant = 0;          ///< How many envelopes stand before the first hole.
    std::vector<Forme> Suite = {};  ///< By passes alone: more parts of one body.
};

/// Where the scene is seen from: translation, then turned as a body is.
struct Vue {
    PointVek Translation;
    double Alpha, Beta, Gamma;

    /// Moves the scene by v, given in the axes of the view.
    void Avance(const PointVek& v);
};

/// What a pixel shows.
struct Touche {
    double Canaux[3] = {0.0, 25.5, 25.5};  ///< Red, green, blue up to 255; at first the background.
    bool Rien = true;
    double Jeu = 2.0;  ///< How far a channel may be off: less on flat faces than on round ones.
};

/// The pixel at column x and row y from below, of a square picture of that side.
Touche Lance(const std::vector<Solide>& scene, const Vue& vue, int x, int y, int cote);

/// The pixel where a point shows, from the upper left corner of such a picture.
PointVek OuApparait(const Vue& vue, const PointVek& p, int cote);
