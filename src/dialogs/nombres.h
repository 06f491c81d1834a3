#pragma once

#include <glibmm/ustring.h>

#include <optional>

/// The number as dialogs and labels show it: at most three decimals and no trailing zeros, with a
/// point whatever the locale.
Glib::ustring TexteNombre(double valeur);

/// The same with all its decimals, for what a small difference makes another drawing of.
Glib::ustring TexteComplet(double valeur);

/// Rounded, and held within the range of int.
int EnEntier(double valeur);
