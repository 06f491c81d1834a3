// The copies of what is not saved.

#include "model/recuperation.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

#include "commun/record.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/fichier.h"

namespace fs = std::filesystem;

namespace {

const char NomEtrange[] =
    "/tmp/pi\n\xe8"
    "ce 100%.vek";

void Dessine(BDDGeo& bdd, int nombre = 1) {
    for (int i = 0; i < nombre; ++i)
        bdd.Ajoute(EltSegment({0.0, i * 5.0}, {10.0, i * 5.0}, 0));
}

/// A drawing under the net, in a folder of its own that the net makes.
class Secours : public testing::Test {
  protected:
    ~Secours() override { fs::remove_all(Racine); }

    /// The running copies.
    std::vector<std::string> EnCours() const {
        std::vector<std::string> copies;
        for (const auto& entree : fs::directory_iterator(Dossier))
            if (entree.path().extension() == ".vek") copies.push_back(entree.path().string());
        return copies;
    }

    const std::string Racine = std::string(std::getenv("HOME")) + "/secours";
    const std::string Dossier = Racine + "/a/b";
    BDDGeo Bdd;
    Recuperation Net{Bdd, Dossier};
};

}  // namespace

TEST_F(Secours, CeQuUnProgrammeTueALaisse) {
    BDDGeo voisin;
    voisin.NomFichier = NomEtrange;
    Dessine(voisin, 3);
    auto autre = std::make_unique<Recuperation>(voisin, Dossier);
    EXPECT_TRUE(autre->Passe());
    Dessine(Bdd);
    EXPECT_TRUE(Net.Passe());
    EXPECT_TRUE(Net.Orphelines().empty()) << "the other program lives";
    // Its lock goes with it, however it ends.
    autre.reset();
    const auto copies = Net.Orphelines();
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0].Nom, NomEtrange);
    EXPECT_EQ(copies[0].Raison, "Travail non enregistré");
    EXPECT_EQ(copies[0].Elements, 3);
    EXPECT_LE(std::abs(copies[0].Date - std::time(nullptr)), 60);
    EXPECT_EQ(fs::status(copies[0].Fichier).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(Dossier).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(Recuperation(Bdd, Dossier).Orphelines().empty()) << "it is the first one's now";

    BDDGeo reprise;
    Dessine(reprise, 2);
    reprise.Recupere(Recuperation::Texte(copies[0]), copies[0].Nom);
    EXPECT_EQ(reprise.Elements.Nombre(), 3);
    EXPECT_EQ(reprise.NomFichier, NomEtrange);
    EXPECT_TRUE(reprise.Modifie && !reprise.Nomme);
    reprise.SauveTexte();
    EXPECT_TRUE(reprise.AEnregistrer());
    Net.RangeOrphelines();
    EXPECT_TRUE(Net.Orphelines().empty());
    Net.Oublie();
    ASSERT_EQ(Net.Gardees().size(), 1u);
    EXPECT_EQ(Net.Gardees()[0].Nom, NomEtrange);
    EXPECT_EQ(std::distance(fs::directory_iterator(Dossier), {}), 2) << "the copy and its own lock";
}

TEST_F(Secours, NEcritQueCeQuiEstNouveauEtAssezTard) {
    EXPECT_TRUE(Net.Passe());
    EXPECT_FALSE(fs::exists(Dossier)) << "nothing is unsaved";
    Dessine(Bdd);
    EXPECT_TRUE(Net.Passe());
    ASSERT_EQ(EnCours().size(), 1u);
    const std::string copie = EnCours()[0], premiere = Contenu(copie);
    Dessine(Bdd);
    EXPECT_TRUE(Net.Passe());
    EXPECT_EQ(Contenu(copie), premiere) << "too soon";
    EXPECT_TRUE(Net.Ecrit("Arrêt du programme"));
    const std::string seconde = Contenu(copie);
    EXPECT_NE(seconde, premiere);
    EXPECT_TRUE(EcritFichier(copie, "rien"));
    EXPECT_TRUE(Net.Ecrit("Arrêt du programme"));
    EXPECT_EQ(Contenu(copie), "rien") << "nothing new";
    Dessine(Bdd);
    Net.Intervalle = 0.0;
    // Fifty times what the last one took must go by.
    for (int i = 0; i < 500 && Contenu(copie) == "rien"; ++i) {
        usleep(10000);
        EXPECT_TRUE(Net.Passe());
    }
    EXPECT_NE(Contenu(copie), "rien");

    ASSERT_TRUE(Bdd.EnregistreSous(Racine + "/dessin.vek"));
    Net.Oublie();
    EXPECT_TRUE(EnCours().empty());
    EXPECT_TRUE(Net.Ecrit("Arrêt du programme"));
    EXPECT_TRUE(Net.Garde("Remplacé sans être enregistré"));
    EXPECT_TRUE(EnCours().empty()) << "all is saved";
    Bdd.Annule();
    EXPECT_TRUE(Net.Ecrit("Arrêt du programme"));
    EXPECT_EQ(EnCours().size(), 1u) << "an undo is unsaved work";
    Net.Oublie();
    EXPECT_TRUE(Net.Ecrit("Arrêt du programme"));
    EXPECT_EQ(EnCours().size(), 1u) << "the copy that was there is not any more";
}

TEST_F(Secours, GardeLesPlusNeuvesParmiNImporteQuoi) {
    fs::create_directories(Dossier);
    const char* const etrangers[] = {"copie-.vek",    "copie-99999999999999999999-1.vek",
                                     "copie-abc.vek", "encours-zut.vek",
                                     "lettre.txt",    "copie--1.vek"};
    for (const char* nom : etrangers)
        ASSERT_TRUE(EcritFichier(Dossier + "/" + nom, "\n#copie de secours\ndate -7\nnom xzz\n"));
    fs::create_directory(Dossier + "/copie-000000099-1.vek");
    fs::create_symlink("/dev/zero", Dossier + "/copie-000000098-1.vek");
    for (int i = 0; i < 40; ++i) {
        Dessine(Bdd);
        ASSERT_TRUE(Net.Garde("Remplacé sans être enregistré"));
        ASSERT_TRUE(Net.Garde("Une fois")) << "once for each state of it";
    }
    const auto copies = Net.Gardees();
    ASSERT_EQ(copies.size(), Recuperation::NombreMax);
    EXPECT_EQ(copies.front().Elements, 40) << "the newest first";
    EXPECT_EQ(copies.front().Raison, "Remplacé sans être enregistré");
    EXPECT_EQ(copies.back().Elements, 11);
    EXPECT_EQ(Net.Orphelines().size(), 0u);
    for (const char* nom : etrangers)
        EXPECT_TRUE(fs::exists(Dossier + "/" + nom)) << "what others put there is theirs";
    // One that is too large drives out none of the others.
    fs::resize_file(copies[3].Fichier, Recuperation::TailleMax + 1);
    Dessine(Bdd);
    ASSERT_TRUE(Net.Garde("Remplacé sans être enregistré"));
    EXPECT_EQ(Net.Gardees().size(), Recuperation::NombreMax - 1);
    Recuperation::Jette(Net.Gardees().front());
    Recuperation::Jette(copies.front());
    EXPECT_EQ(Net.Gardees().front().Elements, 39);

    // Where no folder can be made the work goes on without.
    fs::remove_all(Dossier);
    ASSERT_TRUE(EcritFichier(Dossier, "a file"));
    Recuperation sans(Bdd, Dossier);
    Dessine(Bdd);
    EXPECT_FALSE(sans.Passe());
    EXPECT_FALSE(sans.Garde("Remplacé sans être enregistré"));
}
