// The commands of the menus, through the menus, with their questions answered.

#include <gdk/gdkkeysyms.h>
#include <glib/gstdio.h>
#include <gtest/gtest.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/messagedialog.h>
#include <gtkmm/toolbutton.h>

#include <numeric>
#include <set>

#include "bureau.h"
#include "commun/record.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/fichier.h"
#include "window/donnees.h"
#include "window/menus.h"
#include "window/tablecommandes.h"
#include "zone/etats.h"

namespace {

const std::string& Dossier() {
    static const std::string dossier = DossierProvisoire();
    return dossier;
}

void AjouteSegment() {
    BddCourante.Ajoute(EltSegment({-10, 0}, {10, 0}, 0));
}

bool FermeParLeGestionnaire(Bureau& bureau) {
    GdkEvent evenement = {};
    evenement.any.type = GDK_DELETE;
    evenement.any.window = bureau.Fenetre.get_window()->gobj();
    return !gtk_widget_event(GTK_WIDGET(bureau.Fenetre.gobj()), &evenement);
}

}  // namespace

TEST(Actions, SontCellesDesFichiers) {
    static const char* const genres[] = {"simple", "icone", "stock", "bascule", "recents", "menu"};
    std::set<std::string> lignes;
    int nombre = 0;
    ParcourtCommandes(TableCommandes(), [&](const Enseigne& e, const std::vector<int>&) {
        ++nombre;
        lignes.insert(e.Nom + " | " + genres[e.Forme] + " | " + e.Libelle + " | " + e.Bulle +
                      " | " + e.Touche + " | " + e.Image + '\n');
        EXPECT_NE(e.Mot(), "") << e.Nom;
        if (e.Forme != Enseigne::Icone) return;
        const std::string image =
            DossierDonnees() + "/icons/hicolor/scalable/actions/" + e.Image + ".svg";
        EXPECT_EQ(g_access(image.c_str(), R_OK), 0) << image;
    });
    const std::string texte = std::accumulate(lignes.begin(), lignes.end(), std::string());
    EXPECT_EQ(texte, Contenu(KRVEK_ESSAIS "/window/data/commandes.txt"));
    EXPECT_EQ(static_cast<std::size_t>(nombre), lignes.size()) << "one stands twice";
    EXPECT_EQ(DefinitionMenus(), '\n' + Contenu(KRVEK_ESSAIS "/window/data/menus.ui"));
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
    const std::string navigateur = Dossier() + "/xdg-open", chemin = g_getenv("PATH");
    ASSERT_TRUE(EcritFichier(navigateur, "#!/bin/sh\nexit 3\n"));
    g_chmod(navigateur.c_str(), 0755);
    g_setenv("PATH", (Dossier() + ":" + chemin).c_str(), true);
    Bureau bureau;
    bool dit = false;
    RepondDialogue(Gtk::RESPONSE_OK, [&dit](Gtk::Dialog& dialogue) {
        dit = dynamic_cast<Gtk::MessageDialog*>(&dialogue);
    });
    bureau.Choisit("Aide");
    for (int attente = 0; attente < 500 && !dit; ++attente) {
        g_usleep(10000);
        LaisseTourner();
    }
    EXPECT_TRUE(dit);
    g_setenv("PATH", chemin.c_str(), true);
}

TEST(Fichiers, EnregistrerRouvrirAvecAccents) {
    Bureau bureau;
    const std::string nom = Dossier() + "/pièce à 100% n°1";
    AjouteSegment();
    RepondFichier(nom);
    bureau.Choisit("Save");
    EXPECT_EQ(BddCourante.NomFichier, nom + ".vek");
    EXPECT_EQ(bureau.Fenetre.get_title(), "KR VEK 1.3           " + nom + ".vek");
    EXPECT_FALSE(BddCourante.Modifie);

    bureau.Choisit("New");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
    EXPECT_EQ(bureau.Fenetre.get_title(), "KR VEK 1.3           ");
    RepondFichier(nom + ".vek");
    bureau.Choisit("Open");
    ASSERT_EQ(BddCourante.Elements.Nombre(), 1);
    EXPECT_TRUE(BddCourante.Nomme);

    // A name completed by its extension that names a file is asked about; "non" asks anew.
    AjouteSegment();
    RepondFichier(nom);
    bool demande = false;
    Glib::signal_timeout().connect(
        [&demande] {
            for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
                auto* question = dynamic_cast<Gtk::MessageDialog*>(fenetre);
                if (!question || !question->get_mapped()) continue;
                demande = true;
                question->response(Gtk::RESPONSE_CANCEL);
                RepondDialogue(Gtk::RESPONSE_CANCEL);
                return false;
            }
            return true;
        },
        50);
    bureau.Choisit("SaveAs");
    EXPECT_TRUE(demande);
    std::string texte;
    ASSERT_TRUE(LitFichier(nom + ".vek", texte));
    EXPECT_EQ(texte.substr(0, 13), "VERSION3.3\n2\n") << "the file is the former one";
}

