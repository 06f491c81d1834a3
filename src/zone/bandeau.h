#pragma once

#include <glibmm/ustring.h>
#include <gtkmm/eventbox.h>
#include <gtkmm/infobar.h>
#include <gtkmm/label.h>

#include <string>
#include <vector>

/// The strip over the upper edge of the drawing area, for what must be said. It lies over the
/// picture, which stays where it is; it never takes the focus and never blocks. A click on it or
/// `CommandesMax` further commands let it go.
class Bandeau : public Gtk::EventBox {
  public:
    static constexpr int CommandesMax = 10;

    /// A way out of what is said, as a button.
    struct Issue {
        Glib::ustring Libelle;
        sigc::slot<void> Effet;
    };

    Bandeau();

    /// Says it in place of what was said before.
    void Dit(const Glib::ustring& texte, std::vector<Issue> issues = {});

    /// What is said; empty when nothing is.
    Glib::ustring Texte() const;

    /// Says nothing any more.
    void Cache();

    /// A command begins, and has been given.
    void CommenceCommande() { EnCommande = true; }
    void CompteCommande();

  protected:
    bool on_button_press_event(GdkEventButton* evenement) override;
    void on_size_request(Gtk::Requisition* demande) override;
    void on_size_allocate(Gtk::Allocation& place) override;

  private:
    void Repond(int reponse);

    Gtk::InfoBar Barre;
    Gtk::Label Libelle;
    std::vector<Issue> Issues;
    bool EnCommande = false;
    int Commandes = 0;  ///< Given since it was said.
};
