#include "elements/eltcote.h"
#include "commun/record.h"

#include <cmath>

#include "commun/hasard.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltcoteang.h"
#include "elements/eltcotedia.h"
#include "elements/eltcotehori.h"
#include "elements/eltcoterayon.h"
#include "elements/eltcotevert.h"
#include "elements/lecteur.h"
#include "model/registre.h"
#include "toile.h"
#include "verifie.h"

namespace {

template <class Cote>
Cote Entre(const PointVek& a, const PointVek& b, const PointVek& ligne) {
    Cote cote;
    cote.SetPoint1(a);
    cote.SetPoint2(b);
    cote.PlaceLigne(ligne);
    return cote;
}

EltCoteAng Angle(const PointVek& o1, const PointVek& o2, const PointVek& e1, const PointVek& e2) {
    EltCoteAng cote = Entre<EltCoteAng>(o1, o2, e1);
    cote.PlaceExtremite2(e2);
    return cote;
}

std::unique_ptr<EltGeo> Relu(const std::string& record) {
    Lecteur entree(record);
    int type = 0;
    entree >> type;
    auto elt = CreeElement(type);
    elt->Charge(entree);
    return elt;
}

std::vector<unsigned> Peint(const EltGeo& elt, bool bande = false) {
    const Toile toile;
    TraceEcran trace = bande ? toile.Bande() : toile.Pinceau();
    elt.Dessine(trace);
    return toile.Lit();
}

}  // namespace

TEST(EltCote, ValeursMontreesEtTexteAutomatique) {
    const auto montre = [](double valeur, int decimales) {
        NbDecimales = decimales;
        const auto texte = Entre<EltCote>({0, 0}, {valeur, 0}, {0, 0}).Texte;
        NbDecimales = 2;
        return texte;
    };
    EXPECT_EQ(montre(2.3 - 0.1, 2), "2.2");
    EXPECT_EQ(montre(12.999, 2), "12.99");
    EXPECT_EQ(montre(2.004, 2), "2.00");
    EXPECT_EQ(montre(100, 2), "100");
    EXPECT_EQ(montre(2.5, 0), "2.");
    EXPECT_EQ(montre(1.0 / 3.0, 15), "0.333333333333");
    EXPECT_EQ(montre(1e-5, 15), "0.00001");
    EXPECT_EQ(montre(1e22, 2), "1" + std::string(22, '0'));

    EXPECT_EQ(montre(199.996, 2), "199.99");
    EXPECT_EQ(montre(199.99996, 2), "200");
    EXPECT_EQ(montre(1999.96, 1), "1999.9");
    EXPECT_EQ(montre(0.9999996, 2), "1");

    auto cote = Entre<EltCote>({-30, 0}, {20.129, 0}, {0, 20});
    const auto image = [&cote](const char* texte) {
        cote.Texte = texte;
        const auto peinte = Peint(cote);
        EXPECT_EQ(cote.Texte, texte);
        return peinte;
    };
    EXPECT_EQ(image("*"), image("50.12"));
    cote.Point2 = {30, 0};
    EXPECT_EQ(image("* x"), image("60"));
    EXPECT_NE(image("*"), image("50.12"));
}

TEST(EltCote, LigneEtValeurSelonLeSens) {
    const auto cote = Entre<EltCote>({0, 0}, {30, 40}, {-25, 50});
    EXPECT_EQ(cote.Texte, "50");
    EXPECT_POINT(cote.Position, -25, 50);
    EXPECT_POINT(Entre<EltCote>({0, 0}, {30, 40}, {30, 40}).Position, 15, 20);
    EXPECT_NEAR(Entre<EltCote>({30, 40}, {0, 0}, {0, 0}).Angle, std::atan2(-4, -3), 1e-12);
    const auto hori = Entre<EltCoteHori>({30, 40}, {0, 0}, {100, 70});
    EXPECT_EQ(hori.Texte, "30");
    EXPECT_POINT(hori.Position, 15, 70);
    EXPECT_EQ(hori.Angle, 0);
    const auto vert = Entre<EltCoteVert>({30, 40}, {0, 0}, {100, 70});
    EXPECT_EQ(vert.Texte, "40");
    EXPECT_POINT(vert.Position, 100, 20);

    // Nothing to measure: refused, but for what measures 0 one way.
    const auto nulle = Entre<EltCote>({7, 7}, {7, 7}, {50, 50});
    EXPECT_FALSE(nulle.EstValide());
    EXPECT_POINT(nulle.Position, 7, 7);
    EXPECT_FALSE(Entre<EltCoteDia>({3, 4}, {3, 4}, {9, 9}).EstValide());
    EXPECT_TRUE(Entre<EltCoteHori>({7, 7}, {7, 90}, {0, 0}).EstValide());
    EXPECT_TRUE(Entre<EltCoteVert>({7, 7}, {90, 7}, {0, 0}).EstValide());
    EXPECT_FALSE(Entre<EltCoteHori>({7, 7}, {HUGE_VAL, 90}, {0, 0}).EstValide());
}

