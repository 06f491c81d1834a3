#pragma once

#include <gtkmm/widget.h>

// Events that a mouse and a keyboard send to a widget, in its pixels.

void EnvoieMouvement(Gtk::Widget& zone, double x, double y, unsigned etat = 0);
void EnvoieBouton(Gtk::Widget& zone, double x, double y, int bouton = 1,
                  GdkEventType type = GDK_BUTTON_PRESS);
void EnvoieMolette(Gtk::Widget& zone, double x, double y, GdkScrollDirection sens,
                   unsigned etat = 0);
