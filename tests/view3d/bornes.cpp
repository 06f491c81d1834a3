// What the view keeps between images, and what it refuses: compiled bodies, textures, scenes that
// would take too long.

#include <GL/gl.h>
#include <gdk/gdkkeysyms.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <sstream>

#include "commun/hasard.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "model/eltbdd.h"
#include "scene.h"
#include "solids/ecrit.h"
#include "solids/eltimage3d.h"
#include "solids/eltpave.h"
#include "solids/eltprofilsurface.h"
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
    EltSphere fine;
    fine.Rayon = 10.0;
    fine.facetisation = 400;
    const auto ajoute = [](BDDGeoBase& bdd, const EltGeo& elt, int nombre) {
        for (; nombre > 0; --nombre)
            bdd.AjouteFin(elt.Clone());
    };
    const auto ensemble = [&](int nombre) {
        return nombre * std::min(400.0 * 400.0, SceneBornee(BddCourante, dc).PiecesMax());
    };
    BddCourante.Vide();
    ajoute(BddCourante, fine, 20);
    EXPECT_EQ(SceneBornee(BddCourante, dc).PiecesMax(), Grain().PiecesMax);
    ajoute(BddCourante, fine, 580);
    EXPECT_LE(ensemble(600), 4e6);
    EXPECT_GE(ensemble(600), 1e6);
    // Many that cost little do not make one that costs more any coarser.
    BddCourante.Vide();
    ajoute(BddCourante, EltPave(), 50000);
    ajoute(BddCourante, fine, 1);
    EXPECT_EQ(SceneBornee(BddCourante, dc).PiecesMax(), Grain().PiecesMax);
    // Through images the same group counts each time it is shown, as long as it is.
    BddCourante.Vide();
    auto groupe = std::make_unique<EltBDD>();
    groupe->SetIdentificateur("billes");
    ajoute(groupe->Contenu, fine, 100);
    BddCourante.AjouteFin(std::move(groupe));
    EltImage3d image;
    image.SetIdentificateur("billes");
    ajoute(BddCourante, image, 2000);
    EXPECT_LE(ensemble(100000), 6.4e6 + 1.0);
    EXPECT_EQ(SceneBornee(BddCourante, dc).Elements().size(), 1000u) << "the images that fit";
    BddCourante.Vide();
}

TEST(Bornes, UneSurfaceNeSeMontrePasAuDelaDeMillePoints) {
    Banc3D banc;
    EltProfilSurface surface;
    surface.SetNbX(25);
    for (const int colonnes : {40, 41}) {
        surface.SetNbY(colonnes);
        surface.Grille(100, 80);
        BddCourante.Vide();
        BddCourante.Ajoute(surface);
        // Black, but for its shine.
        EXPECT_EQ(banc.Image().Pixel(320, 280) == 0x1a1a1a, colonnes == 40);
    }
}

TEST(Bornes, RienNEstTropGrandNiTropPetit) {
    Banc3D banc(200);
    Hasard hasard(3);
    std::ostringstream chaine;
    chaine << "0 0 0\n1\n1000\n";
    for (int i = 0; i < 1000; ++i)
        chaine << hasard.Reel(-50, 50) << ' ' << hasard.Reel(-50, 50) << " 0R"
               << hasard.Reel(-40, 40) << "  ";
    chaine << '\n';
    const auto pose = [](int type, const std::string& suite) {
        return PoseRecord(Entete(type, 1) + suite);
    };
    EltGeo* chemin = pose(TypeProfil, chaine.str());
    for (const int facettes : {0, 3, 1000000000}) {
        const std::string attributs = std::string("0 0 0\n10 1 1 1 1 1 0 ") +
                                      (facettes == 3 ? "1 " : "0 ") + std::to_string(facettes) +
                                      "\n\n";
        pose(TypeProfilElevation, chaine.str() + attributs);
        pose(TypeProfilTourne, chaine.str() + attributs);
        // Of its own type, none, or a path; the path is an envelope too.
        EltGeo* tube = pose(TypeProfilTubeRond, "0 0 0\n" + attributs + "10\n");
        tube->AjouteFils(facettes == 0 ? tube : chemin);
        EltGeo* boa = pose(TypeProfilBoaRond, "0 0 0\n" + attributs);
        boa->AjouteFils(chemin);
        if (facettes != 0) boa->AjouteFils(facettes == 3 ? boa : chemin);
    }
    const std::string douze =
        "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 ";
    const std::string lisse = "\n0 0 0\n10 1 1 1 1 1 0 1 50\n\n";
    pose(TypeProfilSurface, "0 0 0\n1\n12\n" + douze + lisse + "-3 -4\n");
    pose(TypeProfilElevation, "0 0 0\n1\n0\n" + lisse);
    pose(TypeProfilElevation, "0 0 0\n1\n1\n0 0 0 " + lisse);
    banc.Image();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}
