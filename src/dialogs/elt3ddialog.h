#pragma once

#include <gtkmm/checkbutton.h>

#include <utility>
#include <vector>

#include "dialogs/eltgeodialog.h"
#include "solids/elt3d.h"

/// Asks for the properties of a solid: those of its element, what a derived dialog adds, and the
/// attributes of solids. These are edited on a copy, and the solid takes of it by `ChangeElt3d`
/// what its class has a use for.
class Elt3dDialog : public EltGeoDialog {
  protected:
    /// solide is the element's own.
    Elt3dDialog(const Glib::ustring& titre, EltGeo& elt, const Elt3d& solide);

    /// Shows the rows of the attributes: below those that the derived dialog has of its own.
    void AjouteChamps3d();

    void Prend() override;

  private:
    void AjouteReel(const char* libelle, double Elt3d::*champ);
    Gtk::CheckButton& CreeCoche(const char* libelle, bool Elt3d::*drapeau);
    void AjouteCadre();

    Elt3d Saisie;
    ChampSaisie Texture;
    ChampSaisie Facetisation;
    // The widgets are the dialog's rows'.
    std::vector<std::pair<ChampSaisie*, double Elt3d::*>> Reels;
    std::vector<std::pair<Gtk::CheckButton*, bool Elt3d::*>> Coches;
};

/// "Propriété du " and the name of the element's type: the title where a class has no other.
Glib::ustring TitreProprietes(const EltGeo& elt);
