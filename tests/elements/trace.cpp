#include "elements/trace.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <vector>

#include "elements/angles.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "toile.h"

namespace {

Image Peinte(const EltGeo& elt) {
    const Toile toile;
    toile.Peint(elt);
    return toile.Lit();
}

EltArc Cercle(double x, double y, double rayon) {
    return {{x, y}, rayon, 0, DeuxPi, 0};
}

EltDisque Secteur(double rayon, double debut, double ouverture) {
    EltDisque disque;
    disque.Rayon = rayon;
    disque.AngleDebut = debut;
    disque.Ouverture = ouverture;
    disque.Style.Remplissage = true;
    disque.Style.CouleurFond = Gdk::Color("#0000ff");
    return disque;
}

/// Every pixel, against what it should be; pixels for which attendu answers -1 may be anything.
void Compare(const Image& image, const std::function<long(int, int)>& attendu) {
    int faux = 0;
    for (int y = 0; y < image.Hauteur; ++y)
        for (int x = 0; x < image.Largeur; ++x) {
            const long voulu = attendu(x, y);
            if (voulu >= 0 && image(x, y) != static_cast<unsigned>(voulu) && ++faux < 4)
                ADD_FAILURE() << x << ", " << y << ": " << std::hex << image(x, y);
        }
    EXPECT_EQ(faux, 0);
}

/// One of each class, and one of each that reaches far out of the view.
std::vector<std::unique_ptr<EltGeo>> Echantillon() {
    std::vector<std::unique_ptr<EltGeo>> elts;
    elts.push_back(std::make_unique<EltGeo>(PointVek(3.4, -7.6), 0));
    elts.push_back(std::make_unique<EltSegment>(PointVek(-70.3, 40.4), PointVek(66.6, -52.2), 0));
    elts.push_back(std::make_unique<EltSegment>(PointVek(-1e6, 7), PointVek(90, 7), 0));
    elts.push_back(std::make_unique<EltDroite>(PointVek(10, 10), PointVek(13, 20), 0));
    elts.push_back(std::make_unique<EltArc>(PointVek(-20, 10), 50.5, 0.3, 4, 0));
    elts.push_back(std::make_unique<EltArc>(Cercle(-5000, 0, 5040)));
    elts.push_back(std::make_unique<EltRectangle>(PointVek(-80.5, 60), PointVek(30, -30.5), 0));
    elts.push_back(std::make_unique<EltRectangle>(PointVek(-1e6, 1e6), PointVek(50, -50), 0));
    elts.push_back(std::make_unique<EltDisque>(Secteur(60, 1, 4)));
    elts.push_back(std::make_unique<EltDisque>(Secteur(1e5, 2, 3)));
    return elts;
}

std::vector<Trait> Styles() {
    std::vector<Trait> styles(6);
    styles[0].Couleur = Gdk::Color("#ffffff");
    styles[1].StyleLigne = Axe;
    styles[2].StyleLigne = Pointille;
    styles[2].Epaisseur = 7;
    for (std::size_t i = 3; i < styles.size(); ++i) {
        styles[i].Remplissage = true;
        styles[i].Couleur = Gdk::Color("#ff8000");
        styles[i].CouleurFond = Gdk::Color("#20c060");
        styles[i].Hachure = i > 3;
        styles[i].PasHachure = 6;
        styles[i].AngleHachure = i == 4 ? 0.7 : -1.57;
        styles[i].Contour = i != 5;
    }
    return styles;
}

}  // namespace

TEST(Trace, SegmentsLointains) {
    for (const double loin : {1e5, 1e9, 1e15, 1e18, 1e21, 1e25, 1e300}) {
        SCOPED_TRACE(loin);
        const auto ligne = [](int, int y) { return y == 80 ? Noir : Blanc; };
        Compare(Peinte(EltSegment({-loin, 0}, {3.3 * loin, 0}, 0)), ligne);
        Compare(Peinte(EltSegment({0.7 * loin, 0}, {-loin, 0}, 0)), ligne);
        Compare(Peinte(EltRectangle({-1.7 * loin, 0}, {loin, -loin}, 0)), ligne);
    }
    Compare(Peinte(EltSegment({-1e9, -1e9}, {1e9, 1e9}, 0)),
            [](int x, int y) { return x - 100 == 80 - y ? Noir : Blanc; });
    // The dashes stay those that are counted from the far end: 5 pixels, then a gap of 5.
    EltSegment tirets({-40000, 0}, {40000, 0}, 0);
    tirets.Style.StyleLigne = Tirets;
    Compare(Peinte(tirets), [](int x, int y) { return y == 80 && x % 10 < 5 ? Noir : Blanc; });
}

