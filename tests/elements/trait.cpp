#include "elements/trait.h"

#include <gtest/gtest.h>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"

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
    Trait t;
    Lecteur entree("-5 7 #f00 peinture 2 0 9 0.5 1e9 0 suite");
    entree >> t;
    EXPECT_EQ(entree.Mot(), "suite");
    Ecrivain sortie;  // The second word names no colour, and leaves the white.
    sortie << t;
    EXPECT_EQ(sortie.Texte(), "-5 0\n#ffff00000000\n#ffffffffffff\n 1 0 0 0.5 1e+09 0 ");
}
