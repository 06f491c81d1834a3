#include "elements/sommetprofil.h"

#include <algorithm>
#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/vue.h"

namespace {

/// How far the digits of a file may have moved the ends of a half turn beyond its diameter, for
/// numbers of the size of a, b and rayon.
double JeuDesChiffres(const PointVek& a, const PointVek& b, double rayon) {
    return 1e-5 * std::max({std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y), rayon});
}

}  // namespace

std::optional<ArcDeLien> SommetProfil::Arc(const PointVek& precedent) const {
    double rayon = std::abs(Rayon);
    const double demi = Distance(*this, precedent) / 2.0;
    const double epsilon = vue::Epsilon();
    if (!Arrondi || rayon < epsilon || demi < epsilon) return std::nullopt;
    if (!(demi <= rayon)) {
        if (!(demi - rayon <= JeuDesChiffres(*this, precedent, rayon))) return std::nullopt;
        rayon = demi;
    }
    // From the middle of the chord to the right of the way, or to its left.
    const double sens = Rayon > 0.0 ? 1.0 : -1.0;
    const double recul = sens * std::sqrt(rayon - demi) * std::sqrt(rayon + demi);
    const PointVek gauche = Normale(*this - precedent) / (2.0 * demi);
    const PointVek centre = (*this + precedent) / 2.0 - gauche * recul;
    return ArcDeLien{centre, rayon, std::atan2(precedent.y - centre.y, precedent.x - centre.x),
                     -sens * 2.0 * std::asin(demi / rayon)};
}

void SommetProfil::Transforme(const TransformeColle& t) {
    PointVek::Transforme(t);
    Rayon *= std::abs(t.Agrandissement);
    // One mirror turns the other way round.
    if (t.SymetrieX != t.SymetrieY) Rayon = -Rayon;
}

bool SommetProfil::EstFini() const {
    return PointVek::EstFini() && std::isfinite(Rayon);
}

Ecrivain& operator<<(Ecrivain& sortie, const SommetProfil& sommet) {
    sortie << static_cast<const PointVek&>(sommet);
    if (sommet.Arrondi) sortie << 'R' << sommet.Rayon << ' ';
    return sortie;
}

Lecteur& operator>>(Lecteur& entree, SommetProfil& sommet) {
    entree >> static_cast<PointVek&>(sommet);
    sommet.Arrondi = entree.Caractere() == 'R';
    if (sommet.Arrondi) entree >> sommet.Rayon;
    return entree;
}
