#include "model/echelle.h"

#include <algorithm>
#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"

Echelle EchelleCourante;

namespace {

/// Beyond these a scale or a coordinate would no longer be finite in what follows from it.
constexpr double FacteurMax = 1e150;
constexpr double FacteurMin = 1e-150;
constexpr double OrigineMax = 1e150;

}  // namespace

Echelle::Echelle() : EltGeo(TypeEchelle) {
    SetFacteur(1.0);
}

void Echelle::SetFacteur(double facteur) {
    if (!(facteur >= FacteurMin && facteur <= FacteurMax)) return;
    Facteur = facteur;
    Epsilon = 1e-6 / Facteur;
    Proche10 = 10.0 / Facteur;
}

void Echelle::Sauve(Ecrivain& sortie) const {
    sortie << Type << ' ' << Style << '\n'
           << Position << '\n'
           << Origine << '\n'
           << Facteur << '\n';
}

void Echelle::Charge(Lecteur& entree) {
    // Farther away, the digits of a coordinate no longer tell one pixel from the next.
    constexpr double loin = 1e12;
    double facteur = Facteur;
    PointVek origine = Origine;
    entree >> Style >> Position >> origine >> facteur;
    SetFacteur(facteur);
    if (std::abs(origine.x) <= loin && std::abs(origine.y) <= loin) Origine = origine;
}

void Echelle::SetCentre(int largeur, int hauteur) {
    Centre_ = PointVek(largeur / 2, hauteur / 2);
}

PointVek Echelle::VersEcran(const PointVek& p) const {
    PointVek q = p;
    if (Agrandissement != 1.0) q = q * Agrandissement;
    if (Rotation != 0.0) q.Tourne(Rotation);
    return {(q.x - Origine.x) * Facteur + Centre_.x, (Origine.y - q.y) * Facteur + Centre_.y};
}

PointVek Echelle::VersDessin(const PointVek& pixel) const {
    return {(pixel.x - Centre_.x) / Facteur + Origine.x,
            (Centre_.y - pixel.y) / Facteur + Origine.y};
}

void Echelle::ZoomPlus() {
    SetFacteur(Facteur + Facteur);
}

void Echelle::ZoomMoins() {
    if (Facteur > 1e-6) SetFacteur(Facteur * 0.5);
}

void Echelle::ZoomInit() {
    Origine = PointVek();
    SetFacteur(1.0);
}

void Echelle::ZoomPlusEn(const PointVek& p) {
    Origine = p;
    ZoomPlus();
}

void Echelle::ZoomMoinsEn(const PointVek& p) {
    Origine = p;
    ZoomMoins();
}

void Echelle::ZoomRectangle(const PointVek& a, const PointVek& b, int largeur) {
    Origine = (a + b) / 2.0;
    const double cote = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
    if (::Distance(a, b) > 1e-6) SetFacteur(largeur / cote);
}

void Echelle::ZoomAutour(const PointVek& p, double rapport) {
    const double avant = Facteur;
    SetFacteur(Facteur * rapport);
    Origine = p + (Origine - p) * (avant / Facteur);
}

void Echelle::MontreTout(const PointVek& a, const PointVek& b, int largeur, int hauteur) {
    constexpr double part = 0.9;
    const double w = std::abs(b.x - a.x), h = std::abs(b.y - a.y);
    // A null extent divides to infinity, which the other one stays below.
    const double facteur = part * std::min(largeur / w, hauteur / h);
    Montre((a + b) / 2.0, std::isfinite(facteur) ? facteur : Facteur);
}

void Echelle::Montre(const PointVek& origine, double facteur) {
    SetFacteur(facteur);
    if (std::abs(origine.x) <= OrigineMax && std::abs(origine.y) <= OrigineMax) Origine = origine;
}

void Echelle::Haut() {
    Origine.y = std::min(Origine.y + Proche10, OrigineMax);
}

void Echelle::Bas() {
    Origine.y = std::max(Origine.y - Proche10, -OrigineMax);
}

void Echelle::Droite() {
    Origine.x = std::min(Origine.x + Proche10, OrigineMax);
}

void Echelle::Gauche() {
    Origine.x = std::max(Origine.x - Proche10, -OrigineMax);
}

VuePage::VuePage(const PointVek& origine, double facteur)
    : Origine(EchelleCourante.Origine),
      Centre(EchelleCourante.Centre_),
      Facteur(EchelleCourante.Facteur) {
    EchelleCourante.Origine = origine;
    EchelleCourante.Centre_ = PointVek();
    EchelleCourante.SetFacteur(facteur);
}

VuePage::~VuePage() {
    EchelleCourante.Origine = Origine;
    EchelleCourante.Centre_ = Centre;
    EchelleCourante.SetFacteur(Facteur);
}

namespace vue {

double Epsilon() {
    return EchelleCourante.Epsilon;
}

double Proche10() {
    return EchelleCourante.Proche10;
}

PointVek VersEcran(const PointVek& p) {
    return EchelleCourante.VersEcran(p);
}

double LongueurEcran(double longueur) {
    return longueur * EchelleCourante.Facteur * EchelleCourante.Agrandissement;
}

double Rotation() {
    return EchelleCourante.Rotation;
}

}  // namespace vue
