// Points, lengths and commands that are typed over the drawing.

#include <gdk/gdkkeysyms.h>
#include <glibmm/main.h>
#include <gtest/gtest.h>
#include <gtkmm/dialog.h>

#include "bureau.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "solids/eltpave.h"
#include "zone/etats.h"
#include "zone/tableetats.h"

namespace {

/// Answers every dialog that comes, where it asks for a number with the one that it begins with:
/// some keep the last one for as long as the program runs.
bool ValideTout() {
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
        auto* dialogue = dynamic_cast<Gtk::Dialog*>(fenetre);
        if (!dialogue || !dialogue->get_mapped()) continue;
        if (auto* champ = PremierDe<Gtk::Entry>(*dialogue)) champ->set_text("10");
        dialogue->response(Gtk::RESPONSE_OK);
    }
    return true;
}

struct Clavier : Bureau {
    Clavier() : Reponses(Glib::signal_timeout().connect(sigc::ptr_fun(&ValideTout), 5)) {}
    ~Clavier() { Reponses.disconnect(); }

    void Tape(const std::string& texte) {
        for (const char c : texte)
            Frappe(gdk_unicode_to_keyval(static_cast<guint32>(c)));
    }

    void Donne(const std::string& texte) {
        Tape(texte);
        Frappe(GDK_Return);
        LaisseTourner();
    }

    /// What has been drawn, and where the tool has got to.
    std::string Dessine(int etat, bool tape) {
        static const char* const points[] = {"-100;0",  "-150;100", "0;-40", "50;40",
                                             "-100;30", "60;-20",   "10;10"};
        BddCourante.Vide();
        BddCourante.Ajoute(EltSegment({-200, 0}, {-100, 0}, 0));
        BddCourante.Ajoute(EltArc({-100, 100}, 50, 0, DeuxPi, 0));
        EltPave pave;
        pave.SetPoints({-100, -10}, {0, -70});
        BddCourante.Ajoute(pave);
        Zone.Outils.Recommence();
        Zone.Outils.Entre(etat);
        for (const char* point : points) {
            const PointVek p = LitSaisie(point, {}).Lieu;
            Souris.BougeA(p);
            if (tape)
                Donne(point);
            else
                Souris.ClicA(p);
        }
        return BddCourante.SauveTexte() + std::to_string(Zone.Outils.EtatCourant());
    }

    sigc::connection Reponses;
};

}  // namespace

TEST(LigneSaisie, ChaqueOutilPrendDesPointsTapes) {
    Clavier clavier;
    int outils = 0, dessinent = 0;
    for (int etat = 0; etat < NOMBRE_ETATS; ++etat) {
        const LigneEtat& ligne = LigneDe(etat);
        if (ligne.Premier != etat || !ligne.Clic) continue;
        EXPECT_EQ(clavier.Dessine(etat, true), clavier.Dessine(etat, false)) << ligne.Invite;
        ++outils;
        dessinent += BddCourante.Elements.Nombre() > 3;
    }
    EXPECT_GT(outils, 40);
    EXPECT_GT(dessinent, 30);
}

