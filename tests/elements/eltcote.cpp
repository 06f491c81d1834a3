#include "elements/eltcote.h"

#include <gtest/gtest.h>

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

TEST(EltCote, TexteAutomatique) {
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
