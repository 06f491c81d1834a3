#include "model/fichier.h"

#include <glibmm/convert.h>
#include <gtest/gtest.h>
#include <gtkmm/main.h>
#include <gtkmm/recentmanager.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "elements/eltsegment.h"
#include "elements/encodage.h"
#include "model/bddgeo.h"

namespace {

/// A folder of its own for each test.
class Fichier : public testing::Test {
  protected:
    Fichier() { std::filesystem::create_directory(Dossier); }
    ~Fichier() override { std::filesystem::remove_all(Dossier); }

    static std::string Lu(const std::string& chemin) {
        std::string contenu;
        return LitFichier(chemin, contenu) ? contenu : "illisible";
    }
    long Nombre() const { return std::distance(std::filesystem::directory_iterator(Dossier), {}); }

    const std::string Dossier = std::string(std::getenv("HOME")) + "/fichiers";
    const std::string Chemin = Dossier + "/plan.vek";
};

}  // namespace

TEST_F(Fichier, GardeLesDroitsEtLesLiens) {
    ASSERT_TRUE(EcritFichier(Chemin, "un"));
    const auto droits = [this] {
        struct stat etat = {};
        return stat(Chemin.c_str(), &etat) == 0 ? etat.st_mode & 07777 : 0;
    };
    const mode_t masque = umask(0);
    umask(masque);
    EXPECT_EQ(droits(), 0666 & ~masque);
    ASSERT_EQ(chmod(Chemin.c_str(), 0640), 0);
    ASSERT_TRUE(EcritFichier(Chemin, std::string("deux\0bis", 8)));
    EXPECT_EQ(droits(), 0640u);
    EXPECT_EQ(Lu(Chemin), std::string("deux\0bis", 8));
    const std::string lien = Dossier + "/lien", autre = Dossier + "/autre";
    ASSERT_EQ(symlink(Chemin.c_str(), lien.c_str()), 0);
    ASSERT_TRUE(EcritFichier(lien, "trois"));
    EXPECT_TRUE(std::filesystem::is_symlink(lien));
    EXPECT_EQ(Lu(Chemin), "trois");
    ASSERT_EQ(link(Chemin.c_str(), autre.c_str()), 0);
    ASSERT_TRUE(EcritFichier(Chemin, "quatre"));
    EXPECT_EQ(Lu(autre), "quatre");
    EXPECT_EQ(Nombre(), 3);
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

TEST_F(Fichier, EnregistreEtRetient) {
    const std::string nom = Dossier + "/pièce n° 1 à 100%.vek";
    BDDGeo bdd;
    bdd.Ajoute(EltSegment({0, 0}, {1.5, 2}, 0));
    bdd.EnregistreSous(nom);
    EXPECT_FALSE(bdd.Modifie);
    EXPECT_TRUE(bdd.Nomme);
    BDDGeo relu;
    relu.Ouvre(nom);
    EXPECT_EQ(relu.SauveTexte(), bdd.SauveTexte());
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
    EXPECT_EQ(EnUtf8("pi\xe8"
                     "ce 5 \x80"),
              "pièce 5 €");
    // A byte without a character costs no more than itself.
    EXPECT_EQ(EnUtf8("pi\xe8"
                     "ce \x81 5")
                  .substr(0, 6),
              "pièce ");
}
