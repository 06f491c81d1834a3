// What asks for the page and the sheet: the dialog, and the tab of the print dialog.

#include "exchange/miseenpagedialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "commun/banc.h"
#include "exchange/printformoperation.h"
#include "model/feuille.h"

namespace {

/// The dialog on a page of A5 that lies, over a sheet of its own.
class MiseEnPage : public testing::Test {
  protected:
    MiseEnPage() {
        Cartouche = std::string(getenv("HOME")) + "/cartouche.vek";
        std::ofstream(Cartouche) << "VERSION3.3\n0\n10000\n-1\n";
        Page->set_paper_size(Gtk::PaperSize("iso_a5"));
        Page->set_orientation(Gtk::PAGE_ORIENTATION_LANDSCAPE);
        Regle(0.125, {-7.5, 30}, true);
    }
    ~MiseEnPage() override { Regle(1.0, {}, false); }

    static void Regle(double echelle, const PointVek& origine, bool noir) {
        FeuilleCourante.SetEchelle(echelle);
        FeuilleCourante.OrigineFeuille = origine;
        FeuilleCourante.ImpressionNoir = noir;
        FeuilleCourante.Papier = PointVek();
        FeuilleCourante.ChargeCartouche("");
    }

    /// Runs the dialog; the user sees it, then gives that answer.
    void Ouvre(int reponse, const std::function<void(Gtk::Dialog&)>& voit) {
        MiseEnPageDialog dialogue("Page", Page, [this] { ++Appliques; });
        RepondDialogue(reponse, voit);
        dialogue.run();
    }

    /// The fields: scale, place, title block.
    static std::vector<Gtk::Entry*> Champs(Gtk::Widget& dialogue) {
        std::vector<Gtk::Entry*> champs;
        for (Gtk::Widget* enfant : PremierDe<Gtk::Table>(dialogue)->get_children())
            if (auto* champ = PremierDe<Gtk::Entry>(*enfant)) champs.insert(champs.begin(), champ);
        return champs;
    }

    static void Tape(Gtk::Widget& dialogue, const std::vector<std::string>& textes) {
        const auto champs = Champs(dialogue);
        ASSERT_EQ(champs.size(), textes.size());
        for (std::size_t i = 0; i < textes.size(); ++i)
            if (!textes[i].empty()) champs[i]->set_text(textes[i]);
    }

    /// "scale x y black paper width x height orientation name" as they are in force.
    std::string EnVigueur() const {
        const Feuille& f = FeuilleCourante;
        std::ostringstream texte;
        texte << f.EchellePapier() << ' ' << f.OrigineFeuille.x << ' ' << f.OrigineFeuille.y << ' '
              << f.ImpressionNoir << ' ' << Page->get_paper_size().get_name().raw() << ' '
              << f.Papier.x << 'x' << f.Papier.y << ' '
              << (Page->get_orientation() == Gtk::PAGE_ORIENTATION_LANDSCAPE) << ' '
              << f.NomCartouche();
        return texte.str();
    }

    const Glib::RefPtr<Gtk::PageSetup> Page = Gtk::PageSetup::create();
    std::string Cartouche;
    int Appliques = 0;
};

/// What the toolkit does with the tab.
struct Onglet : PrintFormOperation {
    using PrintFormOperation::on_create_custom_widget;
    using PrintFormOperation::on_custom_widget_apply;
};

}  // namespace

