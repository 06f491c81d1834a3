#pragma once

#include <vector>

#include "elements/eltprofil.h"

// The links of a profile, cut into the straight pieces that solids are made of. A chain runs from
// the first vertex to the last, in the profile's own axes; what closes it is straight, and is no
// part of it.

/// A straight piece: a whole link, or one step along its arc.
struct Troncon {
    PointVek Debut;
    PointVek Fin;
    bool SurArc;
    double AngleDebut;  ///< Direction in radians from the arc's centre to `Debut`; 0 off an arc.
    double AngleFin;
};

/// The pieces of the link that arrives at sommet: pas of them for an arc, none when pas is 0. They
/// end on the vertex exactly.
std::vector<Troncon> Troncons(const PointVek& precedent, const SommetProfil& sommet, int pas);

/// The pieces of all the links.
std::vector<Troncon> Chaine(const EltProfil& profil, int pas);

/// How many of the links are straight, and how many are arcs.
struct CompteLiens {
    explicit CompteLiens(const EltProfil& profil);

    double Droits = 0.0;
    double Arcs = 0.0;
};

/// Whether the surface of the closed profile, arcs included, lies on the left of the way.
bool EstAntihoraire(const EltProfil& profil);

/// Whether the body that the profile sweeps about its y axis lies on the left of the way at x > 0,
/// on the right of it at x < 0.
bool EstAntihoraireAutourDeY(const EltProfil& profil);

/// Whether the closed polygon turns one way all round, and once: to the left when gauche is true.
bool EstConvexe(const std::vector<PointVek>& points, bool gauche);

/// Whether the closed polygon crosses itself so often that to cut it up would take too long; also
/// when that cannot be told quickly.
bool EstEmmele(const std::vector<PointVek>& points);
