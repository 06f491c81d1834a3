// What the view keeps between images: compiled bodies and textures.

#include <gdk/gdkkeysyms.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>
#include <set>

#include "commun/record.h"
#include "model/bddgeo.h"
#include "scene.h"
#include "solids/eltpave.h"

namespace {

/// A box that counts how often it is asked to draw itself.
class PaveCompte : public EltPave {
  public:
    PaveCompte() {
        Origine = {-20.0, 20.0};
        Extremite = {20.0, -20.0};
        Style.Couleur.set_rgb_p(1.0, 1.0, 1.0);
    }

    std::unique_ptr<EltGeo> Clone() const override { return std::make_unique<PaveCompte>(*this); }

    void Dessine3D(DC3D& dc, bool couleur) const override {
        ++Fois;
        EltPave::Dessine3D(dc, couleur);
    }

    static int Fois;
};

int PaveCompte::Fois = 0;

unsigned Centre(const Capture& image) {
    return image.Pixel(320, 280);
}

/// The hues of five stripes side by side on the face of the box, in one row of the picture.
std::vector<int> BandesVues(const Capture& image, int y) {
    // The face, at z = 10, is 20 units to each side of the middle.
    const double demi = 20.0 * 300.0 / (std::tan(22.5 * std::acos(-1.0) / 180.0) * 290.0);
    std::vector<int> teintes;
    for (int bande = 0; bande < 5; ++bande) {
        const double x = 300.0 - demi + (bande + 0.5) / 5.0 * 2.0 * demi;
        teintes.push_back(Teinte(image.Pixel(static_cast<int>(x), y)));
    }
    return teintes;
}

/// A folder of its own for the images of a test.
std::string Dossier() {
    const std::string dossier = std::string(g_get_home_dir()) + "/textures";
    g_mkdir_with_parents(dossier.c_str(), 0777);
    return dossier;
}

}  // namespace

TEST(Listes, CeQuiNeChangePasNEstPasRefait) {
    Banc3D banc;
    EltGeo* pave = BddCourante.Ajoute(PaveCompte());
    banc.Bouge(10.0, 10.0);
    const Capture avant = banc.Image();
    const int faites = PaveCompte::Fois;
    EXPECT_EQ(banc.Image().Ecart(avant), 0);
    banc.Regarde(0, 25, 35);
    banc.Image();
    EXPECT_EQ(PaveCompte::Fois, faites);
    // A change from any side shows.
    banc.Frappe(GDK_f);
    pave->Style.Couleur.set_rgb_p(1.0, 0.0, 0.0);
    EXPECT_EQ(Teinte(Centre(banc.Image())), 1);
    pave->Deplace({100.0, 0.0});
    EXPECT_EQ(Teinte(Centre(banc.Image())), 0);
    BddCourante.Annule();
    EXPECT_EQ(Teinte(banc.Image().Pixel(560, 280)), 0);
}

TEST(Listes, LaPremiereImageEstCelleDApres) {
    Banc3D banc;
    BddCourante.ChargeTexte(Contenu(KRVEK_ESSAIS "/solids/data/profils.vek"));
    const Capture premiere = banc.Image();
    EXPECT_EQ(banc.Image().Ecart(premiere), 0);
}

TEST(Textures, RangeesDroites) {
    // Rows of 15 bytes that stand 16 apart.
    std::vector<int> teintes;
    for (int y = 0; y < 4; ++y)
        teintes.insert(teintes.end(), {1, 2, 4, 3, 6});
    const std::string nom = ImageDeTeintes("bandes.png", 5, teintes);
    Banc3D banc;
    PaveCompte pave;
    pave.texture = nom;
    pave.repetition = false;
    BddCourante.Ajoute(pave);
    banc.Bouge(5.0, 5.0);
    const Capture vue = banc.Image();
    const std::vector<int> bandes = BandesVues(vue, 280);
    EXPECT_EQ(std::set<int>(bandes.begin(), bandes.end()), (std::set<int>{1, 2, 3, 4, 6}));
    for (const int y : {255, 320, 345})
        EXPECT_EQ(BandesVues(vue, y), bandes) << y;
    // Without textures the surface is white.
    banc.Clique(5.0, 5.0);
    banc.Choisit("Texture");
    EXPECT_EQ(BandesVues(banc.Image(), 280), std::vector<int>(5, 7));
}

TEST(Textures, ACoteDuDessin) {
    const std::string chemin = ImageDeTeintes("rouge.png", 1, {1});
    Banc3D banc;
    BddCourante.NomFichier = Glib::build_filename(Glib::path_get_dirname(chemin), "dessin.vek");
    PaveCompte pave;
    pave.texture = "rouge.png";
    BddCourante.Ajoute(pave);
    EXPECT_EQ(Teinte(Centre(banc.Image())), 1);
    BddCourante.NomFichier.clear();
}

TEST(Textures, CeQuiNEstPasUneImageEstBlanc) {
    const std::string dossier = Dossier(), tube = dossier + "/tube", faux = dossier + "/faux.png";
    mkfifo(tube.c_str(), 0600);
    Glib::file_set_contents(faux, "no picture");
    Banc3D banc;
    for (const std::string& nom : {tube, faux, dossier, dossier + "/absent.png"}) {
        BddCourante.Vide();
        PaveCompte pave;
        pave.texture = nom;
        BddCourante.Ajoute(pave);
        EXPECT_EQ(Teinte(Centre(banc.Image())), 7) << nom;
    }
}
