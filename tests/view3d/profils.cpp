// What the view shows of solids made of profiles, against rays that meet the same bodies. A ball
// that looks out of each body tells its outside from its inside.

#include <GL/gl.h>
#include <gtest/gtest.h>

#include "commun/hasard.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "scene.h"
#include "solids/eltimage3d.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltrainurep.h"

namespace {

/// From above and below, from each side.
const std::vector<Angles> Vues = {{0, 0, 0},     {0, 0, 180},   {0, 25, 35},
                                  {20, -40, 50}, {45, 150, 20}, {-30, -120, 60}};

void VerifieVues(Banc3D& banc, const std::vector<Solide>& scene, const std::string& nom) {
    // The pointer is none of the bodies.
    banc.Bouge(-50, -50);
    VerifieVues(banc, scene, Vues, nom);
}

int Pixels(const Capture& image, int teinte) {
    int nombre = 0;
    for (int y = 0; y < image.Image->get_height(); ++y)
        for (int x = 0; x < image.Image->get_width(); ++x)
            nombre += Teinte(image.Pixel(x, y)) == teinte;
    return nombre;
}

/// The chain drawn one way or the other.
std::vector<SommetProfil> Chaine(std::vector<SommetProfil> sommets, bool retour) {
    if (!retour) return sommets;
    std::vector<SommetProfil> inverses;
    for (std::size_t i = sommets.size(); i-- > 0;) {
        inverses.emplace_back(static_cast<const PointVek&>(sommets[i]));
        // The link belongs to the vertex at which it ends.
        if (i + 1 == sommets.size()) continue;
        inverses.back().Arrondi = sommets[i + 1].Arrondi;
        inverses.back().Rayon = -sommets[i + 1].Rayon;
    }
    return inverses;
}

/// Clockwise.
std::vector<SommetProfil> Rectangle(double gauche, double bas, double droite, double haut) {
    return {SommetProfil(PointVek(gauche, bas)), SommetProfil(PointVek(gauche, haut)),
            SommetProfil(PointVek(droite, haut)), SommetProfil(PointVek(droite, bas))};
}

template <class Elt>
EltGeo* Pose(Elt elt, int couleur) {
    elt.Style.Couleur.set_rgb_p(couleur & 1 ? 1.0 : 0.0, couleur & 2 ? 1.0 : 0.0,
                                couleur & 4 ? 1.0 : 0.0);
    return BddCourante.Ajoute(elt);
}

EltGeo* PoseChemin(std::vector<SommetProfil> sommets) {
    EltProfil profil;
    profil.Position = {500, 500};
    profil.Sommets = std::move(sommets);
    return BddCourante.Ajoute(profil);
}

/// A ball at p, in the drawing and in the scene.
Solide Temoin(Banc3D& banc, const PointVek& p, double rayon) {
    const Solide boule{{Forme::Boule, p, rayon, 0.0, 0.0, 4}, {}};
    banc.Ajoute(boule);
    return boule;
}

}  // namespace

TEST(ProfilsEnImage, UnRectangleEleveEstUnPave) {
    for (const bool retour : {false, true})
        for (const double h : {30.0, -30.0}) {
            Banc3D banc;
            EltProfilElevation elevation;
            elevation.Sommets = Chaine(Rectangle(-40, -25, 40, 25), retour);
            elevation.Position = {5, -10, 8};
            elevation.h = h;
            elevation.alpha = 30;
            elevation.beta = 20;
            elevation.gamma = -25;
            Pose(elevation, 1);
            Forme pave{Forme::Pave, {5, -10, 8}, 40, 25, h, 1, 30, 20, -25};
            const PointVek milieu = elevation.Position + elevation.PointAxe() / 2.0;
            VerifieVues(banc, {{pave, {}}, Temoin(banc, milieu, 28)},
                        std::string("rectangle") + (retour ? "r" : "d") + (h > 0 ? "h" : "b"));
        }
}

