#include "elements/trace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "elements/angles.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "toile.h"

namespace {

using Image = std::vector<unsigned>;

EltArc Cercle(double x, double y, double rayon) {
    return {{x, y}, rayon, 0, DeuxPi, 0};
}

EltDisque Secteur(double rayon, double debut, double ouverture) {
    EltDisque disque;
    disque.Rayon = rayon;
    disque.AngleDebut = debut;
    disque.Ouverture = ouverture;
    disque.Style.Remplissage = true;
    disque.Style.Contour = false;
    disque.Style.CouleurFond = Gdk::Color("#0000ff");
    return disque;
}

/// Every pixel against attendu(x, y), x and y counted from the centre, y upward; where that answers
/// -1 anything may be.
template <class Attendu>
void Compare(const Image& image, const Attendu& attendu) {
    int faux = 0;
    for (int y = 0; y < Toile::Hauteur; ++y)
        for (int x = 0; x < Toile::Largeur; ++x) {
            const long voulu = attendu(x - 100, 80 - y);
            if (voulu >= 0 && Vu(image, x, y) != static_cast<unsigned>(voulu) && ++faux == 1)
                ADD_FAILURE() << x << ", " << y << ": " << std::hex << Vu(image, x, y);
        }
    EXPECT_EQ(faux, 0);
}

long Si(bool condition, unsigned couleur = Noir) {
    return condition ? couleur : Blanc;
}

/// Elements of each class, within the view and reaching far out of it.
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
    EltProfil ouvert;
    ouvert.Ferme = false;
    for (const PointVek& p : {PointVek(-60, -20), {-60, 30}, {-1e6, 30}, {40, -60}})
        ouvert.Ajoute(p);
    ouvert.AjouteElement(EltArc({40, -30}, 30.5, 2, 4, 0));
    elts.push_back(ouvert.Clone());
    elts.push_back(std::make_unique<EltDisque>(Secteur(60, 1, 4)));
    elts.push_back(std::make_unique<EltDisque>(Secteur(1e5, 2, 3)));
    return elts;
}

/// Three lines, then three fills.
std::vector<Trait> Styles() {
    std::vector<Trait> styles(6);
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
    for (const double loin : {1e5, 1e9, 1e15, 1e18, 1e21, 1e300}) {
        SCOPED_TRACE(loin);
        const auto ligne = [](int, int y) { return Si(y == 0); };
        Compare(Peint(EltSegment({-loin, 0}, {3.3 * loin, 0}, 0)), ligne);
        Compare(Peint(EltRectangle({-1.7 * loin, 0}, {loin, -loin}, 0)), ligne);
    }
    Compare(Peint(EltSegment({-1e9, -1e9}, {1e9, 1e9}, 0)),
            [](int x, int y) { return Si(x == y); });
    // The dashes stay those that are counted from the far end: 5 pixels, then a gap of 5.
    EltSegment tirets({-40000, 0}, {40000, 0}, 0);
    tirets.Style.StyleLigne = Tirets;
    Compare(Peint(tirets), [](int x, int y) { return Si(y == 0 && (x + 100) % 10 < 5); });
}

TEST(Trace, CerclesImmenses) {
    for (const double rayon : {3000.0, 5000.0, 1e5, 1e6, 1e9}) {
        SCOPED_TRACE(rayon);
        const Image image = Peint(Cercle(-rayon, 0, rayon));
        for (int y = 0; y < Toile::Hauteur; ++y) {
            const double dy = 80 - y;
            const double bord = 100 - dy * dy / (rayon + std::sqrt(rayon * rayon - dy * dy));
            int vus = 0;
            for (int x = 0; x < Toile::Largeur; ++x) {
                if (Vu(image, x, y) == Blanc) continue;
                ++vus;
                ASSERT_LE(std::abs(x - bord), 1.5) << y;
            }
            ASSERT_GE(vus, 1) << y;
        }
    }
    // The part that the arc leaves out is not painted.
    Compare(Peint(EltArc({-1e6, 0}, 1e6, 0, 1, 0)),
            [](int x, int y) { return std::abs(y) < 2 ? -1 : Si(x == 0 && y > 0); });
    for (const double rayon : {60.0, 1e5, 1e9})
        for (const int signe : {1, -1}) {  // A mirror leaves a negative opening.
            SCOPED_TRACE(rayon);
            Compare(Peint(Secteur(rayon, 0, signe * Pi / 2)), [=](int x, int y) {
                const double d = std::hypot(x, y);
                const bool bord = x * x < 4 || y * y < 4 || std::abs(d - rayon) < 2;
                return bord ? -1 : Si(x > 0 && signe * y > 0 && d < rayon, Bleu);
            });
        }
}

