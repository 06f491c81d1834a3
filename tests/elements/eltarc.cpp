#include "elements/eltarc.h"

#include <gtest/gtest.h>

#include "elements/angles.h"
#include "elements/eltdisque.h"
#include "elements/eltrectangle.h"
#include "elements/intersections.h"
#include "verifie.h"

namespace {

void VerifieAngles(const EltArc& arc, double debut, double ouverture) {
    EXPECT_NEAR(EnDegres(arc.AngleDebut), debut, 1e-9);
    EXPECT_NEAR(EnDegres(arc.Ouverture), ouverture, 1e-9);
}

}  // namespace

TEST(EltArc, CerclesEtBouts) {
    EltArc arc;
    VerifieAngles(arc, 0, 360);
    EXPECT_FALSE(arc.EstValide());

    arc.SetCentreDefaut({10, 20});
    EXPECT_EQ(arc.Rayon, 10);
    arc.SetDebutPoint({13, 16});
    EXPECT_EQ(arc.Rayon, 5);
    VerifieAngles(arc, 360 - EnDegres(std::atan2(4, 3)), 15);
    arc.SetFinPoint({14, 23});  // The start turned by a right angle.
    EXPECT_NEAR(EnDegres(arc.Ouverture), 90, 1e-9);
    EXPECT_POINT(arc.Debut(), 13, 16);
    EXPECT_POINT(arc.Fin(), 14, 23);
    arc.SetFinPoint({16, 12});
    EXPECT_NEAR(arc.Ouverture, 0, 1e-12);
    arc.PlaceFin({16, 12});
    EXPECT_DOUBLE_EQ(arc.Ouverture, 1e-6);
    arc.PlaceFin({6, 17});
    EXPECT_NEAR(EnDegres(arc.Ouverture), 270, 1e-9);
    arc.PlaceDebut({10, 70});
    VerifieAngles(arc, 90, 270);
    arc.SetRayonPoint({7, 24});
    VerifieAngles(arc, 0, 360);
    EXPECT_EQ(arc.Rayon, 5);

    arc.DepuisPoints({10, 12}, {2, 20}, 8);
    VerifieAngles(arc, 270, 270);
    EXPECT_EQ(arc.Rayon, 8);
    arc.DepuisPoints({10, 12}, {10, 20}, 9);
    VerifieAngles(arc, 0, 360);
    EXPECT_EQ(arc.Rayon, 9);
}

TEST(EltArc, ParPointsDeCorde) {
    EltArc arc;
    arc.Arc2Points({0, 0}, {10, 0});
    EXPECT_POINT(arc.Centre(), 5, 5);
    VerifieAngles(arc, 225, 90);
    arc.Arc2Points({10, 0}, {0, 0});
    EXPECT_POINT(arc.Centre(), 5, -5);
    VerifieAngles(arc, 45, 90);
    // The third point counts by its distance from the middle of the chord, not by its side.
    for (const PointVek& c : {PointVek(5, 12), PointVek(5, -12), PointVek(17, 0)}) {
        arc.Arc3Points({0, 0}, {10, 0}, c);
        EXPECT_POINT(arc.Centre(), 5, 12);
        EXPECT_DOUBLE_EQ(arc.Rayon, 13.0);
        EXPECT_POINT(arc.Debut(), 0, 0);
        EXPECT_POINT(arc.Fin(), 10, 0);
        EXPECT_LT(arc.Ouverture, Pi);
    }
    arc.Arc3Points({4, 4}, {4, 4}, {9, 9});
    EXPECT_EQ(arc.Rayon, 0.0);
    VerifieAngles(arc, 0, 360);
}

TEST(EltArc, DistancesEtPoints) {
    const EltArc arc({10, 0}, 5, 0, Pi / 2, 0);
    EXPECT_DOUBLE_EQ(arc.Distance({3, 0}), 2.0);  // On the part that is missing.
    EXPECT_DOUBLE_EQ(arc.Distance({11, 0}), 4.0);
    EXPECT_DOUBLE_EQ(arc.DistanceSupport({11, 0}), 1.0);
    EXPECT_DOUBLE_EQ(arc.DistanceSupport({16, 0}), 1.0);
    EXPECT_POINT(arc.PointProche({12.5, 0}), 10, 0);  // A tie goes to the centre.
    EXPECT_POINT(arc.PointProche({12.6, 0}), 15, 0);
    EXPECT_POINT(arc.PointProche({8, 9}), 10, 5);
}

