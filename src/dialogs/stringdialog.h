#pragma once

#include "dialogs/saisiedialog.h"

/// Asks for a text.
class StringDialog : public SaisieDialog {
  public:
    /// `valeur` is the caller's and outlives the dialog.
    StringDialog(const Glib::ustring& titre, Glib::ustring* valeur, Examen examen);

  protected:
    /// The text has to pass as it stands, edited or not.
    Glib::ustring Refus() override { return Regle(Champ.get_text()); }
    void Prend() override;

  private:
    Glib::ustring* Valeur;
    ChampSaisie Champ;
    const Examen Regle;
};
