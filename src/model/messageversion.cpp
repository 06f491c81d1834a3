#include "model/messageversion.h"

#include <gtkmm/messagedialog.h>

#include "elements/encodage.h"

void MessageVersion(const std::string& mot) {
    constexpr std::size_t lisible = 60;
    Glib::ustring recu = EnUtf8(mot);
    if (recu.size() > lisible) recu = recu.substr(0, lisible) + "…";
    // The text names 3.2, although the present version is 3.3: users know it so, and 3.2 is read.
    Gtk::MessageDialog message(
        "Version du fichier incompatible.\n Contacter l'editeur.\nVersion3.2 attendue \n" + recu +
            " reçue",
        false, Gtk::MESSAGE_INFO, Gtk::BUTTONS_OK, true);
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
        if (fenetre->property_is_active()) message.set_transient_for(*fenetre);
    message.run();
}
