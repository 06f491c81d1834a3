#include "model/bddgeo.h"

#include <gtest/gtest.h>

#include <vector>

#include "commun/hasard.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "elements/toile.h"

namespace {

using Elements = std::vector<const EltGeo*>;

/// From head to tail.
Elements Ordre(const BDDGeo& bdd) {
    return {bdd.Elements.begin(), bdd.Elements.end()};
}

EltSegment Plat(double y) {
    return {{0, y}, {10, y}, 0};
}

}  // namespace

TEST(BDDGeo, RefuseCeQuiNEstPasUnElement) {
    BDDGeo bdd;
    EXPECT_EQ(bdd.ChercheProche({0, 0}, true), nullptr);
    EXPECT_FALSE(bdd.Annule() || bdd.Efface({0, 0}) || bdd.Avant({0, 0}) || bdd.Arriere({0, 0}));
    const double rien = std::nan("");
    EXPECT_FALSE(bdd.Ajoute(EltSegment({3, 3}, {3, 3 + 9e-7}, 0)));
    EXPECT_FALSE(bdd.Ajoute(EltSegment({3, rien}, {9, 3}, 0)));
    EXPECT_FALSE(bdd.Ajoute(EltDroite({3, 3}, {HUGE_VAL, 3}, 0)));
    EXPECT_FALSE(bdd.Ajoute(EltRectangle({3, 3}, {3, 3}, 0)));
    EXPECT_FALSE(bdd.Ajoute(EltArc({0, 0}, 0, 0, 6, 0)));
    EXPECT_FALSE(bdd.Ajoute(EltArc({0, 0}, 1, rien, 6, 0)));
    EXPECT_FALSE(bdd.Ajoute(EltGeo({rien, 0}, 0)));
    EXPECT_FALSE(bdd.Modifie || bdd.Annule());
    EltGeo* garde = bdd.Ajoute(EltSegment({3, 3}, {3, 3 + 2e-6}, 0));
    ASSERT_TRUE(garde);
    EXPECT_FALSE(bdd.Change(*garde, EltSegment({3, 3}, {3, 3}, 0)));
    EXPECT_TRUE(bdd.Annule());
    EXPECT_FALSE(bdd.Annule());
}

TEST(BDDGeo, AnnuleEtDitCeQuiSEnVa) {
    BDDGeo bdd;
    Elements partis;
    bdd.SignalRetrait().connect([&](EltGeo* elt) { partis.push_back(elt); });
    EltGeo* a = bdd.Ajoute(Plat(0));
    EltGeo* b = bdd.Ajoute(Plat(100));
    // The line that a tool adds keeps its code through change and undo.
    EltGeo* c = bdd.Ajoute(std::make_unique<EltDroite>(PointVek(0, 200), PointVek(1, 200), 0));
    EXPECT_EQ(Ordre(bdd), (Elements{c, b, a}));
    ASSERT_TRUE(bdd.Change(*b, Plat(50)) && bdd.Change(*c, EltDroite({0, 300}, {1, 300}, 0)));
    EXPECT_EQ(bdd.Cherche({5, 100}), nullptr);
    EXPECT_EQ(partis, Elements{});
    ASSERT_TRUE(bdd.Efface({5, 51}));
    EXPECT_EQ(bdd.Cherche({5, 51}), nullptr);
    bdd.SauveTexte();
    EXPECT_TRUE(bdd.Annule());  // The deleted one comes back on top, with its pointer.
    EXPECT_EQ(Ordre(bdd), (Elements{c, a, b}));
    EXPECT_EQ(bdd.Cherche({5, 51}), b);
    EXPECT_TRUE(bdd.Annule());
    EXPECT_EQ(c->Position.y, 200);
    EXPECT_EQ(c->Type, TypeRectangle);
    EXPECT_TRUE(bdd.Annule());
    EXPECT_EQ(bdd.Cherche({5, 100}), b);
    EXPECT_TRUE(bdd.Annule() && bdd.Annule());
    EXPECT_EQ(Ordre(bdd), (Elements{a}));
    EXPECT_FALSE(bdd.Modifie);
    bdd.Vide();
    EXPECT_FALSE(bdd.Annule());
    EXPECT_EQ(partis, (Elements{b, c, b, nullptr}));
}

