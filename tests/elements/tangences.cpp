// Circles tangent to elements and roundings between them.

#include <gtest/gtest.h>

#include <memory>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "hasard.h"
#include "verifie.h"

namespace {

const EltArc* CommeArc(const EltGeo& elt) {
    return elt.Type == TypeArc ? static_cast<const EltArc*>(&elt) : nullptr;
}

/// How far the circle is from touching the element's line or circle in one point.
double EcartTangence(const EltArc& cercle, const EltGeo& elt) {
    const EltArc* arc = CommeArc(elt);
    if (!arc) return std::abs(elt.DistanceSupport(cercle.Centre()) - cercle.Rayon);
    const double d = Distance(cercle.Centre(), arc->Centre());
    return std::min(std::abs(d - cercle.Rayon - arc->Rayon),
                    std::abs(d - std::abs(cercle.Rayon - arc->Rayon)));
}

/// How far p is from the element's line or circle.
double EcartContact(const PointVek& p, const EltGeo& elt) {
    if (!CommeArc(elt)) return Distance(p, static_cast<const EltSegment&>(elt).Projete(p));
    return elt.Distance(p);
}

std::unique_ptr<EltGeo> AuHasard(Hasard& hasard, bool droit) {
    if (!droit)
        return std::make_unique<EltArc>(hasard.Point(60), hasard.Reel(2, 40), hasard.Reel(0, 6),
                                        hasard.Reel(0, 6), 0);
    const PointVek a = hasard.Point(60);
    return std::make_unique<EltSegment>(a, PointPolaire(a, hasard.Reel(5, 80), hasard.Reel(0, 6)),
                                        0);
}

void VerifieCercle(const EltArc& arc, double x, double y, double rayon) {
    EXPECT_POINT(arc.Centre(), x, y);
    EXPECT_NEAR(arc.Rayon, rayon, 1e-9);
    EXPECT_EQ(arc.AngleDebut, 0.0);
    EXPECT_EQ(arc.Ouverture, DeuxPi);
}

const EltSegment AxeX({0, 0}, {100, 0}, 0), AxeY({0, 0}, {0, 100}, 0);

}  // namespace

TEST(Tangences, CercleParSonCentre) {
    EltArc c({0, 0}, 1, 1, 1, 0);
    c.TangentPoint(AxeX, {-30, 7});
    VerifieCercle(c, -30, 7, 7);
    const EltArc rond({10, 0}, 4, 0, 1, 0);
    c.TangentPoint(rond, {0, 0});
    VerifieCercle(c, 0, 0, 6);
    c.TangentPoint(rond, {9, 0});
    VerifieCercle(c, 9, 0, 3);
    c.TangentPoint(EltRectangle({0, 8}, {6, 0}, 0), {3, 10});
    VerifieCercle(c, 3, 10, 6);
}

TEST(Tangences, CasCalcules) {
    EltArc c({0, 0}, 1, 1, 1, 0);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, AxeY, {8, 6}));
    VerifieCercle(c, 7, 7, 7);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, AxeY, {8, -6}));
    VerifieCercle(c, 7, -7, 7);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, EltSegment({50, 4}, {20, 4}, 0), {3, 9}));
    VerifieCercle(c, 3, 2, 2);

    EltDroite droite;
    droite.SetPoints({-5, 0}, {-4, 0});
    const EltArc rond({0, 10}, 4, 0, 1, 0);
    for (const bool echange : {false, true}) {
        const EltGeo& premier = echange ? static_cast<const EltGeo&>(rond) : droite;
        const EltGeo& second = echange ? static_cast<const EltGeo&>(droite) : rond;
        ASSERT_TRUE(c.Tangent2Elements(premier, second, {0, 3.5}));
        VerifieCercle(c, 0, 3, 3);
    }
    ASSERT_TRUE(
        c.Tangent2Elements(EltArc({0, 0}, 2, 0, 1, 0), EltArc({10, 0}, 3, 0, 1, 0), {4, 0}));
    VerifieCercle(c, 4.5, 0, 2.5);
    // Between a point and a line: the circle whose diameter joins them.
    EltGeo point(TypePoint);
    point.Position = {12, 8};
    ASSERT_TRUE(c.Tangent2Elements(point, AxeX, {0, 0}));
    VerifieCercle(c, 12, 4, 4);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, EltRectangle({10, -1}, {14, -5}, 0), {0, 0}));
    VerifieCercle(c, 12, -1.5, 1.5);
}

TEST(Tangences, CerclesAuHasard) {
    Hasard hasard(2);
    for (int essai = 0; essai < 900; ++essai) {
        const auto e1 = AuHasard(hasard, essai % 3 != 0), e2 = AuHasard(hasard, essai % 3 == 1);
        EltArc c;
        // Save where p is on a circle itself, there always is one.
        ASSERT_TRUE(c.Tangent2Elements(*e1, *e2, hasard.Point(80))) << essai;
        ASSERT_GT(c.Rayon, 0.0) << essai;
        const double precision = 1e-9 * std::max(1.0, c.Rayon + Norme(c.Centre()));
        EXPECT_LT(EcartTangence(c, *e1), precision) << essai;
        EXPECT_LT(EcartTangence(c, *e2), precision) << essai;
        EXPECT_EQ(c.Ouverture, DeuxPi);
    }
}

