#include "elements/eltsegment.h"

#include <gtest/gtest.h>

#include <vector>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "hasard.h"
#include "verifie.h"

TEST(EltSegment, Distances) {
    const EltSegment s({0, 0}, {30, 40}, 0);
    EXPECT_DOUBLE_EQ(s.Distance({25, 0}), 20.0);  // Its foot is (9, 12).
    EXPECT_DOUBLE_EQ(s.Distance({-3, -4}), 5.0);
    EXPECT_DOUBLE_EQ(s.Distance({33, 44}), 5.0);
    EXPECT_NEAR(s.DistanceSupport({33, 44}), 0.0, 1e-6);
    EXPECT_DOUBLE_EQ(s.DistanceSupport({-50, 0}), 40.0);
    EXPECT_DOUBLE_EQ(EltDroite({0, 0}, {30, 40}, 0).Distance({-50, 0}), 40.0);

    const EltSegment nul({5, 5}, {5, 5}, 0);
    EXPECT_DOUBLE_EQ(nul.Distance({8, 9}), 5.0);
    EXPECT_DOUBLE_EQ(nul.DistanceSupport({8, 9}), 5.0);
    EXPECT_POINT(nul.Projete({8, 9}), 5, 5);
    EXPECT_FALSE(nul.EstValide());

    const EltSegment plat({0, 0}, {10, 0}, 0);
    EXPECT_POINT(plat.PointProche({7.5, 3}), 5, 0);  // A tie goes to the middle.
    EXPECT_POINT(plat.PointProche({2.5, 3}), 5, 0);
    EXPECT_POINT(plat.PointProche({2.4, 3}), 0, 0);
}

TEST(EltSegment, Poignees) {
    EltSegment s({0, 0}, {100, 0}, 0);
    const auto saisit = [&s](double x, double y) {
        PoigneeCourante = 0;
        s.DebutDeforme({x, y});
        return PoigneeCourante;
    };
    EXPECT_EQ(saisit(0, 9.99), 3);
    EXPECT_EQ(saisit(0, 10), 1);  // The limit itself is too far.
    EXPECT_EQ(saisit(25, 40), 1);
    EXPECT_EQ(saisit(103, -3), 2);
    s.Deforme({10, 20});
    EXPECT_POINT(s.Extremite, 110, 20);
    EXPECT_POINT(s.Position, 55, 10);
    EXPECT_EQ(saisit(1, 1), 3);
    s.Deforme({10, 20});
    EXPECT_POINT(s.Origine, 10, 20);
    EXPECT_POINT(s.Position, 60, 20);
    EXPECT_EQ(saisit(60, 20), 1);
    s.Deforme({1, 2});
    EXPECT_POINT(s.Origine, 11, 22);
    EXPECT_POINT(s.Position, 61, 22);

    // The middle of a short segment wins over its nearer end.
    EltSegment court({0, 0}, {10, 0}, 0);
    court.DebutDeforme({0, 0});
    EXPECT_EQ(PoigneeCourante, 1);
    PoigneeCourante = 0;
    court.Deforme({5, 5});
    EXPECT_POINT(court.Origine, 0, 0);
}

TEST(EltSegment, Reglages) {
    EltSegment s({0, 0}, {6, 8}, 0);
    s.SetLongueur(20);
    EXPECT_POINT(s.Origine, -3, -4);
    EXPECT_POINT(s.Extremite, 9, 12);
    s.SetAngle(Pi / 2);
    EXPECT_POINT(s.Origine, 3, -6);
    EXPECT_POINT(s.Extremite, 3, 14);
    EXPECT_POINT(s.Position, 3, 4);
    s.SetExtremiteSymetrique({10, 4});
    EXPECT_POINT(s.Origine, -4, 4);
    EXPECT_POINT(s.Position, 3, 4);
    s.SetOrigine({0, 0});
    EXPECT_POINT(s.Extremite, 10, 4);
    EXPECT_POINT(s.Position, 5, 2);

    EltDroite droite({0, 0}, {6, 8}, 2);
    droite.SetOrigine({10, 10});
    EXPECT_POINT(droite.Extremite, 16, 18);
    // A line drawn by its two points goes by the rectangle's code, a copy of it by its own.
    EXPECT_EQ(droite.Nom(), "RECTANGLE");
    EXPECT_EQ(droite.Clone()->Nom(), "DROITE");
    EXPECT_EQ(droite.Clone()->Calque, 2);
}

