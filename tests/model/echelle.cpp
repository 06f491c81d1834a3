#include "model/echelle.h"

#include "commun/hasard.h"
#include "elements/toile.h"
#include "elements/verifie.h"
#include "model/grille.h"

TEST(Echelle, PassageDessinPixels) {
    Echelle e;
    e.SetCentre(401, 301);  // The centre falls on the left of the middle.
    e.ZoomPlusEn({10, 20});
    EXPECT_POINT(e.VersEcran({13, 24}), 206, 142);
    EXPECT_EQ(e.Epsilon, 5e-7);
    EXPECT_EQ(e.Proche10, 5);
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
    e.Gauche();
    EXPECT_POINT(e.Origine, 3, 4);
    e.ZoomRectangle({0, 0}, {9e-7, 9e-7}, 400);  // The diagonal counts as the size.
    EXPECT_GT(e.Facteur, 1e8);

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
    e.ZoomRectangle({-1e300, 0}, {1e300, 5}, 400);
    EXPECT_TRUE(utilisable());
    e.ZoomRectangle({0, 0}, {50, 50}, 0);
    EXPECT_TRUE(utilisable());
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
    const int pixels[] = {1, 5, 13, 17};
    for (g.Forme = 1; g.Forme <= 4; ++g.Forme) {
        const auto image = peint(tout);
        int noirs = 0;  // Around one node.
        for (int i = -5; i <= 5; ++i)
            for (int j = -5; j <= 5; ++j)
                noirs += Vu(image, 153 + i, 44 + j) == Noir;
        EXPECT_EQ(noirs, pixels[g.Forme - 1]);
        EXPECT_EQ(Vu(image, 153, 44), Noir);
    }
    g.Forme = 1;
    g.Pas = 5;  // Too near for nodes: the origin mark alone.
    EXPECT_EQ(Vu(peint(tout), 110, 80), Blanc);
    EXPECT_EQ(Vu(peint(tout), 105, 80), Noir);
    g.Pas = 6;
    EXPECT_EQ(Vu(peint(tout), 111, 80), Noir);
    // Nodes between pixels come out the same however the view is exposed.
    g.Pas = 7.3;
    const auto entiere = peint(tout);
    for (int x = 0; x < Toile::Largeur; x += 10) {
        const auto partie = peint(Gdk::Rectangle(x, 0, 10, Toile::Hauteur));
        for (int i = x; i < x + 10; ++i)
            for (int y = 0; y < Toile::Hauteur; ++y)
                ASSERT_EQ(Vu(partie, i, y), Vu(entiere, i, y)) << i << ", " << y;
    }
}
