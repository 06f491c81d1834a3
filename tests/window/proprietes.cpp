// The dialogs on the properties of elements, by the eyes and hands of a user.

#include <gtest/gtest.h>
#include <gtkmm/checkbutton.h>

#include <sstream>

#include "commun/banc.h"
#include "commun/record.h"
#include "dialogues.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltrectangle.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

/// One element of each class that has a dialog.
std::string UnDeChaque() {
    return Contenu(KRVEK_ESSAIS "/window/data/proprietes.vek");
}

/// The rows stand clear of the frame and of one another, what is typed first replaces what was.
void VerifiePresentation(Gtk::Dialog& dialogue) {
    const auto champs = Champs(dialogue);
    const Gtk::Allocation premier = champs[0].second->get_allocation();
    EXPECT_EQ(dialogue.get_vbox()->get_allocation().get_x(), 6);
    EXPECT_EQ(champs[1].second->get_allocation().get_y() - premier.get_y() - premier.get_height(),
              6);
    auto& saisie = dynamic_cast<Gtk::Entry&>(*champs[0].second);
    int debut = 0, fin = 0;
    EXPECT_TRUE(saisie.get_selection_bounds(debut, fin) && debut == 0);
    EXPECT_EQ(fin, saisie.get_text_length());
}

/// What the properties of an element show. Given up, whatever was entered, they change nothing, and
/// nothing either when they are validated as they stand.
std::string Montre(EltGeo& elt) {
    const std::string avant = Record(elt);
    RepondDialogue(Gtk::RESPONSE_CANCEL, [](Gtk::Dialog& dialogue) {
        VerifiePresentation(dialogue);
        for (const auto& [nom, champ] : Champs(dialogue))
            if (auto* saisie = dynamic_cast<Gtk::Entry*>(champ)) saisie->set_text("7");
        std::vector<Gtk::CheckButton*> coches;
        Recolte(dialogue, coches);
        for (Gtk::CheckButton* coche : coches)
            coche->clicked();
    });
    EXPECT_FALSE(elt.Proprietes());
    EXPECT_EQ(Record(elt), avant);
    Reponse reponse;
    RepondGestes("", reponse);
    EXPECT_TRUE(elt.Proprietes());
    EXPECT_EQ(Record(elt), avant);
    return reponse.Vu;
}

/// The lines of apres that differ from those of avant, without the noise of sines.
std::string Ecart(const std::string& avant, const std::string& apres) {
    const auto lignes = Decoupe(avant, "\n"), autres = Decoupe(apres, "\n");
    EXPECT_EQ(lignes.size(), autres.size());
    std::string ecart;
    for (std::size_t i = 0; i < std::min(lignes.size(), autres.size()); ++i)
        if (lignes[i] != autres[i]) ecart += " | " + autres[i];
    return Remplace(ecart, "-?[0-9.]+e-1[0-9]", "0");
}

/// What the gestures in the dialog of an element do to the other fields and to its record, or what
/// is said against it.
std::string Effet(const EltGeo& modele, const std::string& gestes) {
    const std::unique_ptr<EltGeo> elt = modele.Clone();
    const std::string avant = Record(*elt);
    Reponse reponse;
    RepondGestes(gestes, reponse);
    const bool pris = elt->Proprietes();
    EXPECT_EQ(pris, reponse.Refus.empty()) << gestes;
    const std::string ecart = Ecart(avant, Record(*elt));
    if (pris) return reponse.Suivi + ecart;
    EXPECT_EQ(ecart, "") << gestes;
    return " ! " + reponse.Refus;
}

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

void RepondProp(const std::string& gestes) {
    RepondDialogue(Gtk::RESPONSE_OK, [gestes](Gtk::Dialog& dialogue) { Joue(dialogue, gestes); });
}

}  // namespace