TEST(EltCote, ValeurRondeApresEnregistrement) {
    const auto relue = [](const EltCote& cote) {
        const auto elt = Relu(Record(cote));
        auto& lue = static_cast<EltCote&>(*elt);
        return std::stod(lue.TexteValeur());
    };
    Hasard hasard(7);
    for (int tour = 0; tour < 300; ++tour) {
        const PointVek p = hasard.Point(400);
        const double debut = hasard.Reel(0.0, DeuxPi);
        const PointVek q = PointPolaire(p, 200, debut);
        SCOPED_TRACE(testing::Message() << p.x << ' ' << p.y << ' ' << debut);
        EXPECT_EQ(relue(Entre<EltCote>(p, q, p)), 200);
        EXPECT_EQ(relue(Entre<EltCoteHori>(p, {p.x - 37.25, q.y}, p)), 37.25);
        EXPECT_EQ(relue(Entre<EltCoteVert>(p, {q.x, p.y + 37.25}, p)), 37.25);
        EltCoteDia dia;
        dia.DepuisArc(EltArc(p, 100, debut, 1, 0));
        EXPECT_EQ(relue(dia), 200);
        EltCoteRayon rayon;
        rayon.DepuisArc(EltArc(p, 100, debut, 1, 0));
        EXPECT_EQ(relue(rayon), 100);
        EXPECT_EQ(relue(Angle(p, p, q, PointPolaire(p, 50, debut + EnRadians(30)))), 30);
    }
}

TEST(EltCoteAng, QuadrantsEtMiroirs) {
    const PointVek coin(10, -20);
    for (int debut = 0; debut < 360; debut += 30)
        for (const int ouverture : {30, 90, 180, 330}) {
            SCOPED_TRACE(testing::Message() << debut << " + " << ouverture);
            const auto vers = [&](double degres, double rayon) {
                return PointPolaire(coin, rayon, EnRadians(degres));
            };
            const auto cote = Angle(coin, coin, vers(debut, 50), vers(debut + ouverture, 40));
            const double milieu = debut + ouverture / 2.0;
            EXPECT_EQ(cote.Texte, std::to_string(ouverture) + "°");
            EXPECT_POINT(cote.Position, vers(milieu, 40).x, vers(milieu, 40).y);
            EXPECT_LE(std::abs(cote.Angle), Pi);
            EXPECT_NEAR(std::cos(cote.Angle - EnRadians(milieu - 90)), 1, 1e-12);
            for (const int miroirs : {0, 1, 2, 3}) {
                const TransformeColle t{
                    2, 1, std::cos(1.0), std::sin(1.0), miroirs % 2 == 1, miroirs > 1};
                EltCoteAng collee = cote;
                collee.Transforme(t);
                EXPECT_EQ(collee.TexteValeur(), cote.Texte);
                PointVek bissectrice = Unitaire(cote.Position - cote.Sommet);
                bissectrice.Transforme(t);
                const PointVek vue = Unitaire(collee.Position - collee.Sommet) * 2;
                EXPECT_POINT(vue, bissectrice.x, bissectrice.y);
            }
        }
}

TEST(EltCoteAng, SegmentsSeparesParallelesOuNuls) {
    // The second end keeps its side of the apex, also when its segment points at the apex.
    EltCoteAng cote = Angle({30, 0}, {10, 90}, {60, 0}, {10, 40});
    EXPECT_POINT(cote.Sommet, 10, 0);
    EXPECT_POINT(cote.Extremite2, 10, 40);
    EXPECT_EQ(cote.Texte, "90°");
    EXPECT_EQ(Angle({30, 0}, {10, 90}, {60, 0}, {10, -40}).Texte, "270°");
    const auto paralleles = Angle({0, 0}, {0, 10}, {10, 0}, {16, 10});
    EXPECT_POINT(paralleles.Sommet, 13, 5);
    EXPECT_POINT(paralleles.Extremite2, 13 + std::sqrt(34), 5);
    EXPECT_POINT(Angle({0, 0}, {0, 10}, {16, 0}, {10, 10}).Extremite2, 13 - std::sqrt(34), 5);
    EXPECT_EQ(Angle({0, 0}, {0, 0}, {10, 0}, {5, 0}).Texte, "0°");

    EXPECT_EQ(Angle({0, 0}, {0, 0}, {0, 0}, {10, 0}).Texte, "360°");
    EXPECT_FALSE(Angle({0, 0}, {0, 0}, {0, 0}, {10, 0}).EstValide());
    EXPECT_FALSE(Angle({0, 0}, {0, 0}, {10, 0}, {0, 0}).EstValide());
    EXPECT_FALSE(Angle({5, 5}, {0, 0}, {5, 5}, {10, 0}).EstValide());
}

