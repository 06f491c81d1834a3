#include "zone/pointeur.h"

#include "elements/angles.h"
#include "elements/trace.h"
#include "elements/vue.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/vuezone.h"

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

}  // namespace

void Pointeur::Suit(const PointVek& pixel) {
    Pixel = pixel;
    Point = EchelleCourante.VersDessin(pixel);
    Positions.emit(Point);
}

void Pointeur::SuitVue() {
    CacheRepere();
    if (Pixel) Suit(*Pixel);
}

void Pointeur::MajRepere() {
    if (!Options.Actif) return;
    Repere = ChercheAccroche(BddCourante, Point, Options);
    Vue.Dessus.Montre(Bandes::Repere, Repere ? BandeRepere(*Repere) : Bande());
}

void Pointeur::CacheRepere() {
    Repere.reset();
    Vue.Dessus.Montre(Bandes::Repere, {});
}

PointVek Pointeur::PositionClic(const PointVek& pixel, bool avecRepere) const {
    if (Repere && avecRepere) return *Repere;
    PointVek p = EchelleCourante.VersDessin(pixel);
    Vue.GrilleCourante.Aligne(p);
    return p;
}

void Pointeur::Bascule(bool OptionsAccrochage::*option) {
    Options.*option = !(Options.*option);
    CacheRepere();
}
