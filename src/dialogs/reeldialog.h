#pragma once

#include "dialogs/saisiedialog.h"

/// Asks for a number.
class ReelDialog : public SaisieDialog {
  public:
    /// `valeur` is the caller's and outlives the dialog.
    ReelDialog(const Glib::ustring& titre, double* valeur, const Examen& examen = UnNombre());

  protected:
    void Prend() override;

  private:
    double* Valeur;
    ChampSaisie Champ;
};
