// Where the image of a texture lies on each face, how light falls on smooth and free surfaces, and
// what they cover: probes whose expectation is worked out by hand.

#include <gtest/gtest.h>

#include "scene.h"
#include "solids/eltpave.h"
#include "solids/eltprofilevantail.h"
#include "solids/eltprofilruban.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"

namespace {

const Angles Devant = {0, 0, 0}, Derriere = {0, 0, 180}, DeYPlus = {0, 0, 90},
             DeYMoins = {0, 0, -90}, DeXMoins = {0, 90, 0}, DeXPlus = {0, -90, 0};

/// The pixel of the point in a view at 300 units from the origin.
unsigned Pixel(const Capture& image, Vue vue, const PointVek& p) {
    vue.Translation = TranslationRecul(vue, 300.0);
    const PointVek pixel = OuApparait(vue, p, image.Image->get_width());
    return image.Pixel(static_cast<int>(pixel.x), static_cast<int>(pixel.y));
}

/// Expects the hues at the points, each moved by vers.
void Verifie(Banc3D& banc, const Angles& angles, const std::vector<int>& teintes,
             const std::vector<PointVek>& points, const PointVek& vers = {}) {
    banc.Bouge(-50, -50);
    const Vue vue = banc.Regarde(angles.Alpha, angles.Beta, angles.Gamma);
    const Capture image = banc.Image();
    std::vector<int> vues;
    for (const PointVek& p : points)
        vues.push_back(Teinte(Pixel(image, vue, p + vers)));
    EXPECT_EQ(vues, teintes) << angles.Beta << ' ' << angles.Gamma;
}

/// The brightest channel from the front.
int Clarte(const Capture& image, const PointVek& p) {
    const unsigned c = Pixel(image, {{}, 0, 0, 0}, p);
    return static_cast<int>(std::max({c >> 16, c >> 8 & 0xff, c & 0xff}));
}

/// The image's four hues, in the order in which points are given below.
const std::vector<int> Quatre = {1, 2, 4, 3};

/// Red and green, blue and yellow below them: s goes to the right, t down.
template <class Elt>
Elt Habille(Elt elt, bool repetition = false) {
    elt.texture = ImageDeTeintes("quatre.png", 2, Quatre);
    elt.Style.Couleur.set_rgb_p(1.0, 1.0, 1.0);
    elt.repetition = repetition;
    elt.echelleTexture = 0.05;
    return elt;
}

std::vector<SommetProfil> Chaine(const std::vector<PointVek>& points) {
    return std::vector<SommetProfil>(points.begin(), points.end());
}

/// 80 by 40 by 30.
EltPave Pave(bool repetition = false) {
    EltPave pave;
    pave.Origine = {-40, 20};
    pave.Extremite = {40, -20};
    pave.h = 30;
    return Habille(pave, repetition);
}

/// From x = 20 to 60, y = 0 to 30, clockwise, shown about the origin.
EltProfilElevation Elevation(bool repetition = false) {
    EltProfilElevation elevation;
    elevation.Sommets = Chaine({{20, 0}, {20, 30}, {60, 30}, {60, 0}});
    elevation.h = 30;
    elevation.Position = {-40, -15};
    return Habille(elevation, repetition);
}

}  // namespace

TEST(Habillage, LesFacesDUnPave) {
    const struct {
        Angles Vue;
        std::vector<PointVek> Points;
    } faces[] = {{Derriere, {{-20, 10}, {20, 10}, {-20, -10}, {20, -10}}},
                 {Devant, {{20, 10, 30}, {-20, 10, 30}, {20, -10, 30}, {-20, -10, 30}}},
                 {DeYPlus, {{-20, 20, 7}, {-20, 20, 23}, {20, 20, 7}, {20, 20, 23}}},
                 {DeYMoins, {{-20, -20, 23}, {-20, -20, 7}, {20, -20, 23}, {20, -20, 7}}},
                 {DeXMoins, {{-40, 10, 7}, {-40, -10, 7}, {-40, 10, 23}, {-40, -10, 23}}},
                 {DeXPlus, {{40, -10, 7}, {40, 10, 7}, {40, -10, 23}, {40, 10, 23}}}};
    bool EltPave::*const portees[] = {&EltPave::dessus, &EltPave::dessous, &EltPave::pourtour};
    for (int nue = 0; nue < 3; ++nue) {
        Banc3D banc;
        EltPave pave = Pave();
        pave.*portees[nue] = false;
        BddCourante.Ajoute(pave);
        for (int i = 0; i < 6; ++i)
            Verifie(banc, faces[i].Vue, std::min(i, 2) == nue ? std::vector<int>(4, 7) : Quatre,
                    faces[i].Points);
    }
}

