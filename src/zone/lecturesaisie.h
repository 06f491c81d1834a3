#pragma once

#include <glibmm/ustring.h>

#include <string>

#include "elements/pointvek.h"

/// What a line that was typed means.
struct Saisie {
    enum Genre { Rien, Point, Longueur, Mot, Faute };

    Genre Sorte = Rien;
    PointVek Lieu;           ///< Of a point, in drawing units.
    double Valeur = 0.0;     ///< Of a length.
    Glib::ustring Remarque;  ///< What is wrong, as a sentence to the user.
};

/// Reads a line: "x;y" or "x y" a point, "r<a" the one at distance r in the direction a (degrees,
/// counter-clockwise from the right), with "@" in front counted from reference, else from the
/// origin; a number alone a length; what begins with a letter a word. Every number may be an
/// expression.
Saisie LitSaisie(const std::string& texte, const PointVek& reference);

/// The point at that distance from reference toward p; none where they are one point.
Saisie PointVers(double longueur, const PointVek& reference, const PointVek& p);
