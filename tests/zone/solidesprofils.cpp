// The tools of solids made of profiles: the records and the table of children.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "elements/eltarc.h"
#include "elements/eltprofil.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

const std::string Entete = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
const std::string Neuf = "0 0 0\n10 1 1 1 1 1 0 0 50\n\n";

void Clics(Banc& banc, std::initializer_list<PointVek> clics) {
    for (const PointVek& p : clics) {
        banc.Souris.BougeA(p);
        banc.Souris.ClicA(p);
    }
}

/// The record of the newest element.
std::string Dernier() {
    return Record(*BddCourante.Elements.Premier());
}

/// The table of children as the file has it.
std::string TableFils() {
    const std::string texte = BddCourante.SauveTexte();
    return texte.substr(texte.find("\n10000\n") + 7);
}

/// A profile of two links about p.
EltGeo* PoseProfil(const PointVek& p) {
    EltProfil profil;
    profil.Debut(p);
    for (const PointVek& sommet : {PointVek(0, 0), PointVek(60, 0), PointVek(60, 40)})
        profil.Ajoute(p + sommet);
    return BddCourante.Ajoute(profil);
}

}  // namespace

TEST(SolidesProfils, DePointEnPoint) {
    const std::pair<int, std::string> outils[] = {{ETAT_ELEVATION_1, "20"},
                                                  {ETAT_TOURNE_1, "23"},
                                                  {ETAT_RUBAN_1, "25"},
                                                  {ETAT_EVANTAIL_1, "26"}};
    for (const auto& [etat, type] : outils) {
        Banc banc;
        banc.Zone.Outils.Entre(etat);
        Clics(banc, {{10, 10}, {30, 10}, {30, 50}});
        const Capture avant = banc.Image();
        banc.Souris.BougeA({90, 90});
        EXPECT_GT(banc.Image().Ecart(avant), 40) << "the link in progress";
        Clics(banc, {{-20, 30}});
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), etat + 2);
        EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
        banc.Souris.Touche(GDK_End);
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), etat);
        ASSERT_EQ(BddCourante.Elements.Nombre(), 1);
        EXPECT_EQ(Dernier(), type + Entete + "10 10 0\n1\n3\n20 0 0 20 40 0 -30 20 0 \n" + Neuf);
        // The next one starts anew, and what is one point does not enter.
        Clics(banc, {{0, 0}, {5, 5}});
        banc.Souris.Touche(GDK_End);
        EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
        banc.Zone.AnnuleAction();
        EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
    }
}

TEST(SolidesProfils, SurDesElements) {
    for (const auto& [etat, type] :
         {std::pair(ETAT_ELEVATION_ELT_1, "20"), std::pair(ETAT_TOURNE_ELT_1, "23")}) {
        Banc banc;
        BddCourante.Ajoute(EltSegment({-50, 20}, {50, 20}, 0));
        BddCourante.Ajoute(EltArc({50, 0}, 20, -1.57079632679, 3.14159265359, 0));
        banc.Zone.Outils.Entre(etat);
        Clics(banc, {{0, 0}, {-50, 20}, {0, 20}, {150, 150}, {70, 0}});
        banc.Souris.Touche(GDK_End);
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), etat);
        EXPECT_EQ(Dernier(),
                  type + Entete + "0 0 0\n1\n3\n-50 20 0 50 20 0 50 -20 0R20  \n" + Neuf);
    }
}

TEST(SolidesProfils, UneSurfaceDansLesQuatreSens) {
    const std::pair<PointVek, PointVek> coins[] = {
        {{10, 20}, {50, 60}}, {{50, 60}, {10, 20}}, {{10, 60}, {50, 20}}, {{50, 20}, {10, 60}}};
    Banc banc;
    banc.Zone.Outils.Protos.ProfilSurface.SetNbX(3);
    banc.Zone.Outils.Entre(ETAT_SURFACE_1);
    for (const auto& [premier, second] : coins) {
        Clics(banc, {premier, second});
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SURFACE_1);
        EXPECT_EQ(Dernier(), "24" + Entete +
                                 "10 20 0\n1\n12\n0 0 0 0 10 0 0 20 0 0 30 0 "
                                 "13.3333 0 0 13.3333 10 0 13.3333 20 0 13.3333 30 0 "
                                 "26.6667 0 0 26.6667 10 0 26.6667 20 0 26.6667 30 0 \n" +
                                 Neuf + "3 4\n");
    }
}

