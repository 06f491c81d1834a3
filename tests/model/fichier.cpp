#include "model/fichier.h"

#include <glibmm/convert.h>
#include <gtest/gtest.h>
#include <gtkmm/main.h>
#include <gtkmm/recentmanager.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "elements/eltsegment.h"
#include "elements/encodage.h"
#include "model/bddgeo.h"
#include "model/recuperation.h"

namespace fs = std::filesystem;

namespace {

/// A folder of its own for each test, and a drawing to write there.
class Fichier : public testing::Test {
  protected:
    Fichier() {
        fs::create_directory(Dossier);
        Bdd.Ajoute(EltSegment({0, 0}, {1.5, 2}, 0));
    }
    ~Fichier() override { fs::remove_all(Dossier); }

    static std::string Lu(const std::string& chemin) {
        std::string contenu;
        return LitFichier(chemin, contenu) ? contenu : "illisible";
    }
    long Nombre() const { return std::distance(fs::directory_iterator(Dossier), {}); }

    const std::string Dossier = std::string(std::getenv("HOME")) + "/fichiers";
    const std::string Chemin = Dossier + "/plan.vek";
    BDDGeo Bdd;
};

}  // namespace

TEST_F(Fichier, GardeLesDroitsEtLesLiens) {
    ASSERT_TRUE(EcritFichier(Chemin, "un"));
    const auto droits = [this] { return static_cast<mode_t>(fs::status(Chemin).permissions()); };
    const mode_t masque = umask(0);
    umask(masque);
    EXPECT_EQ(droits(), 0666 & ~masque);
    ASSERT_EQ(chmod(Chemin.c_str(), 0640), 0);
    ASSERT_TRUE(EcritFichier(Chemin, std::string("deux\0bis", 8)));
    EXPECT_EQ(droits(), 0640u);
    EXPECT_EQ(Lu(Chemin), std::string("deux\0bis", 8));
    const std::string autre = Dossier + "/autre";
    fs::create_hard_link(Chemin, autre);
    ASSERT_TRUE(EcritFichier(Chemin, "quatre"));
    EXPECT_EQ(Lu(autre), "quatre");
    EXPECT_EQ(Nombre(), 2);
}

TEST_F(Fichier, CeQuiNEstPasUnFichier) {
    EXPECT_FALSE(EcritFichier(Dossier + "/absent/plan.vek", "un"));
    EXPECT_FALSE(EcritFichier(Dossier, "un"));
    EXPECT_EQ(Lu(Dossier), "illisible");
    EXPECT_EQ(Lu(Chemin), "illisible");
    ASSERT_EQ(mkfifo(Chemin.c_str(), 0600), 0);
    EXPECT_EQ(Lu(Chemin), "illisible");  // And does not wait.
    std::string contenu;
    EXPECT_EQ(LitFichierOuDit(Chemin, contenu), BilanLecture::Illisible);
    EXPECT_EQ(LitFichierOuDit(Chemin + "/plan", contenu), BilanLecture::Absent);
    ASSERT_EQ(chmod(Chemin.c_str(), 0), 0);
    // Nothing is closed to the superuser.
    const auto ferme = geteuid() != 0 ? BilanLecture::SansDroit : BilanLecture::Illisible;
    EXPECT_EQ(LitFichierOuDit(Chemin, contenu), ferme);
}

