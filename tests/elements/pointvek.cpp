#include "elements/pointvek.h"

#include <gtest/gtest.h>

#include <cmath>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/liste.h"
#include "model/echelle.h"

TEST(PointVek, AnglesDansLeurFormeNormale) {
    EXPECT_DOUBLE_EQ(Angle({0.0, 0.0}), -1.5707963267948966);
    EXPECT_DOUBLE_EQ(Angle({0.0, -3.0}), -1.5707963267948966);
    EXPECT_DOUBLE_EQ(Angle({0.0, 3.0}), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(Angle({-1.0, 0.0}), 3.141592653589793);
    EXPECT_DOUBLE_EQ(Angle({1.0, -1.0}), 5.497787143782138);
    // The start of an arc stays at 0 when its point is on the axis up to rounding.
    EXPECT_LT(Angle({1.0, -1e-12}), 0.0);
    EXPECT_GT(Angle({1.0, -1e-12}), -1e-11);

    EXPECT_NEAR(AngleReduit(-1.0, 1e-6), 5.283185307179586, 1e-15);
    EXPECT_NEAR(AngleReduit(7.0, 1e-6), 0.7168146928204138, 1e-15);
    EXPECT_EQ(AngleReduit(-1e-9, 1e-6), 0.0);
    EXPECT_GE(AngleReduit(-1e300, 1e-6), 0.0);
    EXPECT_LT(AngleReduit(-1e300, 1e-6), DeuxPi);
    EXPECT_EQ(DegresEntiers(EnRadians(13.0)), 13.0);
    EXPECT_EQ(DegresEntiers(EnRadians(13.2)), 14.0);
}

TEST(PointVek, TourneRefleteAgranditDansCetOrdre) {
    TransformeColle t;
    t.Cos = 0.0;
    t.Sin = 1.0;
    t.Agrandissement = 2.0;
    t.SymetrieX = true;
    PointVek p(3.0, 1.0, 5.0);
    p.Transforme(t);  // (-1, 3), then (-1, -3).
    EXPECT_EQ(p.x, -2.0);
    EXPECT_EQ(p.y, -6.0);
    EXPECT_EQ(p.z, 10.0);
    t.SymetrieY = true;
    p = PointVek(3.0, 1.0, 5.0);
    p.Transforme(t);
    EXPECT_EQ(p.x, 2.0);
    EXPECT_EQ(p.y, -6.0);
}

TEST(PointVek, ProjectionSuitLaTolerance) {
    const PointVek pied = Projection({7.0, 3.0}, {0.0, 1.0}, {2.0, 1.0});
    EXPECT_EQ(pied.x, 7.0);
    EXPECT_EQ(pied.y, 1.0);
    // A line 0.002 long has a direction at this zoom, and none an eighth as near.
    EXPECT_NEAR(Projection({7.0, 3.0}, {0.0, 0.0}, {0.002, 0.0}).x, 7.0, 1e-9);
    for (int i = 0; i < 3; ++i)
        EchelleCourante.ZoomMoins();
    EXPECT_EQ(Projection({7.0, 3.0}, {0.0, 0.0}, {0.002, 0.0}).x, 0.001);
    EchelleCourante.ZoomInit();
    EXPECT_EQ(Norme(Unitaire({})), 0.0);
    EXPECT_EQ(Distance({1.0, 2.0, 9.0}, {4.0, 6.0, -9.0}), 5.0);
}

TEST(Nombres, FormeDesFichiers) {
    Ecrivain sortie;
    for (const double v :
         {1234.5678, 1e6, 0.1, 1e-5, -0.5, 123456.0, 1e300, std::nan(""), HUGE_VAL})
        sortie << v << ' ';
    sortie << -7 << ' ' << true << ' ' << false;
    EXPECT_EQ(sortie.Texte(), "1234.57 1e+06 0.1 1e-05 -0.5 123456 1e+300 0 0 -7 1 0");
}

TEST(Nombres, CeQuiNeSeLitPasLaisseLaValeur) {
    for (const char* texte : {"1e400", "nan", "inf", "-infinity", "x", "", "  \n"}) {
        Lecteur entree(texte);
        double v = 4.0;
        int n = 5;
        entree >> v >> n;
        EXPECT_TRUE(entree.Echec()) << texte;
        EXPECT_EQ(v, 4.0) << texte;
        EXPECT_EQ(n, 5) << texte;
    }
    Lecteur entree("+12 -3.5e1\t2147483648");
    int n = 0;
    double v = 0.0;
    entree >> n >> v;
    EXPECT_EQ(n, 12);
    EXPECT_EQ(v, -35.0);
    EXPECT_TRUE(entree.PeutLire());
    entree >> n;
    EXPECT_EQ(n, 12);
    EXPECT_TRUE(entree.Echec());
}

TEST(Liste, RetireEtDetruitCeQuElleDoit) {
    struct Temoin {
        explicit Temoin(int& compte) : Compte(compte) {}
        ~Temoin() { ++Compte; }
        int& Compte;
    };
    int detruits = 0;
    {
        Liste<Temoin> liste(true);
        auto* premier = new Temoin(detruits);
        auto* dernier = new Temoin(detruits);
        liste.Ajoute(premier);
        liste.Ajoute(dernier);
        liste.AjouteDebut(new Temoin(detruits));
        EXPECT_TRUE(liste.Retire(dernier));
        EXPECT_FALSE(liste.Retire(dernier));
        EXPECT_EQ(detruits, 0);
        liste.Ajoute(dernier);  // The tail is right after the removal of the former one.
        EXPECT_EQ(std::vector<Temoin*>(liste.begin(), liste.end())[2], dernier);
        EXPECT_EQ(liste.Nombre(), 3);
    }
    EXPECT_EQ(detruits, 3);
}
