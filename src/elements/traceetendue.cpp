#include "elements/traceetendue.h"

#include <cmath>

TraceEtendue::TraceEtendue() : Trace({-HUGE_VAL, -HUGE_VAL, HUGE_VAL, HUGE_VAL}) {}

void TraceEtendue::Atteint(const PointVek& p) {
    if (p.EstFini()) Tout = Tout ? Tout->Avec(p) : Boite::Autour(p, p);
}

void TraceEtendue::AtteintRond(const PointVek& centre, double rayon) {
    Atteint(centre - PointVek(rayon, rayon));
    Atteint(centre + PointVek(rayon, rayon));
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

void TraceEtendue::Arc(ArcEcran arc, bool) {
    AtteintRond(arc.Centre, arc.Rayon);
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

void TraceEtendue::Croix(const PointVek& centre, double bras) {
    AtteintRond(centre, bras);
}

void TraceEtendue::Texte(const TexteEcran& texte, const Gdk::Color&) {
    if (texte.EstInvisible()) {
        Atteint(texte.Ancre);
        return;
    }
    const Boite cadre = TexteMisEnPage(texte).Cadre();
    Segment({cadre.Gauche, cadre.Haut}, {cadre.Droite, cadre.Bas});
}
