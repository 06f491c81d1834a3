#include "elements/traceetendue.h"

#include <algorithm>
#include <cmath>

#include "elements/angles.h"

TraceEtendue::TraceEtendue(bool surPapier)
    : Trace({-HUGE_VAL, -HUGE_VAL, HUGE_VAL, HUGE_VAL}), Papier(surPapier) {}

void TraceEtendue::Atteint(const PointVek& p) {
    if (p.EstFini()) Tout = Tout ? Tout->Avec(p) : Boite::Autour(p, p);
}

void TraceEtendue::Compose(const Boite&, const std::function<void(Trace&)>& dessine) {
    dessine(*this);
}

void TraceEtendue::Segment(const PointVek& a, const PointVek& b) {
    Atteint(a);
    Atteint(b);
}

void TraceEtendue::Droite(const PointVek& p, const PointVek&) {
    Atteint(p);
}

void TraceEtendue::Arc(ArcEcran arc, bool plein) {
    Segment(arc.Point(arc.Debut), arc.Point(arc.Debut + arc.Ouverture));
    if (plein) Atteint(arc.Centre);
    // Where it turns back: at the quarters of the circle that it passes.
    const double bas = std::min(arc.Debut, arc.Debut + arc.Ouverture);
    const double quart = Pi / 2.0;
    const double premier = std::ceil(bas / quart);
    for (int rang = 0; rang < 4 && (premier + rang) * quart <= bas + std::abs(arc.Ouverture);
         ++rang)
        Atteint(arc.Point((premier + rang) * quart));
}

void TraceEtendue::Polygone(const std::vector<LienEcran>& liens) {
    for (const LienEcran& lien : liens) {
        Segment(lien.Debut, lien.Fin);
        if (lien.Arc) Arc(*lien.Arc, false);
    }
}

void TraceEtendue::Rectangle(const PointVek& coin, double largeur, double hauteur, bool) {
    Segment(coin, coin + PointVek(largeur, hauteur));
}

void TraceEtendue::Croix(const PointVek& centre, double) {
    Atteint(centre);
}

void TraceEtendue::Texte(const TexteEcran& texte, const Gdk::Color&) {
    if (texte.EstInvisible()) {
        Atteint(texte.Ancre);
        return;
    }
    const Boite cadre = TexteMisEnPage(texte).Cadre();
    Segment({cadre.Gauche, cadre.Haut}, {cadre.Droite, cadre.Bas});
}
