#pragma once

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/radiobutton.h>

#include "dialogs/saisiedialog.h"
#include "elements/trait.h"

/// Asks for a style: all of it but the colour of the lines.
class TraitDialog : public SaisieDialog {
  public:
    /// `trait` is the caller's and outlives the dialog.
    TraitDialog(const Glib::ustring& titre, Trait* trait);

  protected:
    void Prend() override;

  private:
    void RangeStyles();
    void RangeSurface();
    void DemandeFond();
    int StyleChoisi() const;

    Trait* Valeur;
    Gdk::Color Fond;  ///< Becomes the style's when the dialog is validated.
    ChampSaisie Epaisseur;
    ChampSaisie AngleHachure;  ///< Degrees.
    ChampSaisie PasHachure;    ///< Pixels.
    Gtk::HBox LigneStyles;
    Gtk::HBox LigneSurface;
    Gtk::RadioButton Plein;
    Gtk::RadioButton EnTirets;
    Gtk::RadioButton EnAxe;
    Gtk::RadioButton EnPointille;
    Gtk::CheckButton Remplissage;
    Gtk::CheckButton Contour;
    Gtk::CheckButton Hachure;
    Gtk::Button BoutonFond;
};
