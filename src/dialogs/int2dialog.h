#pragma once

#include "dialogs/saisiedialog.h"

/// Asks for two whole numbers; what is typed is rounded.
class Int2Dialog : public SaisieDialog {
  public:
    /// Both values are the caller's and outlive the dialog; examen looks at either.
    Int2Dialog(const Glib::ustring& titre, int* premier, int* second, const Examen& examen);

  protected:
    void Prend() override;

  private:
    int* Valeurs[2];
    ChampSaisie Premier;
    ChampSaisie Second;
};
