#include "elements/trace.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "commun/record.h"
#include "elements/angles.h"
#include "elements/eltcote.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "elements/elttxt.h"
#include "elements/traceetendue.h"
#include "elements/tracepage.h"
#include "model/bddgeobase.h"
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

/// Elements of each class, within the view and reaching far out of it, each in six styles: three
/// lines, then three surfaces.
struct Echantillon : BDDGeoBase {
    Echantillon() { ChargeTexte(Contenu(KRVEK_ESSAIS "/elements/data/echantillon.vek")); }
};

bool EstCote(const EltGeo& elt) {
    return dynamic_cast<const EltCote*>(&elt) != nullptr;
}

/// The element on paper, a unit of the page being a pixel.
Image Imprime(const EltGeo& elt) {
    const Toile vue;
    const auto surface =
        Cairo::ImageSurface::create(Cairo::FORMAT_RGB24, Toile::Largeur, Toile::Hauteur);
    const auto cr = Cairo::Context::create(surface);
    cr->set_source_rgb(1.0, 1.0, 1.0);
    cr->paint();
    // Pixels are counted by their middles.
    cr->translate(0.5, 0.5);
    TracePage trace(cr, Toile::Largeur, Toile::Hauteur, 4.0, false);
    elt.Dessine(trace);
    surface->flush();
    Image image;
    for (int y = 0; y < Toile::Hauteur; ++y)
        for (int x = 0; x < Toile::Largeur; ++x)
            image.push_back(*reinterpret_cast<unsigned*>(surface->get_data() + 4 * x +
                                                         y * surface->get_stride()) &
                            0xffffff);
    return image;
}

/// Number of pixels of an image that have no like in the other one, there or beside.
int SansPareil(const Image& image, const Image& autre) {
    const auto semblables = [](unsigned a, unsigned b) {
        for (const int decalage : {0, 8, 16})
            if (std::abs(static_cast<int>(a >> decalage & 255) -
                         static_cast<int>(b >> decalage & 255)) > 140)
                return false;
        return true;
    };
    int nombre = 0;
    for (int y = 1; y + 1 < Toile::Hauteur; ++y)
        for (int x = 1; x + 1 < Toile::Largeur; ++x) {
            bool trouve = false;
            for (int i = 0; i < 9; ++i)
                trouve =
                    trouve || semblables(Vu(image, x, y), Vu(autre, x + i / 3 - 1, y + i % 3 - 1));
            nombre += !trouve;
        }
    return nombre;
}

}  // namespace

TEST(Trace, TiretsLointains) {
    // The dashes stay those that are counted from the far end: 5 pixels, then a gap of 5.
    EltSegment tirets({-40000, 0}, {40000, 0}, 0);
    tirets.Style.StyleLigne = Tirets;
    Compare(Peint(tirets), [](int x, int y) { return Si(y == 0 && (x + 100) % 10 < 5); });
    EltRectangle bord({-40003, 0}, {0, -40000}, 0);
    bord.Style.StyleLigne = Tirets;
    Compare(Peint(bord), [](int x, int y) {
        if (x == 0 && y == 0) return -1L;
        if (y == 0 && x < 0) return Si((x + 103) % 10 < 5);
        return Si(x == 0 && y < 0 && (3 - y) % 10 < 5);
    });
}

TEST(Trace, CerclesImmenses) {
    for (const double rayon : {3000.0, 5000.0, 1e5, 1e6, 1e9}) {
        SCOPED_TRACE(rayon);
        const Image image = Peint(Cercle(-rayon, 0, rayon));
        Compare(image, [rayon](double x, double y) {
            const double bord = -y * y / (rayon + std::sqrt(rayon * rayon - y * y));
            return std::abs(x - bord) > 1.5 ? Blanc : -1L;
        });
        EXPECT_GE(std::count(image.begin(), image.end(), Noir), Toile::Hauteur);
    }
    // The part that the arc leaves out is not painted.
    Compare(Peint(EltArc({-1e6, 0}, 1e6, 0, 1, 0)),
            [](int x, int y) { return std::abs(y) < 2 ? -1 : Si(x == 0 && y > 0); });
    // The dashes of an arc are counted from its start, however far.
    EltArc tirets({-1e6, 0}, 1e6, -40 * 1e-6, 1, 0);
    tirets.Style.StyleLigne = Tirets;
    Compare(Peint(tirets), [](int x, int y) {
        return (y + 40) % 5 == 0 ? -1 : Si(x == 0 && y > -40 && (y + 40) % 10 < 5);
    });
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
    // The dashes stay with the line when the view moves: they are counted from its point.
    for (const double loin : {0.0, 1000.0, 1e6}) {
        EltDroite tirets({-loin, 0}, {1 - loin, 0}, 0);
        tirets.Style.StyleLigne = Tirets;
        Compare(Peint(tirets), [](int x, int y) { return Si(y == 0 && (x + 100) % 10 < 5); });
    }
}