TEST(SolidesProfils, UneRainureEstFilleDuSolide) {
    Banc banc;
    EltGeo* solide = PoseProfil({-100, 0});
    banc.Zone.Outils.Entre(ETAT_RAINURE_P_1);
    Clics(banc, {{200, 150}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_RAINURE_P_1) << "nothing is there";
    Clics(banc, {{-40, 40}, {0, 0}, {0, 5}, {5, 0}, {10, 10}});
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_RAINURE_P_1);
    EXPECT_EQ(Dernier(), "30" + Entete + "0 0 0\n1\n3\n0 5 0 5 0 0 10 10 0 \n" + Neuf + "1\n");
    // The newest element is the first of the list.
    EXPECT_EQ(TableFils(), "1 1 0 \n-1\n");

    BddCourante.Ajoute(EltSegment({20, -50}, {90, -50}, 0));
    banc.Zone.Outils.Entre(ETAT_RAINURE_P_ELT_1);
    Clics(banc, {{-40, 40}, {0, 0}, {20, -50}, {55, -50}});
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_RAINURE_P_ELT_1);
    EXPECT_EQ(Dernier(), "30" + Entete + "0 0 0\n1\n2\n20 -50 0 90 -50 0 \n" + Neuf + "1\n");
    EXPECT_EQ(solide->Fils.Nombre(), 2);
    banc.Zone.AnnuleAction();
    EXPECT_EQ(solide->Fils.Nombre(), 1);
}

TEST(SolidesProfils, LeJoncEtLeBoaTiennentLeursProfils) {
    Banc banc;
    PoseProfil({-100, 0});
    PoseProfil({100, 0});
    RepondSaisie("7", Gtk::RESPONSE_CANCEL);
    banc.Zone.Outils.Entre(ETAT_JONC_1);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_REPOS);
    RepondSaisie("7");
    banc.Zone.Outils.Entre(ETAT_JONC_1);
    Clics(banc, {{0, -80}, {0, 150}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_JONC_2) << "no profile is there";
    Clics(banc, {{-40, 40}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_JONC_1);
    EXPECT_EQ(Dernier(), "32" + Entete + "0 -80 0\n" + Neuf + "7\n");
    EXPECT_EQ(TableFils(), "0 1 2 \n-1\n");

    banc.Zone.Outils.Entre(ETAT_BOA_1);
    Clics(banc, {{0, -90}, {160, 0}, {0, 150}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_BOA_3);
    Clics(banc, {{-40, 40}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_BOA_1);
    EXPECT_EQ(Dernier(), "33" + Entete + "0 -90 0\n" + Neuf);
    EXPECT_EQ(TableFils(), "0 2 2 3 \n1 1 3 \n-1\n") << "path, then envelope";
    // A profile that is held cannot be taken away; undone, the boa lets go of both.
    EXPECT_FALSE(BddCourante.Efface({160, 0}));
    banc.Zone.AnnuleAction();
    EXPECT_TRUE(BddCourante.Efface({160, 0}));
}

TEST(SolidesProfils, UneImageEnEspace) {
    Banc banc;
    RepondSaisie("vis à bois");
    banc.Zone.Outils.Entre(ETAT_IMAGE3D);
    Clics(banc, {{10, 20}, {30, 40}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_IMAGE3D);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2);
    EXPECT_EQ(Dernier(), "31" + Entete + "30 40 0\nvis_à_bois\n0\n1\n" + Neuf);
}
