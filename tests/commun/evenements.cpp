#include "commun/evenements.h"

namespace {

/// Fills what all events of a pointer have, and sends it.
template <class Evenement>
void Envoie(Gtk::Widget& zone, Evenement GdkEvent::*sorte, Evenement evenement, double x,
            double y) {
    evenement.window = zone.get_window()->gobj();
    evenement.x = x;
    evenement.y = y;
    GdkEvent tout = {};
    tout.*sorte = evenement;
    gtk_widget_event(zone.gobj(), &tout);
}

}  // namespace

void EnvoieMouvement(Gtk::Widget& zone, double x, double y, unsigned etat) {
    GdkEventMotion evenement = {};
    evenement.type = GDK_MOTION_NOTIFY;
    evenement.state = etat;
    Envoie(zone, &GdkEvent::motion, evenement, x, y);
}

void EnvoieBouton(Gtk::Widget& zone, double x, double y, int bouton, GdkEventType type) {
    GdkEventButton evenement = {};
    evenement.type = type;
    evenement.button = static_cast<guint>(bouton);
    Envoie(zone, &GdkEvent::button, evenement, x, y);
}

void EnvoieMolette(Gtk::Widget& zone, double x, double y, GdkScrollDirection sens, unsigned etat) {
    GdkEventScroll evenement = {};
    evenement.type = GDK_SCROLL;
    evenement.state = etat;
    evenement.direction = sens;
    Envoie(zone, &GdkEvent::scroll, evenement, x, y);
}
