// Circles tangent to elements and roundings between them.

#include <memory>

#include "commun/hasard.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "verifie.h"

namespace {

/// How far the circle is from touching the element's line or circle in one point.
double EcartTangence(const EltArc& cercle, const EltGeo& elt) {
    const PointVek c = cercle.Centre();
    if (elt.Type != TypeArc) return std::abs(elt.DistanceSupport(c) - cercle.Rayon);
    const double d = Distance(c, elt.Centre()), rayon = static_cast<const EltArc&>(elt).Rayon;
    return std::min(std::abs(d - cercle.Rayon - rayon),
                    std::abs(d - std::abs(cercle.Rayon - rayon)));
}

/// How far p is from the element's line or circle.
double EcartContact(const PointVek& p, const EltGeo& elt) {
    if (elt.Type == TypeArc) return elt.Distance(p);
    return Distance(p, static_cast<const EltSegment&>(elt).Projete(p));
}

std::unique_ptr<EltGeo> AuHasard(Hasard& hasard, bool droit) {
    const PointVek a = hasard.Point(60), b = hasard.Point(60);
    if (droit) return std::make_unique<EltSegment>(a, b, 0);
    return std::make_unique<EltArc>(a, hasard.Reel(2, 40), hasard.Reel(0, 6), 1, 0);
}

void VerifieCercle(const EltArc& arc, double x, double y, double rayon) {
    EXPECT_POINT(arc.Centre(), x, y);
    EXPECT_NEAR(arc.Rayon, rayon, 1e-9);
    EXPECT_EQ(arc.AngleDebut, 0);
    EXPECT_EQ(arc.Ouverture, DeuxPi);
}

const EltSegment AxeX({0, 0}, {100, 0}, 0);

}  // namespace

TEST(Tangences, CasCalcules) {
    EltArc c({0, 0}, 1, 1, 1, 0);
    c.TangentPoint(AxeX, {-30, 7});
    VerifieCercle(c, -30, 7, 7);
    c.TangentPoint(EltArc({10, 0}, 4, 0, 1, 0), {9, 0});
    VerifieCercle(c, 9, 0, 3);
    c.TangentPoint(EltRectangle({0, 8}, {6, 0}, 0), {3, 10});
    VerifieCercle(c, 3, 10, 6);

    const EltSegment axeY({0, 0}, {0, 100}, 0);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, axeY, {8, 6}));
    VerifieCercle(c, 7, 7, 7);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, axeY, {8, -6}));
    VerifieCercle(c, 7, -7, 7);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, EltSegment({50, 4}, {20, 4}, 0), {3, 9}));
    VerifieCercle(c, 3, 2, 2);
    const EltArc rond({0, 10}, 4, 0, 1, 0);
    ASSERT_TRUE(c.Tangent2Elements(AxeX, rond, {0, 3.5}));
    VerifieCercle(c, 0, 3, 3);
    ASSERT_TRUE(c.Tangent2Elements(rond, AxeX, {0, 3.5}));
    VerifieCercle(c, 0, 3, 3);
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
        SCOPED_TRACE(essai);
        const auto e1 = AuHasard(hasard, essai % 3 != 0), e2 = AuHasard(hasard, essai % 3 == 1);
        EltArc c;
        ASSERT_TRUE(c.Tangent2Elements(*e1, *e2, hasard.Point(80)));
        ASSERT_GT(c.Rayon, 0);
        const double precision = 1e-9 * std::max(1.0, c.Rayon + Norme(c.Centre()));
        EXPECT_LT(EcartTangence(c, *e1), precision);
        EXPECT_LT(EcartTangence(c, *e2), precision);
    }
    // Two lines that are nearly parallel.
    for (const double pente : {0.1, 1e-3, 1e-5, 1e-7}) {
        const EltSegment s1({-3, 1}, {97, 38}, 0), s2({-3, 5}, {97, 42 + pente}, 0);
        EltArc c;
        ASSERT_TRUE(c.Tangent2Elements(s1, s2, {5, 6}));
        EXPECT_LT(EcartTangence(c, s1), 1e-9) << pente;
        EXPECT_LT(EcartTangence(c, s2), 1e-9) << pente;
        EXPECT_NEAR(c.Rayon, 2 * 100 / std::hypot(100, 37), 0.01);
    }
}

