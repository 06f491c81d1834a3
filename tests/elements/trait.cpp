#include "elements/trait.h"

#include <gtest/gtest.h>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"

TEST(Trait, BornesDesReglages) {
    Trait t;
    EXPECT_EQ(t.PasHachure, 1.0);
    t.SetPasHachure(1.5);
    EXPECT_EQ(t.PasHachure, 2.0);
    t.SetPasHachure(2.5);
    EXPECT_EQ(t.PasHachure, 2.5);
    for (const auto& [donne, garde] : {std::pair<double, double>{0.5, 0},
                                       {120, 90},
                                       {-120, -90},
                                       {-30, -30},
                                       {13, 13},
                                       {44.2, 45}}) {
        t.SetAngleHachureDegres(donne);
        EXPECT_EQ(t.AngleHachureDegres(), garde) << donne;
    }
}

TEST(Trait, Enregistrement) {
    Trait t;
    t.Epaisseur = 3;
    t.StyleLigne = Pointille;
    t.Couleur.set_rgb(0xffff, 0x0a0b, 0);
    t.Remplissage = true;
    t.Contour = false;
    t.Hachure = 1;
    t.AngleHachure = -0.785398163;
    t.PasHachure = 7.5;
    Ecrivain sortie;
    sortie << t;
    const std::string texte = "3 3\n#ffff0a0b0000\n#ffffffffffff\n 1 0 1 -0.785398 7.5 0 ";
    EXPECT_EQ(sortie.Texte(), texte);
    Trait lu;
    Lecteur entree(texte);
    entree >> lu;
    Ecrivain reecrit;
    reecrit << lu;
    EXPECT_EQ(reecrit.Texte(), texte);
}

TEST(Trait, LectureDeValeursEtrangeres) {
    Trait t;
    Lecteur entree("-5 7 #f00 peinture 2 0 9 0.5 1e9 0 suite");
    entree >> t;
    EXPECT_FALSE(entree.Echec());
    EXPECT_EQ(entree.Mot(), "suite");
    EXPECT_EQ(t.Epaisseur, -5);
    EXPECT_EQ(t.StyleLigne, Continu);
    EXPECT_EQ(t.Couleur, Gdk::Color("#ff0000"));
    EXPECT_EQ(t.CouleurFond, Gdk::Color("#ffffff"));  // A word that names no colour.
    EXPECT_TRUE(t.Remplissage);
    EXPECT_FALSE(t.Contour);
    EXPECT_EQ(t.Hachure, 0);
    EXPECT_EQ(t.PasHachure, 1e9);
}