TEST(Trace, DroitesSansFin) {
    for (const PointVek& d : {PointVek(1, 40), PointVek(-3, 5), PointVek(7, 2), PointVek(1000, 0),
                              PointVek(0, -1), PointVek(1, 1000)})
        for (const double recul : {0.0, 1e6}) {
            SCOPED_TRACE(testing::Message() << d.x << ' ' << d.y << ' ' << recul);
            const PointVek p = PointVek(5, -3) - d * recul;
            const double cote = std::max(std::abs(d.x), std::abs(d.y));
            const Image image = Peint(EltDroite(p, p + d, 0));
            Compare(image, [&](int x, int y) {
                return std::abs((x - 5) * d.y - (y + 3) * d.x) > 1.01 * cote ? Blanc : -1L;
            });
            EXPECT_GE(std::count(image.begin(), image.end(), Noir),
                      std::abs(d.y) > std::abs(d.x) ? Toile::Hauteur : Toile::Largeur);
        }
}

TEST(Trace, CeQuiEstDehorsNeSePeintPas) {
    const auto vide = [](int, int) { return Blanc; };
    // Pixel 65546 is not pixel 10.
    Compare(Peint(EltGeo({65446, 0}, 0)), vide);
    Compare(Peint(EltSegment({65446, -10}, {65446, 10}, 0)), vide);
    Compare(Peint(Cercle(65446, 0, 10)), vide);
    Compare(Peint(EltRectangle({65436, 10}, {65456, -10}, 0)), vide);
    const Toile toile;
    TraceEcran trace = toile.Pinceau();
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
    const double rien = std::nan("");
    for (const double pas : {40000.0, -3.0, 0.0, 1e300, rien, HUGE_VAL})
        for (const double angle : {0.0, 0.7, 0.05, -1.5, 9.0, 1e300, rien, -HUGE_VAL})
            for (const int epaisseur : {-5, 0, 1000000}) {
                EltRectangle r({-20, 20}, {20, -20}, 0);
                r.Style.Epaisseur = epaisseur;
                r.Style.PasHachure = pas;
                r.Style.AngleHachure = angle;
                r.Style.Hachure = 1;
                r.Style.Remplissage = true;
                const Image image = Peint(r);
                ASSERT_EQ(Vu(image, 100 + 75, 80), Blanc);  // 100 is the widest.
                ASSERT_EQ(Vu(image, 100 - 60, 80) == Blanc, epaisseur < 100);
            }
}

TEST(Trace, SurfacesEtContours) {
    EltRectangle r({-30, 20}, {30, -20}, 0);
    r.Style.Couleur = Gdk::Color("#ff0000");
    r.Style.CouleurFond = Gdk::Color("#0000ff");
    r.Style.Remplissage = true;
    Compare(Peint(r), [](int x, int y) {
        const bool dedans = std::abs(x) < 30 && std::abs(y) < 20;
        return dedans ? Bleu : Si(std::abs(x) <= 30 && std::abs(y) <= 20, Rouge);
    });
    r.Style.Contour = false;
    r.SetPoints({-1e9, 1e9}, {30, -20});
    Compare(Peint(r), [](int x, int y) { return Si(x < 30 && y > -20, Bleu); });
    // Without area: a square of ten pixels.
    Compare(Peint(EltRectangle({0, 20}, {0, -20}, 0)), [](int x, int y) {
        const int ecart = std::max(std::abs(x - 5), std::abs(y - 15));
        return Si(ecart == 5);
    });

    // What has no surface, and an open outline, is painted in its own colour whatever the style.
    for (const auto& elt : Echantillon()) {
        const bool ferme = elt->Type == TypeArc || dynamic_cast<EltRectangle*>(elt.get());
        elt->Style.Couleur = Gdk::Color("#ff0000");
        elt->Style.CouleurFond = Gdk::Color("#0000ff");
        elt->Style.Hachure = elt->Type != TypeDisque;
        elt->Style.Remplissage = !ferme && elt->Type != TypeDisque;
        const Image image = Peint(*elt);
        int rouges = 0;
        Compare(image, [&](int x, int y) {
            const bool rouge = Vu(image, x + 100, 80 - y) == Rouge;
            rouges += rouge;
            return Si(rouge, Rouge);
        });
        EXPECT_GT(rouges, 0) << elt->Nom();
    }
}

