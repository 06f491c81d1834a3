// The dialogs on the properties of elements, opened from the popup menu.

#include <gtest/gtest.h>
#include <gtkmm/colorselection.h>
#include <gtkmm/fontbutton.h>

#include "bureau.h"
#include "commun/record.h"
#include "dialogues.h"
#include "elements/angles.h"
#include "elements/eltcoteang.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltpoint.h"
#include "elements/eltrectangle.h"
#include "elements/elttxt.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"
#include "zone/etats.h"

namespace {

/// Chooses the properties in the menu of a right click.
void ChoisitProp(Banc& banc, double x, double y) {
    std::string noms;
    Gtk::MenuItem* prop = nullptr;
    for (Gtk::MenuItem* entree : banc.Souris.MenuDroit(x, y)) {
        noms += NomAction(*entree) + " ";
        if (NomAction(*entree) == "Prop") prop = entree;
    }
    EXPECT_EQ(noms, "Sup Prop Avant Arriere ");
    ASSERT_TRUE(prop);
    prop->activate();
    LaisseTourner();
}

}  // namespace

TEST(Proprietes, ParLeMenuDuClicDroit) {
    Banc banc;
    EltGeo* arc = BddCourante.Ajoute(EltArc({0, 0}, 50, 0, DeuxPi, 0));
    const Capture avant = banc.Image();
    BddCourante.Modifie = false;
    RepondDialogue(Gtk::RESPONSE_CANCEL);
    ChoisitProp(banc, 350, 200);
    EXPECT_TRUE(BddCourante.Modifie) << "whatever the answer";
    RepondDialogue(Gtk::RESPONSE_OK, [&](Gtk::Dialog& dialogue) {
        EXPECT_EQ(dialogue.get_transient_for(), &banc.Fenetre);
        Champs(dialogue).at(3)->set_text("80,5");
    });
    ChoisitProp(banc, 350, 200);
    EXPECT_EQ(static_cast<EltArc*>(arc)->Rayon, 80.5);
    EXPECT_EQ(BddCourante.Cherche({80, 0}), arc);
    EXPECT_EQ(BddCourante.Cherche({50, 0}), nullptr);
    EXPECT_GT(banc.Image().Ecart(avant), 300);

    // A drag does not bring the former element back, and what a layer hides is let go.
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    banc.Souris.ClicA({80.5, 0});
    banc.Souris.ClicA({80.5, 0});
    ASSERT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE_POSITION);
    RepondDialogue(Gtk::RESPONSE_OK,
                   [](Gtk::Dialog& dialogue) { Champs(dialogue).at(3)->set_text("60"); });
    ChoisitProp(banc, 380, 200);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE);
    banc.Zone.Outils.SetCalqueAffiche(0);
    banc.Souris.ClicA({60, 0});
    ASSERT_EQ(banc.Zone.Outils.EltCourant, arc);
    RepondDialogue(Gtk::RESPONSE_OK,
                   [](Gtk::Dialog& dialogue) { Champs(dialogue).back()->set_text("3"); });
    ChoisitProp(banc, 360, 200);
    EXPECT_EQ(banc.Zone.Outils.EltCourant, nullptr);
    BddCourante.Annule();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0) << "the addition is the only step to undo";
}

