// What the view shows of solids whose holes and envelopes meet: where the passes subtract exactly
// against rays on the bodies themselves, elsewhere against rays that follow the passes.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "scene.h"
#include "solids/eltpercage.h"
#include "solids/eltprofilelevation.h"

namespace {

/// Straight and oblique, from above and from the opposite side.
const std::vector<Angles> Vues = {{0, 0, 0},     {0, 25, 35},   {20, -40, 50},
                                  {45, 150, 20}, {10, 165, 15}, {-30, -120, 60}};

void Verifie(const std::vector<Solide>& dessin, const std::vector<Solide>& scene,
             const std::string& nom) {
    Banc3D banc;
    for (const Solide& solide : dessin)
        banc.Ajoute(solide);
    banc.Bouge(-50, -50);
    VerifieVues(banc, scene, Vues, nom);
}

Forme Pave(const PointVek& p, double a, double b, double h, int couleur) {
    return {Forme::Pave, p, a, b, h, couleur};
}

Forme Boule(const PointVek& p, double r, int couleur) {
    return {Forme::Boule, p, r, 0.0, 0.0, couleur};
}

Creux Trou(const PointVek& p, double r, double h, int couleur, bool debouchant) {
    return {{Forme::Cylindre, p, r, 0.0, h, couleur}, debouchant};
}

/// A plate from z = -10 to 10 with those holes.
Solide Plaque(std::vector<Creux> creux) {
    return {Pave({0, 0, -10}, 60, 40, 20, 1), std::move(creux)};
}

Solide ParPasses(Solide solide) {
    solide.ParPasses = true;
    return solide;
}

}  // namespace

TEST(Creux, LUnDerriereLAutreALEcran) {
    const Solide plaque = Plaque({Trou({-20, 5, 3}, 18, 7, 2, false),
                                  Trou({-18, 4, -10}, 17, 8, 4, false),
                                  Trou({18, 5, -10}, 17, 20, 6, true),
                                  {Pave({0, -27, 4}, 50, 6, 6, 3), false},
                                  {Pave({0, -25, -10}, 40, 8, 9, 5), false}});
    Verifie({plaque}, {plaque}, "superposes");
}

TEST(Creux, AuFondDUnAutre) {
    Solide plaque = Plaque({Trou({-25, 5, 0}, 20, 10, 2, false),
                            Trou({-28, 5, -10}, 10, 10, 4, true),
                            {Pave({25, 0, 0}, 12, 35, 10, 3), false},
                            Trou({25, 10, -10}, 8, 10, 6, true),
                            Trou({24, -15, -6}, 6, 6, 5, false)});
    Verifie({plaque}, {plaque}, "lamage");
    // What stands in a bottom may come before it in the list.
    std::reverse(plaque.Enleves.begin(), plaque.Enleves.end());
    Verifie({plaque}, {plaque}, "lamage_inverse");
}

TEST(Creux, LeSolideDerriereResteEntier) {
    const Solide perce = Plaque({Trou({0, 0, -25}, 20, 35, 2, true)});
    const Solide autre{Pave({5, 5, -30}, 45, 40, 20, 4), {}};
    Verifie({perce, autre}, {perce, autre}, "entier");
    Verifie({autre, perce}, {autre, perce}, "entier_inverse");
}

TEST(Creux, QuiSeCoupent) {
    const Creux rainure = {Pave({5, -20, 0}, 50, 9, 10, 3), false};
    std::vector<Creux> creux = {Trou({-20, 5, -10}, 20, 20, 2, true),
                                Trou({5, 10, -10}, 18, 20, 4, true)};
    Verifie({Plaque(creux)}, {Plaque(creux)}, "deux");
    creux.insert(creux.begin() + 1, rainure);
    creux.push_back(Trou({0, -8, 2}, 15, 8, 6, false));
    Verifie({Plaque(creux)}, {Plaque(creux)}, "quatre");
    // Two pockets with a wall in common have none, and one that draws nothing changes nothing.
    creux = {{Pave({-20, 0, -4}, 20, 25, 14, 2), false}, {Pave({20, 0, 2}, 20, 25, 8, 4), false}};
    Solide poches = Plaque(creux);
    Banc3D banc;
    EltGeo* plaque = banc.Ajoute(poches);
    auto rien = std::make_unique<EltPercage>();
    rien->facetisation = 0;
    plaque->AjouteFils(BddCourante.AjouteFin(std::move(rien)));
    banc.Bouge(-50, -50);
    VerifieVues(banc, {poches}, Vues, "poches");
}

