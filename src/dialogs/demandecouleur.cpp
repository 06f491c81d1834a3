#include "dialogs/demandecouleur.h"

#include <gtkmm/colorselection.h>
#include <gtkmm/entry.h>

namespace {

/// The Enter key in the fields of the palette validates, behind what the field does of its own.
void ValideParEntree(Gtk::Widget& champ) {
    if (auto* saisie = dynamic_cast<Gtk::Entry*>(&champ)) saisie->set_activates_default();
    if (auto* boite = dynamic_cast<Gtk::Container*>(&champ))
        boite->foreach (sigc::ptr_fun(&ValideParEntree));
}

}  // namespace

bool DemandeCouleur(Gtk::Window* parente, const Glib::ustring& titre, Gdk::Color& couleur) {
    Gtk::ColorSelectionDialog dialogue(titre);
    if (parente) dialogue.set_transient_for(*parente);
    dialogue.set_default_response(Gtk::RESPONSE_OK);
    Gtk::ColorSelection& palette = *dialogue.get_color_selection();
    ValideParEntree(palette);
    palette.set_previous_color(couleur);
    palette.set_current_color(couleur);
    if (dialogue.run() != Gtk::RESPONSE_OK) return false;
    couleur = palette.get_current_color();
    return true;
}
