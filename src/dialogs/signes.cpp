#include "dialogs/signes.h"

#include <gtkmm/menu.h>
#include <gtkmm/menuitem.h>
#include <gtkmm/separatormenuitem.h>

namespace {

const char* const Signes[] = {"Ø", "°", "±", "²", "³", "×", "µ", "≤", "≥", "½", "¼"};

/// Puts the sign where the text cursor is, in place of what is selected.
void Insere(Gtk::Entry& champ, const Glib::ustring& signe) {
    int debut = 0, fin = 0;
    if (champ.get_selection_bounds(debut, fin)) champ.delete_text(debut, fin);
    int place = champ.get_position();
    champ.insert_text(signe, static_cast<int>(signe.bytes()), place);
    champ.set_position(place);
}

}  // namespace

void OffreSignes(Gtk::Entry& champ) {
    champ.signal_populate_popup().connect([&champ](Gtk::Menu* menu) {
        auto* signes = Gtk::manage(new Gtk::Menu());
        for (const char* signe : Signes) {
            auto* ligne = Gtk::manage(new Gtk::MenuItem(signe));
            ligne->signal_activate().connect([&champ, signe] { Insere(champ, signe); });
            signes->append(*ligne);
        }
        auto* entree = Gtk::manage(new Gtk::MenuItem("Signes"));
        entree->set_submenu(*signes);
        menu->append(*Gtk::manage(new Gtk::SeparatorMenuItem()));
        menu->append(*entree);
        menu->show_all_children();
    });
}
