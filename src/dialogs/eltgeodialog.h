#pragma once

#include <gtkmm/box.h>
#include <gtkmm/button.h>

#include <memory>

#include "dialogs/saisiedialog.h"
#include "elements/eltgeo.h"

/// Asks for the properties of an element: position, layer and style, and what derived dialogs add.
/// The fields act on a copy, which the element takes on when the dialog is validated; a copy that
/// could not stand in a drawing keeps the dialog open.
class EltGeoDialog : public SaisieDialog {
  public:
    /// The element is the drawing's; when it leaves the drawing the dialog gives up.
    EltGeoDialog(const Glib::ustring& titre, EltGeo& elt, bool avecPosition = true);

  protected:
    /// The copy, of the element's own class.
    EltGeo& Copie() { return *Valeur; }

    /// The element itself; null once it has left the drawing.
    EltGeo* Element() const { return Elt; }

    /// Gives the copy what was entered in the fields of a derived dialog.
    virtual void PrendChamps() {}

    /// Also brings the copy to what was entered.
    Glib::ustring Refus() override;
    void Prend() override;

  private:
    void RangeLigne();
    void DemandeTrait();
    void DemandeCouleurTrait();
    void LaisseElement(EltGeo* elt);

    EltGeo* Elt;  ///< Null once it has left the drawing.
    const std::unique_ptr<EltGeo> Valeur;
    Trait Style;  ///< The copy's when one of the buttons has changed it.
    bool StyleModifie = false;
    ChampSaisie X;
    ChampSaisie Y;
    ChampSaisie Z;
    ChampSaisie Calque;
    Gtk::HBox Ligne;
    Gtk::Button BoutonTrait;
    Gtk::Button BoutonCouleur;
};
