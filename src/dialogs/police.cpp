#include "dialogs/police.h"

#include <pangomm/fontdescription.h>

namespace {

/// A description that the toolkit's chooser understands: it wants a size.
Glib::ustring AvecTaille(const Glib::ustring& police) {
    Pango::FontDescription description(police);
    description.set_size(10 * Pango::SCALE);
    return description.to_string();
}

}  // namespace

void MontrePolice(Gtk::FontButton& bouton, const Glib::ustring& police) {
    bouton.set_show_size(false);
    bouton.set_use_font(true);
    bouton.set_font_name(AvecTaille(police));
}

Glib::ustring PoliceChoisie(const Gtk::FontButton& bouton, const Glib::ustring& police) {
    if (bouton.get_font_name() == AvecTaille(police)) return police;
    Pango::FontDescription description(bouton.get_font_name());
    description.unset_fields(Pango::FONT_MASK_SIZE);
    return description.to_string();
}