TEST(Tangences, CongesAuHasard) {
    Hasard hasard(3);
    int reussis = 0;
    for (int essai = 0; essai < 900; ++essai) {
        SCOPED_TRACE(essai);
        const auto e1 = AuHasard(hasard, essai % 3 != 0), e2 = AuHasard(hasard, essai % 3 == 1);
        const PointVek p = hasard.Point(60);
        const double rayon = hasard.Reel(0.5, 60);
        EltArc arc({1, 2}, 3, 0.5, 1.5, 0);
        if (!arc.Tangent2ElementsRayon(*e1, *e2, p, rayon)) {
            ASSERT_NE(essai % 3, 1);  // Two lines always have one.
            EXPECT_EQ(arc.Centre().x + arc.Rayon + arc.AngleDebut + arc.Ouverture, 6);
            continue;
        }
        ++reussis;
        EXPECT_EQ(arc.Rayon, rayon);
        EXPECT_GT(arc.Ouverture, 0);
        EXPECT_LE(arc.Ouverture, Pi);
        const double precision = 1e-9 * (1 + Norme(arc.Centre()));
        const bool dansLOrdre = EcartContact(arc.Debut(), *e1) < precision;
        EXPECT_LT(EcartContact(dansLOrdre ? arc.Debut() : arc.Fin(), *e1), precision);
        EXPECT_LT(EcartContact(dansLOrdre ? arc.Fin() : arc.Debut(), *e2), precision);
        for (const EltGeo* elt : {e1.get(), e2.get()}) {
            EXPECT_LT(EcartTangence(arc, *elt), precision);
            if (elt->Type == TypeArc) continue;
            const auto& s = static_cast<const EltSegment&>(*elt);
            EXPECT_EQ(s.Cote(arc.Centre()), s.Cote(p));
        }
    }
    EXPECT_GT(reussis, 500);
}

TEST(Tangences, CongesCalcules) {
    EltArc arc;
    const EltArc grand({0, 0}, 20, 0, 1, 0), c1({0, 0}, 10, 0, 1, 0), c2({12, 0}, 10, 0, 1, 0);
    ASSERT_TRUE(arc.Tangent2ElementsRayon(AxeX, grand, {10, 5}, 5));
    EXPECT_POINT(arc.Centre(), std::sqrt(200.0), 5);
    EXPECT_POINT(arc.Debut(), std::sqrt(200.0), 0);
    EXPECT_POINT(arc.Fin(), std::sqrt(200.0) * 4 / 3, 20 / 3.0);
    // In the notch where two circles cross.
    ASSERT_TRUE(arc.Tangent2ElementsRayon(c1, c2, {6, 9}, 2));
    EXPECT_POINT(arc.Centre(), 6, std::sqrt(108.0));
    EXPECT_POINT(arc.Debut(), 5, std::sqrt(75.0));
    EXPECT_POINT(arc.Fin(), 7, std::sqrt(75.0));
    // A line drawn with the mouse bears the rectangle's code.
    ASSERT_TRUE(arc.Tangent2ElementsRayon(EltDroite({0, 9}, {0, 5}, 0), AxeX, {5, 5}, 10));
    EXPECT_POINT(arc.Centre(), 10, 10);
}

TEST(Tangences, CeQuiEchoueNeChangeRien) {
    EltArc arc({1, 2}, 3, 0.5, 1.5, 0);
    const EltArc rond({0, 0}, 5, 0, DeuxPi, 0), ailleurs({50, 0}, 5, 0, 1, 0);
    const EltGeo point(PointVek(4, 4), 0);
    const EltSegment parallele({0, 7}, {9, 7}, 0), nul({3, 3}, {3, 3}, 0);
    EXPECT_FALSE(arc.Tangent2Elements(rond, rond, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(rond, point, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(point, AxeX, {9, 9}));
    // A line that is a point, as a file may hold one, touches nothing.
    EXPECT_FALSE(arc.Tangent2Elements(AxeX, nul, {9, 9}));
    EXPECT_FALSE(arc.Tangent2Elements(nul, rond, {9, 9}));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(nul, AxeX, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(AxeX, parallele, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(AxeX, point, {9, 9}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(parallele, rond, {0, 30}, 2));
    EXPECT_FALSE(arc.Tangent2ElementsRayon(rond, ailleurs, {9, 9}, 2));
    EXPECT_POINT(arc.Centre(), 1, 2);
    EXPECT_EQ(arc.Rayon, 3);
    EXPECT_EQ(arc.AngleDebut, 0.5);
    EXPECT_EQ(arc.Ouverture, 1.5);
}