TEST(Trace, BandeSEffaceAuPixel) {
    for (const Trait& style : Styles())
        for (const auto& elt : Echantillon()) {
            const Toile toile;
            TraceEcran fond = toile.Pinceau();
            Secteur(45, 0, 5).Dessine(fond);
            elt->Style = style;
            const Image avant = toile.Lit();
            // Each painting with a context of its own, as two motions of the pointer have.
            const auto bande = [&] {
                TraceEcran trace = toile.Bande();
                elt->Dessine(trace);
                elt->DessinePoignees(trace);
            };
            bande();
            EXPECT_NE(toile.Lit(), avant) << elt->Nom();
            bande();
            EXPECT_TRUE(toile.Lit() == avant) << elt->Nom();
        }
    // On the plain background a band has the element's colour, or the inverse of the background.
    for (const char* couleur : {"#000000", "#ff0000", "#ffffff"}) {
        EltSegment s({-50, 0}, {50, 0}, 0);
        s.Style.Couleur = Gdk::Color(couleur);
        const Toile toile;
        TraceEcran trace = toile.Bande();
        s.Dessine(trace);
        EXPECT_EQ(Vu(toile.Lit(), 100, 80), couleur[5] == couleur[1] ? Noir : Rouge);
    }
}

TEST(Trace, ExpositionsPartiellesFontLImage) {
    const auto parties = [](const auto& peint) {
        const Toile toile;
        for (int x = 0; x < Toile::Largeur; x += 25)
            for (int y = 0; y < Toile::Hauteur; y += 20) {
                TraceEcran trace = toile.Pinceau(Gdk::Rectangle(x, y, 25, 20));
                peint(trace);
            }
        return toile.Lit();
    };
    for (const Trait& style : Styles())
        for (const auto& elt : Echantillon()) {
            if (style.Remplissage) continue;  // Of one colour, a part may be painted twice.
            elt->Style = style;
            const auto image = parties([&](Trace& trace) { elt->Dessine(trace); });
            EXPECT_TRUE(image == Peint(*elt)) << elt->Clone()->Nom();
        }
    const auto image = parties([](TraceEcran& trace) {
        trace.AppliqueTrait(Trait(), Trace::Ligne);
        for (int i = 0; i < 159; ++i)
            trace.Point({i + 0.0, i + 0.6});
    });
    Compare(image, [](int x, int y) { return Si(x < 59 && 80 - y == x + 101); });
}

TEST(Trace, LaHachureSuitLaVue) {
    EltDisque disque(Secteur(40, 0, DeuxPi));
    disque.Style = Styles()[4];
    const Toile fixe, glissee;
    TraceEcran avant = fixe.Pinceau();
    disque.Dessine(avant);
    EchelleCourante.Origine = {-3, 5};
    TraceEcran apres = glissee.Pinceau();
    disque.Dessine(apres);
    const Image a = fixe.Lit(), b = glissee.Lit();
    int autres = 0;
    for (int y = 20; y < 140; ++y)
        for (int x = 20; x < 180; ++x)
            autres += Vu(a, x, y) != Vu(b, x + 3, y + 5);
    EXPECT_EQ(autres, 0);
}
