// What is typed: points, lengths, what is wrong with them; and the special points beyond the usual.

#include <gtest/gtest.h>

#include <cmath>

#include "commun/banc.h"
#include "commun/evenements.h"
#include "elements/angles.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/etats.h"
#include "zone/lecturesaisie.h"

namespace {

/// The point, the length or the fault, as a text.
std::string Lit(const std::string& texte) {
    const Saisie saisie = LitSaisie(texte, {100, 50});
    char lu[80] = "";
    if (saisie.Sorte == Saisie::Point)
        std::snprintf(lu, sizeof lu, "%.9g ; %.9g", saisie.Lieu.x, saisie.Lieu.y);
    else if (saisie.Sorte == Saisie::Longueur)
        std::snprintf(lu, sizeof lu, "%.9g", saisie.Valeur);
    else if (saisie.Sorte == Saisie::Mot)
        return "mot";
    return lu[0] ? lu : saisie.Remarque.raw();
}

}  // namespace

TEST(Saisie, PointsLongueursEtFautes) {
    const char* const cas[][2] = {
        {" 12;-3,5 ", "12 ; -3.5"},
        {"12 -3.5", "12 ; -3.5"},
        {"12 - 3.5", "8.5"},
        {"(1 + 2) (3)", "3 ; 3"},
        {"@10;20", "110 ; 70"},
        {"@ 10<90", "100 ; 60"},
        {"10<180", "-10 ; 0"},
        {"95/2<360/6*2", "-23.75 ; 41.1362067"},
        {"@120-2*5;0", "210 ; 50"},
        {"sqrt(2)*30", "42.4264069"},
        {"30*sin(30)", "15"},
        {"asin(0.5)+pi-pi", "30"},
        {"2^3", "8"},
        {"", ""},
        {"segment", "mot"},
        {"é", "mot"},
        {"12;", "Il manque le second nombre après « ; »."},
        {"12<", "Il manque l'angle après « < »."},
        {";4", "Il manque le premier nombre devant « ; »."},
        {"1;2;3", "Un point a deux nombres."},
        {"@", "Il manque le point après « @ »."},
        {"@5", "Il manque « ; » et le second nombre."},
        {"12 abc", "« abc » n'est pas un nombre."},
        {"(12;3", "Il manque une parenthèse fermante."},
        {"12+", "Il manque quelque chose à la fin."},
        {"1/0", "Ce nombre est trop grand."},
        {"sqrt(-1)", "Ce calcul n'a pas de résultat."},
        {"1e300*1e300;0", "Ce nombre est trop grand."},
    };
    for (const auto& [texte, attendu] : cas)
        EXPECT_EQ(Lit(texte), attendu) << texte;
    const Saisie vers = PointVers(10, {100, 50}, {100, 80});
    EXPECT_EQ(Distance(vers.Lieu, {100, 60}), 0.0);
    EXPECT_EQ(PointVers(10, {1, 2}, {1, 2}).Sorte, Saisie::Faute);
}

