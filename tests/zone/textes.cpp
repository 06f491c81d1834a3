// Where a text stands, and what a file may hold of it.

#include <gtest/gtest.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "elements/lecteur.h"
#include "model/bddgeo.h"
#include "model/echelle.h"

namespace {

/// The lines of a record behind the common ones.
std::string Suite(const EltGeo& elt) {
    std::string texte = Record(elt);
    for (int ligne = 0; ligne < 5; ++ligne)
        texte = texte.substr(texte.find('\n') + 1);
    return texte;
}

}  // namespace

TEST(Texte, SonCoinSuitLAngle) {
    // The text runs from its anchor along its angle, its base side on the anchor: seen by the box
    // of what is painted, for a text longer than high.
    const double angles[] = {0.0, Pi / 2.0, Pi, -Pi / 2.0, Pi / 4.0, -3.0 * Pi / 4.0};
    for (const double angle : angles) {
        Banc banc;
        EltTxt txt;
        txt.SetTexte("MMMMMMMM");
        txt.Taille = 15;
        txt.Angle = angle;
        BddCourante.Ajoute(txt);
        banc.Zone.Vue.Redessine();
        const Capture image = banc.Image();
        double x = 0.0, y = 0.0;
        int nombre = 0;
        for (int j = 0; j < 400; ++j)
            for (int i = 0; i < 600; ++i)
                if (image.Pixel(i, j) < 0x808080) {
                    x += i - 300;
                    y += 200 - j;
                    ++nombre;
                }
        ASSERT_GT(nombre, 200);
        const PointVek milieu(x / nombre, y / nombre);
        const PointVek u(std::cos(angle), std::sin(angle));
        EXPECT_GT(Scalaire(milieu, u), 50.0) << angle;
        EXPECT_GT(Scalaire(milieu, Normale(u)), 5.0) << angle;
        EXPECT_LT(Scalaire(milieu, Normale(u)), 20.0) << angle;
    }
}

TEST(Texte, EnregistrementEtEncodages) {
    EltTxt txt;
    txt.SetTexte("deux\nlignes\tet\r\nplus");
    EXPECT_EQ(txt.Texte, "deux lignes et  plus");
    for (const auto& [degres, attendu] : {std::pair{270.0, -90.0}, {-181.0, 179.0}, {0.2, 1.0}}) {
        txt.SetAngleDegres(degres);
        EXPECT_EQ(txt.GetAngleDegres(), attendu);
    }
    // Cut at a whole character.
    txt.Texte = Glib::ustring(300, gunichar(0xe9));
    const std::string suite = Suite(txt);
    EXPECT_EQ(suite.find('\n'), 254u);

    const std::string tete = "1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n5 6 0\n";
    const auto lit = [&](const std::string& fin) {
        const std::string texte = tete + fin;
        Lecteur entree(texte);
        EltTxt lu;
        lu.Charge(entree);
        return lu;
    };
    EXPECT_EQ(lit("caf\xe9 \xb0\n0 10 1\nSans\n").Texte, "café °");
    EXPECT_TRUE(lit("a\r\n0 10 1\r\nSans\r\n").Centre_);
    EXPECT_EQ(lit("a\r\n0 10 1\r\nSans\r\n").Police, "Sans");
    EXPECT_EQ(lit("\n0 10 0\n\n").Texte, "");
    EXPECT_EQ(lit("coupé").Texte, "coupé");
    EXPECT_EQ(lit("a\nx").Taille, 10.0);
}
