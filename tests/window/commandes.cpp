// The commands of the menus, through the menus, with their questions answered.

#include <gdk/gdkkeysyms.h>
#include <glib/gstdio.h>
#include <glibmm/convert.h>
#include <gtest/gtest.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/messagedialog.h>
#include <gtkmm/toolbutton.h>

#include "bureau.h"
#include "commun/record.h"
#include "dialogues.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/fichier.h"
#include "window/donnees.h"
#include "window/listecommandes.h"
#include "window/menus.h"
#include "window/tablecommandes.h"
#include "zone/etats.h"

TEST(Actions, MenusEtBarreDansLeurOrdre) {
    EXPECT_EQ(DefinitionMenus(), '\n' + Contenu(KRVEK_ESSAIS "/window/data/menus.ui"));
    ParcourtCommandes(TableCommandes(), [](const Enseigne& e, const std::vector<int>&) {
        const std::string image = "/icons/hicolor/scalable/actions/" + e.Image + ".svg";
        EXPECT_TRUE(e.Forme != Enseigne::Icone ||
                    g_access((DossierDonnees() + image).c_str(), R_OK) == 0)
            << image;
    });
    const std::string page = Contenu(DossierDonnees() + "/aide.htm");
    EXPECT_EQ(AvecListeCommandes(page), page) << "the help lists the commands";
    const std::size_t fin = page.find("<!-- /commandes -->");
    EXPECT_EQ(AvecListeCommandes(page.substr(fin) + page.substr(0, fin)), "");
    EXPECT_EQ(AvecListeCommandes(page.substr(0, fin)), "");
    EXPECT_EQ(AvecListeCommandes(page.substr(fin)), "");
}

TEST(Actions, LesOutilsDisentCeQuIlsFont) {
    Bureau bureau;
    std::vector<Gtk::ToolButton*> outils;
    Recolte(bureau.Fenetre, outils);
    std::string bulles;
    for (Gtk::ToolButton* outil : outils)
        bulles += outil->get_child()->get_tooltip_text() + '|';
    EXPECT_EQ(
        bulles.substr(0, bulles.find("Donner")),
        "Nouveau (Ctrl+N)|Ouvrir (Ctrl+O)|Enregistrer (Ctrl+S)|Imprimer|Cliquer sur l'élément "
        "à supprimer|Cliquer puis déplacer|Annuler (A ou Ctrl+Z)|");
}

TEST(Actions, LesLettresNuesEtLesTouchesArriventUneFois) {
    Bureau bureau;
    EXPECT_EQ(bureau.Fenetre.get_title(), "KR VEK 1.0");
    bureau.Choisit("Segment");
    EXPECT_EQ(bureau.Zone.Outils.EtatCourant(), ETAT_SEGMENT_1);
    EXPECT_EQ(bureau.LibelleCommencant("Position de l'origine").get_text(),
              "Position de l'origine du segment");
    bureau.Souris.Bouge(bureau.Zone.Vue.Largeur() / 2 + 77, bureau.Zone.Vue.Hauteur() / 2);
    EXPECT_EQ(bureau.LibelleCommencant("77").get_text(), "77") << "the abscissa of the pointer";
    bureau.Frappe(GDK_s);
    EXPECT_EQ(bureau.Zone.Outils.EtatCourant(), ETAT_SUPPRIME);
    bureau.Frappe(GDK_o);
    EXPECT_EQ(EchelleCourante.Facteur, 2.0);
    bureau.Frappe(GDK_l);
    bureau.Frappe(GDK_Up);
    EXPECT_EQ(EchelleCourante.Origine.y, 10.0);
    bureau.Frappe(GDK_g);
    EXPECT_TRUE(bureau.Zone.Vue.GrilleCourante.Affichee);
    bureau.Frappe(GDK_Escape);
    EXPECT_EQ(bureau.Zone.Outils.EtatCourant(), ETAT_REPOS);
    // A key is held until it is released, or until the window hears of keys no more.
    for (const GdkEventType fin : {GDK_KEY_RELEASE, GDK_FOCUS_CHANGE}) {
        bureau.Souris.Touche(GDK_Control_L);
        EXPECT_EQ(bureau.Zone.Outils.Touche, unsigned(GDK_Control_L));
        bureau.Recoit(fin, GDK_Control_L);
        EXPECT_EQ(bureau.Zone.Outils.Touche, 0u);
    }
    bureau.Frappe(GDK_space);
    bureau.Frappe(GDK_Return);
    EXPECT_EQ(bureau.Zone.Outils.EtatCourant(), ETAT_REPOS);
    EXPECT_EQ(bureau.Fenetre.get_title(), "KR VEK 1.0") << "no tool button was fired";
}

