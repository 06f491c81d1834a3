#include "zone/pointeur.h"

#include <algorithm>

#include "elements/angles.h"
#include "elements/trace.h"
#include "elements/vue.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/vuezone.h"

namespace {

// Pixels, at every zoom.
constexpr double RayonRepere = 4.0;
constexpr double RayonReference = 6.0;

Bande BandeRepere(const PointVek& p) {
    return [p](Trace& trace) {
        Trait rouge;
        rouge.Couleur = Gdk::Color("red");
        trace.AppliqueTrait(rouge, Trace::Ligne);
        trace.Arc({vue::VersEcran(p), RayonRepere, 0.0, DeuxPi}, true);
    };
}

Bande BandeReference(const PointVek& p) {
    return [p](Trace& trace) {
        Trait bleu;
        bleu.Couleur = Gdk::Color("blue");
        trace.AppliqueTrait(bleu, Trace::Ligne);
        const PointVek centre = vue::VersEcran(p);
        trace.Croix(centre, RayonReference);
        trace.Rectangle(centre - PointVek(RayonReference, RayonReference), 2.0 * RayonReference,
                        2.0 * RayonReference, false);
    };
}

}  // namespace

void Pointeur::Suit(const PointVek& pixel) {
    if (!Pixel || Distance(pixel, *Pixel) > 0.0) Choisi.reset();
    Pixel = pixel;
    Point = EchelleCourante.VersDessin(pixel);
    Positions.emit(Point);
}

void Pointeur::SuitVue() {
    CacheRepere();
    if (Pixel) Suit(*Pixel);
}

void Pointeur::MajRepere() {
    if (Options.Actif) {
        Points = ChercheAccroches(BddCourante, Point, Options, Speciales, Reference);
        const auto choisi =
            std::find_if(Points.begin(), Points.end(), [this](const PointAccroche& autre) {
                return Choisi && Distance(autre.Point, *Choisi) == 0.0;
            });
        Rang = choisi == Points.end() ? 0 : static_cast<std::size_t>(choisi - Points.begin());
        MontreRepere();
    }
    Cibles.emit();
}

void Pointeur::MontreRepere() {
    Vue.Dessus.Montre(Bandes::Repere, Points.empty() ? Bande() : BandeRepere(Points[Rang].Point));
}

void Pointeur::PasseRepere(int pas) {
    if (Points.empty()) return;
    const auto nombre = static_cast<int>(Points.size());
    Rang = static_cast<std::size_t>((static_cast<int>(Rang) + pas + nombre) % nombre);
    Choisi = Points[Rang].Point;
    MontreRepere();
    Cibles.emit();
}

void Pointeur::CacheRepere() {
    Points.clear();
    Rang = 0;
    MontreRepere();
    Cibles.emit();
}

PointAccroche Pointeur::PositionClic(const PointVek& pixel, bool avecRepere) const {
    if (!Points.empty() && avecRepere) return Points[Rang];
    PointVek p = EchelleCourante.VersDessin(pixel);
    Vue.GrilleCourante.Aligne(p);
    return {p, "grille"};
}

std::optional<PointAccroche> Pointeur::Cible(bool avecRepere) const {
    if (!Pixel) return std::nullopt;
    return PositionClic(*Pixel, avecRepere);
}

void Pointeur::MontreReference(bool montre) {
    Vue.Dessus.Montre(Bandes::Reference, montre ? BandeReference(Reference) : Bande());
}

void Pointeur::Bascule(bool OptionsAccrochage::*option) {
    Options.*option = !(Options.*option);
    CacheRepere();
}
