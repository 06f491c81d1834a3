#include "elements/eltprofil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "commun/record.h"
#include "elements/lecteur.h"
#include "toile.h"

namespace {

const char Debut[] = "1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n1 2 0\n";

EltProfil Charge(const std::string& suite) {
    const std::string texte = Debut + suite;
    Lecteur entree(texte);
    EltProfil profil;
    profil.Charge(entree);
    return profil;
}

}  // namespace

TEST(EltProfil, Enregistrement) {
    const std::string record = "1\n3\n0 0 0 10 0 0R-25  20 -5.5 3 \n";
    EXPECT_EQ(Record(Charge(record)), "5 " + (Debut + record));
    EXPECT_FALSE(Charge("0\n0\n\n").Ferme);
    // The count is a bound and no promise; a vertex enters when all of it could be read.
    const std::pair<const char*, std::size_t> nombres[] = {{"2000000000\n1 2 3 4 5 6 ", 2},
                                                           {"2000000000\n1 2 3 4 5 6", 2},
                                                           {"-5\n1 2 3 ", 0},
                                                           {"99999999999\n1 2 3 ", 0},
                                                           {"3\n1 2 3R4  5 6 7R", 1},
                                                           {"3\n1 2 3 R4  5 6 7 ", 1},
                                                           {"3\n1 2 3 4 nan 6 7 8 9 ", 1},
                                                           {"", 0}};
    for (const auto& [suite, nombre] : nombres)
        EXPECT_EQ(Charge(std::string("1\n") + suite).Sommets.size(), nombre) << suite;
}

TEST(EltProfil, SurfaceBordeeDArcs) {
    // A square of which the upper side is half a circle, outward or inward.
    for (const double cote : {29.05, 40.0, 25.5, 15.73})
        for (const double decalage : {0.0, 0.3, 0.5})
            for (const bool dehors : {true, false}) {
                EltProfil profil;
                profil.Debut({decalage, -20});
                for (const PointVek& p : {PointVek(-cote, -50), {cote, -50}, {cote, 0}})
                    profil.Ajoute(p + PointVek(decalage, 0));
                profil.Sommets.emplace_back(PointVek(-cote, 20), dehors ? -cote : cote);
                profil.Style.Couleur = Gdk::Color("#ff0000");
                profil.Style.CouleurFond = Gdk::Color("#0000ff");
                profil.Style.Remplissage = true;
                const auto image = Peint(profil);
                EXPECT_TRUE(image == Peint(profil, true)) << "in a band";
                SCOPED_TRACE(testing::Message() << cote << ' ' << decalage << ' ' << dehors);
                Compare(image, [&](int j, int i) {
                    const double x = j - decalage, y = i;
                    const double carre = std::max({std::abs(x) - cote, -50 - y, y});
                    const double disque = std::hypot(x, y) - cote;
                    // Negative within the surface.
                    const double bord = dehors ? std::min(carre, disque) : std::max(carre, -disque);
                    const auto vu = [&](int dx, int dy) {
                        return Vu(image, 100 + j + dx, 80 - i + dy);
                    };
                    if (std::abs(x) < 6 && std::abs(y + 20) < 6) return -1L;
                    if (bord > 1.5) return Si(false);
                    // The outline lets nothing of the background through.
                    const bool perce = vu(-1, 0) == Blanc || vu(1, 0) == Blanc ||
                                       vu(0, -1) == Blanc || vu(0, 1) == Blanc;
                    if (bord < -2) return Si(true, Bleu);
                    return perce && vu(0, 0) == Bleu ? Si(true, Rouge) : -1L;
                });
            }
}

TEST(EltProfil, HachuresEtContours) {
    EltProfil profil;
    profil.Debut({0, 60});
    for (const PointVek& p : {PointVek(-50, -50), {50, -50}, {50, 50}, {-50, 50}})
        profil.Ajoute(p);
    profil.Style.CouleurFond = Gdk::Color("#0000ff");
    profil.Style.Hachure = 1;
    profil.Style.PasHachure = 10;
    const auto bleus = [](const std::vector<unsigned>& image) {
        return static_cast<double>(std::count(image.begin(), image.end(), Bleu));
    };
    EXPECT_NEAR(bleus(Peint(profil)), 100 * 90, 300);
    profil.Style.Contour = false;
    profil.Style.Couleur = Gdk::Color("#ff0000");
    EXPECT_NE(Vu(Peint(profil), 100 - 50, 80 + 3), Rouge) << "no outline";
    // A link that does not reach is left out; its ends and the others stay.
    profil.Ferme = false;
    profil.Sommets[1] = SommetProfil(profil.Sommets[1], 20);
    const auto ouvert = Peint(profil);
    EXPECT_EQ(bleus(ouvert) + (Vu(ouvert, 100, 80 + 50) == Rouge), 0);
    EXPECT_EQ(Vu(ouvert, 100 + 50, 80), Rouge);
}

TEST(EltProfil, LointainEtImmense) {
    for (const double loin : {1e5, 1e9, 1e15, 1e100}) {
        SCOPED_TRACE(loin);
        EltProfil profil;
        profil.Debut({0, loin});
        // Everything on the left of x = 0; the other links bulge far away.
        profil.Ajoute({0, -loin});
        profil.Ajoute({0, loin});
        profil.Sommets.emplace_back(PointVek(-loin, 0), -loin);
        profil.Style.Remplissage = true;
        profil.Style.Contour = false;
        profil.Style.CouleurFond = Gdk::Color("#0000ff");
        const auto image = Peint(profil);
        EXPECT_EQ(Vu(image, 3, 80), Bleu);
        EXPECT_EQ(Vu(image, 98, 3), Bleu);
        EXPECT_EQ(Vu(image, 102, 150), Blanc);
    }
    EltProfil profil;
    // The time that a surface takes is bounded, however many vertices it has.
    profil.Style.Remplissage = true;
    for (int i = 0; i < 100000; ++i)
        profil.Sommets.emplace_back(PointVek(i * 0.0018 - 90, i % 2 * 120 - 60));
    Peint(profil);
}
