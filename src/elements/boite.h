#pragma once

#include "elements/pointvek.h"

/// An axis-parallel box, in the unit of whoever holds it.
struct Boite {
    double Gauche;
    double Haut;
    double Droite;
    double Bas;  ///< At or above `Haut` as a number, as y counts in pixels.

    static Boite Autour(const PointVek& a, const PointVek& b) {
        return {a.x < b.x ? a.x : b.x, a.y < b.y ? a.y : b.y, a.x < b.x ? b.x : a.x,
                a.y < b.y ? b.y : a.y};
    }

    /// The box that holds p too.
    Boite Avec(const PointVek& p) const {
        return {p.x < Gauche ? p.x : Gauche, p.y < Haut ? p.y : Haut, p.x > Droite ? p.x : Droite,
                p.y > Bas ? p.y : Bas};
    }

    Boite Elargie(double marge) const {
        return {Gauche - marge, Haut - marge, Droite + marge, Bas + marge};
    }

    /// False as well where a bound is not a number.
    bool Touche(const Boite& autre) const {
        return Gauche <= autre.Droite && autre.Gauche <= Droite && Haut <= autre.Bas &&
               autre.Haut <= Bas;
    }

    PointVek Centre() const { return {(Gauche + Droite) / 2.0, (Haut + Bas) / 2.0}; }

    bool Contient(const PointVek& p) const {
        return Gauche <= p.x && p.x <= Droite && Haut <= p.y && p.y <= Bas;
    }
};
