#pragma once

#include <gtkmm/selectiondata.h>
#include <sigc++/signal.h>
#include <sigc++/trackable.h>

class Machine;
class VueZone;

/// What the drawing area gives to the system clipboard and takes from it.
class PressePapier : public sigc::trackable {
  public:
    /// zone: whose window is copied as a picture. All outlive this.
    PressePapier(Machine& outils, Gtk::Widget& zone);

    /// Offers what the zone selection holds.
    void Copie();

    /// The same, and takes it away.
    void Coupe();

    /// Takes what is offered, to be pasted by the next clicks.
    void Colle();

    /// The same, to be pasted as a group.
    void ColleCommeBDD();

    // Options of pasting: what is being pasted is taken anew with them.

    void ChangeSymetrieX();
    void ChangeSymetrieY();

    /// Offers what the selection shows as a picture.
    void CopieBitmap();

    /// Hands over what is offered, where the desktop has someone who takes it: the program ends.
    void Remet();

    /// Tells in French what was left out of what is being pasted.
    sigc::signal<void, const Glib::ustring&>& SignalDit() { return Dits; }

  private:
    void Offre(bool couper);
    void Donne(Gtk::SelectionData& donnees, guint info);
    void Demande(int etat);
    void PrendImage(const Glib::RefPtr<Gdk::Window>& fenetre);

    /// The answer of the clipboard, for the state that pastes it.
    void Recoit(const Gtk::SelectionData& donnees, int etat);

    /// Says how many images of what is being pasted name a group that the drawing has not.
    void DitSansGroupe(int nombre);

    Machine& Outils;
    Gtk::Widget& Zone;
    sigc::signal<void, const Glib::ustring&> Dits;
};
