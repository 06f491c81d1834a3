#pragma once

#include "dialogs/elttxtdialog.h"

class EltCote;

/// Asks for how dimensions look, and for their decimals.
class PrefCoteDialog : public EltTxtDialog {
  public:
    /// `cote` is the caller's and outlives the dialog.
    explicit PrefCoteDialog(EltCote* cote);

  protected:
    void Prend() override;

  private:
    ChampSaisie Decimales;
};