TEST(Creux, UneRangeeDansNImporteQuelOrdre) {
    for (const std::array<int, 4>& ordre : {std::array<int, 4>{2, 0, 1, 3}, {3, 1, 0, 2}}) {
        Solide bloc{Pave({0, 0, -30}, 60, 40, 60, 1), {}};
        for (const int rang : ordre)
            bloc.Enleves.push_back(Trou({-30.0 + 20.0 * rang, 0, -30}, 12, 60, 2 + rang, true));
        Verifie({bloc}, {bloc}, "rangee" + std::to_string(ordre[0]));
    }
}

TEST(Creux, DeuxEnveloppesEtUnTrou) {
    Solide cube{Pave({0, 0, -25}, 30, 30, 50, 1),
                {Trou({15, 0, -25}, 7, 50, 2, true)},
                {Boule({-20, 0, 4}, 40, 4), Boule({20, 6, 0}, 40, 6)}};
    Verifie({cube}, {ParPasses(cube)}, "enveloppes");
    // The first ball ahead of the hole shows as it stands, and limits the body all the same.
    cube.Avant = 1;
    cube.Enveloppes = {Boule({-8, 0, 4}, 26, 4), Boule({10, 6, 0}, 48, 6)};
    Verifie({cube}, {{cube.Enveloppes[0], {}}, ParPasses(cube)}, "enveloppe_avant");
    // Balls that only cut the corners off hardly cover anything beside the body.
    cube.Avant = 0;
    cube.Enveloppes = {Boule({-12, 0, 0}, 60, 4), Boule({12, 5, 0}, 60, 6)};
    Verifie({cube}, {cube}, "enveloppes_larges");
}

TEST(Creux, UneEnveloppeSeuleEstUneBoule) {
    const Solide pave{Pave({0, 0, -10}, 40, 25, 20, 1), {}};
    Solide enveloppe = pave;
    enveloppe.Enveloppes = {Boule({20, 10, 5}, 22, 4)};
    Verifie({enveloppe}, {pave, {enveloppe.Enveloppes[0], {}}}, "enveloppe_seule");
}

// A body that the ray leaves twice is lost there, and what is behind shows.
TEST(Creux, UneEquerrePerceePerdCeQuiEstDouble) {
    Banc3D banc;
    EltProfilElevation elevation;
    for (const PointVek& p : {PointVek(-60, -40), PointVek(-60, 40), PointVek(-20, 40),
                              PointVek(-20, -10), PointVek(60, -10), PointVek(60, -40)})
        elevation.Sommets.emplace_back(p);
    elevation.h = 40;
    elevation.Style.Couleur.set_rgb_p(1.0, 0.0, 0.0);
    const Solide equerre{
        Pave({0, -25, 0}, 60, 15, 40, 1),  {Trou({20, -25, 0}, 9, 40, 2, true)}, {}, true, 0,
        {Pave({-40, 0, 0}, 20, 40, 40, 1)}};
    Banc3D::Garnit(BddCourante.Ajoute(elevation), equerre);
    const Solide fond{Pave({0, 0, -70}, 50, 50, 20, 4), {}};
    banc.Ajoute(fond);
    banc.Bouge(-50, -50);
    VerifieVues(banc, {equerre, fond}, Vues, "equerre_percee");
}