TEST(BDDGeo, EmpilementEtCalques) {
    BDDGeo bdd;
    EltGeo* a = bdd.Ajoute(Plat(0));
    EltGeo* b = bdd.Ajoute(Plat(0));
    EltGeo* c = bdd.Ajoute(EltGeo({5, 3}, 3));
    bdd.Modifie = false;
    EXPECT_EQ(bdd.Cherche({5, 0}), b);  // Of two at the same place the one underneath.
    EXPECT_TRUE(bdd.Avant({5, 0}));
    EXPECT_EQ(Ordre(bdd), (Elements{c, a, b}));
    EXPECT_TRUE(bdd.Modifie);
    EXPECT_TRUE(bdd.Arriere({5, 0}));
    EXPECT_EQ(Ordre(bdd), (Elements{a, c, b}));
    EXPECT_EQ(bdd.ChercheType({5, 3}, TypeSegment), a);
    EXPECT_EQ(bdd.ChercheType({5, 3}, TypeArc), nullptr);

    Trait bleu, rouge;
    bleu.Couleur = Gdk::Color("#0000ff");
    rouge.Couleur = Gdk::Color("#ff0000");
    bdd.Modifie = false;
    bdd.ChangeTraitZone(EltRectangle({6, -5}, {4, 5}, 0), bleu);
    bdd.SetCalqueAffiche(3);
    EXPECT_EQ(bdd.Cherche({5, 0}), c);
    bdd.ChangeTraitZone(EltRectangle({5, -5}, {-5, 5}, 0), rouge);  // On the edge is not inside.
    EXPECT_EQ(c->Style.Couleur, bleu.Couleur);
    bdd.ChangeTraitZone(EltRectangle({-50, 50}, {50, -50}, 0), rouge);
    EXPECT_FALSE(bdd.Modifie);
    const auto vu = [&bdd](int x, int y) {
        const Toile toile;
        TraceEcran trace = toile.Pinceau();
        bdd.Dessine(trace);
        return Vu(toile.Lit(), 100 + x, 80 - y);
    };
    EXPECT_EQ(vu(5, 3), Rouge);
    EXPECT_EQ(vu(8, 0), Blanc);
    bdd.SetCalqueAffiche(-1);
    EXPECT_EQ(vu(8, 0), Bleu);
    EXPECT_EQ(vu(5, 0), Bleu);  // The cross lies underneath, until it is brought forward.
    EXPECT_TRUE(bdd.Avant({5, 8}));
    EXPECT_EQ(vu(5, 0), Rouge);
    bdd.SetCalqueAffiche(8);
    EXPECT_FALSE(bdd.Efface({5, 0}));
}

TEST(BDDGeo, ComptesDesParents) {
    BDDGeo bdd;
    EltGeo* trou = bdd.Ajoute(Plat(0));
    EltGeo* bloc = bdd.Ajoute(Plat(100));
    bloc->AjouteFils(trou);
    EXPECT_FALSE(bdd.Efface({5, 0}));  // It is held.
    EXPECT_EQ(bdd.Ajoute(*bloc)->NbParents, 0);
    EXPECT_EQ(trou->NbParents, 2);
    bdd.Annule();
    EXPECT_EQ(trou->NbParents, 1);

    EltGeo* autre = bdd.Ajoute(Plat(200));
    EltSegment source = Plat(110);
    source.Fils.Ajoute(autre);
    bdd.Change(*bloc, source);
    EXPECT_EQ(trou->NbParents, 0);
    EXPECT_EQ(autre->NbParents, 1);
    bdd.Annule();
    EXPECT_TRUE(bloc->Fils.Contient(trou));
    EXPECT_EQ(trou->NbParents, 1);
    EXPECT_EQ(autre->NbParents, 0);

    // What goes lets go of its children, and comes back without them.
    EXPECT_TRUE(bdd.Efface({5, 100}));
    EXPECT_EQ(trou->NbParents, 0);
    bdd.Annule();
    EXPECT_EQ(bloc->Fils.Nombre(), 0);
    // The undone addition of a child leaves no parent behind with it.
    bloc->AjouteFils(autre);
    bdd.Annule();
    EXPECT_EQ(bloc->Fils.Nombre(), 0);
    bloc->RetireFils(trou);
    EXPECT_EQ(trou->NbParents, -1);
}

