#include "elements/eltsegment.h"

#include <vector>

#include "commun/hasard.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "verifie.h"

namespace {

void VerifieSegment(const EltSegment& s, const PointVek& origine, const PointVek& extremite) {
    EXPECT_POINT(s.Origine, origine.x, origine.y);
    EXPECT_POINT(s.Extremite, extremite.x, extremite.y);
    EXPECT_POINT(s.Position, (origine.x + extremite.x) / 2, (origine.y + extremite.y) / 2);
}

}  // namespace

TEST(EltSegment, Distances) {
    const EltSegment s({0, 0}, {30, 40}, 0);
    EXPECT_DOUBLE_EQ(s.Distance({25, 0}), 20);  // Its foot is (9, 12).
    EXPECT_DOUBLE_EQ(s.Distance({-3, -4}), 5);
    EXPECT_DOUBLE_EQ(s.Distance({33, 44}), 5);
    EXPECT_DOUBLE_EQ(s.DistanceSupport({-50, 0}), 40);
    EXPECT_DOUBLE_EQ(EltDroite({0, 0}, {30, 40}, 0).Distance({-50, 0}), 40);
    const EltSegment nul({5, 5}, {5, 5}, 0);
    EXPECT_DOUBLE_EQ(nul.Distance({8, 9}), 5);
    EXPECT_DOUBLE_EQ(nul.DistanceSupport({8, 9}), 5);
    EXPECT_POINT(nul.Projete({8, 9}), 5, 5);

    const EltSegment plat({0, 0}, {10, 0}, 0);
    EXPECT_POINT(plat.PointProche({7.5, 3}), 5, 0);  // A tie goes to the middle.
    EXPECT_POINT(plat.PointProche({2.4, 3}), 0, 0);
}

TEST(EltSegment, Poignees) {
    EltSegment s({0, 0}, {100, 0}, 0);
    const auto saisit = [&s](double x, double y) {
        PoigneeCourante = 0;
        s.DebutDeforme({x, y});
        return PoigneeCourante;
    };
    EXPECT_EQ(saisit(0, 10), 1);  // The limit itself is too far.
    EXPECT_EQ(saisit(103, -3), 2);
    s.Deforme({10, 20});
    VerifieSegment(s, {0, 0}, {110, 20});
    EXPECT_EQ(saisit(0, 9.99), 3);
    s.Deforme({10, 20});
    VerifieSegment(s, {10, 20}, {110, 20});
    EXPECT_EQ(saisit(60, 20), 1);
    s.Deforme({1, 2});
    VerifieSegment(s, {11, 22}, {111, 22});
    s.SetLongueur(10);
    EXPECT_EQ(saisit(56, 22), 1);  // The middle wins over a nearer end.
    PoigneeCourante = 0;
    s.Deforme({5, 5});
    VerifieSegment(s, {56, 22}, {66, 22});
}

TEST(EltSegment, Reglages) {
    EltSegment s({0, 0}, {6, 8}, 0);
    s.SetLongueur(20);
    VerifieSegment(s, {-3, -4}, {9, 12});
    s.SetAngle(Pi / 2);
    VerifieSegment(s, {3, -6}, {3, 14});
    s.SetExtremiteSymetrique({10, 4});
    VerifieSegment(s, {-4, 4}, {10, 4});
    s.SetOrigine({0, 0});
    VerifieSegment(s, {0, 0}, {10, 4});
    s.SetPoints(s.Extremite, s.Origine);
    VerifieSegment(s, {10, 4}, {0, 0});

    EltDroite droite({0, 0}, {6, 8}, 2);
    droite.SetOrigine({10, 10});
    VerifieSegment(droite, {10, 10}, {16, 18});
    // A line drawn by its two points goes by the rectangle's code, a copy of it by its own.
    EXPECT_EQ(droite.Nom(), "RECTANGLE");
    EXPECT_EQ(droite.Clone()->Nom(), "DROITE");
}

TEST(EltSegment, Constructions) {
    const EltSegment base({0, 0}, {6, 8}, 0);
    EltSegment s;
    s.ParalleleCote(5, base, {10, 0});
    VerifieSegment(s, {4, -3}, {10, 5});
    s.ParalleleCote(5, base, {0, 10});
    VerifieSegment(s, {-4, 3}, {2, 11});
    s.Orthogonal(base);
    VerifieSegment(s, {-4, 3}, {4, -3});

    const EltArc cercle({100, 50}, 5, 0, 1, 0);  // An arc counts as its full circle.
    s.Tangente({113, 50}, cercle, false);
    VerifieSegment(s, {100 + 25 / 13.0, 50 - 60 / 13.0}, {113, 50});
    s.Accroche({113, 50}, cercle, true);
    VerifieSegment(s, {100 + 25 / 13.0, 50 + 60 / 13.0}, {113, 50});
    s.Tangente({100, 47}, cercle, true);
    VerifieSegment(s, {100, 45}, {100, 47});
    s.Tangente({100, 50}, cercle, false);
    VerifieSegment(s, {100, 50}, {100, 50});
    s.Accroche({1, 1}, base, true);
    VerifieSegment(s, {1, 1}, {7, 9});
    s.Accroche({1, 1}, EltRectangle({0, 8}, {6, 0}, 0), true);
    VerifieSegment(s, {3, 4}, {1, 1});
}

