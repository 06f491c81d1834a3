// The dialogs of solids: each field changes its own and nothing else.

#include <gtest/gtest.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/frame.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "dialogues.h"
#include "model/bddgeo.h"
#include "solids/eltenvboule.h"
#include "solids/eltpercage.h"
#include "solids/eltrainure.h"

namespace {

const std::string Entete = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";

/// What the fields of the attributes show in a new solid of that height.
std::string Attributs(const std::string& h) {
    return "|h=" + h +
           "|alpha=0|béta=0|gamma=0|texture=|facétisation=50|Echelle Texture=1|Brillance=0";
}

std::vector<Gtk::CheckButton*> Coches(Gtk::Dialog& dialogue) {
    std::vector<Gtk::CheckButton*> coches;
    Recolte(dialogue, coches);
    return coches;
}

/// Clicks on the box of that label.
std::function<void(Gtk::Dialog&)> Coche(const std::string& libelle) {
    return [libelle](Gtk::Dialog& dialogue) {
        for (Gtk::CheckButton* coche : Coches(dialogue))
            if (coche->get_label() == libelle) return coche->set_active(!coche->get_active());
        FAIL() << "no box " << libelle;
    };
}

/// The record without its header, after all the fields of a new element were changed one by one;
/// premier is the rank of h.
template <class Elt>
std::string ToutChange(Elt& elt, std::size_t premier) {
    const char* const saisies[] = {"-4.5", "1.5", "2.5", "-3.5", "bois é.png", "12.4", "0,5", "7"};
    for (std::size_t i = 0; i < 8; ++i)
        Repond(elt, {{premier + i, saisies[i]}});
    for (const char* libelle : {"Dessus", "Dessous", "Pourtour", "Repetition", "Gourault"})
        Repond(elt, {}, Gtk::RESPONSE_OK, Coche(libelle));
    const std::string record = Record(elt);
    return record.substr(record.find("  0\n") + 4);
}

}  // namespace

TEST(ProprietesSolides, UnPave) {
    EltPave pave;
    pave.SetPoints({0, 20}, {40, 0});
    EXPECT_EQ(Repond(pave, {{3, "50"}}),
              "Propriété du PAVE|X=20|Y=10|Z=0|Longueur=40|Largeur=20" + Attributs("10") + "|0");
    EXPECT_EQ(Record(pave),
              "19" + Entete + "20 10 0\n-5 20 0 45 0 0\n0 0 0\n10 1 1 1 1 1 0 0 50\n\n");
    Repond(pave, {{0, "25"}, {3, "0"}, {4, "10"}, {5, "8"}}, Gtk::RESPONSE_OK,
           [](Gtk::Dialog& dialogue) {
               EXPECT_EQ(RefusDe(dialogue), "La longueur doit dépasser 0.");
               Champs(dialogue).at(3)->set_text("50");
           });
    EXPECT_EQ(Record(pave),
              "19" + Entete + "25 10 0\n0 15 0 50 5 0\n0 0 0\n8 1 1 1 1 1 0 0 50\n\n");
    // No facets on a box.
    EXPECT_EQ(ToutChange(pave, 5),
              "25 10 0\n0 15 0 50 5 0\n1.5 2.5 -3.5\n-4.5 0 0 0 0 0.5 7 1 50\nbois é.png\n");
    const std::string avant = Record(pave);
    Repond(pave, {{0, "1"}, {3, "1"}, {5, "1"}, {9, "x"}}, Gtk::RESPONSE_CANCEL, Coche("Dessus"));
    EXPECT_EQ(Record(pave), avant);
}