TEST(Fenetre, SeLitSousUnThemeSombre) {
    Bureau bureau;
    gtk_rc_parse_string(
        "style 'sombre' { fg[NORMAL] = 'white' fg[INSENSITIVE] = 'white' bg[NORMAL] = 'black' }\n"
        "widget 'sombre*' style 'sombre'");
    bureau.Fenetre.set_name("sombre");
    gtk_rc_reset_styles(gtk_settings_get_default());
    const auto clarte = [](Gtk::Widget& texte, Gtk::StateType etat) {
        return texte.get_style()->get_fg(etat).get_green();
    };
    ASSERT_EQ(clarte(bureau.Fenetre, Gtk::STATE_NORMAL), 0xffff) << "the theme is in force";
    for (const char* debut : {"Fichier", "Aide", "XXXX", "Action", "Travail"}) {
        Gtk::Label& libelle = bureau.LibelleCommencant(debut);
        EXPECT_EQ(clarte(libelle, Gtk::STATE_NORMAL), 0) << debut;
        EXPECT_EQ(clarte(libelle, Gtk::STATE_INSENSITIVE) >> 8, 0x8c) << debut;
    }
}

TEST(Aide, DitOuElleEstSansNavigateur) {
    const std::string dossier = DossierProvisoire(), chemin = g_getenv("PATH");
    const std::string navigateur = dossier + "/xdg-open", lue = dossier + "/lue";
    Bureau bureau;
    std::string dit;
    // None at all, one that shows nothing, one that shows it.
    for (const char* code : {"", "3", "0"}) {
        const std::string script = "#!/bin/sh\n/bin/echo $1 > " + lue + "\nexit " + code + "\n";
        if (*code) EcritFichier(navigateur, script);
        g_chmod(navigateur.c_str(), 0755);
        g_setenv("PATH", dossier.c_str(), true);
        dit.clear();
        RepondDialogue(Gtk::RESPONSE_OK, [&dit](Gtk::Dialog& dialogue) { dit = Ecran(dialogue); });
        bureau.Choisit("Aide");
        for (int attente = 0; attente < 30 && dit.empty(); ++attente) {
            g_usleep(10000);
            LaisseTourner();
        }
        g_setenv("PATH", chemin.c_str(), true);
        const std::string page = DossierDonnees() + "/aide.htm";
        EXPECT_EQ(Contenu(lue), *code ? Glib::filename_to_uri(page) + '\n' : "");
        EXPECT_EQ(dit.find(page) == std::string::npos, *code == '0') << dit;
    }
    bureau.Choisit("APropos");
}

TEST(Fermeture, NonALaLettreDeSonBouton) {
    Bureau bureau;
    BddCourante.Ajoute(EltSegment({-10, 0}, {10, 0}, 0));
    int essais = 0;
    sigc::connection repondNon = Glib::signal_timeout().connect(
        [&essais] {
            for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
                auto* choix = dynamic_cast<Gtk::FileChooserDialog*>(fenetre);
                if (!choix || !choix->get_mapped()) continue;
                choix->mnemonic_activate(GDK_n, Gdk::MOD1_MASK);
                if (++essais > 9) choix->response(Gtk::RESPONSE_CANCEL);
            }
            return true;
        },
        100);
    EXPECT_TRUE(bureau.Fenetre.ConfirmeFermeture());
    repondNon.disconnect();
    EXPECT_TRUE(BddCourante.Modifie);
}