namespace {

std::unique_ptr<EltGeo> AuHasard(Hasard& hasard) {
    // Whole numbers now and then, so that elements coincide and share their ends.
    const bool entiers = hasard.Entier(2) == 0;
    const auto point = [&] {
        return entiers ? PointVek(10 * hasard.Entier(20), 10 * hasard.Entier(20))
                       : hasard.Point(200);
    };
    const PointVek a = point(), b = point();
    const int calque = hasard.Entier(3);
    switch (hasard.Entier(5)) {
        case 0:
            return std::make_unique<EltArc>(a, entiers ? 20 : hasard.Reel(1, 80), 0, 3, calque);
        case 1:
            return std::make_unique<EltRectangle>(a, b, calque);
        case 2:
            return std::make_unique<EltDroite>(a, b, calque);
        case 3:
            return std::make_unique<EltGeo>(a, calque);
        default:
            return std::make_unique<EltSegment>(a, b, calque);
    }
}

EltGeo* ChercheUnParUn(const BDDGeo& bdd, const PointVek& p, bool support, const EltGeo* sauf) {
    EltGeo* trouve = nullptr;
    double meilleure = HUGE_VAL;
    for (EltGeo* elt : bdd.Elements) {
        const double d = support ? elt->DistanceSupport(p) : elt->Distance(p);
        const bool visible = bdd.CalqueAffiche() == -1 || bdd.CalqueAffiche() == elt->Calque;
        if (!visible || elt == sauf || !(d < meilleure)) continue;
        meilleure = d;
        trouve = elt;
    }
    return meilleure < 10 ? trouve : nullptr;
}

}  // namespace

TEST(BDDGeo, ChercheCommeUnParcoursComplet) {
    Hasard hasard(4);
    BDDGeo bdd;
    int trouves = 0;
    for (int tour = 0; tour < 1500; ++tour) {
        SCOPED_TRACE(tour);
        const PointVek p =
            tour % 2 ? hasard.Point(200) : PointVek(5 * hasard.Entier(40), 5 * hasard.Entier(40));
        EltGeo* elt = bdd.Cherche(p);
        const int quoi = hasard.Entier(10);
        if (quoi == 0) bdd.Annule();
        if (quoi == 1) bdd.Avant(p);
        if (quoi == 2) bdd.Arriere(p);
        if (quoi == 3 && tour % 4 == 0) bdd.Efface(p);
        if (quoi == 4 && elt) {
            const auto deplace = elt->Clone();
            deplace->Deplace(hasard.Point(50));
            bdd.Change(*elt, *deplace);
        }
        for (int i = 4; i < quoi; ++i)
            bdd.Ajoute(AuHasard(hasard));
        bdd.SetCalqueAffiche(hasard.Entier(4) - 1);
        ASSERT_EQ(bdd.Cherche(p), ChercheUnParUn(bdd, p, false, nullptr));
        for (const bool support : {false, true}) {
            const EltGeo* premier = bdd.ChercheProche(p, support);
            ASSERT_EQ(premier, ChercheUnParUn(bdd, p, support, nullptr));
            if (!premier) continue;
            ++trouves;
            ASSERT_EQ(bdd.ChercheAutre(p, support), ChercheUnParUn(bdd, p, support, premier));
        }
    }
    EXPECT_GT(trouves, 1000);
}
