// What the view keeps between images, and what it refuses: compiled bodies, textures, scenes that
// would take too long.

#include <GL/gl.h>
#include <gdk/gdkkeysyms.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "commun/hasard.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "model/eltbdd.h"
#include "scene.h"
#include "solids/ecrit.h"
#include "solids/eltimage3d.h"
#include "solids/eltpave.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltsphere.h"
#include "view3d/scenebornee.h"

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

/// The hue of a point of the upper face of that box.
int Montre(Banc3D& banc, int x = 320, int y = 280) {
    return Teinte(banc.Image().Pixel(x, y));
}

/// Shows the box with that texture.
int MontreAvec(Banc3D& banc, const std::string& texture) {
    const std::string dessin = BddCourante.NomFichier;
    BddCourante.Vide();
    BddCourante.NomFichier = dessin;
    PaveCompte pave;
    pave.texture = texture;
    BddCourante.Ajoute(pave);
    return Montre(banc);
}

double Ensemble(const SceneBornee& scene, double pieces, int nombre) {
    return nombre * std::min(pieces, scene.PiecesMax());
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
    EXPECT_EQ(Montre(banc), 1);
    pave->Deplace({100.0, 0.0});
    EXPECT_EQ(Montre(banc), 0);
    EXPECT_EQ(Montre(banc, 560), 1);
    BddCourante.Annule();
    EXPECT_EQ(Montre(banc, 560), 0);
    // So does that of a path, which the tube along it is made of.
    EltGeo* tube =
        PoseRecord(Entete(TypeProfilTubeRond, 2) + "0 0 0\n0 0 0\n10 1 1 1 1 1 0 0 50\n\n15\n");
    EltGeo* chemin = PoseRecord(Entete(TypeProfil, 7) + "0 90 0\n1\n2\n-30 0 0 30 0 0 \n", tube);
    EXPECT_EQ(Montre(banc), 2);
    static_cast<EltProfil*>(chemin)->Sommets[1] = SommetProfil(PointVek(-20.0, 0.0));
    EXPECT_EQ(Montre(banc), 0);
}

TEST(Listes, LaPremiereImageEstCelleDApres) {
    Banc3D banc(300);
    BddCourante.ChargeTexte(Contenu(KRVEK_ESSAIS "/solids/data/profils.vek"));
    const Capture premiere = banc.Image();
    EXPECT_EQ(banc.Image().Ecart(premiere), 0);
}

TEST(Textures, RangeesDroites) {
    // Rows of 15 bytes that stand 16 apart; the face shows the first one at its right edge.
    std::vector<int> teintes;
    for (int y = 0; y < 4; ++y)
        teintes.insert(teintes.end(), {1, 2, 4, 3, 6});
    PaveCompte pave;
    pave.texture = ImageDeTeintes("bandes.png", 5, teintes);
    pave.repetition = false;
    Banc3D banc;
    BddCourante.Ajoute(pave);
    banc.Bouge(5.0, 5.0);
    // 40 units at 290 from the eye are 100 pixels.
    for (const int y : {255, 280, 320, 345})
        for (int bande = 0; bande < 5; ++bande)
            EXPECT_EQ(Montre(banc, 340 - 20 * bande, y), teintes[static_cast<std::size_t>(bande)]);
}

TEST(Textures, DUnFichierOuBlanc) {
    const std::string rouge = ImageDeTeintes("rouge.png", 1, {1});
    const std::string dossier = Glib::path_get_dirname(rouge), tube = dossier + "/tube";
    mkfifo(tube.c_str(), 0600);
    Glib::file_set_contents(dossier + "/faux.png", "no picture");
    Banc3D banc;
    for (const std::string& nom :
         {tube, dossier + "/faux.png", dossier, dossier + "/absent.png", std::string("rouge.png")})
        EXPECT_EQ(MontreAvec(banc, nom), 7) << nom;
    // A name without its path is that of a file beside the drawing.
    BddCourante.NomFichier = Glib::build_filename(dossier, "dessin.vek");
    EXPECT_EQ(MontreAvec(banc, "rouge.png"), 1);
    BddCourante.NomFichier.clear();
    EXPECT_EQ(MontreAvec(banc, rouge), 1);
}