TEST_F(MiseEnPage, MontreCeQuiEstEnVigueurEtLeLaisse) {
    const std::string avant = EnVigueur();
    for (const int reponse : {Gtk::RESPONSE_CANCEL, Gtk::RESPONSE_OK}) {
        Ouvre(reponse, [](Gtk::Dialog& dialogue) {
            const auto champs = Champs(dialogue);
            ASSERT_EQ(champs.size(), 4u);
            EXPECT_EQ(champs[0]->get_text(), "0.125");
            EXPECT_EQ(champs[1]->get_text(), "-7.5");
            EXPECT_EQ(champs[2]->get_text(), "30");
            EXPECT_EQ(champs[3]->get_text(), "");
            EXPECT_GT(champs[3]->get_allocation().get_width(), 200) << "room for a path";
            EXPECT_EQ(dialogue.get_focus(), champs[0]);
            std::vector<Gtk::RadioButton*> sens;
            Recolte(dialogue, sens);
            EXPECT_EQ(sens.at(0)->get_label(), "Portrait");
            EXPECT_TRUE(sens.at(1)->get_active());
            EXPECT_TRUE(sens.at(1)->is_visible() && sens.at(1)->get_parent()->is_visible());
            EXPECT_EQ(PremierDe<Gtk::ComboBoxText>(dialogue)->get_active_text(),
                      Gtk::PaperSize("iso_a5").get_display_name());
            std::vector<Gtk::CheckButton*> cases;
            Recolte(dialogue, cases);
            EXPECT_TRUE(cases.back()->get_active() && cases.back()->is_visible());
            EXPECT_EQ(cases.back()->get_label(), "N/B");
            // "Appliquer" stands first of the buttons, and the way to a file is there.
            std::vector<Gtk::Button*> boutons;
            Recolte<Gtk::Button>(*dialogue.get_action_area(), boutons);
            const auto place = [](const Gtk::Button* b) { return b->get_allocation().get_x(); };
            const auto premier =
                std::min_element(boutons.begin(), boutons.end(),
                                 [&place](auto* a, auto* b) { return place(a) < place(b); });
            EXPECT_EQ((*premier)->get_label(), "Appliquer");
            boutons.clear();
            Recolte<Gtk::Button>(*PremierDe<Gtk::Table>(dialogue), boutons);
            EXPECT_EQ(boutons.at(0)->get_label(), "Parcours");
            EXPECT_TRUE(boutons.at(0)->is_visible());
        });
        EXPECT_EQ(Appliques, reponse == Gtk::RESPONSE_OK ? 1 : 0);
    }
    FeuilleCourante.Papier = PointVek();
    EXPECT_EQ(EnVigueur(), avant) << "what was not edited stays";
}

TEST_F(MiseEnPage, PrendCeQuiEstSaisiEtResteOuvert) {
    Ouvre(Gtk::RESPONSE_CANCEL, [this](Gtk::Dialog& dialogue) {
        Tape(dialogue, {"0,5", "12.5", "-3", Cartouche});
        std::vector<Gtk::CheckButton*> cases;
        Recolte(dialogue, cases);
        cases.back()->set_active(false);
        dialogue.response(Gtk::RESPONSE_APPLY);
        EXPECT_TRUE(dialogue.is_visible());
        EXPECT_EQ(EnVigueur(), "0.5 12.5 -3 0 iso_a5 210x148 1 " + Cartouche);
        cases.front()->set_active(true);  // The first of two: upright.
        PremierDe<Gtk::ComboBoxText>(dialogue)->set_active(0);
        dialogue.response(Gtk::RESPONSE_APPLY);
    });
    EXPECT_EQ(EnVigueur(), "0.5 12.5 -3 0 iso_a3 297x420 0 " + Cartouche);
    EXPECT_EQ(Appliques, 2);
    Ouvre(Gtk::RESPONSE_OK, [this](Gtk::Dialog& dialogue) {
        EXPECT_EQ(Champs(dialogue)[3]->get_text(), Cartouche);
        PremierDe<Gtk::ComboBoxText>(dialogue)->set_active(1);
    });
    EXPECT_EQ(EnVigueur(), "0.5 12.5 -3 0 iso_a4 210x297 0 " + Cartouche);
    // A scale that cannot be, or a place that is none: nothing is taken.
    for (const auto& saisie : {std::vector<std::string>{"0", "1", "", ""},
                               {"1e10", "1", "", ""},
                               {"1", "1e999", "", ""},
                               {"1", "", "1e999", ""}})
        Ouvre(Gtk::RESPONSE_CANCEL, [&saisie](Gtk::Dialog& dialogue) {
            Tape(dialogue, saisie);
            EXPECT_NE(RefusDe(dialogue), "") << saisie[0];
        });
    EXPECT_EQ(EnVigueur(), "0.5 12.5 -3 0 iso_a4 210x297 0 " + Cartouche);
}