TEST(Proprietes, ChaqueChampEtLuiSeul) {
    const double tiers = 1.0 / 3.0;
    EltPoint point;
    point.Position = {tiers, -2.5, 7};
    EXPECT_EQ(Repond(point, {{1, "4"}, {3, "2.6"}}),
              "Coordonnées du centre du POINT|X=0.333|Y=-2.5|Z=7|0");
    EXPECT_EQ(point.Position.x, tiers);
    EXPECT_EQ(point.Position.y, 4.0);
    EXPECT_EQ(point.Calque, 3);
    Repond(point, {{0, "9"}, {3, "9"}}, Gtk::RESPONSE_CANCEL);
    EXPECT_EQ(point.Position.x, tiers);
    EXPECT_EQ(point.Calque, 3);

    EltDisque disque;
    disque.Rayon = 10 * tiers;
    disque.AngleDebut = tiers;
    EXPECT_EQ(Repond(disque, {{5, "-30"}}),
              "Propriété du cercle|X=0|Y=0|Z=0|Rayon=3.333|Angle Début=19.099|"
              " Angle ouverture=360|0");
    EXPECT_EQ(disque.Rayon, 10 * tiers);
    EXPECT_EQ(disque.AngleDebut, tiers);
    EXPECT_NEAR(disque.Ouverture, -Pi / 6, 1e-12);
    Repond(disque, {{0, "1"}, {2, "3"}, {4, "90"}, {5, "1e6"}});
    EXPECT_EQ(Distance3D(disque.Position, {1, 0, 3}), 0.0);
    EXPECT_NEAR(disque.AngleDebut, Pi / 2, 1e-12);
    EXPECT_EQ(disque.Ouverture, DeuxPi);

    // What cannot be is said, and costs nothing else.
    Repond(disque, {{0, "99"}, {3, "-4"}, {6, "2"}}, Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        EXPECT_EQ(RefusDe(dialogue), "Le rayon doit dépasser 0.");
        EXPECT_EQ(dialogue.get_focus(), Champs(dialogue).at(3));
        Champs(dialogue).at(3)->set_text("4");
    });
    EXPECT_EQ(disque.Rayon, 4.0);
    EXPECT_EQ(disque.Position.x, 99.0);
    EXPECT_EQ(disque.Calque, 2);

    EltTxt txt;
    txt.Texte = "é ø";
    txt.Angle = tiers;
    EXPECT_EQ(Repond(txt, {{3, "à\nb"}, {5, "0"}}, Gtk::RESPONSE_OK,
                     [](Gtk::Dialog& dialogue) {
                         EXPECT_EQ(RefusDe(dialogue), "La taille doit dépasser 0.");
                         Champs(dialogue).at(5)->set_text("12.5");
                     }),
              "Propriété du texte|X=0|Y=0|Z=0|Texte=é ø|Angle=20|Taille=10|0");
    EXPECT_EQ(txt.Texte, "à b");
    EXPECT_EQ(txt.Angle, tiers);
    EXPECT_EQ(txt.Taille, 12.5);
    RepondDialogue(Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        PremierDe<Gtk::FontButton>(dialogue)->set_font_name("Serif Italic 10");
        Champs(dialogue).at(4)->set_text("90");
    });
    txt.Proprietes();
    EXPECT_EQ(txt.Police, "Serif Italic");
    EXPECT_NEAR(txt.Angle, Pi / 2, 1e-12);
}

TEST(Proprietes, UnGroupeEtSonImage) {
    EltBDD groupe;
    groupe.SetIdentificateur("vis");
    BDDGeoBase contenu;
    for (int x : {1, 2, 3})
        contenu.AjouteFin(std::make_unique<EltArc>(PointVek(x, 0), 1, 0, 1, 0));
    groupe.CopieListe(contenu);
    const std::string avant = Record(groupe);
    EXPECT_EQ(Repond(groupe, {}), "BDD|X=0|Y=0|Z=0|Identificateur=vis|0");
    EXPECT_EQ(Record(groupe), avant) << "the content and its order stay";
    Repond(groupe, {{1, "5"}, {3, " vis à tête "}});
    EXPECT_EQ(groupe.Identificateur, "_vis_à_tête_");
    EXPECT_EQ(groupe.Position.y, 5.0);

    EltImage image;
    image.Angle = 1.0 / 3.0;
    EXPECT_EQ(Repond(image, {{3, "vis"}}),
              "Image de bdd|X=0|Y=0|Z=0|Identificateur=defaut|angle=19.099|Agrandissement=1|0");
    EXPECT_EQ(image.Identificateur, "vis");
    EXPECT_EQ(image.Angle, 1.0 / 3.0);
    EXPECT_EQ(image.Agrandissement, 1.0);
    Repond(image, {{4, "-90"}, {5, "0"}}, Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        EXPECT_EQ(RefusDe(dialogue), "L'agrandissement doit dépasser 0.");
        Champs(dialogue).at(5)->set_text("2,5");
    });
    EXPECT_NEAR(image.Angle, -Pi / 2, 1e-12);
    EXPECT_EQ(image.Agrandissement, 2.5);
}