TEST(Tangences, CongesDesQuatreCoins) {
    for (const double x : {5.0, -5.0})
        for (const double y : {5.0, -5.0})
            for (int sens = 0; sens < 8; ++sens) {
                EltSegment s1 = AxeX, s2 = AxeY;
                if (sens & 1) s1.SetPoints(s1.Extremite, s1.Origine);
                if (sens & 2) s2.SetPoints(s2.Extremite, s2.Origine);
                EltArc arc;
                ASSERT_TRUE(sens & 4 ? arc.Tangent2ElementsRayon(s2, s1, {x, y}, 10)
                                     : arc.Tangent2ElementsRayon(s1, s2, {x, y}, 10));
                EXPECT_POINT(arc.Centre(), 2 * x, 2 * y);
                EXPECT_NEAR(EnDegres(arc.Ouverture), 90, 1e-9);
                // The middle of the arc looks toward the corner.
                const double milieu = arc.AngleDebut + arc.Ouverture / 2;
                EXPECT_POINT(PointPolaire(arc.Centre(), 10 * std::sqrt(2.0), milieu), 0, 0);
            }
}

TEST(Tangences, CongesAuHasard) {
    Hasard hasard(3);
    int reussis = 0;
    for (int essai = 0; essai < 900; ++essai) {
        const auto e1 = AuHasard(hasard, essai % 3 != 0), e2 = AuHasard(hasard, essai % 3 == 1);
        const PointVek p = hasard.Point(60);
        const double rayon = hasard.Reel(0.5, 60);
        EltArc arc({1, 2}, 3, 0.5, 1.5, 0);
        if (!arc.Tangent2ElementsRayon(*e1, *e2, p, rayon)) {
            ASSERT_NE(essai % 3, 1);  // Two lines always have one.
            EXPECT_EQ(arc.Centre().x + arc.Rayon + arc.AngleDebut + arc.Ouverture, 6.0);
            continue;
        }
        ++reussis;
        EXPECT_EQ(arc.Rayon, rayon);
        EXPECT_GT(arc.Ouverture, 0.0);
        EXPECT_LE(arc.Ouverture, Pi);
        const double precision = 1e-9 * (1.0 + Norme(arc.Centre()));
        for (const EltGeo* elt : {e1.get(), e2.get()}) {
            EXPECT_LT(EcartTangence(arc, *elt), precision) << essai;
            EXPECT_LT(std::min(EcartContact(arc.Debut(), *elt), EcartContact(arc.Fin(), *elt)),
                      precision)
                << essai;
            if (CommeArc(*elt)) continue;
            const auto& s = static_cast<const EltSegment&>(*elt);
            EXPECT_EQ(s.Cote(arc.Centre()), s.Cote(p)) << essai;
        }
        const bool debutSur1 = EcartContact(arc.Debut(), *e1) < precision;
        EXPECT_LT(EcartContact(debutSur1 ? arc.Fin() : arc.Debut(), *e2), precision) << essai;
    }
    EXPECT_GT(reussis, 500);
}

TEST(Tangences, CongesCalcules) {
    EltArc arc;
    const EltArc grand({0, 0}, 20, 0, 1, 0);
    ASSERT_TRUE(arc.Tangent2ElementsRayon(AxeX, grand, {10, 5}, 5));
    EXPECT_POINT(arc.Centre(), std::sqrt(200.0), 5);
    EXPECT_POINT(arc.Debut(), std::sqrt(200.0), 0);
    EXPECT_POINT(arc.Fin(), std::sqrt(200.0) * 4 / 3, 20 / 3.0);
    // Outside both circles, in the notch where they cross.
    ASSERT_TRUE(arc.Tangent2ElementsRayon(EltArc({0, 0}, 10, 0, 1, 0), EltArc({12, 0}, 10, 0, 1, 0),
                                          {6, 9}, 2));
    EXPECT_POINT(arc.Centre(), 6, std::sqrt(108.0));
    EXPECT_POINT(arc.Debut(), 5, std::sqrt(75.0));
    EXPECT_POINT(arc.Fin(), 7, std::sqrt(75.0));
    // A line drawn with the mouse bears the rectangle's code.
    ASSERT_TRUE(arc.Tangent2ElementsRayon(EltDroite({0, 9}, {0, 5}, 0), AxeX, {5, 5}, 10));
    EXPECT_POINT(arc.Centre(), 10, 10);
}

TEST(Tangences, CeQuiEchoueNeChangeRien) {
    EltArc arc({1, 2}, 3, 0.5, 1.5, 0);
    const EltArc rond({0, 0}, 5, 0, DeuxPi, 0);
    const EltGeo point(PointVek(4, 4), 0);
    const EltSegment parallele({0, 7}, {9, 7}, 0), nul({3, 3}, {3, 3}, 0);
    EXPECT_FALSE(arc.Tangent2Elements(rond, rond, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(rond, point, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(point, AxeX, {9, 9}));
    // A line that is a point, as a file may hold one, touches nothing.
    EXPECT_FALSE(arc.Tangent2Elements(nul, AxeX, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(AxeX, nul, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(nul, rond, {9, 9}));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(nul, AxeX, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(AxeX, parallele, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(AxeX, point, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(point, rond, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(parallele, rond, {0, 30}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(rond, EltArc({50, 0}, 5, 0, 1, 0), {9, 9}, 2));
    EXPECT_POINT(arc.Centre(), 1, 2);
    EXPECT_EQ(arc.Rayon, 3.0);
    EXPECT_EQ(arc.AngleDebut, 0.5);
    EXPECT_EQ(arc.Ouverture, 1.5);
}
