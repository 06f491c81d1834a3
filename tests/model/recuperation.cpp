// The copies of what is not saved.

#include "model/recuperation.h"

#include <glib/gstdio.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "commun/record.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/fichier.h"

namespace fs = std::filesystem;

namespace {

std::string DossierNeuf() {
    char modele[] = "/tmp/krvek-secours-XXXXXX";
    return std::string(g_mkdtemp(modele)) + "/a/b";
}

void Dessine(BDDGeo& bdd, int nombre = 1) {
    for (int i = 0; i < nombre; ++i)
        bdd.Ajoute(EltSegment({0.0, i * 5.0}, {10.0, i * 5.0}, 0));
}

/// A program that draws under the net until it is killed; it answers once its copy is written.
pid_t Lance(const std::string& dossier) {
    int tube[2];
    EXPECT_EQ(pipe(tube), 0);
    const pid_t enfant = fork();
    if (enfant == 0) {
        BDDGeo bdd;
        Recuperation secours(bdd, dossier);
        bdd.NomFichier =
            "/tmp/pi\n\xe8"
            "ce 100%.vek";
        Dessine(bdd, 3);
        const char ecrit = secours.Passe() ? 'o' : 'n';
        [[maybe_unused]] const auto dit = write(tube[1], &ecrit, 1);
        pause();
        _exit(0);
    }
    char reponse = 'n';
    EXPECT_EQ(read(tube[0], &reponse, 1), 1);
    EXPECT_EQ(reponse, 'o');
    close(tube[0]);
    close(tube[1]);
    return enfant;
}

}  // namespace

TEST(Recuperation, CeQuUnProgrammeTueALaisse) {
    const std::string dossier = DossierNeuf();
    const pid_t enfant = Lance(dossier);
    BDDGeo bdd;
    Recuperation secours(bdd, dossier);
    Dessine(bdd);
    EXPECT_TRUE(secours.Passe());
    EXPECT_TRUE(secours.Orphelines().empty()) << "the other program lives";
    kill(enfant, SIGKILL);
    waitpid(enfant, nullptr, 0);
    const auto copies = secours.Orphelines();
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0].Nom,
              "/tmp/pi\n\xe8"
              "ce 100%.vek");
    EXPECT_EQ(copies[0].Elements, 3);
    struct stat etat = {};
    ASSERT_EQ(stat(copies[0].Fichier.c_str(), &etat), 0);
    EXPECT_EQ(etat.st_mode & 0777, 0600u);
    {
        Recuperation autre(bdd, dossier);
        EXPECT_TRUE(autre.Orphelines().empty()) << "it is the first one's now";
    }
    BDDGeo reprise;
    reprise.Recupere(Recuperation::Texte(copies[0]), copies[0].Nom);
    EXPECT_EQ(reprise.Elements.Nombre(), 3);
    EXPECT_TRUE(reprise.AEnregistrer() && !reprise.Nomme);
    secours.RangeOrphelines();
    EXPECT_TRUE(secours.Orphelines().empty());
    EXPECT_EQ(secours.Gardees().size(), 1u);
    secours.Oublie();
    EXPECT_EQ(secours.Gardees().size(), 1u);
    fs::remove_all(dossier);
}

