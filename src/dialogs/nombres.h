#pragma once

#include <glibmm/ustring.h>

#include <optional>

/// The number as dialogs and labels show it: at most three decimals and no trailing zeros, with a
/// point whatever the locale.
Glib::ustring TexteNombre(double valeur);

/// The same with all its decimals, for what a small difference makes another drawing of.
Glib::ustring TexteComplet(double valeur);

/// Whether a typed text begins with a number, after blanks.
bool ContientNombre(const Glib::ustring& texte);

/// The number that a typed text begins with, after blanks; a comma is a decimal point. A text
/// without a number gives 0; nothing when the number is not finite. Never throws.
std::optional<double> LitNombre(const Glib::ustring& texte);

/// Rounded, and held within the range of int.
int EnEntier(double valeur);
