#include <gtest/gtest.h>

#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/trait.h"

TEST(Nombres, FormeDesFichiers) {
    Ecrivain sortie;
    for (const double v : {1234.5678, 1e6, 0.1, 1e-5, -0.5, -0.0, 123456.0, std::nan(""), HUGE_VAL})
        sortie << v << ' ';
    EXPECT_EQ(sortie.Texte(), "1234.57 1e+06 0.1 1e-05 -0.5 0 123456 0 0 ");
}

TEST(Nombres, CeQuiNeSeLitPasLaisseLaValeur) {
    for (const char* texte : {"1e400", "nan", "-infinity", "x", "", "  \n"}) {
        Lecteur entree(texte);
        double v = 4;
        entree >> v;
        EXPECT_TRUE(entree.Echec()) << texte;
        EXPECT_EQ(v, 4) << texte;
    }
    Lecteur entree("+12 -3.5e1\t1e-320 2147483648");
    int n = 0;
    double v = 0, infime = 0;
    entree >> n >> v >> infime;
    EXPECT_TRUE(entree.PeutLire());
    EXPECT_EQ(v, -35);
    EXPECT_EQ(infime, 1e-320);
    entree >> n;
    EXPECT_TRUE(entree.Echec());
    EXPECT_EQ(n, 12);
}

TEST(Trait, BornesDesReglages) {
    Trait t;
    t.SetPasHachure(1.5);
    EXPECT_EQ(t.PasHachure, 2);
    t.SetPasHachure(2.5);
    EXPECT_EQ(t.PasHachure, 2.5);
    const double donnes[] = {0.5, 120, -120, -30, 13, 44.2}, gardes[] = {0, 90, -90, -30, 13, 45};
    for (int i = 0; i < 6; ++i) {
        t.SetAngleHachureDegres(donnes[i]);
        EXPECT_EQ(t.AngleHachureDegres(), gardes[i]);
    }
}

TEST(Trait, LectureDeValeursEtrangeres) {
    const auto relu = [](const char* texte) {
        Trait t;
        Lecteur entree(texte);
        entree >> t;
        EXPECT_EQ(entree.Mot(), "suite");
        Ecrivain sortie;
        sortie << t;
        return sortie.Texte();
    };
    // The second word names no colour, and leaves the white.
    EXPECT_EQ(relu("-5 7 #f00 peinture 2 0 9 0.5 1e9 0 suite"),
              "-5 0\n#ffff00000000\n#ffffffffffff\n 1 0 0 0.5 1e+09 0 ");
    EXPECT_EQ(relu("3 3 #12g456789abc #123456789abc 0 1 1 0 4 7 suite"),
              "3 3\n#000000000000\n#123456789abc\n 0 1 1 0 4 0 ");
    EXPECT_EQ(relu("3 -1 blue #123456789ab 0 1 1 0 4 7 suite"),
              "3 0\n#00000000ffff\n#ffffffffffff\n 0 1 1 0 4 0 ");
}
