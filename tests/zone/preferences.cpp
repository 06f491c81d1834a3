// What comes back at the next start, and what a broken file does.

#include <glib/gstdio.h>
#include <gtest/gtest.h>

#include "commun/banc.h"
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

  private:
    std::string Nom;
};

}  // namespace

TEST(Preferences, ReviennentAuDepartSuivant) {
    const Dossier dossier;
    {
        ZoneDessin zone;
        Trait trait;
        trait.Couleur = Gdk::Color("#123456");
        trait.StyleLigne = Axe;
        trait.Epaisseur = 4;
        zone.Outils.Protos.SetTrait(trait);
        zone.Outils.Protos.SetCalque(7);
        zone.Vue.SetPasGrille(2.5);
        zone.Vue.ChangeGrille();
        zone.Vue.SetFond(Gdk::Color("#fedcba"));
        zone.Souris.Bascule(&OptionsAccrochage::Actif);
        zone.Souris.Bascule(&OptionsAccrochage::Supports);
        zone.Outils.Rayon = 33.5;
        zone.Outils.Protos.Txt.SetTexte("Défaut");
        zone.Outils.Protos.Cote.SetTaille(6);
        NbDecimales = 4;
        EchelleCourante.ZoomPlusEn({12, -5});
    }
    EchelleCourante.ZoomInit();
    NbDecimales = 2;
    std::string texte;
    ASSERT_TRUE(LitFichier(dossier.Fichier(), texte));
    EXPECT_EQ(texte.substr(0, 12), "4\n33.5\n1\n6 4");

    const ZoneDessin zone;
    EXPECT_EQ(zone.Outils.Protos.Trait().Couleur, Gdk::Color("#123456"));
    EXPECT_EQ(zone.Outils.Protos.Trait().StyleLigne, Axe);
    EXPECT_EQ(zone.Outils.Protos.Arc.Style.Epaisseur, 4);
    EXPECT_EQ(zone.Outils.Protos.Calque(), 7);
    EXPECT_EQ(zone.Outils.Protos.Segment.Calque, 7);
    EXPECT_EQ(zone.Vue.GrilleCourante.Pas, 2.5);
    EXPECT_TRUE(zone.Vue.GrilleCourante.Affichee);
    EXPECT_EQ(zone.Vue.Fond(), Gdk::Color("#fedcba"));
    EXPECT_TRUE(zone.Souris.Options.Actif);
    EXPECT_TRUE(zone.Souris.Options.Intersections);
    EXPECT_FALSE(zone.Souris.Options.Supports);
    EXPECT_EQ(zone.Outils.Rayon, 33.5);
    EXPECT_EQ(zone.Outils.Protos.Txt.Texte, "Défaut");
    EXPECT_EQ(zone.Outils.Protos.CoteDia.Taille, 6.0);
    EXPECT_EQ(NbDecimales, 4);
    EXPECT_EQ(EchelleCourante.Facteur, 2.0);
    EXPECT_EQ(EchelleCourante.Origine.x, 12.0);
    EXPECT_EQ(EchelleCourante.Proche10, 5.0);
}

TEST(Preferences, UnFichierCoupeNEmpecheRien) {
    const Dossier dossier;
    { const ZoneDessin zone; }
    std::string entier;
    ASSERT_TRUE(LitFichier(dossier.Fichier(), entier));
    for (std::size_t octets = 0; octets <= entier.size(); octets += 3) {
        ASSERT_TRUE(EcritFichier(dossier.Fichier(), entier.substr(0, octets)));
        const ZoneDessin zone;
        EXPECT_GT(EchelleCourante.Facteur, 0.0);
        EXPECT_GT(zone.Vue.GrilleCourante.Pas, 0.0);
        EXPECT_GE(zone.Outils.Protos.Trait().Epaisseur, 1);
        EXPECT_TRUE(EstNombreDecimales(NbDecimales));
    }
    ASSERT_TRUE(EcritFichier(dossier.Fichier(), "99\n-1\n1\n"));
    const ZoneDessin zone;
    EXPECT_TRUE(EstNombreDecimales(NbDecimales));
    EXPECT_EQ(zone.Outils.Rayon, 10.0);
}
