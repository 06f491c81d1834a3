#include "ecran.h"

#include <gdk/gdk.h>
#include <gtkmm/main.h>

#include "model/bddgeo.h"
#include "model/echelle.h"

Ecran::Ecran(const std::string& fichier) {
    fenetre.set_default_size(1000, 800);
    fenetre.add(zone);
    fenetre.show_all();
    BddCourante.Ouvre(fichier);
    EchelleCourante.ZoomInit();
    Tourne();
}

Ecran::~Ecran() {
    BddCourante.Vide();
}

void Ecran::Tourne() {
    while (Gtk::Main::events_pending())
        Gtk::Main::iteration(false);
    gdk_display_sync(gdk_display_get_default());
}

void Ecran::Montre(double cote) {
    EchelleCourante.ZoomRectangle({-cote / 2, -cote / 2}, {cote / 2, cote / 2}, zone.Vue.Hauteur());
}

void Ecran::Repeint() {
    zone.Vue.Redessine();
    zone.get_window()->process_updates(false);
    gdk_display_sync(gdk_display_get_default());
}

void Ecran::Bouge(double x, double y) {
    GdkEvent evenement = {};
    evenement.motion.type = GDK_MOTION_NOTIFY;
    evenement.motion.window = zone.get_window()->gobj();
    evenement.motion.x = x;
    evenement.motion.y = y;
    gtk_widget_event(GTK_WIDGET(zone.gobj()), &evenement);
    gdk_display_sync(gdk_display_get_default());
}
