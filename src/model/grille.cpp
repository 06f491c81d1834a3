#include "model/grille.h"

#include <algorithm>
#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/traceecran.h"
#include "elements/vue.h"

namespace {

double AligneAxe(double valeur, double origine, double pas) {
    return origine + pas * std::floor((valeur - origine + pas / 2.0) / pas);
}

}  // namespace

Grille::Grille() : EltGeo(TypeGrille) {}

void Grille::SetPas(double pas) {
    if (pas > 1e-6) Pas = pas;
}

void Grille::Plus() {
    if (Pas < 1000000.0) Pas *= 2.0;
}

void Grille::Moins() {
    if (Pas > 1e-6) Pas /= 2.0;
}

bool Grille::Bascule() {
    Affichee = !Affichee;
    return Affichee;
}

void Grille::Aligne(PointVek& p) const {
    if (!Affichee) return;
    p.x = AligneAxe(p.x, Position.x, Pas);
    p.y = AligneAxe(p.y, Position.y, Pas);
}

void Grille::Sauve(Ecrivain& sortie) const {
    sortie << Type << ' ' << Style << '\n'
           << Position << '\n'
           << Affichee << '\n'
           << Pas << ' ' << Forme << '\n';
}

void Grille::Charge(Lecteur& entree) {
    double pas = Pas;
    entree >> Style >> Position >> Affichee >> pas >> Forme;
    SetPas(pas < 0.0 ? 1.0 : pas);
    Forme = std::clamp(Forme, 1, 4);
}

void Grille::Dessine(TraceEcran& trace, int largeur, int hauteur) const {
    if (!Affichee) return;
    const PointVek m = vue::VersEcran(Position);
    Trait trait;
    trait.Couleur = Style.Couleur;
    trait.Epaisseur = 3;
    trace.AppliqueTrait(trait, Trace::Ligne);
    trace.Segment(m, m + PointVek(0.0, 1.0));
    trace.Segment(m, m + PointVek(1.0, 0.0));
    trait.Epaisseur = 1;
    trace.AppliqueTrait(trait, Trace::Ligne);

    const double pas = vue::LongueurEcran(Pas);
    if (!(pas > 5.0)) return;
    const int colonnes = static_cast<int>(std::lround(largeur / pas));
    const int lignes = static_cast<int>(std::lround(hauteur / pas));
    // The first node inside the area, so that the nodes stay fixed to the drawing.
    const double x0 = m.x - std::floor(m.x / pas) * pas;
    const double y0 = m.y - std::floor(m.y / pas) * pas;
    for (int i = 0; i < colonnes; ++i)
        for (int j = 0; j < lignes; ++j)
            DessineNoeud(trace, {x0 + i * pas, y0 + j * pas});
}

void Grille::DessineNoeud(TraceEcran& trace, const PointVek& p) const {
    if (Forme >= 3) {
        trace.Croix(p, Forme);
        return;
    }
    trace.Point(p);
    if (Forme != 2) return;
    for (const PointVek& v : {PointVek(1, 0), PointVek(-1, 0), PointVek(0, 1), PointVek(0, -1)})
        trace.Point(p + v);
}
