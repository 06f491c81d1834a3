#include "solids/chaine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "elements/angles.h"

namespace {

double Croix(const PointVek& a, const PointVek& b) {
    return a.x * b.y - a.y * b.x;
}

using Cote = std::pair<PointVek, PointVek>;

/// Whether they lie on one line and have more than an end in common, by their x or both upright.
bool SeRecouvrent(const Cote& a, const Cote& b) {
    const PointVek u = a.second - a.first;
    if (Norme(u) == 0.0 || Norme(b.second - b.first) == 0.0) return false;
    if (Croix(u, b.first - a.first) != 0.0 || Croix(u, b.second - a.first) != 0.0) return false;
    return b.first.x < a.second.x || u.x == 0.0;
}

/// Whether the ends of each lie on both sides of the other.
bool SeCroisent(const Cote& a, const Cote& b) {
    const auto separe = [](const Cote& cote, const Cote& autre) {
        const PointVek u = cote.second - cote.first;
        return Croix(u, autre.first - cote.first) * Croix(u, autre.second - cote.first) < 0.0;
    };
    return separe(a, b) && separe(b, a);
}

/// The outline as a polygon fine enough to tell which side of it the surface is.
std::vector<PointVek> Contour(const EltProfil& profil) {
    std::vector<PointVek> points;
    for (const Troncon& troncon : Chaine(profil, 16))
        points.push_back(troncon.Debut);
    if (!profil.Sommets.empty()) points.push_back(profil.Sommets.back());
    return points;
}

/// Twice the area on the left of the way when poids is 1; with other weights their moment.
template <class Poids>
double Somme(const std::vector<PointVek>& points, const Poids& poids) {
    double somme = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PointVek &a = points[i], &b = points[(i + 1) % points.size()];
        somme += Croix(a, b) * poids(a, b);
    }
    return somme;
}

}  // namespace

std::vector<Troncon> Troncons(const PointVek& precedent, const SommetProfil& sommet, int pas) {
    const auto arc = sommet.Arc(precedent);
    if (!arc) return {{precedent, sommet, false, 0.0, 0.0}};
    std::vector<Troncon> troncons;
    PointVek debut = precedent;
    double angle = arc->Debut;
    for (int i = 1; i <= pas; ++i) {
        const double suivant = arc->Debut + arc->Ouverture * i / pas;
        PointVek fin = PointPolaire(arc->Centre, arc->Rayon, suivant);
        fin.z = sommet.z;
        if (i == pas) fin = sommet;
        troncons.push_back({debut, fin, true, angle, suivant});
        debut = fin;
        angle = suivant;
    }
    return troncons;
}

std::vector<Troncon> Chaine(const EltProfil& profil, int pas) {
    std::vector<Troncon> chaine;
    for (std::size_t i = 1; i < profil.Sommets.size(); ++i)
        for (const Troncon& troncon : Troncons(profil.Sommets[i - 1], profil.Sommets[i], pas))
            chaine.push_back(troncon);
    return chaine;
}

CompteLiens::CompteLiens(const EltProfil& profil) {
    for (std::size_t i = 1; i < profil.Sommets.size(); ++i)
        ++(profil.Sommets[i].Arc(profil.Sommets[i - 1]) ? Arcs : Droits);
}

bool EstAntihoraire(const EltProfil& profil) {
    return Somme(Contour(profil), [](const PointVek&, const PointVek&) { return 1.0; }) > 0.0;
}

bool EstAntihoraireAutourDeY(const EltProfil& profil) {
    return Somme(Contour(profil), [](const PointVek& a, const PointVek& b) { return a.x + b.x; }) >
           0.0;
}

bool EstConvexe(const std::vector<PointVek>& points, bool gauche) {
    // The edges of an arc may turn by no more than rounding.
    constexpr double jeu = 1e-9;
    std::vector<PointVek> cotes;
    for (std::size_t i = 0; i < points.size(); ++i) {
        PointVek cote = points[(i + 1) % points.size()] - points[i];
        cote.z = 0.0;
        if (Norme(cote) > 0.0) cotes.push_back(Unitaire(cote));
    }
    double tour = 0.0;
    for (std::size_t i = 0; i < cotes.size(); ++i) {
        const PointVek &a = cotes[i], &b = cotes[(i + 1) % cotes.size()];
        const double virage = gauche ? Croix(a, b) : Croix(b, a);
        if (virage < -jeu) return false;
        tour += std::atan2(virage, Scalaire(a, b));
    }
    return tour < 1.5 * DeuxPi;
}

bool EstEmmele(const std::vector<PointVek>& points) {
    constexpr int croisementsMax = 5000, essaisMax = 20000000;
    std::vector<Cote> cotes;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PointVek &a = points[i], &b = points[(i + 1) % points.size()];
        cotes.push_back(a.x < b.x ? Cote(a, b) : Cote(b, a));
    }
    std::sort(cotes.begin(), cotes.end(),
              [](const Cote& a, const Cote& b) { return a.first.x < b.first.x; });
    int croisements = 0, essais = 0;
    for (auto cote = cotes.begin(); cote != cotes.end(); ++cote)
        // Only those that begin before this one ends can meet it.
        for (auto autre = cote + 1; autre != cotes.end() && autre->first.x <= cote->second.x;
             ++autre) {
            croisements += SeCroisent(*cote, *autre) || SeRecouvrent(*cote, *autre);
            if (croisements > croisementsMax || ++essais > essaisMax) return true;
        }
    return false;
}
