// What was drawn is not lost: not by an undo after a save, nor by a save that fails, a command that
// is given up, a drawing that is replaced, a file that is something else.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/messagedialog.h>

#include <filesystem>

#include "bureau.h"
#include "commun/record.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/fichier.h"

namespace fs = std::filesystem;

namespace {

/// A desk whose net and files are its own.
struct BureauNeuf : Bureau {
    BureauNeuf() : Dossier(DossierProvisoire()) {
        for (const CopieSecours& copie : Fenetre.Secours.Gardees())
            Recuperation::Jette(copie);
    }
    ~BureauNeuf() { fs::remove_all(Dossier); }

    void Segment(double y) {
        Choisit("Segment");
        Souris.ClicA({0, y});
        Souris.ClicA({50, y});
        LaisseTourner();
    }

    std::size_t Gardees() { return Fenetre.Secours.Gardees().size(); }

    std::string Dit() { return Fenetre.Messages.Texte(); }

    const std::string Dossier;
};

int Nombre(const std::string& fichier) {
    BDDGeoBase bdd;
    bdd.ChargeTexte(Contenu(fichier));
    return bdd.Elements.Nombre();
}

}  // namespace

TEST(Travail, CtrlSApresUneAnnulationEcrit) {
    BureauNeuf bureau;
    const std::string nom = bureau.Dossier + "/a.vek";
    bureau.Segment(0);
    bureau.Segment(20);
    ASSERT_TRUE(BddCourante.EnregistreSous(nom));
    bureau.Frappe(GDK_a);
    EXPECT_FALSE(BddCourante.Modifie);
    RepondDialogue(Gtk::RESPONSE_CANCEL);
    EXPECT_FALSE(bureau.Fenetre.ConfirmeFermeture()) << "closing asks";
    bureau.Choisit("Save");
    EXPECT_EQ(Nombre(nom), 1);
    EXPECT_TRUE(bureau.Fenetre.ConfirmeFermeture());
    // Every other change that is not marked.
    bureau.Zone.Vue.RectangleSelection.SetPoints({-60, 60}, {60, -60});
    for (const char* commande : {"ZoneTrait", "CouperVek", "Annulation"}) {
        bureau.Choisit(commande);
        EXPECT_TRUE(BddCourante.AEnregistrer()) << commande;
        bureau.Choisit("Save");
        EXPECT_FALSE(BddCourante.AEnregistrer()) << commande;
    }
    EXPECT_EQ(Nombre(nom), 1);
}

TEST(Travail, UnEnregistrementManqueResteADire) {
    BureauNeuf bureau;
    bureau.Segment(0);
    ASSERT_TRUE(BddCourante.EnregistreSous(bureau.Dossier + "/a.vek"));
    bureau.Segment(20);
    fs::remove_all(bureau.Dossier);
    bureau.Choisit("Save");
    EXPECT_EQ(bureau.Dit(),
              "« a.vek » n'a pas pu être écrit : le dossier n'existe pas. Une copie est gardée.");
    EXPECT_TRUE(BddCourante.AEnregistrer());
    RepondDialogue(Gtk::RESPONSE_OK);
    EXPECT_FALSE(bureau.Fenetre.ConfirmeFermeture()) << "it could not be saved";
    // Ten further commands let the strip go, which never took the keys.
    EXPECT_TRUE(bureau.Fenetre.get_focus() == nullptr);
    for (int i = 0; i < Bandeau::CommandesMax; ++i)
        bureau.Choisit("Segment");
    EXPECT_EQ(bureau.Dit(), "");
}

TEST(Travail, AnnulerLaQuestionGardeLeDessin) {
    BureauNeuf bureau;
    bureau.Segment(0);
    for (const char* commande : {"New", "Open", "Dxf", "Ve9"}) {
        RepondDialogue(Gtk::RESPONSE_CANCEL);
        bureau.Choisit(commande);
        EXPECT_EQ(BddCourante.Elements.Nombre(), 1) << commande;
        // A chooser behind the question is given up as well.
        RepondDialogue(Gtk::RESPONSE_OK, [](Gtk::Dialog& question) {
            EXPECT_TRUE(dynamic_cast<Gtk::MessageDialog*>(&question));
            RepondDialogue(Gtk::RESPONSE_CANCEL, [](Gtk::Dialog& choix) {
                EXPECT_TRUE(dynamic_cast<Gtk::FileChooserDialog*>(&choix));
            });
        });
        bureau.Choisit(commande);
        EXPECT_EQ(BddCourante.Elements.Nombre(), 1) << commande;
    }
    EXPECT_EQ(bureau.Gardees(), 0u);
    RepondDialogue(Gtk::RESPONSE_NO);
    bureau.Choisit("New");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
    ASSERT_EQ(bureau.Gardees(), 1u);

    // The menu gives it back, under a name that is asked for.
    RepondDialogue(Gtk::RESPONSE_OK);
    bureau.Choisit("RecupereDessin");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
    EXPECT_TRUE(BddCourante.AEnregistrer() && !BddCourante.Nomme);
}

TEST(Travail, CeQueRemplaceUnImportSansQuestionEstGarde) {
    BureauNeuf bureau;
    bureau.Segment(0);
    RepondFichier(KRVEK_ESSAIS "/exchange/data/version10.vek");
    bureau.Choisit("Vek");
    EXPECT_EQ(BddCourante.Elements.Nombre(), 8);
    EXPECT_EQ(bureau.Gardees(), 1u);
    EXPECT_NE(bureau.Dit().find("une copie est gardée"), std::string::npos);
}

TEST(Travail, UnFichierEtrangerGardeUneCopie) {
    BureauNeuf bureau;
    const std::string photo = bureau.Dossier + "/photo.png", coupe = bureau.Dossier + "/c.vek";
    const std::string octets("\x89PNG\r\n\x1a\n\0\0", 10);
    ASSERT_TRUE(EcritFichier(photo, octets));
    RepondDialogue(Gtk::RESPONSE_OK);
    bureau.Fenetre.OuvreFichier(photo);
    EXPECT_EQ(bureau.Dit(),
              "« photo.png » n'est pas un dessin. Le premier enregistrement gardera "
              "l'original sous photo.png~.");
    bureau.Segment(0);
    bureau.Choisit("Save");
    EXPECT_EQ(Nombre(photo), 1);
    EXPECT_EQ(Contenu(photo + "~"), octets);
    EXPECT_EQ(bureau.Dit(), "Ce que « photo.png » contenait est gardé sous photo.png~.");

    std::string texte = Contenu(KRVEK_ESSAIS "/model/data/feuille.vek");
    texte.resize(texte.size() / 2);
    ASSERT_TRUE(EcritFichier(coupe, texte));
    bureau.Fenetre.OuvreFichier(coupe);
    EXPECT_EQ(bureau.Dit().find("« c.vek » n'a pu être lu qu'en partie : "), 0u) << bureau.Dit();
    bureau.Segment(0);
    ASSERT_TRUE(BddCourante.EnregistreSous(bureau.Dossier + "/ailleurs.vek"));
    ASSERT_TRUE(BddCourante.EnregistreSous(coupe));
    EXPECT_EQ(Contenu(coupe + "~"), texte) << "the first save over it, though not the first one";

    bureau.Fenetre.OuvreFichier(bureau.Dossier);
    EXPECT_NE(bureau.Dit().find("est un dossier."), std::string::npos);
    bureau.Fenetre.OuvreFichier(bureau.Dossier + "/rien.vek");
    EXPECT_EQ(bureau.Dit(), "« rien.vek » n'existe pas.");
}