TEST(Proprietes, ChaqueChampDeChaqueClasse) {
    BDDGeoBase dessin;
    dessin.ChargeTexte(UnDeChaque());
    auto elt = dessin.Elements.begin();
    const EltGeo* courant = nullptr;
    std::istringstream lignes(Contenu(KRVEK_ESSAIS "/window/data/proprietes.txt"));
    std::string vu;
    for (std::string ligne; std::getline(lignes, ligne);) {
        const std::string gestes = ligne.substr(0, ligne.find(':'));
        if (gestes[0] == ' ') {
            vu += gestes + ':' + Effet(*courant, gestes.substr(2)) + '\n';
        } else {
            ASSERT_NE(elt, dessin.Elements.end());
            courant = *elt;
            vu += std::to_string(courant->Type) + ": " + Montre(**elt) + '\n';
            ++elt;
        }
    }
    EXPECT_EQ(elt, dessin.Elements.end());
    ExigeFichier("window/data/proprietes.txt", vu);
}

TEST(Proprietes, DuClicDroitAuDeplacement) {
    Banc banc;
    EltGeo* arc = BddCourante.Ajoute(EltArc({0, 0}, 50, 0, DeuxPi, 0));
    const Capture avant = banc.Image();
    BddCourante.Modifie = false;
    RepondDialogue(Gtk::RESPONSE_CANCEL, [&banc](Gtk::Dialog& dialogue) {
        EXPECT_EQ(dialogue.get_transient_for(), &banc.Fenetre);
    });
    ChoisitProp(banc, 350, 200);
    EXPECT_TRUE(BddCourante.Modifie) << "whatever the answer";
    RepondProp("Rayon=80,5");
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
    RepondProp("Rayon=60");
    ChoisitProp(banc, 380, 200);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE);
    banc.Zone.Outils.SetCalqueAffiche(0);
    banc.Souris.ClicA({60, 0});
    ASSERT_EQ(banc.Zone.Outils.EltCourant, arc);
    RepondProp("Calque=3");
    ChoisitProp(banc, 360, 200);
    EXPECT_EQ(banc.Zone.Outils.EltCourant, nullptr);
    BddCourante.Annule();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0) << "the addition is the only step to undo";
}

TEST(Proprietes, RienDImpossibleNEntre) {
    BddCourante.ChargeTexte(UnDeChaque());
    std::size_t rang = 0;
    for (EltGeo* elt : BddCourante.Elements)
        for (const char* saisie : {"", "0", "-nan", "1e400", "-1e308", "1e-320"}) {
            RepondDialogue(Gtk::RESPONSE_CANCEL, [&](Gtk::Dialog& dialogue) {
                const auto champs = Champs(dialogue);
                for (const std::size_t choisi : {++rang, rang * 2 + 3, rang * 5 + 2})
                    if (auto* champ =
                            dynamic_cast<Gtk::Entry*>(champs[choisi % champs.size()].second))
                        champ->set_text(saisie);
                dialogue.response(Gtk::RESPONSE_OK);
            });
            elt->Proprietes();
            EXPECT_TRUE(elt->EstValide() && elt->Position.EstFini()) << Record(*elt) << saisie;
        }
    // It can be painted all the same.
    const std::string texte = BddCourante.SauveTexte();
    Banc banc;
    BddCourante.ChargeTexte(texte);
    banc.Zone.Outils.DessinChange();
    LaisseTourner();
}

TEST(Proprietes, CeQuiPartPendantLaQuestion) {
    BddCourante.ChargeTexte(UnDeChaque());
    for (int rang = BddCourante.Elements.Nombre() - 1; rang >= 0; --rang) {
        BddCourante.ChargeTexte(UnDeChaque());
        EltGeo* elt = *std::next(BddCourante.Elements.begin(), rang);
        BddCourante.Ajoute(EltArc({0, 0}, 50, 0, DeuxPi, 0));
        RepondDialogue(Gtk::RESPONSE_OK, [](Gtk::Dialog&) { BddCourante.Annule(); });
        EXPECT_TRUE(elt->Proprietes()) << "another one goes";
        bool renonce = false;
        RepondDialogue(Gtk::RESPONSE_OK, [&renonce](Gtk::Dialog& dialogue) {
            dialogue.signal_response().connect(
                [&renonce](int reponse) { renonce |= reponse == Gtk::RESPONSE_CANCEL; });
            Joue(dialogue, Champs(dialogue).back().first + "=7");
            BddCourante.Vide();
        });
        elt->Proprietes();
        EXPECT_TRUE(renonce);
    }
}