TEST(Habillage, UnPaveOuLImageSeRepete) {
    Banc3D banc;
    BddCourante.Ajoute(Pave(true));
    // Half sides times the scale: twice along x, once along y, backwards.
    Verifie(banc, Devant, {4, 3, 4, 1, 2},
            {{30, 10, 30}, {10, 10, 30}, {-10, 10, 30}, {30, -10, 30}, {-30, -10, 30}});
    Verifie(banc, DeXPlus, {4, 3, 4, 1, 2},
            {{40, -15, 7}, {40, -5, 7}, {40, 5, 7}, {40, -15, 23}, {40, 15, 23}});
    // One side shows it once all the same.
    Verifie(banc, DeXMoins, Quatre, {{-40, 10, 7}, {-40, -10, 7}, {-40, 10, 23}, {-40, -10, 23}});
}

TEST(Habillage, UnPaveLisseGardeSaSilhouette) {
    Banc3D banc;
    EltGeo* pave = BddCourante.Ajoute(Pave());
    pave->GetElt3d()->texture = "";
    // Light falls from (0, 1, 1): 0.25 and half of its cosine, 0.7 on the face, none and 0.8 at
    // the corners above and below.
    const auto ecart = [&] {
        const Capture image = (banc.Regarde(0, 0, 0), banc.Image());
        return Clarte(image, {0, -18, 30}) - Clarte(image, {0, 18, 30});
    };
    EXPECT_NEAR(ecart(), 0, 10);
    banc.Regarde(20, -40, 50);
    const Capture plat = banc.Image();
    pave->GetElt3d()->gourault = true;
    EXPECT_GT(ecart(), 60);
    banc.Regarde(20, -40, 50);
    const Capture lisse = banc.Image();
    for (int y = 0; y < 600; ++y)
        for (int x = 0; x < 600; ++x)
            ASSERT_EQ(Teinte(lisse.Pixel(x, y)) == 0, Teinte(plat.Pixel(x, y)) == 0)
                << x << ' ' << y;
}

TEST(Habillage, UnProfilEleve) {
    const PointVek vers = Elevation().Position;
    Banc3D banc;
    BddCourante.Ajoute(Elevation());
    Verifie(banc, Devant, Quatre, {{30, 7, 30}, {50, 7, 30}, {30, 22, 30}, {50, 22, 30}}, vers);
    Verifie(banc, Derriere, Quatre, {{30, 7}, {50, 7}, {30, 22}, {50, 22}}, vers);
    Verifie(banc, DeYPlus, Quatre, {{30, 30, 7}, {30, 30, 22}, {50, 30, 7}, {50, 30, 22}}, vers);
    Verifie(banc, DeYMoins, Quatre, {{50, 0, 7}, {50, 0, 22}, {30, 0, 7}, {30, 0, 22}}, vers);

    Banc3D second;
    BddCourante.Ajoute(Elevation(true));
    // Every 20 units from the corner of the cap.
    Verifie(second, Devant, {1, 2, 1, 4, 1},
            {{25, 5, 30}, {35, 5, 30}, {45, 5, 30}, {25, 15, 30}, {25, 25, 30}}, vers);
    // A side along an axis has its image collapsed in one direction; what closes the profile takes
    // the measures of the link before it.
    Verifie(second, DeYPlus, {1, 2, 1, 2}, {{30, 30, 4}, {50, 30, 11}, {30, 30, 19}, {50, 30, 26}},
            vers);
    Verifie(second, DeXMoins, {1, 4, 1}, {{20, 5, 7}, {20, 15, 22}, {20, 25, 7}}, vers);
    Verifie(second, DeYMoins, {4, 1, 4}, {{55, 0, 7}, {40, 0, 22}, {25, 0, 7}}, vers);
}