TEST(Recuperation, NEcritQueCeQuiEstNouveauEtAssezTard) {
    const std::string dossier = DossierNeuf();
    const auto ecrites = [&dossier] {
        int nombre = 0;
        for (const auto& entree : fs::directory_iterator(dossier))
            nombre += entree.path().extension() == ".vek";
        return nombre;
    };
    BDDGeo bdd;
    Recuperation secours(bdd, dossier);
    EXPECT_TRUE(secours.Passe());
    EXPECT_FALSE(fs::exists(dossier)) << "nothing is unsaved";
    Dessine(bdd);
    EXPECT_TRUE(secours.Passe());
    ASSERT_EQ(ecrites(), 1);
    const std::string copie = [&] {
        for (const auto& entree : fs::directory_iterator(dossier))
            if (entree.path().extension() == ".vek") return entree.path().string();
        return std::string();
    }();
    const std::string premiere = Contenu(copie);
    Dessine(bdd);
    EXPECT_TRUE(secours.Passe());
    EXPECT_EQ(Contenu(copie), premiere) << "too soon";
    secours.Intervalle = 0.0;
    EXPECT_TRUE(secours.Ecrit("Arrêt du programme"));
    EXPECT_NE(Contenu(copie), premiere);
    const std::string fichier = dossier + "/../dessin.vek";
    ASSERT_TRUE(bdd.EnregistreSous(fichier));
    secours.Oublie();
    EXPECT_EQ(ecrites(), 0);
    EXPECT_TRUE(secours.Ecrit("Arrêt du programme"));
    EXPECT_EQ(ecrites(), 0) << "all is saved";
    bdd.Annule();
    EXPECT_TRUE(secours.Ecrit("Arrêt du programme"));
    EXPECT_EQ(ecrites(), 1) << "an undo is unsaved work";
    fs::remove_all(dossier);
}

TEST(Recuperation, GardeLesPlusNeuvesParmiNImporteQuoi) {
    const std::string dossier = DossierNeuf();
    ASSERT_EQ(g_mkdir_with_parents(dossier.c_str(), 0700), 0);
    const char* const etrangers[] = {"copie-.vek",      "copie-99999999999999999999-1.vek",
                                     "copie-abc.vek",   "copie--1.vek",
                                     "encours-zut.vek", "lettre.txt"};
    for (const char* nom : etrangers)
        ASSERT_TRUE(EcritFichier(dossier + "/" + nom, "\n#copie de secours\ndate -7\nnom xzz\n"));
    fs::create_directory(dossier + "/copie-000000099-1.vek");
    fs::create_symlink("/dev/zero", dossier + "/copie-000000098-1.vek");
    BDDGeo bdd;
    Recuperation secours(bdd, dossier);
    for (int i = 0; i < 40; ++i) {
        Dessine(bdd);
        ASSERT_TRUE(secours.Garde("Remplacé sans être enregistré"));
    }
    const auto copies = secours.Gardees();
    ASSERT_EQ(copies.size(), Recuperation::NombreMax);
    EXPECT_EQ(copies.front().Elements, 40) << "the newest first";
    EXPECT_EQ(copies.back().Elements, 11);
    EXPECT_EQ(secours.Orphelines().size(), 0u);
    for (const char* nom : etrangers)
        EXPECT_TRUE(fs::exists(dossier + "/" + nom)) << "what others put there is theirs";
    // One that is too large drives out none of the others.
    fs::resize_file(copies[3].Fichier, Recuperation::TailleMax + 1);
    Dessine(bdd);
    ASSERT_TRUE(secours.Garde("Remplacé sans être enregistré"));
    EXPECT_EQ(secours.Gardees().size(), Recuperation::NombreMax - 1);
    EXPECT_EQ(secours.Gardees().front().Elements, 41);
    Recuperation::Jette(secours.Gardees().front());
    Recuperation::Jette(copies.front());
    EXPECT_EQ(secours.Gardees().front().Elements, 39);
    fs::remove_all(dossier);

    // Where no folder can be made the work goes on without.
    ASSERT_TRUE(EcritFichier(dossier, "a file"));
    Recuperation sans(bdd, dossier);
    EXPECT_FALSE(sans.Passe());
    EXPECT_FALSE(sans.Garde("Remplacé sans être enregistré"));
    fs::remove_all(dossier);
}

