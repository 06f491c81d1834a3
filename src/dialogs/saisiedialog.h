#pragma once

#include <gtkmm/dialog.h>
#include <gtkmm/entry.h>
#include <gtkmm/label.h>
#include <gtkmm/table.h>

#include <optional>
#include <utility>
#include <vector>

#include "dialogs/examens.h"

/// A text field that knows whether the user edited it.
class ChampSaisie : public Gtk::Entry {
  public:
    explicit ChampSaisie(const Glib::ustring& texte, int longueurMax = 50);

    bool EstModifie() const { return Modifie; }

    /// The number typed; nothing when the field was not edited or the number is not finite.
    std::optional<double> Nombre() const;

  private:
    bool Modifie = false;
};

/// While it lives, a dialog that comes when no window is active belongs over that window: the menu
/// that asks for it has just taken the keys away.
class FenetreDesDialogues {
  public:
    explicit FenetreDesDialogues(Gtk::Window* fenetre);
    ~FenetreDesDialogues();
    FenetreDesDialogues(const FenetreDesDialogues&) = delete;
    FenetreDesDialogues& operator=(const FenetreDesDialogues&) = delete;

  private:
    Gtk::Window* const Avant;
};

/// A question in a few fields, with the buttons "Valider" and "Annuler", over the window that the
/// user is at. Built on the stack, run by `run`; the values go back to the caller on "Valider" or
/// the Enter key only. Where one of them cannot be, the dialog says so and stays open instead.
class SaisieDialog : public Gtk::Dialog {
  protected:
    explicit SaisieDialog(const Glib::ustring& titre);

    /// Shows the field on a line of its own, as wide as the title needs.
    void AjouteLigne(ChampSaisie& champ, const Examen& examen = {});

    /// Shows the field or button beside its label, below the rows that stand already.
    void AjouteChamp(const Glib::ustring& libelle, ChampSaisie& champ, const Examen& examen = {});
    void AjouteChamp(const Glib::ustring& libelle, Gtk::Widget& champ);

    /// Shows what bears its own label, over the whole width, below the rows that stand already.
    void AjouteBloc(Gtk::Widget& bloc);

    /// What speaks against what was entered, as a sentence to the user; empty when it can be taken.
    /// Here: the first edited field that fails its examination, which gets the focus.
    virtual Glib::ustring Refus();

    /// Gives the caller what was entered.
    virtual void Prend() = 0;

    void on_response(int reponse) override;

    /// The Enter key in the field validates, what was typed there passes the examination.
    void Branche(ChampSaisie& champ, const Examen& examen = {});

    /// The button asks a question of its own. Behind it the Enter key validates instead of asking
    /// once more.
    void BrancheQuestion(Gtk::Button& bouton, const sigc::slot<void>& question);

  private:
    /// The first row of the table that is free.
    guint RangLibre();

    /// Keeps an answer from being one while something speaks against it, which it shows.
    void Arrete(int reponse);

    Gtk::Table Champs;
    guint Rangs = 0;
    std::vector<std::pair<ChampSaisie*, Examen>> Examines;
    Gtk::Label Remarque;  ///< What spoke against the last answer.
};