TEST(ProfilsEnImage, DeuxDemiToursElevesSontUnCylindre) {
    for (const bool retour : {false, true}) {
        Banc3D banc;
        EltProfilElevation elevation;
        elevation.Sommets =
            Chaine({SommetProfil(PointVek(-40, 0)), SommetProfil(PointVek(40, 0), 40),
                    SommetProfil(PointVek(-40, 0), 40)},
                   retour);
        elevation.h = 30;
        elevation.facetisation = 100;
        elevation.Position = {0, 0, -15};
        Pose(elevation, 2);
        VerifieVues(
            banc, {{{Forme::Cylindre, {0, 0, -15}, 40, 0, 30, 2}, {}}, Temoin(banc, {0, 0, 0}, 30)},
            std::string("cercle") + (retour ? "r" : "d"));
    }
}

TEST(ProfilsEnImage, UneEquerreEstDeuxPaves) {
    for (const bool retour : {false, true}) {
        Banc3D banc;
        EltProfilElevation elevation;
        auto sommets = Rectangle(-60, -40, 60, 40);
        sommets[2] = SommetProfil(PointVek(-20, 40));
        sommets.insert(sommets.begin() + 3,
                       {SommetProfil(PointVek(-20, -10)), SommetProfil(PointVek(60, -10))});
        elevation.Sommets = Chaine(sommets, retour);
        elevation.h = 24;
        Pose(elevation, 1);
        VerifieVues(banc,
                    {{{Forme::Pave, {0, -25, 0}, 60, 15, 24, 1}, {}},
                     {{Forme::Pave, {-40, 0, 0}, 20, 40, 24, 1}, {}},
                     Temoin(banc, {30, -25, 12}, 14)},
                    std::string("equerre") + (retour ? "r" : "d"));
    }
}

TEST(ProfilsEnImage, UnRectangleTourneEstUnCylindre) {
    for (const bool retour : {false, true})
        for (const double cote : {1.0, -1.0}) {
            Banc3D banc;
            EltProfilTourne tourne;
            tourne.Sommets = {SommetProfil(PointVek(0, 30)), SommetProfil(PointVek(35 * cote, 30)),
                              SommetProfil(PointVek(35 * cote, -30)),
                              SommetProfil(PointVek(0, -30))};
            tourne.Sommets = Chaine(tourne.Sommets, retour);
            tourne.facetisation = 120;
            tourne.gourault = cote < 0.0;
            Pose(tourne, 2);
            // Its axis is y.
            VerifieVues(banc,
                        {{{Forme::Cylindre, {0, -30, 0}, 35, 0, 60, 2, 0, 0, -90}, {}},
                         Temoin(banc, {0, 0, 0}, 37)},
                        std::string("tourne") + (retour ? "r" : "d") + (cote > 0 ? "p" : "n"));
        }
}

TEST(ProfilsEnImage, UnJoncEtUnBoa) {
    const std::vector<SommetProfil> coude = {SommetProfil(PointVek(-60, 0)),
                                             SommetProfil(PointVek(0, 0)),
                                             SommetProfil(PointVek(0, 50))};
    Banc3D banc;
    EltProfilTubeRond jonc;
    jonc.rayon = 12;
    jonc.Position = {20, -30, 5};
    Pose(jonc, 1)->AjouteFils(PoseChemin(coude));
    VerifieVues(banc,
                {{{Forme::Cylindre, {-40, -30, 5}, 12, 0, 60, 1, 0, 90, 0}, {}},
                 {{Forme::Cylindre, {20, -30, 5}, 12, 0, 50, 1, 0, 0, -90}, {}},
                 {{Forme::Boule, {20, -30, 5}, 12, 0, 0, 1}, {}},
                 Temoin(banc, {-10, -30, 5}, 14)},
                "jonc");

    Banc3D second;
    EltProfilBoaRond boa;
    boa.facetisation = 100;
    EltGeo* elt = Pose(boa, 2);
    elt->AjouteFils(PoseChemin({SommetProfil(PointVek(-60, 0)), SommetProfil(PointVek(10, 0)),
                                SommetProfil(PointVek(60, 0))}));
    // A radius counts without its sign, and stays where the envelope ends.
    elt->AjouteFils(PoseChemin({SommetProfil(PointVek(0, 20)), SommetProfil(PointVek(0, -20))}));
    VerifieVues(second,
                {{{Forme::Cylindre, {-60, 0, 0}, 20, 0, 120, 2, 0, 90, 0}, {}},
                 Temoin(second, {0, 0, 0}, 23)},
                "boa");
}