TEST(EltCote, EnregistrementsOctetPourOctet) {
    const std::string commun = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
    const auto hori = Entre<EltCoteHori>({0, 0}, {100, 5}, {0, 20});
    EXPECT_EQ(Record(hori), "10" + commun + "50 20 0\n100\n0 10 0\nNice\n0 0 0 100 5 0\n");
    const auto vert = Entre<EltCoteVert>({0, 0}, {100, 5}, {20, 0});
    EXPECT_EQ(Record(vert), "9" + commun + "20 2.5 0\n5\n1.5708 10 0\nArial\n0 0 0 100 5 0\n");
    const auto angle = Angle({1, 0}, {0, 2}, {10, 0}, {0, 5});
    EXPECT_EQ(Record(angle), "8" + commun +
                                 "3.53553 3.53553 0\n90°\n-0.785398 10 0\nNice\n1 0 0 0 2 0\n"
                                 "0 0 0 10 0 0 0 5 0\n");
    for (const EltGeo* elt : std::initializer_list<const EltGeo*>{&hori, &vert, &angle}) {
        const std::string record = Record(*elt);
        EXPECT_EQ(Record(*Relu(record)), record);
        auto copie = CreeElement(elt->Type);
        copie->Copie(*elt);
        EXPECT_EQ(Record(*copie), record);
        // Cut off anywhere, or with values that fit nowhere: read as far as it goes, and painted.
        for (std::size_t i = record.find(' ') + 1; i < record.size(); ++i)
            Peint(*Relu(record.substr(0, i)));
        for (const char* faux : {"1e308", "-1e308", "1e-320", "nan"})
            for (std::size_t i = record.find("\n", 75); i < record.size(); ++i)
                if (record[i] >= '0' && record[i] <= '9')
                    Peint(*Relu(std::string(record).replace(i, 1, faux)));
    }
}

TEST(EltCote, LignesEtFleches) {
    const auto peinte = [](EltCote& cote) {
        cote.Texte = "";
        return Peint(cote);
    };
    // Up from (60, 90), across at 50, down to (140, 90); barbs of 8 by 8 pixels, inward.
    auto cote = Entre<EltCote>({-40, -10}, {40, -10}, {0, 30});
    auto image = peinte(cote);
    for (const auto& [x, y] : {std::pair(60, 90), {100, 50}, {140, 89}, {68, 42}, {132, 58}})
        EXPECT_EQ(Vu(image, x, y), Noir) << x << ' ' << y;
    EXPECT_EQ(Vu(image, 56, 46), Blanc);

    // The diameter turns with the text; on its middle it lies level.
    auto dia = Entre<EltCoteDia>({40, 0}, {-40, 0}, {0, 60});
    image = peinte(dia);
    for (const auto& [x, y] : {std::pair(100, 20), {100, 119}, {92, 48}, {108, 112}})
        EXPECT_EQ(Vu(image, x, y), Noir) << x << ' ' << y;
    EXPECT_EQ(Vu(image, 100, 123), Blanc);
    dia.Position = {};
    EXPECT_EQ(Vu(peinte(dia), 68, 72), Noir);

    // The radius too; with the text on Point2 it goes to Point1.
    auto rayon = Entre<EltCoteRayon>({0, 40}, {0, 0}, {60, 0});
    image = peinte(rayon);
    for (const auto& [x, y] : {std::pair(101, 80), {159, 80}, {132, 72}})
        EXPECT_EQ(Vu(image, x, y), Noir) << x << ' ' << y;
    EXPECT_EQ(Vu(image, 98, 80), Blanc);
    rayon.Position = {};
    EXPECT_EQ(Vu(peinte(rayon), 108, 48), Noir);

    auto angle = Angle({0, 0}, {0, 0}, {40, 0}, {0, 40});
    image = peinte(angle);
    for (const auto& [x, y] : {std::pair(120, 80), {100, 60}, {128, 52}, {148, 72}, {108, 32}})
        EXPECT_EQ(Vu(image, x, y), Noir) << x << ' ' << y;
    EXPECT_EQ(Vu(image, 72, 108), Blanc);
}

TEST(EltCote, PorteeEtBandeDeCeQuiEstPeint) {
    Hasard hasard(5);
    for (int tour = 0; tour < 60; ++tour) {
        std::unique_ptr<EltGeo> elt = CreeElement(TypeCote + tour % 6);
        auto& cote = static_cast<EltCote&>(*elt);
        cote.SetPoint1(hasard.Point(60));
        cote.SetPoint2(hasard.Point(60));
        cote.PlaceLigne(hasard.Point(60));
        cote.Texte = tour / 6 % 2 == 0 ? "*" : "";
        const Minorant minorant = cote.MinorantDistance();
        NbDecimales = 9;
        const auto image = Peint(cote);
        EXPECT_EQ(Peint(cote, true), image);
        NbDecimales = 2;
        const std::string record = Record(cote);
        EXPECT_EQ(Record(*Relu(record)), record);
        int hors = 0;
        for (int y = 0; y < Toile::Hauteur; ++y)
            for (int x = 0; x < Toile::Largeur; ++x) {
                const PointVek p(x - 100, 80 - y);
                hors += Vu(image, x, y) != Blanc &&
                        !minorant.PeutToucher(Boite::Autour(p, p).Elargie(13));
            }
        EXPECT_EQ(hors, 0) << cote.Type;
    }
}
