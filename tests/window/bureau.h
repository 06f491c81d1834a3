#pragma once

#include <gtkmm/menuitem.h>

#include <string>
#include <vector>

#include "commun/banc.h"
#include "window/dessinwindow.h"

/// A new folder.
std::string DossierProvisoire();

/// The whole program on an empty drawing, with its menus within reach.
class Bureau {
  public:
    Bureau();
    ~Bureau();

    /// Every entry of the menus that opens no submenu, in order.
    std::vector<Gtk::MenuItem*> Entrees();

    /// Chooses the entry of that action.
    void Choisit(const std::string& action);

    /// Hands the window an event of a key, or the loss of the focus.
    void Recoit(GdkEventType genre, unsigned touche, unsigned modificateurs = 0);

    /// Presses and releases a key, as the window receives it.
    void Frappe(unsigned touche, unsigned modificateurs = 0);

    Gtk::Label& LibelleCommencant(const std::string& debut);

    DessinWindow Fenetre;
    ZoneDessin& Zone;
    Main Souris;
};
