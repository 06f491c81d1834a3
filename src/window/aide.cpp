// The help page and the about box.

#include <glibmm/convert.h>
#include <glibmm/main.h>
#include <glibmm/miscutils.h>
#include <gtk/gtk.h>
#include <gtkmm/messagedialog.h>

#include "window/dessinwindow.h"
#include "window/donnees.h"
#include "window/listecommandes.h"

namespace {

std::string PageAide() {
    return Glib::build_filename(DossierDonnees(), "aide.htm");
}

/// Starts what opens addresses; throws where there is none.
Glib::Pid LanceNavigateur(const std::string& adresse) {
    const std::vector<std::string> commande = {"xdg-open", adresse};
    Glib::Pid navigateur = 0;
    Glib::spawn_async("", commande, Glib::SPAWN_SEARCH_PATH | Glib::SPAWN_DO_NOT_REAP_CHILD,
                      sigc::slot<void>(), &navigateur);
    return navigateur;
}

}  // namespace

void DessinWindow::Aide() {
    AideSur("");
}

void DessinWindow::AideSur(const std::string& action) {
    const std::string adresse =
        Glib::filename_to_uri(PageAide()) + (action.empty() ? "" : "#" + AncreAide(action));
    try {
        // It may start and find nothing to show the page with: only its end tells.
        Glib::signal_child_watch().connect(sigc::mem_fun(*this, &DessinWindow::NavigateurFini),
                                           LanceNavigateur(adresse));
    } catch (const Glib::SpawnError&) {
        if (!gtk_show_uri(get_screen()->gobj(), adresse.c_str(), gtk_get_current_event_time(),
                          nullptr)) {
            MontreOuEstLAide();
            return;
        }
    }
    iconify();
}

void DessinWindow::NavigateurFini(Glib::Pid navigateur, int etat) {
    Glib::spawn_close_pid(navigateur);
    if (etat == 0) return;
    deiconify();
    MontreOuEstLAide();
}

void DessinWindow::MontreOuEstLAide() {
    Gtk::MessageDialog message(*this, "L'aide se lit dans un navigateur :\n" + PageAide(), false,
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
