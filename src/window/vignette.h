#pragma once

#include <gdkmm/pixbuf.h>

#include <string>

/// A small picture of all of a drawing, given as its text; white where there is nothing to show.
/// Sizes in pixels.
Glib::RefPtr<Gdk::Pixbuf> Vignette(const std::string& texte, int largeur, int hauteur);
