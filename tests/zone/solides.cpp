// The tools of solids and of what is taken away from them: the records and the table of children.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

const std::string Entete = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
const std::string Attributs = "0 0 0\n10 1 1 1 1 1 0 0 50\n\n";
const std::string Plein = " 0 6.28319\n";

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

/// A box from (-100, 50) to (100, -50), alone in the drawing.
EltGeo* PosePave() {
    EltPave pave;
    pave.SetPoints({-100, 50}, {100, -50});
    return BddCourante.Ajoute(pave);
}

}  // namespace

TEST(Solides, LesPrimitives) {
    Banc banc;
    banc.Zone.Outils.Entre(ETAT_PAVE_1);
    Clics(banc, {{100, -50}, {-100, 50}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PAVE_1);
    EXPECT_EQ(Dernier(), "19" + Entete + "0 0 0\n-100 50 0 100 -50 0\n" + Attributs);
    Trait rouge;
    rouge.Couleur = Gdk::Color("red");
    banc.Zone.Outils.Protos.SetTrait(rouge);
    banc.Zone.Outils.Protos.SetCalque(3);
    banc.Zone.Outils.Entre(ETAT_SPHERE_1);
    Clics(banc, {{10, 20}, {40, 60}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SPHERE_1);
    EXPECT_EQ(Dernier(), "22 1 0\n#ffff00000000\n#ffffffffffff\n 0 1 0 0 1 0  3\n10 20 0\n50" +
                             Plein + "0 0 0\n0 1 1 1 1 1 0 0 50\n\n");
    banc.Zone.Outils.Protos.SetTrait({});
    banc.Zone.Outils.Protos.SetCalque(0);
    banc.Zone.Outils.Entre(ETAT_CYLINDRE_1);
    Clics(banc, {{10, 20}, {22, 25}});
    EXPECT_EQ(Dernier(), "21" + Entete + "10 20 0\n13" + Plein + Attributs + "13\n");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 3);
    // What has no size does not enter.
    Clics(banc, {{10, 20}, {10, 20}});
    EXPECT_EQ(BddCourante.Elements.Nombre(), 3);
    EXPECT_EQ(TableFils(), "-1\n");
}

TEST(Solides, PlusieursTrousDansUnSolide) {
    Banc banc;
    EltGeo* pave = PosePave();
    banc.Zone.Outils.Entre(ETAT_PERCAGE_1);
    banc.Zone.Vue.Redessine();
    const Capture avant = banc.Image();
    Clics(banc, {{0, 150}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PERCAGE_1) << "nothing is there";
    Clics(banc, {{-100, 10}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PERCAGE_2);
    EXPECT_GT(banc.Image().Ecart(avant), 20) << "its handles";
    Clics(banc, {{-50, 0}, {-50, 12}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PERCAGE_2);
    EXPECT_EQ(Dernier(), "27" + Entete + "-50 0 0\n12" + Plein + Attributs + "12\n1\n");
    Clics(banc, {{50, 0}, {55, 0}});
    EXPECT_EQ(TableFils(), "2 2 1 0 \n-1\n");
    EXPECT_EQ(pave->Fils.Premier()->NbParents, 1);
    // A hole without radius is none, and nothing becomes a child.
    Clics(banc, {{20, 0}, {20, 0}});
    EXPECT_EQ(TableFils(), "2 2 1 0 \n-1\n");
    // Undone, a hole leaves its solid; the tool goes on with the same one.
    banc.Zone.AnnuleAction();
    EXPECT_EQ(TableFils(), "1 1 0 \n-1\n");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2);
    Clics(banc, {{0, 30}, {0, 34}});
    EXPECT_EQ(TableFils(), "2 2 1 0 \n-1\n");
    for (int i = 0; i < 3; ++i)
        banc.Zone.AnnuleAction();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PERCAGE_1) << "the solid is gone";
}

TEST(Solides, RainurePuisPercage) {
    Banc banc;
    PosePave();
    banc.Zone.Outils.Entre(ETAT_RAINURE_1);
    Clics(banc, {{100, 0}, {20, -10}, {-30, 15}});
    EXPECT_EQ(Dernier(), "29" + Entete + "-5 2.5 0\n-30 15 0 20 -10 0\n" + Attributs + "1\n");
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PERCAGE_1);
    EXPECT_EQ(banc.Zone.Outils.EltCourant, nullptr);
    // The next solid may be the groove itself.
    Clics(banc, {{20, 0}, {0, 0}, {3, 4}});
    EXPECT_EQ(TableFils(), "1 1 0 \n2 1 1 \n-1\n");
}

TEST(Solides, EnveloppeBoule) {
    Banc banc;
    PosePave();
    banc.Zone.Vue.Redessine();
    const Capture avant = banc.Image();
    banc.Zone.Outils.Entre(ETAT_ENVBOULE_1);
    Clics(banc, {{100, 0}, {10, 0}, {130, 50}});
    EXPECT_EQ(Dernier(), "28" + Entete + "10 0 0\n130" + Plein + "0 0 0\n0 1 1 1 1 1 0 0 50\n\n");
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_ENVBOULE_1);
    EXPECT_EQ(TableFils(), "1 1 0 \n-1\n");
    banc.Zone.Outils.RazEtat();
    banc.Zone.AnnuleAction();
    EXPECT_EQ(banc.Image().Ecart(avant), 0);
}

