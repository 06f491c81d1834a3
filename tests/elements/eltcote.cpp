#include "elements/eltcote.h"

#include <cmath>

#include "commun/hasard.h"
#include "commun/record.h"
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

EltCoteAng Angle(const PointVek& coin, const PointVek& e1, const PointVek& e2) {
    auto cote = Entre<EltCoteAng>(coin, coin, e1);
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
        return Peint(cote);
    };
    EXPECT_EQ(image("*"), image("50.12"));
    cote.Point2 = {30, 0};
    EXPECT_EQ(image("* x"), image("60"));
    EXPECT_NE(image("*"), image("50.12"));
}

TEST(EltCote, ValeurRondeApresEnregistrement) {
    const auto relue = [](const EltCote& cote) {
        const auto elt = Relu(Record(cote));
        return std::stod(static_cast<EltCote&>(*elt).TexteValeur());
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
        EXPECT_EQ(relue(Angle(p, q, PointPolaire(p, 50, debut + EnRadians(30)))), 30);
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
            const auto cote = Angle(coin, vers(debut, 50), vers(debut + ouverture, 40));
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
