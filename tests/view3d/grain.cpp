// How finely bodies are made: coarser where it cannot be seen, or where a scene would take too
// long.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include "elements/angles.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "scene.h"
#include "solids/eltimage3d.h"
#include "solids/eltpave.h"
#include "solids/eltpercage.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltsphere.h"
#include "view3d/dc3d.h"
#include "view3d/scenebornee.h"

namespace {

template <class Rond>
Rond Fait(const PointVek& centre, double rayon) {
    Rond rond;
    rond.Place(centre);
    rond.Rayon = rayon;
    rond.Ouverture = DeuxPi;
    return rond;
}

EltCylindre Cylindre(const PointVek& centre, double bas, double haut, double hauteur) {
    EltCylindre cylindre = Fait<EltCylindre>(centre, bas);
    cylindre.rayonHaut = haut;
    cylindre.h = hauteur;
    cylindre.beta = 60.0;
    cylindre.Style.Couleur.set_rgb_p(0.5, 1.0, 0.2);
    return cylindre;
}

/// How many pixels differ by more than rounding.
int Differents(const Capture& une, const Capture& autre) {
    int nombre = 0;
    for (int y = 0; y < une.Image->get_height(); ++y)
        for (int x = 0; x < une.Image->get_width(); ++x) {
            const unsigned a = une.Pixel(x, y), b = autre.Pixel(x, y);
            for (const int rang : {0, 8, 16})
                if (std::abs(int(a >> rang & 255) - int(b >> rang & 255)) > 2) {
                    ++nombre;
                    break;
                }
        }
    return nombre;
}

double Ensemble(const SceneBornee& scene, double pieces, int nombre) {
    return nombre * std::min(pieces, scene.PiecesMax());
}

}  // namespace

TEST(Grain, LesAnneauxEnMoinsNeSeVoientPas) {
    Banc3D banc;
    EltPave plaque;
    plaque.Origine = {-60.0, 40.0};
    plaque.Extremite = {60.0, -40.0};
    plaque.h = 20.0;
    EltGeo* porteur = BddCourante.Ajoute(plaque);
    for (const bool debouchant : {false, true}) {
        EltPercage trou = Fait<EltPercage>({debouchant ? -30.0 : 10.0, 0.0, 5.0}, 18.0);
        trou.rayonHaut = 18.0;
        trou.h = 15.0;
        trou.debouchant = debouchant;
        trou.Style.Couleur.set_rgb_p(0.2, 0.5, 1.0);
        porteur->AjouteFils(BddCourante.AjouteFin(trou.Clone()));
    }
    BddCourante.Ajoute(Cylindre({0.0, -60.0, 30.0}, 12.0, 12.0, 60.0));
    BddCourante.Ajoute(Cylindre({-40.0, 60.0, 30.0}, 16.0, 4.0, 50.0));
    // Light 1 asks for rings as soon as it is lit; at no intensity it adds nothing.
    for (int i = 0; i < 10; ++i)
        banc.Frappe(GDK_K);
    for (const Angles& vue : {Angles{0, 0, 0}, Angles{20, -40, 50}, Angles{0, 25, 35}}) {
        banc.Regarde(vue.Alpha, vue.Beta, vue.Gamma);
        const auto lum1 = [&banc] {
            banc.Bouge(5.0, 5.0);
            banc.Clique(5.0, 5.0);
            banc.Choisit("Lum1");
            banc.Frappe(GDK_Escape);
            return banc.Image();
        };
        const Capture avec = lum1(), sans = lum1();
        EXPECT_LT(Differents(avec, sans), 40) << vue.Alpha;
    }
}

TEST(Grain, UneSceneTropLourdeEstMoinsFine) {
    DC3D dc;
    BddCourante.Vide();
    EltSphere fine = Fait<EltSphere>({}, 10.0);
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
