// The pointer: motion, clicks, wheel, snap marker.

#include <gdk/gdkkeysyms.h>

#include <cmath>

#include "dialogs/nombres.h"
#include "elements/angles.h"
#include "elements/trace.h"
#include "elements/vue.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/tableetats.h"
#include "zone/zonedessin.h"

namespace {

constexpr double RayonRepere = 4.0;  ///< Pixels, at every zoom.

Bande BandeRepere(const PointVek& p) {
    return [p](Trace& trace) {
        Trait rouge;
        rouge.Couleur = Gdk::Color("red");
        trace.AppliqueTrait(rouge, Trace::Ligne);
        trace.Arc({vue::VersEcran(p), RayonRepere, 0.0, DeuxPi}, true);
    };
}

PointVek PixelEntier(double x, double y) {
    return {std::round(x), std::round(y)};
}

}  // namespace

void ZoneDessin::SuitPointeur(const PointVek& pixel) {
    PixelSouris = pixel;
    PointSouris = EchelleCourante.VersDessin(pixel);
    if (LabelX) LabelX->set_text(TexteNombre(PointSouris.x));
    if (LabelY) LabelY->set_text(TexteNombre(PointSouris.y));
}

bool ZoneDessin::on_motion_notify_event(GdkEventMotion* evenement) {
    SuitPointeur(PixelEntier(evenement->x, evenement->y));
    MajRepere();
    MontreApercu();
    return true;
}

void ZoneDessin::MajRepere() {
    if (!Options.Actif) return;
    Repere = PointParticulierProche(BddCourante, PointSouris, Options);
    Dessus.Montre(Surimpression::Repere, Repere ? BandeRepere(*Repere) : Bande());
}

void ZoneDessin::CacheRepere() {
    Repere.reset();
    Dessus.Montre(Surimpression::Repere, {});
}

PointVek ZoneDessin::PositionClic(const PointVek& pixel) const {
    if (Repere && !LigneDe(Etat).IgnoreRepere) return *Repere;
    PointVek p = EchelleCourante.VersDessin(pixel);
    GrilleCourante.Aligne(p);
    return p;
}

bool ZoneDessin::on_button_press_event(GdkEventButton* evenement) {
    // The toolkit sends double and triple clicks on top of the presses that they are made of.
    if (evenement->type != GDK_BUTTON_PRESS) return false;
    const PointVek pixel(evenement->x, evenement->y);
    if (evenement->button == 1) {
        SuitPointeur(pixel);
        MajRepere();
        Clique(PositionClic(pixel));
        return true;
    }
    if (evenement->button == 3) {
        SuitPointeur(pixel);
        if (MenuPopup) MenuPopup->popup(evenement->button, evenement->time);
        return true;
    }
    return false;
}

bool ZoneDessin::on_scroll_event(GdkEventScroll* evenement) {
    SuitPointeur(PixelEntier(evenement->x, evenement->y));
    // Only the left keys count.
    const bool controle = Touche == GDK_Control_L, majuscule = Touche == GDK_Shift_L;
    if (evenement->direction == GDK_SCROLL_UP) {
        if (controle)
            EchelleCourante.Haut();
        else if (majuscule)
            EchelleCourante.Droite();
        else
            EchelleCourante.ZoomPlusEn(PointSouris);
    } else if (evenement->direction == GDK_SCROLL_DOWN) {
        if (controle)
            EchelleCourante.Bas();
        else if (majuscule)
            EchelleCourante.Gauche();
        else
            EchelleCourante.ZoomMoinsEn(PointSouris);
    } else {
        return false;
    }
    VueChangee();
    return true;
}