TEST(Solides, LesEnfantsSuiventUneFois) {
    Banc banc;
    EltGeo* pave = PosePave();
    EltGeo* seul = BddCourante.Ajoute(EltArc({0, 150}, 5, 0, 6, 0));
    banc.Zone.Outils.Entre(ETAT_PERCAGE_1);
    Clics(banc, {{100, 20}, {40, 0}, {50, 0}});
    EltGeo* trou = BddCourante.Elements.Premier();
    banc.Zone.Outils.Entre(ETAT_PERCAGE_1);
    // A hole in the hole, which the box holds as well, twice even.
    Clics(banc, {{50, 0}, {40, 0}, {44, 0}});
    EltGeo* profond = BddCourante.Elements.Premier();
    pave->AjouteFils(profond);
    pave->AjouteFils(profond);
    const std::string avant = BddCourante.SauveTexte();

    // By its middle, and 10 to the right.
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    Clics(banc, {{-100, 20}, {0, 0}});
    const PointVek saisi = banc.Zone.Outils.PointDepart;
    Clics(banc, {saisi + PointVek(10, -5)});
    EXPECT_EQ(Distance(pave->Position, {10, -5}), 0.0);
    EXPECT_EQ(Distance(trou->Position, {50, -5}), 0.0);
    EXPECT_EQ(Distance(profond->Position, {50, -5}), 0.0);
    EXPECT_EQ(Distance(seul->Position, {0, 150}), 0.0);
    EXPECT_EQ(profond->NbParents, 3);
    banc.Zone.AnnuleAction();
    EXPECT_EQ(BddCourante.SauveTexte(), avant);
    EXPECT_EQ(profond->NbParents, 3);

    // By a corner nothing follows; nor does anything follow a copy.
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    Clics(banc, {{-100, 20}, {-100, 50}, {-120, 60}});
    EXPECT_EQ(pave->Position.x, -10.0);
    EXPECT_EQ(trou->Position.x, 40.0);
    banc.Zone.AnnuleAction();
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    Clics(banc, {{-100, 20}, {0, 0}});
    banc.Zone.Outils.Touche = GDK_Control_L;
    Clics(banc, {banc.Zone.Outils.PointDepart + PointVek(10, -5)});
    EXPECT_EQ(BddCourante.Elements.Nombre(), 5);
    EXPECT_EQ(trou->Position.x, 40.0);
    EXPECT_EQ(pave->Position.x, 0.0);
}