TEST_F(Fichier, UnEchecLaisseLeTravailAEnregistrer) {
    EXPECT_FALSE(Bdd.EnregistreSous(Dossier + "/absent/d.vek"));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_TRUE(Bdd.AEnregistrer());
    EXPECT_TRUE(Bdd.EnregistreSous(Chemin));
    EXPECT_FALSE(Bdd.AEnregistrer());
    Bdd.Annule();
    EXPECT_FALSE(Bdd.Modifie);
    EXPECT_TRUE(Bdd.AEnregistrer());
    EXPECT_TRUE(Bdd.Enregistre());
    EXPECT_FALSE(Bdd.AEnregistrer());

    // A link leads to the file, which is replaced whole; what it was not read from keeps a copy.
    const std::string lien = Dossier + "/lien2.vek", nouveau = "VERSION3.3\n1\n10000\n-1\n";
    fs::create_symlink("plan.vek", Dossier + "/lien.vek");
    fs::create_symlink("lien.vek", lien);
    ASSERT_TRUE(EcritFichier(Chemin, "VERSION2.3\nold"));
    fs::permissions(Chemin, fs::perms::owner_all | fs::perms::others_read);
    Bdd.Original = Chemin;
    for (int fois = 0; fois < 2; ++fois) {
        ASSERT_TRUE(Bdd.EnregistreSous(lien));
        EXPECT_EQ(Lu(Chemin).substr(0, 10), "VERSION3.3");
        EXPECT_EQ(Lu(Chemin + "~"), "VERSION2.3\nold");
        EXPECT_EQ(Bdd.OriginalGarde, fois ? "" : Chemin + "~");
    }
    EXPECT_TRUE(fs::is_symlink(lien));
    EXPECT_EQ(fs::status(Chemin + "~").permissions(), fs::status(Chemin).permissions());
    // Nor is what another program has written there meanwhile lost.
    ASSERT_TRUE(EcritFichier(Chemin, nouveau + "\n"));
    EXPECT_TRUE(Bdd.GarderaOriginal());
    ASSERT_TRUE(Bdd.Enregistre());
    EXPECT_EQ(Lu(Chemin + "~"), "VERSION2.3\nold");
    EXPECT_EQ(Lu(Chemin + "~1~"), nouveau + "\n");
    // A file that was put back as it was holds nothing else, nor does one that is agreed upon.
    ASSERT_TRUE(EcritFichier(Chemin, Lu(Chemin)));
    ASSERT_TRUE(Bdd.Enregistre());
    ASSERT_TRUE(EcritFichier(Dossier + "/autre.vek", nouveau));
    ASSERT_TRUE(Bdd.EnregistreSous(Dossier + "/autre.vek"));
    // One that was not there is somebody else's once it is.
    Bdd.Ouvre(Dossier + "/neuf.vek");
    ASSERT_TRUE(EcritFichier(Dossier + "/neuf.vek", nouveau));
    Bdd.Modifie = true;
    ASSERT_TRUE(Bdd.Enregistre());
    EXPECT_EQ(Lu(Dossier + "/neuf.vek~"), nouveau);
    EXPECT_EQ(Nombre(), 8);
}

TEST_F(Fichier, UnDisquePleinLaisseLAncienFichier) {
    const std::string lien = Dossier + "/lien.vek";
    fs::create_symlink("plan.vek", lien);
    Recuperation secours(Bdd, Dossier + "/secours");
    ASSERT_TRUE(Bdd.EnregistreSous(lien));
    // Written beside it first, and in place where it has two names.
    for (const bool deuxNoms : {false, true}) {
        if (deuxNoms) fs::create_hard_link(Chemin, Dossier + "/autre.vek");
        const std::string avant = Lu(Chemin);
        for (int i = 0; i < 200; ++i)
            Bdd.Ajoute(EltSegment({0.0, i * 5.0}, {10.0, i * 5.0}, 0));
        // No file may grow beyond that, which is what a full disk looks like.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit libre = {};
        ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &libre), 0);
        const rlimit plein = {4096, libre.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &plein), 0);
        const bool ecrit = Bdd.Enregistre();
        const int erreur = errno;
        const bool garde = secours.Ecrit("Enregistrement impossible");
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &libre), 0);
        EXPECT_FALSE(ecrit || garde);
        EXPECT_EQ(erreur, EFBIG);
        EXPECT_EQ(Lu(Chemin), avant);
        EXPECT_TRUE(Bdd.AEnregistrer());
        EXPECT_TRUE(Bdd.Enregistre());
    }
    EXPECT_TRUE(fs::is_symlink(lien));
    EXPECT_GT(Lu(Chemin).size(), 10000u);
    for (const auto& entree : fs::recursive_directory_iterator(Dossier))
        EXPECT_EQ(entree.path().string().find(".vek."), std::string::npos) << "half a file";
}

TEST_F(Fichier, EnregistreEtRetient) {
    const std::string nom = Dossier + "/pièce n° 1 à 100%.vek";
    Bdd.EnregistreSous(nom);
    EXPECT_TRUE(Bdd.Nomme);
    EXPECT_EQ(Lu(nom), Bdd.SauveTexte());
    const std::string adresse = Glib::filename_to_uri(nom);
    const auto recents = Gtk::RecentManager::get_default();
    for (int i = 0; i < 200 && !recents->has_item(adresse); ++i) {
        while (Gtk::Main::events_pending())
            Gtk::Main::iteration();
        usleep(10000);
    }
    EXPECT_TRUE(recents->has_item(adresse));
}

TEST(Encodage, ToutTexteDevientValide) {
    EXPECT_EQ(EnUtf8("pièce 5 €"), "pièce 5 €");
    // A byte without a character costs no more than itself.
    EXPECT_EQ(EnUtf8("\x80 \x81 \x8a \x9f \xa0 \xe8"), "€ ? Š Ÿ \u00a0 è");
}