TEST(EltSegment, Constructions) {
    const EltSegment base({0, 0}, {6, 8}, 0);
    EltSegment s;
    s.ParalleleDistance(base, 5);
    EXPECT_POINT(s.Origine, -4, 3);
    EXPECT_POINT(s.Extremite, 2, 11);
    EXPECT_TRUE(base.Cote({10, 0}));
    s.ParalleleCote(5, base, {10, 0});
    EXPECT_POINT(s.Origine, 4, -3);
    s.ParalleleCote(5, base, {0, 10});
    EXPECT_POINT(s.Origine, -4, 3);
    s.Orthogonal(base);
    EXPECT_POINT(s.Origine, -4, 3);
    EXPECT_POINT(s.Extremite, 4, -3);
    EXPECT_POINT(s.Position, 0, 0);

    PointVek croisement;
    EXPECT_TRUE(base.Intersection(EltSegment({10, 0}, {11, 0}, 0), croisement));
    EXPECT_POINT(croisement, 0, 0);
    EXPECT_TRUE(base.Intersection(EltSegment({9, 0}, {9, 1}, 0), croisement));
    EXPECT_POINT(croisement, 9, 12);
    EXPECT_FALSE(base.Intersection(EltSegment({1, 0}, {4, 4}, 0), croisement));
}

TEST(EltSegment, TangenteDUnPoint) {
    const EltArc cercle({100, 50}, 5, 0, 1, 0);  // An arc counts as its full circle.
    EltSegment s;
    s.Tangente({113, 50}, cercle, false);
    EXPECT_POINT(s.Origine, 100 + 25 / 13.0, 50 - 60 / 13.0);
    EXPECT_POINT(s.Extremite, 113, 50);
    s.Tangente({113, 50}, cercle, true);
    EXPECT_POINT(s.Origine, 100 + 25 / 13.0, 50 + 60 / 13.0);
    s.Tangente({100, 47}, cercle, true);
    EXPECT_POINT(s.Origine, 100, 45);
    s.Tangente({100, 50}, cercle, false);
    EXPECT_POINT(s.Origine, 100, 50);
    EXPECT_EQ(s.Longueur(), 0.0);

    s.Accroche({113, 50}, cercle, true);
    EXPECT_POINT(s.Origine, 100 + 25 / 13.0, 50 + 60 / 13.0);
    s.Accroche({1, 1}, EltSegment({0, 0}, {6, 8}, 0), true);
    EXPECT_POINT(s.Origine, 1, 1);
    EXPECT_POINT(s.Extremite, 7, 9);
    s.Accroche({1, 1}, EltRectangle({0, 8}, {6, 0}, 0), true);
    EXPECT_POINT(s.Origine, 3, 4);
    EXPECT_POINT(s.Extremite, 1, 1);
}

