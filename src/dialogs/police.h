#pragma once

#include <gtkmm/fontbutton.h>

/// Shows a font description on the button. The size is no matter of the font here: an element has
/// its own.
void MontrePolice(Gtk::FontButton& bouton, const Glib::ustring& police);

/// The description of the font that the user chose, without a size; police where he chose none.
Glib::ustring PoliceChoisie(const Gtk::FontButton& bouton, const Glib::ustring& police);