TEST(ProfilsEnImage, UneRainureEnRectangleEstUneRainure) {
    for (const bool retour : {false, true})
        for (const bool debouchant : {false, true}) {
            Banc3D banc;
            const Forme plaque{Forme::Pave, {0, 0, -10}, 60, 40, 20, 1};
            EltGeo* corps = banc.Ajoute({plaque, {}});
            EltRainureP rainure;
            rainure.Sommets = Chaine(Rectangle(-30, -15, 30, 15), retour);
            rainure.debouchant = debouchant;
            rainure.Position = {10, 5, debouchant ? -10.0 : 2.0};
            rainure.h = debouchant ? 20 : 8;
            // The caps of a groove are whole ones.
            rainure.gourault = retour;
            corps->AjouteFils(Pose(rainure, 2));
            const Forme creux{Forme::Pave, rainure.Position, 30, 15, rainure.h, 2};
            VerifieVues(banc, {{plaque, {{creux, debouchant}}}},
                        std::string("rainurep") + (retour ? "r" : "d") + (debouchant ? "d" : "b"));
        }
}

TEST(ProfilsEnImage, UneImageTourneEtSArrete) {
    Banc3D banc;
    auto groupe = std::make_unique<EltBDD>();
    groupe->SetIdentificateur("vis");
    EltProfilElevation elevation;
    elevation.Sommets = Rectangle(-40, -20, 40, 20);
    elevation.Style.Couleur.set_rgb_p(1.0, 0.0, 0.0);
    groupe->Contenu.AjouteFin(elevation.Clone());
    // It holds an image of itself, ten units higher: nine of them are shown.
    EltImage3d image;
    image.SetIdentificateur("vis");
    image.Position = {0, 0, 10};
    groupe->Contenu.AjouteFin(image.Clone());
    BddCourante.AjouteFin(std::move(groupe));
    image.Position = {5, 10, -45};
    image.Angle = 0.5235987755982988;
    image.alpha = 10;
    image.Agrandissement = 3;
    Pose(image, 7);
    VerifieVues(banc, {{{Forme::Pave, {5, 10, -45}, 40, 20, 90, 1, 40}, {}}}, "image");
}

TEST(ProfilsEnImage, UneSurfaceSeMontreDeDessusJusquAMillePoints) {
    for (const int colonnes : {40, 41}) {
        Banc3D banc;
        EltProfilSurface surface;
        surface.SetNbX(25);
        surface.SetNbY(colonnes);
        surface.Position = {-48, -39};
        surface.Grille(100, 80);
        Pose(surface, 2);
        banc.Regarde(0, 0, 180);
        const Capture dessous = banc.Image();
        EXPECT_EQ(Pixels(dessous, 2), 0);
        const Vue vue = banc.Regarde(20, -40, 50);
        const Capture dessus = banc.Image();
        // One step short of its lengths.
        const Solide peau{{Forme::Pave, {0, 0, 0}, 48, 39, 1e-3, 2}, {}};
        if (colonnes == 40)
            EXPECT_GE(Accord({peau}, vue, dessus, "surface").Part, 0.995);
        else
            EXPECT_EQ(Pixels(dessus, 2), 0);
    }
}

TEST(ProfilsEnImage, RienNEstTropGrandNiTropPetit) {
    Banc3D banc;
    Hasard hasard(3);
    EltProfilElevation elevation;
    EltProfilTourne tourne;
    for (int i = 0; i < 4000; ++i) {
        elevation.Sommets.emplace_back(hasard.Point(50), hasard.Reel(-40, 40));
        tourne.Sommets.emplace_back(hasard.Point(50), hasard.Reel(-40, 40));
    }
    EltProfilTubeRond jonc;
    EltProfilBoaRond boa;
    EltGeo* chemin = PoseChemin(elevation.Sommets);
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
    Pose(surface, 2);
    EltProfilElevation vide;
    Pose(vide, 2);
    vide.Sommets.resize(1);
    vide.gourault = true;
    Pose(vide, 2);
    banc.Image();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}