TEST(Proprietes, UneCoteAutomatique) {
    Banc banc;
    EltCote cote;
    cote.SetPoint1({-100, 0});
    cote.SetPoint2({100, 0});
    cote.PlaceLigne({0, 50});
    EltGeo* elt = BddCourante.Ajoute(cote);
    const Capture avant = banc.Image();
    EXPECT_EQ(Repond(*elt, {{3, "*"}, {4, "20"}}),
              "Propriété de la cote|X=0|Y=50|Z=0|Texte=200|Taille=10|0");
    EXPECT_EQ(static_cast<EltCote*>(elt)->Texte, "*");
    EXPECT_EQ(elt->Position.y, 50.0);
    banc.Zone.Outils.DessinChange();
    EXPECT_GT(banc.Image().Ecart(avant), 50) << "the same value in larger figures";

    EltCoteAng angle;
    EXPECT_EQ(Repond(angle, {}), "Propriété de la cote|Texte=Cote|Taille=10|0");
}

TEST(Proprietes, LesChampsDUnSegmentSeSuivent) {
    EltSegment segment({-10, 0}, {10, 0}, 0);
    const auto texte = [](Gtk::Dialog& dialogue, int rang) {
        return Champs(dialogue).at(static_cast<std::size_t>(rang))->get_text().raw();
    };
    RepondDialogue(Gtk::RESPONSE_OK, [&](Gtk::Dialog& dialogue) {
        const auto champs = Champs(dialogue);
        // Emptied, then digit by digit, as a hand does.
        for (const char* frappe : {"", "6", "60"})
            champs[6]->set_text(frappe);
        EXPECT_EQ(texte(dialogue, 0), "-30");
        EXPECT_EQ(texte(dialogue, 7), "0");
        for (const char* frappe : {"", "-", "-9", "-90"})
            champs[7]->set_text(frappe);
        EXPECT_EQ(texte(dialogue, 1), "30");
        EXPECT_EQ(texte(dialogue, 6), "60");
        champs[3]->set_text("80");
        EXPECT_EQ(texte(dialogue, 6), "100");
        for (const auto& [frappe, phrase] : {std::pair{"1e400", "Ce nombre est trop grand."},
                                             {"abc", "La longueur ne peut pas valoir 0."}}) {
            champs[6]->set_text(frappe);
            EXPECT_EQ(RefusDe(dialogue), phrase);
        }
        champs[6]->set_text("100");
        EXPECT_EQ(texte(dialogue, 0), "0");
        EXPECT_EQ(segment.Extremite.x, 10.0) << "not before it is validated";
    });
    EXPECT_TRUE(segment.Proprietes());
    EXPECT_NEAR(Distance(segment.Origine, {0, 30}), 0.0, 1e-9);
    EXPECT_NEAR(Distance(segment.Extremite, {80, -30}), 0.0, 1e-9);

    EltSegment fin({1.0 / 3.0, 0, 0}, {10, 1.0 / 7.0, 2}, 0);
    EXPECT_EQ(Repond(fin, {{2, "5"}}),
              "Propriété du Segment|Origine X=0.333|Y=0|Z=0|Extrémité X=10|Y=0.143|Z=2|"
              "Longueur=9.668|Angle=0.847|0");
    EXPECT_EQ(fin.Origine.x, 1.0 / 3.0);
    EXPECT_EQ(fin.Origine.z, 5.0);
    EXPECT_EQ(fin.Extremite.y, 1.0 / 7.0);

    // The ends may meet while the fields are typed one after the other.
    EltSegment plat({0, 0}, {10, 0}, 0);
    Repond(plat, {{0, "10"}}, Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        EXPECT_EQ(RefusDe(dialogue), "Avec ces mesures, il ne resterait rien de l'élément.");
        Champs(dialogue).at(1)->set_text("5");
    });
    EXPECT_EQ(plat.Origine.x, 10.0);
    EXPECT_EQ(plat.Origine.y, 5.0);
    EXPECT_EQ(plat.Extremite.y, 0.0);

    EltDroite droite({0, 0}, {10, 10}, 0);
    EXPECT_EQ(Repond(droite, {{0, "5"}}),
              "Droite|Origine X=0|Y=0|Z=0|Extrémité X=10|Y=10|Z=0|Angle=45|0");
    EXPECT_EQ(droite.Origine.x, 5.0);
    EXPECT_EQ(droite.Extremite.x, 10.0);

    EltRectangle rectangle({0, 10}, {20, 0}, 0);
    Repond(rectangle, {{4, "30"}});
    EXPECT_EQ(rectangle.Origine.y, 30.0);
    EXPECT_EQ(rectangle.Extremite.y, 10.0);
}

