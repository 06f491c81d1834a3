// The strip over the drawing: what it says, its ways out, and when it goes.

#include "zone/bandeau.h"

#include <gtest/gtest.h>
#include <gtkmm/button.h>

#include <algorithm>

#include "commun/banc.h"
#include "commun/evenements.h"

namespace {

/// A window of the width of a screen with the strip in it, and what its ways out have done.
struct Dite {
    Dite() {
        Fenetre.set_size_request(600, 300);
        Fenetre.set_resizable(false);
        Cadre.pack_start(Bande, Gtk::PACK_SHRINK);
        Fenetre.add(Cadre);
        Fenetre.show_all();
        LaisseTourner();
    }

    void Dit(const Glib::ustring& texte) {
        Bande.Dit(texte, {{"Un", [this] { Faits += "un " + Bande.Texte(); }},
                          {"Deux", [this] { Faits += "deux " + Bande.Texte(); }}});
        LaisseTourner();
    }

    /// From the first to the last as they stand.
    std::vector<Gtk::Button*> Boutons() {
        std::vector<Gtk::Button*> boutons;
        Recolte<Gtk::Button>(Bande, boutons);
        const auto place = [](const Gtk::Button* bouton) {
            return std::pair(bouton->get_allocation().get_y(), bouton->get_allocation().get_x());
        };
        std::sort(boutons.begin(), boutons.end(),
                  [&place](auto* a, auto* b) { return place(a) < place(b); });
        return boutons;
    }

    Gtk::Window Fenetre;
    Gtk::VBox Cadre;
    Bandeau Bande;
    std::string Faits;
};

}  // namespace

TEST(Bandeau, DitEtLaisseChoisir) {
    Dite dite;
    EXPECT_FALSE(dite.Bande.get_visible());
    for (const std::size_t choix : {0u, 1u}) {
        dite.Dit("avant");
        dite.Dit("dit");
        EXPECT_EQ(dite.Bande.Texte(), "dit");
        const auto boutons = dite.Boutons();
        ASSERT_EQ(boutons.size(), 2u) << "those of what was said before are gone";
        EXPECT_EQ(boutons[choix]->get_label(), choix == 0 ? "Un" : "Deux");
        EXPECT_FALSE(boutons[choix]->get_can_focus()) << "keys go to the drawing";
        boutons[choix]->clicked();
        EXPECT_EQ(dite.Bande.Texte(), "dit") << "until the way out has been gone to its end";
    }
    // Said, it goes by a click, and not by an answer that is none of its buttons.
    dite.Dit("dit");
    PremierDe<Gtk::InfoBar>(dite.Bande)->response(Gtk::RESPONSE_CLOSE);
    PremierDe<Gtk::InfoBar>(dite.Bande)->response(2);
    EXPECT_EQ(dite.Bande.Texte(), "dit");
    EnvoieBouton(dite.Bande, 5, 5);
    EXPECT_EQ(dite.Bande.Texte(), "");
    EXPECT_EQ(dite.Faits, "un ditdeux dit");
}

TEST(Bandeau, SEnVaApresDixCommandes) {
    Dite dite;
    for (const bool parCommande : {false, true}) {
        // The command that has it said is not one of the ten.
        if (parCommande) dite.Bande.CommenceCommande();
        dite.Dit("dit");
        if (parCommande) dite.Bande.CompteCommande();
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(dite.Bande.Texte(), "dit") << i;
            dite.Bande.CommenceCommande();
            dite.Bande.CompteCommande();
        }
        EXPECT_EQ(dite.Bande.Texte(), "");
    }
}

TEST(Bandeau, PrendLesLignesQuIlFautSansElargirLaFenetre) {
    Dite dite;
    dite.Dit("court");
    Gtk::Label& libelle = *PremierDe<Gtk::Label>(dite.Bande);
    EXPECT_EQ(dite.Bande.size_request().width, 1);
    const int gauche = libelle.get_allocation().get_x();
    EXPECT_LT(gauche, 20);
    const int ligne = dite.Bande.get_allocation().get_height();
    std::string longue;
    for (int i = 0; i < 40; ++i)
        longue += "mots qui suivent ";
    dite.Dit(longue);
    LaisseTourner();
    EXPECT_EQ(dite.Fenetre.get_allocation().get_width(), 600);
    EXPECT_GT(dite.Bande.get_allocation().get_height(), 2 * ligne);
    // The words take what the buttons leave, and both are whole.
    const Gtk::Allocation mots = libelle.get_allocation();
    EXPECT_EQ(mots.get_x(), gauche);
    EXPECT_GT(mots.get_width(), 300);
    EXPECT_LE(mots.get_x() + mots.get_width(), dite.Boutons().front()->get_allocation().get_x());
    EXPECT_LE(dite.Boutons().back()->get_allocation().get_x(), 600);
    // Black on the light bar of the toolkit, and a single word that is too long is broken.
    EXPECT_EQ(libelle.get_style()->get_fg(Gtk::STATE_NORMAL), Gdk::Color("#000000"));
    dite.Dit(std::string(400, 'm'));
    LaisseTourner();
    EXPECT_LE(libelle.get_layout()->get_pixel_logical_extents().get_width(), 600);
}
