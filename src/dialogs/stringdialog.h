#pragma once

#include "dialogs/saisiedialog.h"

/// Asks for a text.
class StringDialog : public SaisieDialog {
  public:
    /// `valeur` is the caller's and outlives the dialog.
    StringDialog(const Glib::ustring& titre, Glib::ustring* valeur);

  protected:
    void Prend() override;

  private:
    Glib::ustring* Valeur;
    ChampSaisie Champ;
};
