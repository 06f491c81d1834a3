// The help page and the about box.

#include <glibmm/convert.h>
#include <glibmm/miscutils.h>
#include <glibmm/spawn.h>
#include <gtk/gtk.h>
#include <gtkmm/messagedialog.h>

#include "window/dessinwindow.h"
#include "window/donnees.h"

namespace {

/// False when there is nothing to open the address with.
bool OuvreNavigateur(const Glib::RefPtr<Gdk::Screen>& ecran, const std::string& adresse) {
    if (gtk_show_uri(ecran->gobj(), adresse.c_str(), gtk_get_current_event_time(), nullptr))
        return true;
    try {
        const std::vector<std::string> commande = {"xdg-open", adresse};
        Glib::spawn_async("", commande, Glib::SPAWN_SEARCH_PATH);
        return true;
    } catch (const Glib::SpawnError&) {
        return false;
    }
}

}  // namespace

void DessinWindow::Aide() {
    const std::string page = Glib::build_filename(DossierDonnees(), "aide.htm");
    if (OuvreNavigateur(get_screen(), Glib::filename_to_uri(page))) {
        iconify();
        return;
    }
    Gtk::MessageDialog message(*this, "L'aide se lit dans un navigateur :\n" + page, false,
                               Gtk::MESSAGE_INFO, Gtk::BUTTONS_OK, true);
    message.run();
}

void DessinWindow::APropos() {
    Gtk::MessageDialog message(*this,
                               "Copyright © 2012-2026 les auteurs de KR VEK\r\n"
                               "Révision 1.3.1 10/10/2012\r\n"
                               "3D",
                               false, Gtk::MESSAGE_INFO, Gtk::BUTTONS_OK, true);
    message.run();
}
