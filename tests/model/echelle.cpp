#include "model/echelle.h"

#include "commun/hasard.h"
#include "elements/eltrectangle.h"
#include "elements/toile.h"
#include "elements/verifie.h"
#include "model/feuille.h"
#include "model/grille.h"

TEST(Echelle, PassageDessinPixels) {
    Echelle e;
    e.SetCentre(401, 301);  // The centre falls on the left of the middle.
    e.ZoomPlusEn({10, 20});
    EXPECT_POINT(e.VersEcran({13, 24}), 206, 142);
    EXPECT_EQ(e.Epsilon, 5e-7);
    EXPECT_EQ(e.Proche10, 5);
    e.ZoomMoinsEn({30, -20});
    EXPECT_POINT(e.VersEcran({33, -16}), 203, 146);
    Hasard hasard(6);
    for (int i = 0; i < 200; ++i) {
        e.ZoomRectangle(hasard.Point(1000), hasard.Point(1000), 400);
        const PointVek p = hasard.Point(1000);
        EXPECT_POINT(e.VersDessin(e.VersEcran(p)), p.x, p.y);
    }
    // The content of an image is enlarged, then turned about the drawing's origin.
    e.ZoomInit();
    e.Agrandissement = 2;
    e.Rotation = std::acos(-1.0) / 2;
    EXPECT_POINT(e.VersEcran({10, 0}), 200, 130);
}

TEST(Echelle, Zooms) {
    Echelle e;
    // The larger side takes the width, drawn in whatever direction.
    for (const PointVek& d : {PointVek(80, 20), PointVek(-80, 20), PointVek(20, 80),
                              PointVek(-20, -80), PointVek(-80, -20), PointVek(20, -80)}) {
        e.ZoomInit();
        e.ZoomRectangle({10, 10}, PointVek(10, 10) + d, 400);
        EXPECT_DOUBLE_EQ(e.Facteur, 5);
        EXPECT_POINT(e.Origine, 10 + d.x / 2, 10 + d.y / 2);
    }
    e.ZoomRectangle({3, 4}, {3, 4}, 400);
    EXPECT_DOUBLE_EQ(e.Facteur, 5);
    e.Haut();
    e.Droite();
    EXPECT_POINT(e.Origine, 5, 6);
    e.Bas();
    e.Bas();
    e.Gauche();
    EXPECT_POINT(e.Origine, 3, 2);

    e.ZoomInit();
    for (int i = 0; i < 30; ++i)
        e.ZoomMoins();
    EXPECT_EQ(e.Facteur, std::pow(0.5, 20));  // The first at or below 1e-6.
    const auto utilisable = [&e] {
        return e.Facteur > 0 && std::isfinite(e.Facteur) && e.Epsilon > 0 &&
               std::isfinite(e.Proche10) && e.Origine.EstFini();
    };
    for (int i = 0; i < 3000; ++i) {
        e.ZoomPlus();
        ASSERT_TRUE(utilisable());
    }
    EXPECT_GT(e.Facteur, 1e100);
    for (const auto& [bas, largeur] : {std::pair(-1e300, 400), {0.0, 0}, {-1e-300, 400}}) {
        e.ZoomRectangle({bas, 0}, {-bas, 5}, largeur);
        EXPECT_TRUE(utilisable());
    }
}

TEST(Grille, Marques) {
    Grille g;
    g.Affichee = true;
    g.Position = {5, 0};
    g.Pas = 12;
    const auto peint = [&g](const Gdk::Rectangle& exposee) {
        const Toile toile;
        TraceEcran trace = toile.Pinceau(exposee);
        g.Dessine(trace, Toile::Largeur, Toile::Hauteur);
        return toile.Lit();
    };
    const Gdk::Rectangle tout(0, 0, Toile::Largeur, Toile::Hauteur);
    // Around each node, at 9 + 12 i and 8 + 12 j: a pixel, a plus, crosses of 3 and 4.
    for (g.Forme = 1; g.Forme <= 4; ++g.Forme) {
        const int bras = g.Forme == 1 ? 0 : g.Forme == 2 ? 1 : g.Forme;
        Compare(peint(tout), [bras](int x, int y) {
            // The origin is marked by two wide strokes; no node stands at less than nothing.
            if ((std::abs(x - 5) < 6 && std::abs(y) < 6) || x < -96 || y > 76) return -1L;
            const int dx = std::abs((x + 109) % 12 - 6), dy = std::abs((90 - y) % 12 - 6);
            return Si(std::min(dx, dy) == 0 && std::max(dx, dy) <= bras);
        });
    }
    g.Forme = 1;
    for (const int pas : {5, 6}) {  // Too near for nodes: the origin mark alone.
        g.Pas = pas;
        EXPECT_EQ(Vu(peint(tout), 105 + pas, 80), pas > 5 ? Noir : Blanc);
        EXPECT_EQ(Vu(peint(tout), 105, 80), Noir);
    }
    // Nodes between pixels come out the same however the view is exposed.
    g.Pas = 7.3;
    const auto entiere = peint(tout);
    for (int gauche = -100; gauche < 100; gauche += 10)
        Compare(peint(Gdk::Rectangle(100 + gauche, 0, 10, Toile::Hauteur)), [&](int x, int y) {
            return x >= gauche && x < gauche + 10 ? Vu(entiere, 100 + x, 80 - y) : -1L;
        });
}

TEST(Grille, AccrocheEtPas) {
    Grille g;
    g.Position = {1, 2};
    PointVek p(17, -9);
    g.Aligne(p);
    EXPECT_POINT(p, 17, -9);
    EXPECT_TRUE(g.Bascule());
    g.Aligne(p);
    EXPECT_POINT(p, 21, -8);
    p = {15.9, -13.1};
    g.Aligne(p);
    EXPECT_POINT(p, 11, -18);
    for (int i = 0; i < 40; ++i)
        g.Plus();
    EXPECT_EQ(g.Pas, 10 * std::pow(2, 17));  // The first at or above a million.
    for (int i = 0; i < 90; ++i)
        g.Moins();
    EXPECT_EQ(g.Pas, 10 * std::pow(0.5, 24));  // The first at or below a millionth.
    g.SetPas(1e-6);
    EXPECT_LT(g.Pas, 1e-6);
    g.SetPas(3);
    EXPECT_EQ(g.Pas, 3);
}

TEST(Feuille, SonApercuEstUnCadre) {
    Feuille feuille;
    feuille.Papier = {120, 80};
    feuille.OrigineFeuille = {-40, 50};
    for (const double echelle : {2.0, 1e-6, 1e9, std::nan("")})  // The last ones cannot be.
        feuille.SetEchelle(echelle);
    for (const bool montre : {false, true}) {
        feuille.ApercuPage = montre;
        const Toile toile;
        TraceEcran trace = toile.Pinceau();
        feuille.DessineApercu(trace);
        const auto vue = toile.Lit();
        EXPECT_EQ(vue == Peint(EltRectangle({-40, 50}, {20, 10}, 0)), montre);
    }
}
