#include "dialogs/demandecouleur.h"

#include <gtkmm/colorselection.h>

bool DemandeCouleur(Gtk::Window* parente, const Glib::ustring& titre, Gdk::Color& couleur) {
    Gtk::ColorSelectionDialog dialogue(titre);
    if (parente) dialogue.set_transient_for(*parente);
    Gtk::ColorSelection& palette = *dialogue.get_color_selection();
    palette.set_previous_color(couleur);
    palette.set_current_color(couleur);
    if (dialogue.run() != Gtk::RESPONSE_OK) return false;
    couleur = palette.get_current_color();
    return true;
}