TEST(Fichiers, ImporterDemandeUnAutreNom) {
    Bureau bureau;
    const std::string ancien = KRVEK_ESSAIS "/exchange/data/version10.vek";
    std::string texte;
    ASSERT_TRUE(LitFichier(KRVEK_ESSAIS "/exchange/data/version23.vek", texte));
    const std::string ve9 = Dossier() + "/plan.ve9", nom = Dossier() + "/repris";
    ASSERT_TRUE(EcritFichier(ve9, std::string("\0V", 2) + texte));

    // The one asks about what is not saved, the other one does not.
    AjouteSegment();
    bureau.Choisit("Segment");
    RepondFichier(ancien);
    bureau.Choisit("Vek");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 8);
    EXPECT_EQ(bureau.Zone.Outils.EtatCourant(), ETAT_REPOS);
    RepondDialogue(Gtk::RESPONSE_NO, [&ve9](Gtk::Dialog& dialogue) {
        EXPECT_TRUE(dynamic_cast<Gtk::MessageDialog*>(&dialogue));
        RepondFichier(ve9);
    });
    bureau.Choisit("Ve9");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 11);
    EXPECT_EQ(BddCourante.NomFichier, ve9);
    RepondFichier(nom);
    bureau.Choisit("Save");
    EXPECT_EQ(BddCourante.NomFichier, nom + ".vek");
    EXPECT_EQ(bureau.Fenetre.get_title(), "KR VEK 1.3           " + nom + ".vek");
}

TEST(Fichiers, DxfAllerEtRetour) {
    Bureau bureau;
    const std::string nom = Dossier() + "/pièce";
    AjouteSegment();
    const Glib::ustring titre = bureau.Fenetre.get_title();
    bureau.Choisit("Segment");
    RepondFichier(nom);
    bureau.Choisit("ExportDxf");
    EXPECT_TRUE(BddCourante.Modifie);
    EXPECT_EQ(BddCourante.NomFichier, "");
    EXPECT_NE(bureau.Zone.Outils.EtatCourant(), ETAT_REPOS);
    // The import asks about what is not saved.
    RepondDialogue(Gtk::RESPONSE_NO, [&nom](Gtk::Dialog& dialogue) {
        EXPECT_TRUE(dynamic_cast<Gtk::MessageDialog*>(&dialogue));
        RepondFichier(nom + ".dxf");
    });
    bureau.Choisit("Dxf");
    // Behind the two blocks of the format.
    EXPECT_EQ(BddCourante.Elements.Nombre(), 3);
    EXPECT_EQ(BddCourante.NomFichier, nom + ".dxf");
    EXPECT_FALSE(BddCourante.Nomme);
    EXPECT_EQ(bureau.Zone.Outils.EtatCourant(), ETAT_REPOS);
    EXPECT_EQ(bureau.Fenetre.get_title(), titre);
}

TEST(Fermeture, NeFermeQueSiOnLeVeut) {
    Bureau bureau;
    EXPECT_TRUE(bureau.Fenetre.ConfirmeFermeture()) << "nothing to save, no question";
    AjouteSegment();

    // Without a name: the chooser. Escape and the close button are a cancel.
    RepondDialogue(Gtk::RESPONSE_DELETE_EVENT);
    EXPECT_FALSE(FermeParLeGestionnaire(bureau));
    RepondDialogue(Gtk::RESPONSE_CANCEL);
    EXPECT_FALSE(FermeParLeGestionnaire(bureau));
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
    EXPECT_TRUE(bureau.Fenetre.ConfirmeFermeture()) << "the letter of its button";
    repondNon.disconnect();
    EXPECT_TRUE(BddCourante.Modifie);

    // With a name: the question.
    BddCourante.EnregistreSous(Dossier() + "/ferme.vek");
    AjouteSegment();
    RepondDialogue(Gtk::RESPONSE_DELETE_EVENT);
    EXPECT_FALSE(FermeParLeGestionnaire(bureau));
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2);
    EXPECT_TRUE(BddCourante.Modifie);
    RepondDialogue(Gtk::RESPONSE_OK);
    EXPECT_TRUE(bureau.Fenetre.ConfirmeFermeture());
    EXPECT_FALSE(BddCourante.Modifie);
    std::string texte;
    ASSERT_TRUE(LitFichier(Dossier() + "/ferme.vek", texte));
    EXPECT_EQ(texte.substr(0, 13), "VERSION3.3\n3\n");
}
