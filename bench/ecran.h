#pragma once

#include <gtkmm/window.h>

#include <string>

#include "zone/zonedessin.h"

/// The area in a window, on the drawing of a file.
struct Ecran {
    explicit Ecran(const std::string& fichier);
    ~Ecran();

    /// Lets the toolkit and the display work until they have nothing left to do.
    static void Tourne();

    /// Shows a square of the side (drawing units) about the origin.
    void Montre(double cote);

    void Repeint();

    /// Moves the pointer to a pixel.
    void Bouge(double x, double y);

    Gtk::Window fenetre;
    ZoneDessin zone;
};
