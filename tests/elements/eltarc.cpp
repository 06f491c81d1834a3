#include "elements/eltarc.h"

#include "elements/angles.h"
#include "elements/eltdisque.h"
#include "elements/eltrectangle.h"
#include "elements/intersections.h"
#include "verifie.h"

namespace {

void VerifieArc(const EltArc& arc, const PointVek& centre, double debut, double ouverture) {
    EXPECT_POINT(arc.Centre(), centre.x, centre.y);
    EXPECT_NEAR(EnDegres(arc.AngleDebut), debut, 1e-9);
    EXPECT_NEAR(EnDegres(arc.Ouverture), ouverture, 1e-9);
}

}  // namespace

TEST(EltArc, Constructions) {
    EltArc arc;
    VerifieArc(arc, {0, 0}, 0, 360);
    arc.SetCentreDefaut({10, 20});
    EXPECT_EQ(arc.Rayon, 10);
    arc.SetDebutPoint({15, 15});
    VerifieArc(arc, {10, 20}, 315, 15);
    arc.SetFinPoint({17, 27});
    VerifieArc(arc, {10, 20}, 315, 90);
    EXPECT_POINT(arc.Fin(), 15, 25);
    arc.SetFinPoint({20, 10});
    EXPECT_NEAR(arc.Ouverture, 0, 1e-12);
    arc.PlaceFin({20, 10});
    EXPECT_EQ(arc.Ouverture, 1e-6);
    arc.PlaceFin({5, 15});
    VerifieArc(arc, {10, 20}, 315, 270);
    arc.PlaceDebut({10, 70});
    VerifieArc(arc, {10, 20}, 90, 270);
    arc.SetRayonPoint({7, 24});
    VerifieArc(arc, {10, 20}, 0, 360);
    EXPECT_EQ(arc.Rayon, 5);
    arc.DepuisPoints({10, 12}, {2, 20}, 8);
    VerifieArc(arc, {10, 20}, 270, 270);
    arc.DepuisPoints({10, 12}, {10, 20}, 9);
    VerifieArc(arc, {10, 20}, 0, 360);

    arc.Arc2Points({10, 0}, {0, 0});
    VerifieArc(arc, {5, -5}, 45, 90);
    // The third point counts by its distance from the middle of the chord, not by its side.
    for (const PointVek& c : {PointVek(5, 12), PointVek(5, -12), PointVek(17, 0)}) {
        arc.Arc3Points({0, 0}, {10, 0}, c);
        EXPECT_POINT(arc.Centre(), 5, 12);
        EXPECT_POINT(arc.Debut(), 0, 0);
        EXPECT_POINT(arc.Fin(), 10, 0);
        EXPECT_LT(arc.Ouverture, Pi);
    }
    arc.Arc3Points({4, 4}, {4, 4}, {9, 9});
    VerifieArc(arc, {4, 4}, 0, 360);
    EXPECT_EQ(arc.Rayon, 0);
}

TEST(EltArc, MiroirEtCopie) {
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
    EltDisque disque;
    disque.Place({10, 0});
    disque.AngleDebut = disque.Ouverture = EnRadians(30);
    TransformeColle quart;
    quart.Cos = 0;
    quart.Sin = 1;
    disque.Transforme(quart);
    EltArc arc;
    arc.NbParents = 3;
    arc.Copie(disque);
    VerifieArc(arc, {0, 10}, 30, 30);  // A rotation leaves the angles.
    EXPECT_EQ(arc.Type, TypeDisque);
    EXPECT_EQ(arc.NbParents, 3);
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
    EXPECT_EQ(Intersecte(droite, EltSegment({7, 0}, {7, 1}, 0), a, b), 1);
    EXPECT_POINT(a, 7, 3);
    // The chord is 5 from the first circle; from it, first what is on the left.
    const EltArc c1({0, 0}, 13, 0, 1, 0), c2({14, 0}, 15, 0, 1, 0);
    ASSERT_EQ(Intersecte(c1, c2, a, b), 2);
    EXPECT_POINT(a, 5, 12);
    EXPECT_POINT(b, 5, -12);
    ASSERT_EQ(Intersecte(c2, c1, a, b), 2);
    EXPECT_POINT(a, 5, -12);

    EXPECT_EQ(Intersecte(cercle, EltSegment({9, 6}, {8, 6}, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltSegment({1, 1}, {1, 1}, 0), a, b), 0);
    EXPECT_EQ(Intersecte(droite, EltSegment({7, 0}, {8, 0}, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltArc({20, 0}, 5, 0, 1, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltArc({1, 0}, 1, 0, 1, 0), a, b), 0);
    EXPECT_EQ(Intersecte(cercle, cercle, a, b), 0);
    EXPECT_EQ(Intersecte(cercle, EltRectangle({-9, 3}, {9, -3}, 0), a, b), 0);
}
