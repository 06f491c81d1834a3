// What the view shows, against rays.

#include <gtest/gtest.h>

#include "elements/angles.h"
#include "model/bddgeo.h"
#include "scene.h"
#include "solids/eltenvboule.h"

namespace {

/// The six views along the axes, and oblique ones from several sides.
const std::vector<Angles> Vues = {{0, 0, 0},     {0, 0, 180},     {0, 0, 90},   {0, 0, -90},
                                  {0, 90, 0},    {0, -90, 0},     {0, 25, 35},  {20, -40, 50},
                                  {45, 150, 20}, {-30, -120, 60}, {0, 15, -10}, {10, 165, 15}};

void VerifieVues(const std::vector<Solide>& scene, const std::string& nom) {
    Banc3D banc;
    for (const Solide& solide : scene)
        banc.Ajoute(solide);
    VerifieVues(banc, scene, Vues, nom);
}

Forme Pave(const PointVek& p, double a, double b, double h, int couleur) {
    return {Forme::Pave, p, a, b, h, couleur};
}

Forme Cylindre(const PointVek& p, double r, double h, int couleur) {
    return {Forme::Cylindre, p, r, 0.0, h, couleur};
}

Forme Boule(const PointVek& p, double r, int couleur) {
    return {Forme::Boule, p, r, 0.0, 0.0, couleur};
}

/// A plate from z = -10 to 10.
Forme Plaque() {
    return Pave({0.0, 0.0, -10.0}, 60.0, 40.0, 20.0, 1);
}

}  // namespace

TEST(Images, SolidesPleins) {
    Forme tourne = Pave({-50.0, 20.0, 10.0}, 30.0, 15.0, 25.0, 3);
    tourne.Alpha = 30.0;
    tourne.Beta = 40.0;
    tourne.Gamma = -25.0;
    Forme couche = Cylindre({40.0, -30.0, 0.0}, 20.0, 50.0, 2);
    couche.Beta = 65.0;
    VerifieVues({{Pave({0.0, 0.0, -20.0}, 25.0, 35.0, 30.0, 1), {}},
                 {tourne, {}},
                 {couche, {}},
                 {Boule({20.0, 40.0, 25.0}, 22.0, 4), {}}},
                "pleins");
}

TEST(Images, TrousDebouchants) {
    VerifieVues({{Plaque(),
                  {{Cylindre({-30.0, 0.0, -10.0}, 15.0, 20.0, 2), true},
                   {Cylindre({5.0, 10.0, -10.0}, 8.0, 20.0, 4), true},
                   {Cylindre({5.0, -15.0, -10.0}, 6.0, 20.0, 6), true},
                   {Pave({40.0, 0.0, -10.0}, 10.0, 25.0, 20.0, 3), true}}},
                 {Boule({-30.0, 0.0, -50.0}, 15.0, 5), {}}},
                "debouchants");
}

TEST(Images, TrousBorgnes) {
    Forme dessous = Cylindre({30.0, 15.0, -10.0}, 10.0, 12.0, 4);
    VerifieVues({{Plaque(),
                  {{Cylindre({-30.0, 0.0, -2.0}, 15.0, 12.0, 2), false},
                   {dessous, false},
                   {Pave({25.0, -20.0, 0.0}, 20.0, 8.0, 10.0, 3), false}}}},
                "borgnes");
}

TEST(Images, TrouPerceSonSolideSeul) {
    const Solide perce{Plaque(), {{Cylindre({0.0, 0.0, -10.0}, 20.0, 20.0, 2), true}}};
    const Solide autre{Pave({10.0, 0.0, -40.0}, 30.0, 30.0, 20.0, 4), {}};
    VerifieVues({perce, autre}, "seul");
    VerifieVues({autre, perce}, "seul_inverse");
}

TEST(Images, DeuxSolidesPerces) {
    const Solide devant{Plaque(),
                        {{Cylindre({-20.0, 0.0, -10.0}, 15.0, 20.0, 2), true},
                         {Pave({25.0, 0.0, -10.0}, 15.0, 20.0, 20.0, 3), true}}};
    const Solide derriere{Pave({0.0, 0.0, -60.0}, 50.0, 50.0, 20.0, 4),
                          {{Cylindre({10.0, 5.0, -60.0}, 18.0, 20.0, 6), true},
                           {Cylindre({-25.0, -10.0, -50.0}, 12.0, 10.0, 5), false}}};
    VerifieVues({devant, derriere}, "perces");
    VerifieVues({derriere, devant}, "perces_inverse");
}

TEST(Images, CylindrePerceEtPoche) {
    Forme fraise = Pave({70.0, 0.0, 20.0}, 8.0, 30.0, 10.0, 6);
    VerifieVues({{Cylindre({0.0, 0.0, -30.0}, 40.0, 60.0, 1),
                  {{Cylindre({0.0, 0.0, -30.0}, 20.0, 60.0, 2), true}}},
                 {Pave({70.0, 0.0, -20.0}, 20.0, 45.0, 50.0, 3), {{fraise, false}}}},
                "cylindre");
}

TEST(Images, UneEnveloppeNeGardeQueSonDedans) {
    Banc3D banc;
    EltGeo* plaque = banc.Ajoute({Plaque(), {{Cylindre({0.0, 0.0, -10.0}, 10.0, 20.0, 2), true}}});
    auto boule = std::make_unique<EltEnvBoule>();
    boule->Rayon = 40.0;
    boule->Ouverture = DeuxPi;
    boule->Style.Couleur = Gdk::Color("#0000ff");
    plaque->AjouteFils(BddCourante.AjouteFin(std::move(boule)));
    banc.Regarde(0, 0, 0);
    const Capture image = banc.Image();
    // The face of the plate is at 290 units: 2.49 pixels a unit about the middle.
    const auto teinte = [&image](double x, double y) {
        return Teinte(
            image.Pixel(300 + static_cast<int>(2.49 * x), 300 - static_cast<int>(2.49 * y)));
    };
    EXPECT_EQ(teinte(3, 3), 0) << "through the hole";
    EXPECT_EQ(teinte(25, 5), 1) << "the plate";
    EXPECT_EQ(teinte(-20, -25), 1);
    EXPECT_EQ(teinte(45, 5), 0) << "outside the ball";
    EXPECT_EQ(teinte(-35, 35), 0);
}
