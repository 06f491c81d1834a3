#pragma once

#include "dialogs/saisiedialog.h"

/// Asks for a whole number; what is typed is rounded.
class IntDialog : public SaisieDialog {
  public:
    /// `valeur` is the caller's and outlives the dialog.
    IntDialog(const Glib::ustring& titre, int* valeur, const Examen& examen = UnNombre());

  protected:
    void Prend() override;

  private:
    int* Valeur;
    ChampSaisie Champ;
};
