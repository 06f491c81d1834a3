// What was undone is done again, until something else changes.

#include <gtest/gtest.h>

#include "commun/hasard.h"
#include "elements/eltarc.h"
#include "elements/eltrectangle.h"
#include "model/bddgeo.h"

namespace {

/// One change of any kind at random.
void Agit(BDDGeo& bdd, Hasard& des) {
    const PointVek p = des.Point(100), q = des.Point(100);
    EltGeo* const elt = bdd.Elements.Nombre() ? bdd.ChercheProche(p, false) : nullptr;
    switch (des.Entier(7)) {
        case 0:
            bdd.CopieZone(EltRectangle(p, q, 0), des.Entier(2) == 0);
            bdd.Coller(bdd.PressePapier, q, des.Entier(3));
            break;
        case 1:
            bdd.Efface(p);
            break;
        case 2:
            if (elt) bdd.AjouteFils(*elt, EltArc(q, 5, 0, 6, 0));
            break;
        case 3:
            bdd.CopieZone(EltRectangle(p, q, 0), true);
            break;
        default:
            bdd.Ajoute(EltSegment(p, q, des.Entier(3)));
    }
}

}  // namespace

TEST(Refaire, RendLesMemesOctets) {
    BDDGeo bdd;
    Hasard des(Graine(41));
    for (int tour = 0; tour < 150; ++tour) {
        Agit(bdd, des);
        std::vector<std::string> textes = {bdd.SauveTexte()};
        const int pas = des.Entier(8);
        for (int i = 0; i < pas && bdd.Annule(); ++i)
            textes.push_back(bdd.SauveTexte());
        while (textes.size() > 1) {
            ASSERT_EQ(bdd.SauveTexte(), textes.back()) << tour;
            textes.pop_back();
            ASSERT_TRUE(bdd.Histoire.Refait());
        }
        ASSERT_EQ(bdd.SauveTexte(), textes.back()) << tour;
        EXPECT_FALSE(bdd.Histoire.Refait());
    }
    // Anything new leaves nothing to do again, recorded or not.
    ASSERT_TRUE(bdd.Annule());
    bdd.Ajoute(EltSegment({0, 0}, {1, 1}, 0));
    EXPECT_FALSE(bdd.Histoire.Refait());
    ASSERT_TRUE(bdd.Annule());
    bdd.NoteChangement();
    EXPECT_FALSE(bdd.Histoire.Refait());
}
