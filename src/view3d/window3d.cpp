#include "view3d/window3d.h"

#include <gdk/gdkkeysyms.h>

Window3D::Window3D(BDDGeo& bdd) : Dessin(bdd) {
    set_title("Vue 3D V1.0");
    set_size_request(600, 600);
    set_double_buffered(false);
    set_app_paintable(false);
    add(Dessin);
    show_all_children();
}

bool Window3D::on_key_press_event(GdkEventKey* evenement) {
    if (evenement->keyval != GDK_End && evenement->keyval != GDK_KP_End)
        return Dessin.ToucheEnfoncee(evenement);
    hide();
    return true;
}

bool Window3D::on_configure_event(GdkEventConfigure* evenement) {
    Dessin.queue_draw();
    return Gtk::Window::on_configure_event(evenement);
}

bool Window3D::on_expose_event(GdkEventExpose* evenement) {
    if (Gtk::Window::on_expose_event(evenement)) Dessin.queue_draw();
    return true;
}

bool Window3D::on_delete_event(GdkEventAny*) {
    hide();
    return true;
}
