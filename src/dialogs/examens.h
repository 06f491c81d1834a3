#pragma once

#include <glibmm/ustring.h>

#include <functional>

/// Looks at what was typed into a field: a sentence to the user that says what it has to be, empty
/// where it will do.
using Examen = std::function<Glib::ustring(const Glib::ustring& texte)>;

// None of those takes what is no number: an expression is one. quoi begins the sentence: "Le
// rayon".

/// Any number.
Examen UnNombre();

/// Above mini.
Examen PlusQue(double mini, const Glib::ustring& quoi);

/// mini or more.
Examen AuMoins(double mini, const Glib::ustring& quoi);

/// Between the two, none of which will do.
Examen Entre(double mini, double maxi, const Glib::ustring& quoi);

/// Anything but 0.
Examen NonNul(const Glib::ustring& quoi);

/// A number that is rounded, from mini to maxi.
Examen UnEntier(int mini, int maxi, const Glib::ustring& quoi);

/// mini or more once it is rounded.
Examen EntierAuMoins(int mini, const Glib::ustring& quoi);