TEST(EltSegment, TangenteCommune) {
    const EltArc a({0, 0}, 3, 0, DeuxPi, 0), b({10, 0}, 3, 0, DeuxPi, 0);
    EltSegment s;
    ASSERT_TRUE(s.Tangente2Arcs({5, 2}, a, b));
    EXPECT_POINT(s.Origine, 0, 3);
    EXPECT_POINT(s.Extremite, 10, 3);
    ASSERT_TRUE(s.Tangente2Arcs({5, -2}, a, b));
    EXPECT_POINT(s.Extremite, 10, -3);
    // Both inner ones have the same middle: the earlier wins.
    ASSERT_TRUE(s.Tangente2Arcs({5, 0}, a, b));
    EXPECT_POINT(s.Origine, 1.8, 2.4);
    EXPECT_POINT(s.Extremite, 8.2, -2.4);
    // Circles that overlap have the outer ones alone.
    ASSERT_TRUE(s.Tangente2Arcs({2, -0.1}, a, EltArc({4, 0}, 3, 0, 1, 0)));
    EXPECT_POINT(s.Extremite, 4, -3);

    const EltSegment avant(s);
    EXPECT_FALSE(s.Tangente2Arcs({5, 2}, a, EltArc({0, 0}, 8, 0, DeuxPi, 0)));
    EXPECT_FALSE(s.Tangente2Arcs({5, 2}, a, EltArc({1, 1}, 8, 0, DeuxPi, 0)));
    EXPECT_FALSE(s.Tangente2Arcs({5, 2}, a, EltSegment({0, 9}, {9, 9}, 0)));
    EXPECT_POINT(s.Origine, avant.Origine.x, avant.Origine.y);
    EXPECT_POINT(s.Extremite, avant.Extremite.x, avant.Extremite.y);
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
            const PointVek p = hasard.Point(150);
            const bool trouvee = s.Tangente2Arcs(p, a, b);
            ASSERT_EQ(trouvee, d >= std::abs(a.Rayon - b.Rayon));
            if (!trouvee) break;
            EXPECT_NEAR(Distance(s.Origine, a.Position), a.Rayon, 1e-9);
            EXPECT_NEAR(Distance(s.Extremite, b.Position), b.Rayon, 1e-9);
            EXPECT_NEAR(Scalaire(s.Origine - a.Position, s.Extremite - s.Origine), 0, 1e-8);
            EXPECT_NEAR(Scalaire(s.Extremite - b.Position, s.Extremite - s.Origine), 0, 1e-8);
            clics.push_back(p);
            milieux.push_back(s.Position);
        }
        for (std::size_t i = 0; i < clics.size(); ++i)
            for (const PointVek& autre : milieux)
                EXPECT_LE(Distance(clics[i], milieux[i]), Distance(clics[i], autre) + 1e-9);
    }
}

TEST(EltRectangle, SeLitDansTousLesSens) {
    for (const auto& [o, e] : {std::pair<PointVek, PointVek>{{0, 20}, {10, 0}},
                               {{10, 20}, {0, 0}},
                               {{0, 0}, {10, 20}},
                               {{10, 0}, {0, 20}}}) {
        EltRectangle r(o, e, 0);
        EXPECT_POINT(r.Coins().HautGauche, 0, 20);
        EXPECT_POINT(r.Coins().BasDroite, 10, 0);
        EXPECT_DOUBLE_EQ(r.Distance({3, 10}), 3.0);
        EXPECT_DOUBLE_EQ(r.Distance({13, 24}), 5.0);
        EXPECT_DOUBLE_EQ(r.DistanceSupport({5, 30}), 10.0);
        EXPECT_POINT(r.PointProche({9, 18}), 10, 20);
        EXPECT_POINT(r.PointProche({5, 10}), 0, 20);
        EXPECT_TRUE(r.Contient(EltGeo({9.9, 0.1}, 0)));
        EXPECT_FALSE(r.Contient(EltGeo({10, 5}, 0)));
        EXPECT_FALSE(r.Contient(EltGeo({5, -1}, 0)));
        r.SetOrigine(o + PointVek(5, 5));
        EXPECT_POINT(r.Coins().BasDroite, 15, 5);
    }
}

TEST(EltRectangle, ResteOrdonne) {
    EltRectangle r({0, 20}, {10, 0}, 0);
    TransformeColle miroir;
    miroir.SymetrieX = miroir.SymetrieY = true;
    r.Transforme(miroir);
    EXPECT_POINT(r.Origine, -10, 0);
    EXPECT_POINT(r.Extremite, 0, -20);
    EXPECT_POINT(r.Position, -5, -10);
    PoigneeCourante = 2;
    r.Deforme({-30, 40});  // Its corner goes to (-30, 20).
    EXPECT_POINT(r.Origine, -30, 20);
    EXPECT_POINT(r.Extremite, -10, 0);
    EXPECT_POINT(r.Position, -20, 10);
}
