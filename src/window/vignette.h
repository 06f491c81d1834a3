#pragma once

#include <gdkmm/pixbuf.h>

#include <cstddef>
#include <string>

/// The longest text that is shown, in bytes: more would keep the user waiting.
constexpr std::size_t VignetteMax = 20u << 20;

/// A small picture of all of a drawing, given as its text; white where there is nothing to show.
/// Sizes in pixels.
Glib::RefPtr<Gdk::Pixbuf> Vignette(const std::string& texte, int largeur, int hauteur);
