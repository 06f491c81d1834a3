#include "elements/pointvek.h"

#include <cmath>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "model/echelle.h"
#include "verifie.h"

TEST(PointVek, AnglesDansLeurFormeNormale) {
    EXPECT_DOUBLE_EQ(Angle({0, 0}), -1.5707963267948966);
    EXPECT_DOUBLE_EQ(Angle({0, -3}), -1.5707963267948966);
    EXPECT_DOUBLE_EQ(Angle({-1, 0}), 3.141592653589793);
    EXPECT_DOUBLE_EQ(Angle({1, -1}), 5.497787143782138);
    // The start of an arc stays at 0 when its point is on the axis up to rounding.
    EXPECT_NEAR(Angle({1, -1e-12}), -1e-12, 1e-15);
    EXPECT_NEAR(AngleReduit(-1, 1e-6), 5.283185307179586, 1e-15);
    EXPECT_NEAR(AngleReduit(7, 1e-6), 0.7168146928204138, 1e-15);
    EXPECT_EQ(AngleReduit(-1e-9, 1e-6), 0);
    EXPECT_LT(AngleReduit(-1e300, 1e-6), DeuxPi);
}

TEST(PointVek, TourneRefleteAgranditDansCetOrdre) {
    TransformeColle t;
    t.Cos = 0;
    t.Sin = 1;
    t.Agrandissement = 2;
    t.SymetrieX = true;
    PointVek p(3, 1, 5);
    p.Transforme(t);  // (-1, 3), then (-1, -3).
    EXPECT_POINT(p, -2, -6);
    EXPECT_EQ(p.z, 10);
    t.SymetrieY = true;
    p = PointVek(3, 1);
    p.Transforme(t);
    EXPECT_POINT(p, 2, -6);
}

TEST(PointVek, ProjectionSuitLaTolerance) {
    EXPECT_POINT(Projection({7, 3}, {0, 1}, {2, 1}), 7, 1);
    // A line 0.002 long has a direction at this zoom, and none an eighth as near.
    EXPECT_POINT(Projection({7, 3}, {0, 0}, {0.002, 0}), 7, 0);
    for (int i = 0; i < 3; ++i)
        EchelleCourante.ZoomMoins();
    EXPECT_POINT(Projection({7, 3}, {0, 0}, {0.002, 0}), 0.001, 0);
    EchelleCourante.ZoomInit();
}

TEST(Nombres, FormeDesFichiers) {
    Ecrivain sortie;
    for (const double v : {1234.5678, 1e6, 0.1, 1e-5, -0.5, 123456.0, std::nan(""), HUGE_VAL})
        sortie << v << ' ';
    EXPECT_EQ(sortie.Texte(), "1234.57 1e+06 0.1 1e-05 -0.5 123456 0 0 ");
}

TEST(Nombres, CeQuiNeSeLitPasLaisseLaValeur) {
    for (const char* texte : {"1e400", "nan", "-infinity", "x", "", "  \n"}) {
        Lecteur entree(texte);
        double v = 4;
        entree >> v;
        EXPECT_TRUE(entree.Echec()) << texte;
        EXPECT_EQ(v, 4) << texte;
    }
    Lecteur entree("+12 -3.5e1\t2147483648");
    int n = 0;
    double v = 0;
    entree >> n >> v;
    EXPECT_TRUE(entree.PeutLire());
    EXPECT_EQ(v, -35);
    entree >> n;
    EXPECT_TRUE(entree.Echec());
    EXPECT_EQ(n, 12);
}
