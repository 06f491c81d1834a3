#pragma once

#include <gtkmm/fontbutton.h>

#include "dialogs/saisiedialog.h"

class EltTxt;

/// The fields of a text, as the dialogs on one show them.
struct ChampsTxt {
    explicit ChampsTxt(const EltTxt& txt);

    /// Gives the text what was edited.
    void Prend(EltTxt& txt) const;

    ChampSaisie Texte;
    ChampSaisie Angle;  ///< Degrees.
    ChampSaisie Taille;
    Gtk::FontButton Police;
};

/// Asks for the words of a text and how they look.
class EltTxtDialog : public SaisieDialog {
  public:
    /// `txt` is the caller's and outlives the dialog. Dimensions have no angle of their own.
    EltTxtDialog(const Glib::ustring& titre, EltTxt* txt, bool avecAngle = true);

  protected:
    void Prend() override;

  private:
    EltTxt* Valeur;
    ChampsTxt Champs;
};