TEST(Trace, CerclesImmenses) {
    for (const double rayon : {3000.0, 5000.0, 1e5, 1e6, 1e9}) {
        SCOPED_TRACE(rayon);
        const Image image = Peinte(Cercle(-rayon, 0, rayon));
        for (int y = 0; y < image.Hauteur; ++y) {
            const double dy = 80 - y,
                         bord = 100 - dy * dy / (rayon + std::sqrt(rayon * rayon - dy * dy));
            int vus = 0;
            for (int x = 0; x < image.Largeur; ++x) {
                if (image(x, y) == Blanc) continue;
                ++vus;
                ASSERT_LE(std::abs(x - bord), 1.5) << "row " << y;
            }
            ASSERT_GE(vus, 1) << "row " << y;
        }
    }
    // The part of the circle that the arc leaves out is not painted.
    Compare(Peinte(EltArc({-1e6, 0}, 1e6, 0, 1, 0)), [](int x, int y) {
        return x != 100 || std::abs(y - 80) < 2 ? -1L : static_cast<long>(y < 80 ? Noir : Blanc);
    });
}

TEST(Trace, DroitesSansFin) {
    const PointVek directions[] = {{1, 40}, {-3, 5}, {7, 2}, {1000, 0}, {0, -1}, {1, 1000}};
    for (const PointVek& d : directions)
        for (const double recul : {0.0, 1e6}) {
            SCOPED_TRACE(d.x / d.y + recul);
            const PointVek p = PointVek(5, -3) - d * recul;
            const Image image = Peinte(EltDroite(p, p + d, 0));
            int vus = 0;
            for (int y = 0; y < image.Hauteur; ++y)
                for (int x = 0; x < image.Largeur; ++x) {
                    if (image(x, y) == Blanc) continue;
                    ++vus;
                    const PointVek w(x - 105, 83 - y);
                    ASSERT_LE(std::abs(w.x * d.y - w.y * d.x) / Norme(d), 1.0) << x << ", " << y;
                }
            EXPECT_GE(vus, std::abs(d.y) > 0.8 * std::abs(d.x) ? 160 : 200);
        }
}

TEST(Trace, CeQuiEstDehorsNeSePeintPas) {
    const auto vide = [](int, int) { return Blanc; };
    // Pixel 65546 is not pixel 10.
    Compare(Peinte(EltGeo({65446, 0}, 0)), vide);
    Compare(Peinte(EltSegment({65446, -10}, {65446, 10}, 0)), vide);
    Compare(Peinte(Cercle(65446, 0, 10)), vide);
    Compare(Peinte(EltRectangle({65436, 10}, {65456, -10}, 0)), vide);
    const Toile toile;
    Trace trace = toile.Pinceau();
    trace.AppliqueTrait(Trait(), Trace::Ligne);
    trace.Point({65546, 10});
    trace.Poignee({65546, 10});
    trace.Segment({std::nan(""), 10}, {20, 10});
    trace.Segment({5, 5}, {HUGE_VAL, 5});
    trace.Arc({{10, 10}, std::nan(""), 0, 1}, true);
    trace.Rectangle({10, 10}, std::nan(""), 5, true);
    Compare(toile.Lit(), vide);
}

TEST(Trace, StylesHostiles) {
    constexpr double rien = std::numeric_limits<double>::quiet_NaN();
    for (const double pas : {40000.0, -3.0, 0.0, 1e300, rien, HUGE_VAL})
        for (const double angle : {0.0, 0.7, 0.05, -1.5, 9.0, 1e300, rien, -HUGE_VAL})
            for (const int epaisseur : {-5, 0, 1000000}) {
                EltRectangle r({-20, 20}, {20, -20}, 0);
                r.Style.Epaisseur = epaisseur;
                r.Style.PasHachure = pas;
                r.Style.AngleHachure = angle;
                r.Style.Hachure = 1;
                r.Style.Remplissage = true;
                const Image image = Peinte(r);
                ASSERT_EQ(image(100 + 75, 80), Blanc) << epaisseur;  // Half of 100 is the most.
                ASSERT_EQ(image(100 - 60, 80) == Blanc, epaisseur < 100);
                ASSERT_EQ(r.Style.Epaisseur, epaisseur);
            }
    EltSegment s({-50, 0}, {50, 0}, 0);
    s.Style.Epaisseur = -5;
    EXPECT_EQ(Peinte(s)(100, 80), Noir);
    EXPECT_EQ(Peinte(s)(100, 77), Blanc);
}

TEST(Trace, SurfacesEtContours) {
    EltRectangle r({-30, 20}, {30, -20}, 0);
    r.Style.Couleur = Gdk::Color("#ff0000");
    r.Style.CouleurFond = Gdk::Color("#0000ff");
    r.Style.Remplissage = true;
    const auto cadre = [](unsigned bord) {
        return [bord](int x, int y) {
            const bool dedans = std::abs(x - 100) < 30 && std::abs(y - 80) < 20;
            const bool dehors = std::abs(x - 100) > 30 || std::abs(y - 80) > 20;
            return dedans ? Bleu : dehors ? Blanc : bord;
        };
    };
    Compare(Peinte(r), cadre(Rouge));
    r.Style.Contour = false;
    Compare(Peinte(r), [&](int x, int y) {  // A filled one ends a pixel short.
        return x == 130 || y == 100 ? Blanc : cadre(Bleu)(x, y);
    });
    // Far corners leave the fill where it belongs.
    r.SetPoints({-1e9, 1e9}, {30, -20});
    Compare(Peinte(r), [](int x, int y) { return x < 130 && y < 100 ? Bleu : Blanc; });
    // Without area: a square of ten pixels.
    EltRectangle plat({0, 20}, {0, -20}, 0);
    Compare(Peinte(plat), [](int x, int y) {
        const bool cote = (x == 100 || x == 110) && y >= 60 && y <= 70;
        return cote || ((y == 60 || y == 70) && x >= 100 && x <= 110) ? Noir : Blanc;
    });
}

