#pragma once

#include <gdkmm/color.h>
#include <gtkmm/window.h>

/// Asks for a colour, starting from the one given, over `parente` (null: over nothing). False, with
/// the colour as it was, when the user gives up.
bool DemandeCouleur(Gtk::Window* parente, const Glib::ustring& titre, Gdk::Color& couleur);