TEST_F(MiseEnPage, UnPapierDAilleursEstOffertEtReste) {
    Page->set_paper_size(Gtk::PaperSize("na_ledger"));
    Page->set_orientation(Gtk::PAGE_ORIENTATION_REVERSE_LANDSCAPE);
    Ouvre(Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        auto& papiers = *PremierDe<Gtk::ComboBoxText>(dialogue);
        EXPECT_EQ(papiers.get_model()->children().size(), 8u);
        EXPECT_EQ(papiers.get_active_text(), Gtk::PaperSize("na_ledger").get_display_name());
        std::vector<Gtk::RadioButton*> sens;
        Recolte(dialogue, sens);
        EXPECT_TRUE(sens.at(1)->get_active());
    });
    EXPECT_EQ(Page->get_paper_size().get_name(), "na_ledger");
    // Given by "Parcours", a file comes into the field.
    Ouvre(Gtk::RESPONSE_CANCEL, [](Gtk::Dialog& dialogue) {
        RepondDialogue(Gtk::RESPONSE_CANCEL);
        PremierDe<Gtk::Button>(*PremierDe<Gtk::Table>(dialogue))->clicked();
        EXPECT_EQ(Champs(dialogue)[3]->get_text(), "") << "none was chosen";
    });
}

TEST_F(MiseEnPage, LOngletDeLImpressionEnDitAutant) {
    Onglet onglet;
    for (const bool saisi : {false, true}) {
        Gtk::Widget& page = *onglet.on_create_custom_widget();
        Gtk::Window fenetre;
        fenetre.add(page);
        fenetre.show();
        LaisseTourner();
        std::vector<Gtk::Entry*> champs = Champs(page);
        std::vector<Gtk::Label*> libelles;
        Recolte(page, libelles);
        ASSERT_EQ(champs.size(), 3u);
        EXPECT_EQ(libelles.back()->get_text(), "Echelle: ");
        EXPECT_EQ(champs[0]->get_text(), "0.125");
        EXPECT_EQ(champs[1]->get_text(), "-7.5");
        EXPECT_EQ(champs[2]->get_text(), "30");
        // Each beside its label, one below the other.
        for (std::size_t i = 0; i < 3; ++i) {
            const Gtk::Allocation champ = champs[i]->get_allocation();
            const Gtk::Allocation libelle = libelles[2 - i]->get_allocation();
            EXPECT_TRUE(champs[i]->get_mapped() && libelles[i]->get_mapped());
            EXPECT_GE(champ.get_x(), libelle.get_x() + libelle.get_width());
            EXPECT_LT(std::abs(champ.get_y() + champ.get_height() / 2 - libelle.get_y() -
                               libelle.get_height() / 2),
                      3);
            EXPECT_EQ(libelle.get_x(), libelles[0]->get_allocation().get_x());
            if (i == 0) continue;
            EXPECT_GT(champ.get_y(), champs[i - 1]->get_allocation().get_y());
        }
        if (saisi) Tape(page, {"2", "5", "6"});
        onglet.on_custom_widget_apply(&page);
        EXPECT_EQ(FeuilleCourante.EchellePapier(), saisi ? 2.0 : 0.125);
        EXPECT_EQ(FeuilleCourante.OrigineFeuille.x, saisi ? 5.0 : -7.5);
        EXPECT_EQ(FeuilleCourante.OrigineFeuille.y, saisi ? 6.0 : 30.0);
        fenetre.remove();
    }
}
