// The mouse in the drawing area.

#include <gdk/gdkkeysyms.h>

#include <cmath>

#include "model/echelle.h"
#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

namespace {

PointVek PixelEntier(double x, double y) {
    return {std::round(x), std::round(y)};
}

}  // namespace

bool ZoneDessin::on_motion_notify_event(GdkEventMotion* evenement) {
    Souris.Suit(PixelEntier(evenement->x, evenement->y));
    Souris.MajRepere();
    Outils.MontreBande();
    return true;
}

bool ZoneDessin::on_button_press_event(GdkEventButton* evenement) {
    // The toolkit sends double and triple clicks on top of the presses that they are made of.
    if (evenement->type != GDK_BUTTON_PRESS) return false;
    const PointVek pixel(evenement->x, evenement->y);
    if (evenement->button == 1) {
        Souris.Suit(pixel);
        Souris.MajRepere();
        Outils.Clique(Souris.PositionClic(pixel, !Outils.Ligne().IgnoreRepere));
        return true;
    }
    if (evenement->button == 3) {
        Souris.Suit(pixel);
        Popup.Ouvre(evenement->button, evenement->time);
        return true;
    }
    return false;
}

bool ZoneDessin::on_scroll_event(GdkEventScroll* evenement) {
    Souris.Suit(PixelEntier(evenement->x, evenement->y));
    // Only the left keys count.
    const bool controle = Outils.Touche == GDK_Control_L, majuscule = Outils.Touche == GDK_Shift_L;
    if (evenement->direction == GDK_SCROLL_UP) {
        if (controle)
            EchelleCourante.Haut();
        else if (majuscule)
            EchelleCourante.Droite();
        else
            EchelleCourante.ZoomPlusEn(Souris.Position());
    } else if (evenement->direction == GDK_SCROLL_DOWN) {
        if (controle)
            EchelleCourante.Bas();
        else if (majuscule)
            EchelleCourante.Gauche();
        else
            EchelleCourante.ZoomMoinsEn(Souris.Position());
    } else {
        return false;
    }
    Outils.VueChangee();
    return true;
}
