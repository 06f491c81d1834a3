#pragma once

#include <gtkmm/box.h>
#include <gtkmm/entry.h>
#include <gtkmm/eventbox.h>
#include <gtkmm/label.h>

#include <string>
#include <vector>

#include "zone/lecturesaisie.h"
#include "zone/zonedessin.h"

/// The line over the lower edge of the drawing area, for typed points, lengths and commands. It
/// lies over the picture, which stays where it is, and is hidden while nothing is typed. While it
/// is open all keys are its own.
class LigneSaisie : public Gtk::EventBox {
  public:
    /// zone: where a typed point clicks, to outlive this.
    explicit LigneSaisie(ZoneDessin& zone);

    bool EstOuverte() const { return get_visible(); }

    /// Opens it empty; what stands in an open one is selected.
    void Ouvre();

    /// A key was pressed: true when it is the line's, as all are while it is open, and those that
    /// begin a number while it is not.
    bool Touche(GdkEventKey* evenement);

    /// Tells the action that a word means.
    sigc::signal<void, const std::string&>& SignalCommande() { return Commandes; }

    /// Tells the action on which help is asked for; empty for none in particular.
    sigc::signal<void, const std::string&>& SignalAide() { return Aides; }

    /// What it says below what was typed.
    Glib::ustring Remarque() const { return Note.get_text(); }

  protected:
    void on_size_request(Gtk::Requisition* demande) override;

  private:
    void Ferme();
    void Change();

    /// What was typed as it stands; of a length the point that it leads to now.
    Saisie Lue() const;

    /// Shows what would come of it.
    void Apercoit();
    void Propose(const Glib::ustring& mot);

    void Valide();
    void ValidePoint(const PointVek& p);
    void ValideMot(const Glib::ustring& mot);
    void Refuse(const Glib::ustring& remarque);

    /// Brings back what was typed before, or with 1 behind it.
    void Remonte(int pas);

    /// Completes the word, at the next call by another one.
    void Complete();
    void Remplace(const Glib::ustring& texte);

    ZoneDessin& Zone;
    Gtk::VBox Boite;
    Gtk::Label Propositions;
    Gtk::Entry Entree;
    Gtk::Label Note;
    std::vector<Glib::ustring> Passees;  ///< What was typed before, the newest last.
    std::size_t Rang = 0;                ///< Of those the one that shows; their number: none.
    Glib::ustring Debut;                 ///< What is being completed.
    std::size_t RangMot = 0;
    bool EnCompletion = false;
    sigc::signal<void, const std::string&> Commandes;
    sigc::signal<void, const std::string&> Aides;
};