TEST(Proprietes, LeTraitSuitLaRegleDeLaClasse) {
    EltSegment segment({0, 0}, {10, 0}, 0);
    EltRectangle rectangle({0, 10}, {20, 0}, 0);
    for (EltGeo* elt : {static_cast<EltGeo*>(&segment), static_cast<EltGeo*>(&rectangle)})
        for (const int reponse : {Gtk::RESPONSE_CANCEL, Gtk::RESPONSE_OK}) {
            RepondDialogue(reponse, [](Gtk::Dialog& dialogue) {
                RepondBouton(dialogue, "Trait", [&dialogue](Gtk::Dialog& trait) {
                    EXPECT_EQ(trait.get_transient_for(), &dialogue);
                    std::vector<Gtk::CheckButton*> coches;
                    Recolte(trait, coches);
                    for (Gtk::CheckButton* coche : coches)
                        if (coche->get_label() == "Remplissage") coche->set_active();
                    Champs(trait).front()->set_text("5");
                });
                RepondBouton(dialogue, "Couleur", [](Gtk::Dialog& palette) {
                    dynamic_cast<Gtk::ColorSelectionDialog&>(palette)
                        .get_color_selection()
                        ->set_current_color(Gdk::Color("#ff0000"));
                    EXPECT_TRUE(palette.activate_default()) << "Enter answers";
                });
                EXPECT_EQ(dialogue.get_focus(), dialogue.get_widget_for_response(Gtk::RESPONSE_OK));
            });
            elt->Proprietes();
            const bool pris = reponse == Gtk::RESPONSE_OK;
            EXPECT_EQ(elt->Style.Epaisseur, pris ? 5 : 1);
            EXPECT_EQ(elt->Style.Couleur, Gdk::Color(pris ? "#ff0000" : "#000000"));
            EXPECT_EQ(elt->Style.Remplissage, pris && elt == &rectangle);
        }
    // A style that a file gave stays when nobody touched it.
    segment.Style.Remplissage = true;
    Repond(segment, {});
    EXPECT_TRUE(segment.Style.Remplissage);
}

TEST(Proprietes, RienDImpossibleNEntre) {
    Banc banc;
    BddCourante.Ajoute(EltSegment({-10, 0}, {10, 0}, 0));
    BddCourante.Ajoute(EltDroite({-10, 0}, {10, 5}, 0));
    BddCourante.Ajoute(EltArc({0, 0}, 20, 0, 2, 0));
    BddCourante.Ajoute(EltTxt());
    BddCourante.Ajoute(EltPoint());
    BddCourante.Ajoute(EltRectangle({-10, 10}, {10, 0}, 0));
    for (EltGeo* elt : BddCourante.Elements)
        for (const char* saisie : {"", "0", "-nan", "1e400", "-1e308", "1e-320"})
            for (std::size_t rang = 0; rang < 9; ++rang) {
                RepondDialogue(Gtk::RESPONSE_CANCEL, [&](Gtk::Dialog& dialogue) {
                    const auto champs = Champs(dialogue);
                    champs[rang % champs.size()]->set_text(saisie);
                    champs[(rang * 5 + 2) % champs.size()]->set_text(saisie);
                    dialogue.response(Gtk::RESPONSE_OK);
                });
                elt->Proprietes();
                EXPECT_TRUE(elt->EstValide() && elt->Position.EstFini())
                    << saisie << " in " << rang;
                banc.Zone.Outils.DessinChange();
                LaisseTourner();
            }

    // The drawing goes while the question stands, and with it the element.
    RepondDialogue(Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        Champs(dialogue).front()->set_text("7");
        BddCourante.Vide();
    });
    BddCourante.Ajoute(EltRectangle({100, 110}, {120, 100}, 0));
    ASSERT_TRUE(BddCourante.ProprieteProche({100, 105}));
    EXPECT_FALSE(BddCourante.Modifie);
}
