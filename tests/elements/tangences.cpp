// Circles tangent to any elements, and roundings between them: what a user expects of each.

#include <memory>

#include "commun/hasard.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltsegment.h"
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

}  // namespace

TEST(Tangences, AuHasard) {
    Hasard hasard(2);
    int conges = 0;
    for (int essai = 0; essai < 900; ++essai) {
        SCOPED_TRACE(essai);
        const auto e1 = AuHasard(hasard, essai % 3 != 0), e2 = AuHasard(hasard, essai % 3 == 1);
        const PointVek p = hasard.Point(60);
        EltArc c;
        ASSERT_TRUE(c.Tangent2Elements(*e1, *e2, p));
        ASSERT_GT(c.Rayon, 0);
        double precision = 1e-9 * std::max(1.0, c.Rayon + Norme(c.Centre()));
        EXPECT_LT(EcartTangence(c, *e1), precision);
        EXPECT_LT(EcartTangence(c, *e2), precision);

        const double rayon = hasard.Reel(0.5, 60);
        if (!c.Tangent2ElementsRayon(*e1, *e2, p, rayon)) {
            ASSERT_NE(essai % 3, 1);  // Two lines always have one.
            continue;
        }
        ++conges;
        EXPECT_EQ(c.Rayon, rayon);
        EXPECT_GT(c.Ouverture, 0);
        EXPECT_LE(c.Ouverture, Pi);
        precision = 1e-9 * (1 + Norme(c.Centre()));
        const bool dansLOrdre = EcartContact(c.Debut(), *e1) < precision;
        EXPECT_LT(EcartContact(dansLOrdre ? c.Debut() : c.Fin(), *e1), precision);
        EXPECT_LT(EcartContact(dansLOrdre ? c.Fin() : c.Debut(), *e2), precision);
        for (const EltGeo* elt : {e1.get(), e2.get()}) {
            EXPECT_LT(EcartTangence(c, *elt), precision);
            if (elt->Type == TypeArc) continue;
            const auto& s = static_cast<const EltSegment&>(*elt);
            EXPECT_EQ(s.Cote(c.Centre()), s.Cote(p));
        }
    }
    EXPECT_GT(conges, 500);
}