TEST(LigneSaisie, MotsFautesEtPasse) {
    Clavier clavier;
    LigneSaisie& ligne = clavier.Fenetre.Frappe;
    clavier.Donne("12;3");
    EXPECT_EQ(ligne.Remarque(), "Aucun outil n'attend de point.");
    clavier.Frappe(GDK_Escape);
    EXPECT_FALSE(ligne.EstOuverte());
    clavier.Frappe(GDK_F2);
    clavier.Donne("co");
    EXPECT_EQ(ligne.Remarque(), "Plusieurs commandes commencent ainsi.");
    clavier.Tape("zz");
    EXPECT_EQ(ligne.Remarque(), "") << "it is being mended";
    clavier.Frappe(GDK_Return);
    EXPECT_EQ(ligne.Remarque(), "Aucune commande ne commence ainsi.");
    clavier.Frappe(GDK_Escape);

    clavier.Frappe(GDK_F2);
    clavier.Donne("CER");
    EXPECT_EQ(clavier.Zone.Outils.EtatCourant(), ETAT_CERCLE_1) << "all the others begin with it";
    // Letters are commands again; while the line was open they were not, nor did they count as
    // held.
    clavier.Donne("10 20");
    clavier.Souris.BougeA({10, 100});
    clavier.Tape("2s");
    EXPECT_EQ(clavier.Zone.Outils.Touche, 0u);
    clavier.Frappe(GDK_BackSpace);
    clavier.Donne("5,5");
    const auto& cercle = static_cast<const EltArc&>(*BddCourante.Elements.Premier());
    EXPECT_EQ(Distance(cercle.Position, {10, 20}), 0.0);
    EXPECT_EQ(cercle.Rayon, 25.5);
    EXPECT_EQ(Distance(clavier.Zone.Souris.Reference, {10, 45.5}), 0.0);

    // What was typed before comes back; what cannot be read does nothing and stays.
    clavier.Frappe(GDK_F2);
    for (const unsigned touche : {GDK_Up, GDK_Up, GDK_Up, GDK_Down})
        clavier.Frappe(touche);
    clavier.Frappe(GDK_Return);
    EXPECT_EQ(Distance(clavier.Zone.Souris.Reference, {10, 20}), 0.0);
    clavier.Donne("1;");
    EXPECT_EQ(ligne.Remarque(), "Il manque le second nombre après « ; ».");
    EXPECT_TRUE(ligne.EstOuverte());
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
    clavier.Frappe(GDK_Escape);
    EXPECT_EQ(clavier.Zone.Outils.EtatCourant(), ETAT_CERCLE_2) << "the tool stays";

    const auto nombres = [&clavier](unsigned touche, unsigned etat) {
        clavier.Frappe(touche, etat);
        return BddCourante.Elements.Nombre();
    };
    EXPECT_EQ(nombres(GDK_z, GDK_CONTROL_MASK), 0);
    EXPECT_EQ(nombres(GDK_z, GDK_CONTROL_MASK | GDK_SHIFT_MASK), 1);
}

TEST(LigneSaisie, LaBandeMontreCeQuiEstTape) {
    Clavier clavier;
    clavier.Choisit("Segment");
    clavier.Souris.ClicA({0, 0});
    clavier.Souris.BougeA({50, 50});
    const auto noir = [&clavier](const PointVek& p) {
        LaisseTourner();
        const PointVek pixel = EchelleCourante.VersEcran(p);
        return Capture(clavier.Zone.get_window())
                   .Pixel(static_cast<int>(pixel.x), static_cast<int>(pixel.y)) == 0;
    };
    EXPECT_TRUE(noir({25, 25}));
    clavier.Tape("100;0");
    EXPECT_TRUE(noir({70, 0}));
    EXPECT_FALSE(noir({25, 25}));
    clavier.Souris.BougeA({-50, 50});
    EXPECT_TRUE(noir({70, 0})) << "wherever the mouse goes";
    clavier.Frappe(GDK_Escape);
    EXPECT_TRUE(noir({-25, 25}));
}

TEST(LigneSaisie, LaLigneDEtatDitOuAgitLeClic) {
    Clavier clavier;
    clavier.Fenetre.resize(1200, 700);
    LaisseTourner();
    clavier.Choisit("Segment");
    clavier.Choisit("Grille");
    clavier.Souris.BougeA({-236, 149});
    LaisseTourner();
    Gtk::Label& clic = clavier.LibelleCommencant("clic");
    EXPECT_EQ(clic.get_text(), "clic -240 ; 150 (grille)");
    EXPECT_TRUE(clic.get_visible());
    const int invite = clavier.LibelleCommencant("Position").get_allocation().get_width();
    EXPECT_GT(invite, 100) << "the prompt keeps its place";
    clavier.Souris.BougeA({-240, 150});
    EXPECT_FALSE(clic.get_visible()) << "right there";
    clavier.Souris.BougeA({-236, 149});
    clavier.Frappe(GDK_Escape);
    EXPECT_FALSE(clic.get_visible()) << "a click does nothing";
    clavier.Choisit("Grille");
}
