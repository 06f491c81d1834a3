#pragma once

#include <gtkmm/button.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/comboboxtext.h>
#include <gtkmm/pagesetup.h>
#include <gtkmm/radiobutton.h>

#include <vector>

#include "dialogs/saisiedialog.h"

/// Asks for the page and for the sheet on it: paper, orientation, scale, place in the drawing,
/// title block, ink. "Appliquer" takes what was entered and leaves the dialog open.
class MiseEnPageDialog : public SaisieDialog {
  public:
    /// Changes page and `FeuilleCourante`, then calls applique each time.
    MiseEnPageDialog(const Glib::ustring& titre, const Glib::RefPtr<Gtk::PageSetup>& page,
                     sigc::slot<void> applique);

  protected:
    void Prend() override;
    void on_response(int reponse) override;

  private:
    void RangePage();
    void RangeCartouche();
    void Parcourt();

    /// The title block's file as entered, in the encoding of file names.
    std::string FichierCartouche() const;

    Glib::RefPtr<Gtk::PageSetup> Page;
    sigc::slot<void> Applique;
    std::vector<Glib::ustring> Papiers;  ///< Names in the order of the choice.
    Gtk::RadioButton Portrait;
    Gtk::RadioButton Paysage;
    Gtk::ComboBoxText Papier;
    ChampSaisie Echelle;
    ChampSaisie OrigineX;
    ChampSaisie OrigineY;
    ChampSaisie Cartouche;
    Gtk::Button BoutonParcours;
    Gtk::CheckButton Noir;
};

/// Takes the size of the page's paper, as it is turned, into `FeuilleCourante`.
void PrendPapier(const Gtk::PageSetup& page);