// Its caps leave out the last vertex and all arcs, and each corner bears the image's place of the
// one before it: here s = y / 30 and t = (x - 20) / 40 on the triangle of three corners.
TEST(Habillage, UnProfilLisseAUnCouverclePlusGrossier) {
    Banc3D banc;
    EltProfilElevation elevation = Elevation();
    elevation.gourault = true;
    BddCourante.Ajoute(elevation);
    const PointVek vers = elevation.Position;
    Verifie(banc, Devant, {1, 2, 3, 0}, {{25, 10, 30}, {25, 25, 30}, {50, 27, 30}, {50, 10, 30}},
            vers);
    Verifie(banc, Derriere, {1, 2, 3, 0}, {{25, 10}, {25, 25}, {50, 27}, {50, 10}}, vers);

    Banc3D second;
    elevation.Sommets = Chaine({{-40, -20}, {-40, 20}, {40, 20}, {40, -20}, {0, -30}});
    elevation.Sommets[2] = SommetProfil(PointVek(40, 20), 40);
    elevation.texture = "";
    elevation.Position = {};
    EltGeo* elt = BddCourante.Ajoute(elevation);
    Verifie(second, Devant, {7, 0, 0}, {{5, 5, 30}, {0, 45, 30}, {0, -25, 30}});
    elt->GetElt3d()->gourault = false;
    Verifie(second, Devant, {7, 7, 7}, {{5, 5, 30}, {0, 45, 30}, {0, -25, 30}});
}

// A quarter turn a side bears the image once; no flag takes it away.
TEST(Habillage, UnProfilTourne) {
    Banc3D banc;
    EltProfilTourne tourne = Habille(EltProfilTourne());
    tourne.Sommets = Chaine({{0, 20}, {30, 20}, {30, -20}, {0, -20}});
    tourne.facetisation = 4;
    tourne.dessus = tourne.dessous = tourne.pourtour = false;
    BddCourante.Ajoute(tourne);
    Verifie(banc, Devant, Quatre, {{22, 10, 8}, {8, 10, 22}, {22, -10, 8}, {8, -10, 22}});
    Verifie(banc, Devant, Quatre, {{-8, 10, 22}, {-22, 10, 8}, {-8, -10, 22}, {-22, -10, 8}});
    Verifie(banc, Derriere, {1, 2, 3}, {{-22, 10, -8}, {-8, 10, -22}, {22, -10, -8}});
}

// Each cell bears the image on both its triangles, whatever its scale.
TEST(Habillage, UneSurface) {
    Banc3D banc;
    EltProfilSurface surface = Habille(EltProfilSurface(), true);
    surface.SetNbX(3);
    surface.SetNbY(3);
    surface.Position = {-20, -20};
    surface.Grille(60, 60);
    BddCourante.Ajoute(surface);
    for (int i = 0; i < 4; ++i)
        Verifie(banc, Devant, {2, 1, 4, 4, 2, 1},
                {{2, 18}, {14, 18}, {2, 6}, {18, 2}, {6, 2}, {18, 14}},
                surface.Position + PointVek(i % 2 * 20, i / 2 * 20));
    Verifie(banc, Devant, {0, 0}, {{42, 10}, {10, 42}}, surface.Position);
}

// All triangles of a ribbon look one way; of the fan's, the one in the middle turns the other way.
TEST(Habillage, UnRubanEtUnEvantail) {
    const auto verifie = [](auto elt, const std::vector<int>& devant,
                            const std::vector<int>& derriere) {
        Banc3D banc;
        elt.Sommets = Chaine({{-40, -20}, {-40, 20}, {0, -20}, {0, 20}, {40, -20}});
        elt.Style.Couleur.set_rgb_p(0.0, 1.0, 0.0);
        BddCourante.Ajoute(elt);
        const std::vector<PointVek> points = {{-35, 0}, {-15, 12}, {-5, -10}, {30, -15}, {30, 10}};
        Verifie(banc, Derriere, derriere, points);
        Verifie(banc, Devant, devant, points);
        // A vertex is lit along the edge before the one that leads to it: the fourth turns away
        // from the light, the fifth looks into it.
        const Capture image = banc.Image();
        EXPECT_GT(Clarte(image, {36, -19}), 1.5 * Clarte(image, {1.5, 15}));
    };
    verifie(EltProfilRuban(), {2, 2, 2, 2, 0}, {0, 0, 0, 0, 0});
    verifie(EltProfilEvantail(), {2, 0, 2, 2, 0}, {0, 0, 2, 0, 0});
}