TEST(Trace, CeQuiEstDehorsNeSePeintPas) {
    const Toile toile;
    TraceEcran trace = toile.Pinceau();
    trace.AppliqueTrait(Trait(), Trace::Ligne);
    trace.Point({65546, 10});
    trace.Poignee({65546, 10});
    trace.Segment({std::nan(""), 10}, {20, 10});
    trace.Segment({5, 5}, {HUGE_VAL, 5});
    trace.Arc({{10, 10}, std::nan(""), 0, 1}, true);
    trace.Arc({{HUGE_VAL, 10}, 5, 0, 1}, true);
    trace.Rectangle({10, 10}, std::nan(""), 5, true);
    Compare(toile.Lit(), [](int, int) { return Blanc; });
}

TEST(Trace, StylesHostiles) {
    for (const double faux : {40000.0, -3.0, 0.0, 1e300, std::nan(""), -HUGE_VAL})
        for (const int epaisseur : {-5, 0, 1000000}) {
            EltRectangle r({-20, 20}, {20, -20}, 0);
            r.Style.Epaisseur = epaisseur;
            r.Style.PasHachure = r.Style.AngleHachure = faux;
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
}

TEST(Trace, BandeSEffaceAuPixel) {
    const Echantillon tous;
    for (const EltGeo* elt : tous.Elements) {
        const Toile toile;
        TraceEcran fond = toile.Pinceau();
        Secteur(45, 0, 5).Dessine(fond);
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
        EXPECT_EQ(Vu(Peint(s, true), 100, 80), couleur[5] == couleur[1] ? Noir : Rouge);
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
    const Echantillon tous;
    for (const EltGeo* elt : tous.Elements) {
        // Of one colour, a part may be painted twice.
        if (elt->Style.Remplissage || EstCote(*elt)) continue;
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

TEST(Trace, UnTexteEstAncre) {
    for (const bool centre : {false, true})
        for (const int quarts : {0, 1, 2, 3}) {
            EltTxt texte;
            texte.Texte = "HOH";
            texte.Taille = 20;
            texte.Centre_ = centre;
            texte.Angle = quarts * Pi / 2;
            const Image ecran = Peint(texte), papier = Imprime(texte);
            EXPECT_LT(SansPareil(ecran, papier) + SansPareil(papier, ecran), 40);
            // Where its ink lies along the base side, and above it.
            double u0 = 99, u1 = -99, v0 = 99, v1 = -99;
            for (int y = 0; y < Toile::Hauteur; ++y)
                for (int x = 0; x < Toile::Largeur; ++x) {
                    PointVek p(x - 100, 80 - y);
                    if (Vu(ecran, x, y) == Blanc || Norme(p) < 3) continue;
                    p.Tourne(-texte.Angle);
                    u0 = std::min(u0, p.x), u1 = std::max(u1, p.x);
                    v0 = std::min(v0, p.y), v1 = std::max(v1, p.y);
                }
            EXPECT_NEAR(centre ? u0 + u1 : u0, 0, 4);
            // Three bold capitals of 20 points at 96 dots an inch.
            EXPECT_NEAR(u1 - u0, 60, 8);
            EXPECT_NEAR(v1 - v0, 20, 3);
            EXPECT_NEAR(v0, 6, 3);
        }
}

TEST(Trace, LaPorteeEtLePapierTiennentCeQuiEstPeint) {
    const Echantillon tous;
    for (const EltGeo* elt : tous.Elements) {
        // The decimals of a dimension may change without the element.
        const Minorant minorant = elt->MinorantDistance();
        NbDecimales = 9;
        const Image image = Peint(*elt);
        EXPECT_TRUE(!EstCote(*elt) || Peint(*elt, true) == image) << elt->Nom();
        const Toile vue;
        TraceEtendue trace(true);
        elt->Dessine(trace);
        NbDecimales = 2;
        // Dots and tiles are others on paper, marks are none; dashes start elsewhere.
        const bool marque = elt->Type == TypeGeo || EstCote(*elt) ||
                            (elt->Type == TypeProfil && elt->Position.x < 100);
        if (!marque && elt->Style.StyleLigne == Continu && elt->Style.Hachure == 0) {
            const Image papier = Imprime(*elt);
            EXPECT_EQ(SansPareil(image, papier) + SansPareil(papier, image), 0) << elt->Nom();
        }
        const Boite boite = trace.Etendue()->Elargie(elt->Style.Epaisseur + 13.0);
        Compare(image, [&](int x, int y) {
            const bool dedans =
                boite.Contient(PointVek(100 + x, 80 - y)) || elt->Type == TypeDroite;
            const PointVek p(x, y);
            return dedans && minorant.PeutToucher(Boite::Autour(p, p).Elargie(13)) ? -1L : Blanc;
        });
    }
}

TEST(Trace, LaHachureSuitLaVue) {
    EltDisque disque(Secteur(40, 0, DeuxPi));
    disque.Style.Hachure = 1;
    disque.Style.PasHachure = 6;
    disque.Style.AngleHachure = 0.7;
    const Toile fixe, glissee;
    TraceEcran avant = fixe.Pinceau();
    disque.Dessine(avant);
    EchelleCourante.Origine = {-3, 5};
    TraceEcran apres = glissee.Pinceau();
    disque.Dessine(apres);
    Compare(glissee.Lit(), [a = fixe.Lit()](int x, int y) {
        return std::max(std::abs(x), std::abs(y)) > 60 ? -1L : Vu(a, 97 + x, 75 - y);
    });
}
