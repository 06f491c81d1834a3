#pragma once

#include <string>

#include "commun/banc.h"
#include "commun/hasard.h"
#include "view3d/window3d.h"

/// Sends a 3D window the events of a mouse and a keyboard.
class Main3D {
  public:
    explicit Main3D(Window3D& fenetre);

    // Pixels of the area, from its upper left corner.
    void Bouge(double x, double y, unsigned etat = 0);
    void Clique(double x, double y);
    void Roule(GdkScrollDirection sens, unsigned etat = 0);
    void Frappe(unsigned touche, unsigned etat = 0);

    /// Chooses an action of the menu that is open.
    void Choisit(const std::string& action);

    /// Whether the last click opened a menu with that action; closes it.
    bool MenuOuvert(const std::string& action);

    /// One gesture of a user who acts at random, but for what hides the window.
    void Agit(Hasard& des);

    Capture Image();

    Window3D& Fenetre;
    Dessin3D& Zone;

  private:
    Gtk::MenuItem* Entree(const std::string& action);

    /// Brings the pointer to the position of an element, from the front.
    void ViseAuHasard(Hasard& des);
    void ChoisitAuHasard(Hasard& des);
    void TapeAuHasard(Hasard& des);
};