TEST(EltSegment, TangenteCommune) {
    const EltArc a({0, 0}, 3, 0, DeuxPi, 0), b({10, 0}, 3, 0, DeuxPi, 0);
    EltSegment s;
    ASSERT_TRUE(s.Tangente2Arcs({5, -2}, a, b));
    VerifieSegment(s, {0, -3}, {10, -3});
    // Both inner ones have the same middle: the earlier wins.
    ASSERT_TRUE(s.Tangente2Arcs({5, 0}, a, b));
    VerifieSegment(s, {1.8, 2.4}, {8.2, -2.4});
    // Circles that overlap have the outer ones alone.
    ASSERT_TRUE(s.Tangente2Arcs({2, -0.1}, a, EltArc({4, 0}, 3, 0, 1, 0)));
    VerifieSegment(s, {0, -3}, {4, -3});
    EXPECT_FALSE(s.Tangente2Arcs({5, 2}, a, EltArc({0, 0}, 8, 0, DeuxPi, 0)));
    EXPECT_FALSE(s.Tangente2Arcs({5, 2}, a, EltArc({1, 1}, 8, 0, DeuxPi, 0)));
    EXPECT_FALSE(s.Tangente2Arcs({5, 2}, a, EltSegment({0, 9}, {9, 9}, 0)));
    VerifieSegment(s, {0, -3}, {4, -3});
}

TEST(EltSegment, TangenteCommuneAuHasard) {
    Hasard hasard(1);
    for (int essai = 0; essai < 300; ++essai) {
        const EltArc a(hasard.Point(100), hasard.Reel(1, 50), 0, DeuxPi, 0);
        const EltArc b(hasard.Point(100), hasard.Reel(1, 50), 0, DeuxPi, 0);
        const double d = Distance(a.Position, b.Position);
        std::vector<PointVek> clics, milieux;
        for (int i = 0; i < 40; ++i) {
            EltSegment s;
            clics.push_back(hasard.Point(150));
            const bool trouvee = s.Tangente2Arcs(clics.back(), a, b);
            ASSERT_EQ(trouvee, d >= std::abs(a.Rayon - b.Rayon));
            if (!trouvee) break;
            EXPECT_NEAR(Distance(s.Origine, a.Position), a.Rayon, 1e-9);
            EXPECT_NEAR(Distance(s.Extremite, b.Position), b.Rayon, 1e-9);
            EXPECT_NEAR(Scalaire(s.Origine - a.Position, s.Extremite - s.Origine), 0, 1e-8);
            EXPECT_NEAR(Scalaire(s.Extremite - b.Position, s.Extremite - s.Origine), 0, 1e-8);
            milieux.push_back(s.Position);
        }
        // No other one that was found is nearer to the click.
        for (std::size_t i = 0; i < milieux.size(); ++i)
            for (const PointVek& autre : milieux)
                EXPECT_LE(Distance(clics[i], milieux[i]), Distance(clics[i], autre) + 1e-9);
    }
}

TEST(EltRectangle, SeLitDansTousLesSensEtResteOrdonne) {
    for (const double x : {0.0, 10.0})
        for (const double y : {0.0, 20.0}) {
            EltRectangle r({x, y}, {10 - x, 20 - y}, 0);
            EXPECT_DOUBLE_EQ(r.Distance({3, 10}), 3);
            EXPECT_DOUBLE_EQ(r.Distance({13, 24}), 5);
            EXPECT_DOUBLE_EQ(r.DistanceSupport({5, 30}), 10);
            EXPECT_POINT(r.PointProche({9, 18}), 10, 20);
            EXPECT_POINT(r.PointProche({5, 10}), 0, 20);  // A tie goes to the upper left.
            EXPECT_TRUE(r.Contient(EltGeo({9.9, 0.1}, 0)));
            EXPECT_FALSE(r.Contient(EltGeo({10, 5}, 0)));
            r.SetOrigine(r.Origine + PointVek(5, 5));
            EXPECT_POINT(r.Coins().BasDroite, 15, 5);
            TransformeColle miroir;
            miroir.SymetrieX = miroir.SymetrieY = true;
            r.Transforme(miroir);
            VerifieSegment(r, {-15, -5}, {-5, -25});
            PoigneeCourante = 2;
            r.Deforme({-30, 40});  // Its corner goes to (-35, 15).
            VerifieSegment(r, {-35, 15}, {-15, -5});
        }
}