TEST(EltArc, Poignees) {
    EltArc quart({0, 0}, 100, 0, Pi / 2, 0);
    const auto saisit = [](EltArc& arc, double x, double y) {
        PoigneeCourante = 0;
        arc.DebutDeforme({x, y});
        return PoigneeCourante;
    };
    EXPECT_EQ(saisit(quart, 0, 0), 1);
    EXPECT_EQ(saisit(quart, 3, 95), 2);
    quart.Deforme({-100, -100});
    VerifieAngles(quart, 0, 180);
    EXPECT_EQ(saisit(quart, 95, 3), 3);
    quart.Deforme({-100, 100});
    VerifieAngles(quart, 90, 180);
    EXPECT_EQ(quart.Rayon, 100);
    EXPECT_EQ(saisit(quart, 50, 50), 1);
    quart.Deforme({7, 8});
    EXPECT_POINT(quart.Centre(), 7, 8);

    EltArc cercle({0, 0}, 100, 0, DeuxPi, 0);
    EXPECT_EQ(saisit(cercle, 95, 3), 2);
    cercle.Deforme({-100, -100});
    VerifieAngles(cercle, 0, 270);
}

TEST(EltArc, MiroirDesAngles) {
    for (const bool x : {false, true})
        for (const bool y : {false, true}) {
            EltArc arc({10, 4}, 5, EnRadians(30), EnRadians(60), 0);
            PointVek debut = arc.Debut(), fin = arc.Fin();
            TransformeColle t;
            t.SymetrieX = x;
            t.SymetrieY = y;
            t.Agrandissement = 3;
            arc.Transforme(t);
            debut.Transforme(t);
            fin.Transforme(t);
            EXPECT_POINT(arc.Debut(), debut.x, debut.y);
            EXPECT_POINT(arc.Fin(), fin.x, fin.y);
            EXPECT_NEAR(EnDegres(arc.Ouverture), x != y ? -60 : 60, 1e-9);
        }
    // A rotation moves the centre and leaves the angles.
    EltArc arc({10, 0}, 5, EnRadians(30), EnRadians(60), 0);
    TransformeColle quart;
    quart.Cos = 0;
    quart.Sin = 1;
    arc.Transforme(quart);
    EXPECT_POINT(arc.Centre(), 0, 10);
    VerifieAngles(arc, 30, 60);
}

TEST(EltArc, CopieEtStyle) {
    Trait plein;
    plein.Remplissage = true;
    plein.Hachure = 1;
    EltDisque disque;
    disque.ChangeTrait(plein);
    disque.SetCentreDefaut({1, 2});
    EXPECT_EQ(disque.Clone()->Nom(), "DISQUE");
    EltArc arc;
    arc.NbParents = 3;
    arc.Copie(disque);
    EXPECT_EQ(arc.Type, TypeDisque);
    EXPECT_EQ(arc.Rayon, 10);
    EXPECT_EQ(arc.NbParents, 3);
    EXPECT_TRUE(arc.Style.Remplissage);

    EltSegment segment;
    segment.ChangeTrait(plein);
    EXPECT_FALSE(segment.Style.Remplissage);
    EXPECT_EQ(segment.Style.Hachure, 0);
}

TEST(Intersections, DroitesEtCercles) {
    PointVek a, b;
    const EltSegment droite({-1, 3}, {1, 3}, 0);  // It need not reach.
    const EltArc cercle({0, 0}, 5, 0, 0.1, 0);
    ASSERT_EQ(Intersecte(droite, cercle, a, b), 2);
    EXPECT_POINT(a, -4, 3);
    EXPECT_POINT(b, 4, 3);
    ASSERT_EQ(Intersecte(cercle, EltSegment({9, 5}, {8, 5}, 0), a, b), 2);
    EXPECT_POINT(a, 0, 5);
    EXPECT_POINT(b, 0, 5);
    EXPECT_EQ(Intersecte(cercle, EltSegment({9, 6}, {8, 6}, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltSegment({1, 1}, {1, 1}, 0), a, b), 0);
    EXPECT_EQ(Intersecte(droite, EltSegment({7, 0}, {7, 1}, 0), a, b), 1);
    EXPECT_POINT(a, 7, 3);
    EXPECT_EQ(Intersecte(droite, EltSegment({7, 0}, {8, 0}, 0), a, b), 0);

    // Two circles 14 apart, the chord 5 from the first: from it, first what is on the left.
    ASSERT_EQ(Intersecte(EltArc({0, 0}, 13, 0, 1, 0), EltArc({14, 0}, 15, 0, 1, 0), a, b), 2);
    EXPECT_POINT(a, 5, 12);
    EXPECT_POINT(b, 5, -12);
    ASSERT_EQ(Intersecte(EltArc({14, 0}, 15, 0, 1, 0), EltArc({0, 0}, 13, 0, 1, 0), a, b), 2);
    EXPECT_POINT(a, 5, -12);
    EXPECT_EQ(Intersecte(cercle, EltArc({20, 0}, 5, 0, 1, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltArc({1, 0}, 1, 0, 1, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, cercle, a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltRectangle({-9, 3}, {9, -3}, 0), a, b), 0);
}
