// What comes back at the next start, and what a broken file does.

#include <glib/gstdio.h>
#include <glibmm/miscutils.h>
#include <gtest/gtest.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/fichier.h"

namespace {

/// A folder for the preferences while it lives.
class Dossier {
  public:
    Dossier() {
        char modele[] = "/tmp/krvek-preferences-XXXXXX";
        Nom = g_mkdtemp(modele);
        setenv("APPDATA", Nom.c_str(), 1);
    }

    ~Dossier() {
        g_unlink(Fichier().c_str());
        g_rmdir(Nom.c_str());
        setenv("APPDATA", "/nonexistent", 1);
        EchelleCourante.ZoomInit();
        NbDecimales = 2;
    }

    std::string Fichier() const { return Nom + "/KRVEK.ini"; }

    /// What is left of the text by a start and an end of the program.
    std::string Repris(const std::string& texte) const {
        EXPECT_TRUE(EcritFichier(Fichier(), texte));
        EchelleCourante.ZoomInit();
        NbDecimales = 2;
        { const ZoneDessin zone; }
        return Contenu(Fichier());
    }

  private:
    std::string Nom;
};

}  // namespace

TEST(Preferences, ReviennentAuDepartSuivant) {
    const Dossier dossier;
    const std::string texte = Contenu(KRVEK_ESSAIS "/zone/data/preferences.ini");
    EXPECT_EQ(dossier.Repris(texte), texte);

    // They are in force: the next elements, the view, the measures.
    ZoneDessin zone;
    const Prototypes& protos = zone.Outils.Protos;
    EXPECT_EQ(protos.Arc.Style.Epaisseur, 4);
    EXPECT_EQ(protos.Segment.Style.Couleur, Gdk::Color("#123412345678"));
    EXPECT_EQ(protos.Segment.Calque, 7);
    EXPECT_EQ(protos.CoteDia.Taille, 6.0);
    EXPECT_EQ(protos.CoteAng.Police, "Serif");
    EXPECT_EQ(zone.Vue.Fond(), Gdk::Color("#fefedcdcbaba"));
    EXPECT_EQ(EchelleCourante.Proche10, 5.0);
    EXPECT_EQ(NbDecimales, 4);
}

TEST(Preferences, UnFichierFauxNEmpecheRien) {
    const Dossier dossier;
    const std::string texte = Contenu(KRVEK_ESSAIS "/zone/data/preferences.ini");
    for (std::size_t octets = 0; octets <= texte.size(); octets += 3) {
        // Whatever it made of the file, it holds to that.
        const std::string repris = dossier.Repris(texte.substr(0, octets));
        EXPECT_EQ(dossier.Repris(repris), repris) << octets;
    }
    // A number of decimals, a radius, a colour and a width that cannot be.
    const std::string habituel = dossier.Repris("");
    EXPECT_EQ(dossier.Repris("99\n-1\n0\n"), habituel);
    EXPECT_EQ(dossier.Repris("2\n0\n0\n"), habituel);
    const auto change = [&texte](const std::string& ancien, const std::string& nouveau) {
        std::string autre = texte;
        return autre.replace(texte.find(ancien), ancien.size(), nouveau);
    };
    EXPECT_EQ(dossier.Repris(change("65278 56540 47802", "65536 -1 0")),
              change("65278 56540 47802", "65535 65535 0"));
    EXPECT_EQ(dossier.Repris(change("47802\n4 2", "47802\n0 2")),
              dossier.Repris(change("47802\n4 2", "47802\n1 2")));
}

TEST(Preferences, SansDossierNommeCeluiDeLUtilisateur) {
    const std::string fichier = Glib::get_user_config_dir() + "/KRVEK.ini";
    setenv("APPDATA", "", 1);
    { const ZoneDessin zone; }
    setenv("APPDATA", "/nonexistent", 1);
    EXPECT_EQ(Contenu(fichier).substr(0, 5), "2\n10\n");
    g_unlink(fichier.c_str());
}
