// The tools of the dimensions, click by click, and what a drag does to what they place.

#include <gtest/gtest.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

/// A record without its style: type, position, text, measures, font, points.
std::string Mesures(const EltGeo& elt) {
    const std::string texte = Record(elt);
    return texte.substr(0, texte.find(' ') + 1) + texte.substr(texte.find("0  0\n") + 5);
}

struct Geste {
    int Etat;
    std::vector<PointVek> Clics;
    const char* Record;
};

const Geste Gestes[] = {
    {ETAT_COTE_1,
     {{0, 0}, {30, 40}, {-25, 50}},
     "7 -25 50 0\n50\n0.927295 10 0\nArial\n0 0 0 30 40 0\n"},
    {ETAT_COTE_VERT_1,
     {{0, 0}, {30, 40}, {60, 90}},
     "9 60 20 0\n40\n1.5708 10 0\nArial\n0 0 0 30 40 0\n"},
    {ETAT_COTE_HORI_1,
     {{0, 0}, {30, 40}, {60, 90}},
     "10 15 90 0\n30\n0 10 0\nNice\n0 0 0 30 40 0\n"},
    {ETAT_COTE_DIA_1,
     {{0, 0}, {30, 40}, {60, -30}},
     "11 60 -30 0\n50\n0 10 0\nNice\n0 0 0 30 40 0\n"},
    {ETAT_COTE_DIA_ARC_1,
     {{-100, 52}, {-180, 20}},
     "11 -180 20 0\n100\n0 10 0\nNice\n-50 100 0 -150 100 0\n"},
    {ETAT_COTE_RAYON_1,
     {{0, 0}, {30, 40}, {60, -30}},
     "12 60 -30 0\n50\n0 10 0\nArial\n0 0 0 30 40 0\n"},
    {ETAT_COTE_RAYON_ARC_1,
     {{-100, 52}, {-180, 20}},
     "12 -180 20 0\n50\n0 10 0\nArial\n-50 100 0 -100 100 0\n"},
    {ETAT_COTE_ANG_1,
     {{0, 0}, {0, 0}, {80, 0}, {0, 60}},
     "8 42.4264 42.4264 0\n90°\n-0.785398 10 0\nNice\n0 0 0 0 0 0\n0 0 0 80 0 0 0 60 0\n"},
};

/// All clicks but the last, then the pointer on it.
void Approche(Banc& banc, const Geste& geste) {
    banc.Zone.Outils.Entre(geste.Etat);
    for (const PointVek& p : geste.Clics) {
        banc.Souris.BougeA(p + PointVek(13, 7));
        banc.Souris.BougeA(p);
        if (&p != &geste.Clics.back()) banc.Souris.ClicA(p);
    }
}

}  // namespace

TEST(Cotes, ChaqueOutilAjouteCeQueSaBandeMontre) {
    for (const Geste& geste : Gestes) {
        SCOPED_TRACE(testing::Message() << "state " << geste.Etat);
        Banc banc;
        BddCourante.Ajoute(EltArc({-100, 100}, 50, 0, DeuxPi, 0));
        banc.Zone.Vue.Redessine();
        const Capture vide = banc.Image();
        Approche(banc, geste);
        const Capture bande = banc.Image();
        banc.Souris.ClicA(geste.Clics.back());
        const Capture ajoute = banc.Image();
        ASSERT_EQ(BddCourante.Elements.Nombre(), 2);
        auto& cote = static_cast<EltCote&>(*BddCourante.Elements.Premier());
        EXPECT_EQ(Mesures(cote), geste.Record);
        EXPECT_GT(ajoute.Ecart(vide), 100);
        EXPECT_EQ(bande.EcartSur(vide, ajoute), 0);
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), geste.Etat);

        // Handles on one place show as one; whichever is taken, the whole moves by its text.
        banc.Zone.Outils.Entre(ETAT_MODIFIE);
        banc.Souris.ClicA(cote.Position);
        const Capture poignees = banc.Image();
        for (const PointVek& p : {cote.Position, cote.Point1, cote.Point2}) {
            const int x = static_cast<int>(std::lround(300 + p.x)) - 3;
            const int y = static_cast<int>(std::lround(200 - p.y)) - 4;
            EXPECT_NE(poignees.Pixel(x, y), ajoute.Pixel(x, y));
        }
        const PointVek v(20, -70), position = cote.Position + v, point = cote.Point1 + v;
        const Glib::ustring texte = cote.Texte;
        banc.Souris.ClicA(cote.Point2);
        banc.Souris.BougeA(position);
        banc.Souris.ClicA(position);
        EXPECT_NEAR(Distance(cote.Position, position), 0, 1e-9);
        EXPECT_NEAR(Distance(cote.Point1, point), 0, 1e-9);
        EXPECT_EQ(cote.Texte, texte);
        EXPECT_EQ(cote.TexteValeur(), texte);

        banc.Zone.Outils.RazEtat();
        banc.Zone.AnnuleAction();
        EXPECT_EQ(banc.Image().Ecart(ajoute), 0);
        banc.Zone.AnnuleAction();
        EXPECT_EQ(banc.Image().Ecart(vide), 0);
    }
}

TEST(Cotes, ClicsQuiNeDonnentRien) {
    Banc banc;
    BddCourante.Ajoute(EltSegment({-50, 0}, {50, 0}, 0));
    const PointVek p(5, 5);
    for (const Geste& geste : {Geste{ETAT_COTE_DIA_ARC_1, {{0, 0}, p}, ""},
                               {ETAT_COTE_RAYON_ARC_1, {{0, 0}, p}, ""},
                               {ETAT_COTE_1, {p, p, {9, 9}}, ""},
                               {ETAT_COTE_RAYON_1, {p, p, {9, 9}}, ""},
                               {ETAT_COTE_ANG_1, {p, p, p, {9, 9}}, ""}}) {
        Approche(banc, geste);
        banc.Souris.ClicA(geste.Clics.back());
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), geste.Etat);
        EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
    }
}
