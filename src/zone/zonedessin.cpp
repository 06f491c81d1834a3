#include "zone/zonedessin.h"

#include <clocale>

#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/ligneetat.h"
#include "zone/preferences.h"
#include "zone/reglages.h"

ZoneDessin::ZoneDessin() : Vue(*this), Souris(Vue), Outils(Vue, Souris), Presse(Outils, *this) {
    set_size_request(400, 400);
    std::setlocale(LC_NUMERIC, "C");
    // Button releases play no part: every gesture is made of clicks.
    add_events(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK | Gdk::SCROLL_MASK);
    Outils.SignalEtat().connect([this](const LigneEtat& ligne) {
        if (const auto fenetre = get_window()) fenetre->set_cursor(Gdk::Cursor(ligne.Curseur));
    });
    Popup.Construit("", CommandesPopup(), *this);
    ChargePreferences(*this);
    ChargeReglages(*this);
    show();
}

ZoneDessin::~ZoneDessin() {
    SauvePreferences(*this);
}

bool ZoneDessin::on_configure_event(GdkEventConfigure* evenement) {
    Vue.Reconfigure(evenement->width, evenement->height);
    Outils.VueChangee();
    return true;
}

bool ZoneDessin::on_expose_event(GdkEventExpose* evenement) {
    Vue.Expose(evenement->area);
    return true;
}

void ZoneDessin::ZoomPlusAction() {
    EchelleCourante.ZoomPlus();
    Outils.VueChangee();
}

void ZoneDessin::ZoomMoinsAction() {
    EchelleCourante.ZoomMoins();
    Outils.VueChangee();
}

void ZoneDessin::ZoomInitAction() {
    EchelleCourante.ZoomInit();
    Outils.VueChangee();
}

void ZoneDessin::ToutVoir() {
    Vue.CadreTout();
    Outils.VueChangee();
}

void ZoneDessin::VuePrecedente() {
    if (Vue.Precedentes.Revient()) Outils.VueChangee();
}

void ZoneDessin::BasculeReglage(bool& reglage) {
    reglage = !reglage;
    SauveReglages(*this);
    Souris.CacheRepere();
}

void ZoneDessin::OuvreZone(const std::string& nom) {
    BddCourante.Ouvre(nom);
    Outils.Recommence();
}

void ZoneDessin::Importe(void (*importeur)(BDDGeo&, std::string), const std::string& nom) {
    importeur(BddCourante, nom);
    BddCourante.Original = nom;
    Outils.Recommence();
}

void ZoneDessin::Nouveau() {
    BddCourante.Vide();
    Outils.Recommence();
}

void ZoneDessin::AnnuleAction() {
    BddCourante.Annule();
    Outils.DessinChange();
}

void ZoneDessin::RefaitAction() {
    BddCourante.Histoire.Refait();
    Outils.DessinChange();
}

void ZoneDessin::ZoneTrait() {
    BddCourante.ChangeTraitZone(Vue.RectangleSelection, Outils.Protos.Trait());
    Outils.DessinChange();
}
