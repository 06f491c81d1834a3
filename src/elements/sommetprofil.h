#pragma once

#include <optional>

#include "elements/pointvek.h"

/// The arc of a link: lengths in drawing units, angles in radians.
struct ArcDeLien {
    PointVek Centre;
    double Rayon;
    double Debut;
    double Ouverture;  ///< At most half a turn, clockwise when negative.
};

/// A vertex of a profile, with the link that arrives at it from the previous vertex.
struct SommetProfil : PointVek {
    SommetProfil() = default;

    /// A straight link.
    explicit SommetProfil(const PointVek& p) : PointVek(p) {}

    /// A link along the arc of radius rayon, clockwise when rayon is positive.
    SommetProfil(const PointVek& p, double rayon) : PointVek(p), Rayon(rayon), Arrondi(true) {}

    /// The arc from precedent to this vertex; none for a straight link, and for a radius that does
    /// not reach from one to the other.
    std::optional<ArcDeLien> Arc(const PointVek& precedent) const;

    void Transforme(const TransformeColle& t);
    bool EstFini() const;

    double Rayon = 0.0;  ///< Its sign is the side of the centre: positive on the right of the way.
    bool Arrondi = false;
};

/// The point, then for an arc "R", the radius and a blank.
Ecrivain& operator<<(Ecrivain& sortie, const SommetProfil& sommet);
Lecteur& operator>>(Lecteur& entree, SommetProfil& sommet);