TEST(Travail, UnEchecLaisseLeTravailAEnregistrer) {
    const std::string dossier = DossierNeuf();
    ASSERT_EQ(g_mkdir_with_parents(dossier.c_str(), 0700), 0);
    const std::string nom = dossier + "/d.vek";
    BDDGeo bdd;
    Dessine(bdd, 2);
    EXPECT_FALSE(bdd.EnregistreSous(dossier + "/absent/d.vek"));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_TRUE(bdd.AEnregistrer());
    EXPECT_TRUE(bdd.EnregistreSous(nom));
    EXPECT_FALSE(bdd.AEnregistrer());
    bdd.Annule();
    EXPECT_FALSE(bdd.Modifie);
    EXPECT_TRUE(bdd.AEnregistrer());
    EXPECT_TRUE(bdd.Enregistre());
    EXPECT_FALSE(bdd.AEnregistrer());

    // A link leads to the file, which is replaced whole; what it was not read from keeps a copy.
    fs::create_symlink("d.vek", dossier + "/lien.vek");
    fs::create_symlink("lien.vek", dossier + "/lien2.vek");
    ASSERT_TRUE(EcritFichier(nom, "VERSION2.3\nold"));
    fs::permissions(nom, fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read);
    bdd.Original = nom;
    for (int fois = 0; fois < 2; ++fois) {
        ASSERT_TRUE(bdd.EnregistreSous(dossier + "/lien2.vek"));
        EXPECT_EQ(Contenu(nom).substr(0, 10), "VERSION3.3");
        EXPECT_EQ(Contenu(nom + "~"), "VERSION2.3\nold");
        EXPECT_FALSE(fs::exists(nom + "~1~"));
    }
    EXPECT_TRUE(fs::is_symlink(dossier + "/lien2.vek"));
    EXPECT_EQ(fs::status(nom + "~").permissions(), fs::status(nom).permissions());
    // Nor is what another program has written there meanwhile lost.
    ASSERT_TRUE(EcritFichier(nom, "VERSION3.3\n1\n10000\n-1\n"));
    ASSERT_TRUE(bdd.Enregistre());
    EXPECT_EQ(Contenu(nom + "~"), "VERSION2.3\nold");
    EXPECT_EQ(Contenu(nom + "~1~"), "VERSION3.3\n1\n10000\n-1\n");
    // A file that was put back as it was holds nothing else.
    ASSERT_TRUE(EcritFichier(nom, Contenu(nom)));
    ASSERT_TRUE(bdd.Enregistre());
    EXPECT_FALSE(fs::exists(nom + "~2~"));
    fs::remove_all(dossier);
}

TEST(Travail, UnDisquePleinLaisseLAncienFichier) {
    const std::string dossier = DossierNeuf(), nom = dossier + "/d.vek", lien = dossier + "/l.vek";
    ASSERT_EQ(g_mkdir_with_parents(dossier.c_str(), 0700), 0);
    fs::create_symlink("d.vek", lien);
    BDDGeo bdd;
    Recuperation secours(bdd, dossier + "/secours");
    Dessine(bdd);
    ASSERT_TRUE(bdd.EnregistreSous(lien));
    const std::string avant = Contenu(nom);
    Dessine(bdd, 200);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit libre = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &libre), 0);
    const rlimit plein = {4096, libre.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &plein), 0);
    const bool ecrit = bdd.Enregistre();
    const int erreur = errno;
    const bool garde = secours.Ecrit("Enregistrement impossible");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &libre), 0);
    EXPECT_FALSE(ecrit || garde);
    EXPECT_EQ(erreur, EFBIG);
    EXPECT_EQ(Contenu(nom), avant);
    EXPECT_TRUE(bdd.AEnregistrer());
    EXPECT_TRUE(bdd.Enregistre());
    EXPECT_TRUE(fs::is_symlink(lien));
    EXPECT_GT(Contenu(nom).size(), 10000u);
    for (const auto& entree : fs::recursive_directory_iterator(dossier))
        EXPECT_EQ(entree.path().string().find(".vek."), std::string::npos) << "half a file";
    fs::remove_all(dossier);
}