TEST(Bornes, UneSceneTropLourdeEstMoinsFine) {
    DC3D dc;
    BddCourante.Vide();
    EltSphere fine;
    fine.Rayon = 10.0;
    fine.facetisation = 400;
    const double cout = fine.Pieces(400.0, false);
    for (int i = 0; i < 20; ++i)
        BddCourante.AjouteFin(fine.Clone());
    EXPECT_EQ(SceneBornee(BddCourante, dc).PiecesMax(), Grain().PiecesMax);
    for (int i = 20; i < 600; ++i)
        BddCourante.AjouteFin(fine.Clone());
    EXPECT_LE(Ensemble(SceneBornee(BddCourante, dc), cout, 600), 4e6);
    EXPECT_GE(Ensemble(SceneBornee(BddCourante, dc), cout, 600), 1e6);
    // Many that cost little do not make one that costs more any coarser.
    BddCourante.Vide();
    for (int i = 0; i < 50000; ++i)
        BddCourante.AjouteFin(EltPave().Clone());
    BddCourante.AjouteFin(fine.Clone());
    EXPECT_EQ(SceneBornee(BddCourante, dc).PiecesMax(), Grain().PiecesMax);
    // Through images the same group counts each time it is shown, as long as it is.
    BddCourante.Vide();
    auto groupe = std::make_unique<EltBDD>();
    groupe->SetIdentificateur("billes");
    for (int i = 0; i < 100; ++i)
        groupe->Contenu.AjouteFin(fine.Clone());
    BddCourante.AjouteFin(std::move(groupe));
    EltImage3d image;
    image.SetIdentificateur("billes");
    for (int i = 0; i < 2000; ++i)
        BddCourante.AjouteFin(image.Clone());
    const SceneBornee scene(BddCourante, dc);
    EXPECT_LE(Ensemble(scene, cout, 100000), 6.4e6 + 1.0);
    EXPECT_EQ(scene.Elements().size(), 1000u) << "the images that fit";
    BddCourante.Vide();
}

TEST(Bornes, UneSurfaceSeMontreJusquAMillePoints) {
    Banc3D banc;
    for (const int colonnes : {40, 41}) {
        EltProfilSurface surface;
        surface.SetNbX(25);
        surface.SetNbY(colonnes);
        surface.Position = {-48, -39};
        surface.Grille(100, 80);
        BddCourante.Vide();
        BddCourante.Ajoute(surface)->Style.Couleur.set_rgb_p(0.0, 1.0, 0.0);
        EXPECT_EQ(Montre(banc), colonnes == 40 ? 2 : 0);
    }
}

TEST(Bornes, RienNEstTropGrandNiTropPetit) {
    Banc3D banc(200);
    Hasard hasard(3);
    EltProfilElevation elevation;
    EltProfilTourne tourne;
    EltProfil profil;
    for (int i = 0; i < 1000; ++i) {
        elevation.Sommets.emplace_back(hasard.Point(50), hasard.Reel(-40, 40));
        tourne.Sommets.emplace_back(hasard.Point(50), hasard.Reel(-40, 40));
    }
    profil.Sommets = elevation.Sommets;
    EltProfilTubeRond jonc;
    EltProfilBoaRond boa;
    EltGeo* chemin = BddCourante.Ajoute(profil);
    for (const int facettes : {0, 3, 1000000000}) {
        for (Elt3d* solide : std::initializer_list<Elt3d*>{&elevation, &tourne, &jonc, &boa})
            solide->facetisation = facettes;
        elevation.gourault = facettes == 3;
        BddCourante.Ajoute(elevation);
        BddCourante.Ajoute(tourne);
        // Of its own type, none, or a path; the path is an envelope too.
        EltGeo* tube = BddCourante.Ajoute(jonc);
        tube->AjouteFils(facettes == 0 ? tube : chemin);
        EltGeo* second = BddCourante.Ajoute(boa);
        second->AjouteFils(chemin);
        if (facettes != 0) second->AjouteFils(facettes == 3 ? second : chemin);
    }
    EltProfilSurface surface;
    surface.nbX = -3;
    surface.nbY = -4;
    surface.Sommets.resize(12);
    BddCourante.Ajoute(surface);
    EltProfilElevation vide;
    BddCourante.Ajoute(vide);
    vide.Sommets.resize(1);
    vide.gourault = true;
    BddCourante.Ajoute(vide);
    banc.Image();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}