TEST(Saisie, PointsSpeciauxAuChoix) {
    Banc banc;
    BddCourante.Ajoute(EltArc({0, 0}, 50, 0, Pi, 0));
    BddCourante.Ajoute(EltRectangle({100, 130}, {180, 60}, 0));
    OptionsAccrochage options;
    options.Actif = true;
    options.Supports = false;
    struct Cas {
        bool OptionsSpeciales::*Option;
        PointVek Pointeur, Attendu;
        const char* Genre;
    };
    const double c = 50.0 * std::cos(Pi / 4);
    // From (0, 100) the tangents touch the circle at 60 degrees on either side of the top, the
    // perpendicular meets the side of the rectangle at its height.
    const Cas tous[] = {
        {&OptionsSpeciales::Milieux, {2, 52}, {0, 50}, "milieu"},
        {&OptionsSpeciales::Milieux, {142, 63}, {140, 60}, "milieu"},
        {&OptionsSpeciales::Quadrants, {-2, 47}, {0, 50}, "quadrant"},
        {&OptionsSpeciales::Pieds, {3, 48}, {0, 50}, "perpendiculaire"},
        {&OptionsSpeciales::Pieds, {98, 97}, {100, 100}, "perpendiculaire"},
        {&OptionsSpeciales::Tangentes, {41, 27}, {50 * std::cos(Pi / 6), 25}, "tangente"},
        {&OptionsSpeciales::Proches, {c + 2, c + 2}, {c, c}, "sur l'élément"},
    };
    for (const Cas& cas : tous) {
        SCOPED_TRACE(cas.Genre);
        OptionsSpeciales speciales;
        const PointVek depart(0, 100);
        const auto sans = ChercheAccroches(BddCourante, cas.Pointeur, options, speciales, depart);
        speciales.*cas.Option = true;
        const auto avec = ChercheAccroches(BddCourante, cas.Pointeur, options, speciales, depart);
        ASSERT_EQ(avec.size(), sans.size() + 1);
        EXPECT_NEAR(Distance(avec.back().Point, cas.Attendu), 0.0, 1e-9);
        EXPECT_STREQ(avec.back().Genre, cas.Genre);
    }
    OptionsSpeciales speciales;
    speciales.Quadrants = true;
    EXPECT_TRUE(ChercheAccroches(BddCourante, {0, -50}, options, speciales, {}).empty())
        << "the arc does not pass there";
    speciales.Proches = true;
    const auto deux = ChercheAccroches(BddCourante, {5, 49.75}, options, speciales, {});
    ASSERT_EQ(deux.size(), 2u);
    EXPECT_STREQ(deux[0].Genre, "quadrant") << "though the other one is nearer";
    EXPECT_STREQ(deux[1].Genre, "sur l'élément");

    // The sides of a closed profile, and half a turn about (-200, 0) to (-200, -40).
    EltProfil profil;
    profil.Position = {-200, -20};
    profil.Sommets = {SommetProfil(PointVek(0, 20)), SommetProfil(PointVek(0, -20), 20),
                      SommetProfil(PointVek(-60, -20))};
    BddCourante.Ajoute(profil);
    speciales = {};
    speciales.Milieux = true;
    for (const PointVek& milieu : {PointVek(-180, -20), PointVek(-230, -40), PointVek(-230, -20)}) {
        const auto vus =
            ChercheAccroches(BddCourante, milieu + PointVek(1, 1), options, speciales, {});
        ASSERT_EQ(vus.size(), 1u) << milieu.x << ' ' << milieu.y;
        EXPECT_NEAR(Distance(vus[0].Point, milieu), 0.0, 1e-9);
    }

    // A crossing far away hides the end that is near where that is not wished.
    BddCourante.Vide();
    BddCourante.Ajoute(EltSegment({0, 0}, {100, 0}, 0));
    BddCourante.Ajoute(EltSegment({95, 8}, {300, 20}, 0));
    options.Supports = true;
    const auto bout = ChercheAccroches(BddCourante, {99, 1}, options, {}, {});
    ASSERT_EQ(bout.size(), 1u);
    EXPECT_STREQ(bout[0].Genre, "extrémité");
    speciales = {};
    speciales.BoutsDevant = false;
    EXPECT_TRUE(ChercheAccroches(BddCourante, {99, 1}, options, speciales, {}).empty());
}

TEST(Saisie, LaVueEtSesPrecedentes) {
    Banc banc;
    banc.Zone.ToutVoir();
    EXPECT_EQ(EchelleCourante.Facteur, 1.0) << "the first view of an empty drawing";
    BddCourante.Ajoute(EltArc({1000, 500}, 200, 0, Pi / 2, 0));
    banc.Zone.ToutVoir();
    // 200 by 200 in 600 by 400 pixels, of which 5 % are left on each side.
    EXPECT_NEAR(EchelleCourante.Facteur, 0.9 * 400 / 200, 1e-9);
    EXPECT_NEAR(Distance(EchelleCourante.Origine, {1100, 600}), 0.0, 1e-9);
    const double facteur = EchelleCourante.Facteur;

    // The point under the pointer stays there.
    banc.Zone.MoletteProgressive = true;
    banc.Souris.Tourne(150, 100, GDK_SCROLL_UP);
    const PointVek tenu = banc.Zone.Souris.Position();
    banc.Souris.Tourne(150, 100, GDK_SCROLL_UP);
    EXPECT_NEAR(Distance(banc.Zone.Souris.Position(), tenu), 0.0, 1e-9);
    EXPECT_NEAR(EchelleCourante.Facteur, facteur * 1.25 * 1.25, 1e-9);
    // A drag is one step, and the sheet stays under the pointer.
    banc.Souris.Presse(300, 200, 2);
    const PointVek saisi = banc.Zone.Souris.Position();
    for (const double x : {310.0, 400.0, 450.0})
        EnvoieMouvement(banc.Zone, x, 250, GDK_BUTTON2_MASK);
    EXPECT_NEAR(Distance(banc.Zone.Souris.Position(), saisi), 0.0, 1e-9);
    const Capture avant = banc.Image();
    for (int pas = 0; pas < 3; ++pas)
        banc.Zone.VuePrecedente();
    EXPECT_GT(banc.Image().Ecart(avant), 100);
    EXPECT_NEAR(EchelleCourante.Facteur, facteur, 1e-12);
    EXPECT_NEAR(Distance(EchelleCourante.Origine, {1100, 600}), 0.0, 1e-9);
    for (int pas = 0; pas < 40; ++pas)
        banc.Zone.VuePrecedente();
    EXPECT_EQ(EchelleCourante.Facteur, 1.0);
}
