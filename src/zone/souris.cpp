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
    if (!(evenement->state & GDK_BUTTON2_MASK)) FeuilleTenue.reset();
    if (FeuilleTenue) {
        GlisseFeuille(PixelEntier(evenement->x, evenement->y));
        return true;
    }
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
        Outils.Clique(Souris.PositionClic(pixel, !Outils.Ligne().IgnoreRepere).Point);
        return true;
    }
    if (evenement->button == 2) {
        Souris.Suit(pixel);
        FeuilleTenue = Souris.Position();
        FeuilleGlisse = false;
        return true;
    }
    if (evenement->button == 3) {
        Souris.Suit(pixel);
        Popup.Ouvre(evenement->button, evenement->time);
        return true;
    }
    return false;
}

void ZoneDessin::GlisseFeuille(const PointVek& pixel) {
    const PointVek origine =
        EchelleCourante.Origine + (*FeuilleTenue - EchelleCourante.VersDessin(pixel));
    EchelleCourante.Montre(origine, EchelleCourante.Facteur);
    Souris.Suit(pixel);
    // The whole drag leaves one view behind.
    Outils.VueChangee(FeuilleGlisse);
    FeuilleGlisse = true;
}

void ZoneDessin::ZoomeMolette(bool plus) {
    constexpr double rapport = 1.25;
    if (MoletteProgressive)
        EchelleCourante.ZoomAutour(Souris.Position(), plus ? rapport : 1.0 / rapport);
    else if (plus)
        EchelleCourante.ZoomPlusEn(Souris.Position());
    else
        EchelleCourante.ZoomMoinsEn(Souris.Position());
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
            ZoomeMolette(true);
    } else if (evenement->direction == GDK_SCROLL_DOWN) {
        if (controle)
            EchelleCourante.Bas();
        else if (majuscule)
            EchelleCourante.Gauche();
        else
            ZoomeMolette(false);
    } else {
        return false;
    }
    Outils.VueChangee();
    return true;
}