TEST(Trace, SecteursPetitsEtGrands) {
    for (const double rayon : {60.0, 1e5, 1e9}) {
        SCOPED_TRACE(rayon);
        const auto quadrant = [rayon](int signe) {
            return [=](int x, int y) {
                const int dx = x - 100, dy = signe * (80 - y);
                const double d = std::hypot(dx, dy);
                if (std::min(std::abs(dx), std::abs(dy)) < 2 || std::abs(d - rayon) < 2) return -1L;
                return static_cast<long>(dx > 0 && dy > 0 && d < rayon ? Bleu : Blanc);
            };
        };
        EltDisque quart = Secteur(rayon, 0, Pi / 2);
        quart.Style.Contour = false;
        Compare(Peinte(quart), quadrant(1));
        quart.Ouverture = -Pi / 2;  // As a mirror leaves it.
        Compare(Peinte(quart), quadrant(-1));
    }
}

TEST(Trace, SansSurfacePasDeRemplissage) {
    EltArc arc = Cercle(0, 0, 50);
    EltRectangle r({-50, 40}, {50, 0}, 0);
    EltSegment s({-50, 0}, {50, 0}, 0);
    EltDroite d({-50, 0}, {50, 0}, 0);
    EltGeo croix({50, 0}, 0);
    for (EltGeo* elt : {static_cast<EltGeo*>(&arc), static_cast<EltGeo*>(&r),
                        static_cast<EltGeo*>(&s), static_cast<EltGeo*>(&d), &croix}) {
        elt->Style.Couleur = Gdk::Color("#ff0000");
        elt->Style.CouleurFond = Gdk::Color("#0000ff");
        elt->Style.Hachure = 1;
        elt->Style.Remplissage = elt != &arc && elt != &r;
        const Image image = Peinte(*elt);
        EXPECT_EQ(image(150, 80), Rouge) << elt->Nom();
        EXPECT_EQ(image(100, 70), Blanc) << elt->Nom();
        Compare(image, [&](int x, int y) { return image(x, y) == Rouge ? Rouge : Blanc; });
    }
}

TEST(Trace, BandeSEffaceAuPixel) {
    for (const Trait& style : Styles())
        for (const auto& elt : Echantillon()) {
            const Toile toile;
            toile.Peint(Secteur(45, 0, 5));
            elt->Style = style;
            const Image avant = toile.Lit();
            // Each painting with a context of its own, as two motions of the pointer have.
            const auto bande = [&] {
                Trace trace = toile.Bande();
                elt->Dessine(trace);
                elt->DessinePoignees(trace);
            };
            bande();
            EXPECT_TRUE(toile.Lit() != avant) << elt->Nom();
            bande();
            EXPECT_TRUE(toile.Lit() == avant) << elt->Nom();
        }
}

TEST(Trace, BandeVisibleDansSaCouleur) {
    for (const auto& [couleur, vue] : {std::pair<const char*, unsigned>{"#000000", Noir},
                                       {"#ff0000", Rouge},
                                       {"#ffffff", Noir}}) {
        EltSegment s({-50, 0}, {50, 0}, 0);
        s.Style.Couleur = Gdk::Color(couleur);
        const Toile toile;
        Trace trace = toile.Bande();
        s.Dessine(trace);
        EXPECT_EQ(toile.Lit()(100, 80), vue) << couleur;
    }
}

TEST(Trace, ExpositionsPartiellesFontLImage) {
    for (const Trait& style : Styles()) {
        if (style.Remplissage) continue;  // One colour: repainting outside a part shows nothing.
        for (const auto& elt : Echantillon()) {
            elt->Style = style;
            elt->Style.Couleur = Gdk::Color("#ff0000");
            const Toile parties;
            for (int x = 0; x < Toile::Largeur; x += 25)
                for (int y = 0; y < Toile::Hauteur; y += 20) {
                    Trace trace = parties.Pinceau(Gdk::Rectangle(x, y, 25, 20));
                    elt->Dessine(trace);
                }
            EXPECT_TRUE(parties.Lit() == Peinte(*elt)) << elt->Nom();
        }
    }
    const Toile toile;
    for (int y = 0; y < Toile::Hauteur; y += 20) {
        Trace trace = toile.Pinceau(Gdk::Rectangle(0, y, Toile::Largeur, 20));
        trace.AppliqueTrait(Trait(), Trace::Ligne);
        for (int i = 0; i < 159; ++i)
            trace.Point({i + 0.0, i + 0.6});
    }
    Compare(toile.Lit(), [](int x, int y) { return x < 159 && y == x + 1 ? Noir : Blanc; });
}