TEST(ProprietesSolides, UnCylindre) {
    EltCylindre cylindre;
    cylindre.SetCentreDefaut({1, 2});
    EXPECT_EQ(Repond(cylindre, {{3, "5"}, {4, "0"}}),
              "Propriété du Cylindre|X=1|Y=2|Z=0|R Inf=10|R Sup=10" + Attributs("10") + "|0");
    // Neither the scale of the texture nor the facets.
    EXPECT_EQ(ToutChange(cylindre, 5),
              "1 2 0\n5 0 6.28319\n1.5 2.5 -3.5\n-4.5 0 0 0 0 1 7 1 50\nbois é.png\n0\n");
    Repond(cylindre, {{4, "-1"}, {2, "6"}, {13, "2"}}, Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        EXPECT_EQ(RefusDe(dialogue), "R Sup doit valoir 0 au moins.");
        Champs(dialogue).at(4)->set_text("0");
    });
    EXPECT_EQ(cylindre.Rayon, 5.0);
    EXPECT_EQ(cylindre.rayonHaut, 0.0);
    EXPECT_EQ(cylindre.Position.z, 6.0);
    EXPECT_EQ(cylindre.Calque, 2);
}

TEST(ProprietesSolides, UneSphere) {
    EltSphere sphere;
    sphere.SetCentreDefaut({1, 2});
    EXPECT_EQ(Repond(sphere, {{3, "5"}}),
              "Propriété du Sphere|X=1|Y=2|Z=0|Rayon=10" + Attributs("0") + "|0");
    // No faces and no scale.
    EXPECT_EQ(ToutChange(sphere, 4),
              "1 2 0\n5 0 6.28319\n1.5 2.5 -3.5\n-4.5 1 1 1 0 1 7 1 12\nbois é.png\n");
    EltEnvBoule boule;
    boule.SetCentreDefaut({});
    EXPECT_EQ(Repond(boule, {{3, "5"}}).substr(0, 32), "Propriété du EnveloppeBoule|X=");
    EXPECT_EQ(boule.Rayon, 5.0);
}

TEST(ProprietesSolides, CeQuiEnleve) {
    EltPercage percage;
    percage.SetCentreDefaut({});
    EXPECT_EQ(Repond(percage, {{3, "5"}}, Gtk::RESPONSE_OK, Coche("débouchant")),
              "Propriete du Percage|X=0|Y=0|Z=0|R Inf=10|R Sup=10" + Attributs("10") + "|0");
    EXPECT_FALSE(percage.debouchant);
    EXPECT_EQ(percage.Rayon, 5.0);
    EltRainure rainure;
    rainure.SetPoints({0, 20}, {40, 0});
    Repond(rainure, {{5, "-3"}}, Gtk::RESPONSE_CANCEL, Coche("débouchant"));
    EXPECT_TRUE(rainure.debouchant);
    Repond(rainure, {{5, "-3"}}, Gtk::RESPONSE_OK, Coche("débouchant"));
    EXPECT_FALSE(rainure.debouchant);
    EXPECT_EQ(rainure.h, -3.0);
    EXPECT_EQ(ToutChange(rainure, 5),
              "20 10 0\n0 20 0 40 0 0\n1.5 2.5 -3.5\n-4.5 0 0 0 0 0.5 7 1 50\nbois é.png\n0\n");
}

TEST(ProprietesSolides, LeCadreEtSonOrdre) {
    EltPercage percage;
    percage.SetCentreDefaut({});
    percage.dessous = false;
    RepondDialogue(Gtk::RESPONSE_CANCEL, [](Gtk::Dialog& dialogue) {
        auto* cadre = PremierDe<Gtk::Frame>(dialogue);
        ASSERT_TRUE(cadre);
        EXPECT_EQ(cadre->get_label(), "Texture");
        std::vector<Gtk::CheckButton*> coches;
        Recolte(*cadre, coches);
        std::string noms;
        for (Gtk::CheckButton* coche : coches)
            noms += coche->get_label() + (coche->get_active() ? "+ " : "- ");
        EXPECT_EQ(noms, "Dessus+ Dessous- Pourtour+ Repetition+ ");
        EXPECT_EQ(Coches(dialogue).size(), 6u) << "Gourault and the flag besides";
    });
    percage.Proprietes();

    // The solid goes while the question stands.
    Banc banc;
    EltGeo* elt = BddCourante.Ajoute(percage);
    RepondDialogue(Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        Champs(dialogue).at(5)->set_text("7");
        BddCourante.Vide();
    });
    elt->Proprietes();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
}
