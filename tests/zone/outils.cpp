// Each tool, click by click: the numbers that enter the drawing, worked out by hand, and the band
// just before the last click, which must cover the very pixels of the element added.

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "commun/banc.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

struct Geste {
    const char* Nom;
    int Etat;
    const char* Saisie;  ///< Typed into the dialog that the tool opens; null when it opens none.
    std::vector<PointVek> Clics;
    int Type;
    const char* Fin;  ///< The last line of the new element's record.
};

std::ostream& operator<<(std::ostream& sortie, const Geste& geste) {
    return sortie << geste.Nom;
}

void AjouteSegment(const PointVek& a, const PointVek& b) {
    BddCourante.Ajoute(EltSegment(a, b, 0));
}

void AjouteCercle(const PointVek& centre, double rayon) {
    BddCourante.Ajoute(EltArc(centre, rayon, 0.0, DeuxPi, 0));
}

/// A cross of two segments through (-200, -100), and two circles of radius 50 at (-100, 100) and
/// (100, 100).
void PoseDecor() {
    AjouteSegment({-290.0, -100.0}, {-110.0, -100.0});
    AjouteSegment({-200.0, -190.0}, {-200.0, -10.0});
    AjouteCercle({-100.0, 100.0}, 50.0);
    AjouteCercle({100.0, 100.0}, 50.0);
}

class Outil : public testing::TestWithParam<Geste> {};

}  // namespace

TEST_P(Outil, AjouteCeQueSaBandeMontre) {
    const Geste& geste = GetParam();
    Banc banc;
    PoseDecor();
    const int avant = BddCourante.Elements.Nombre();
    banc.Zone.Vue.Redessine();
    const Capture vide = banc.Image();

    const bool enEntrant = geste.Etat != ETAT_SEGMENT_PARA;
    if (geste.Saisie && enEntrant) RepondSaisie(geste.Saisie);
    banc.Zone.Outils.Entre(geste.Etat);
    for (std::size_t i = 0; i + 1 < geste.Clics.size(); ++i) {
        banc.Souris.BougeA(geste.Clics[i] + PointVek(13.0, 7.0));
        banc.Souris.BougeA(geste.Clics[i]);
        banc.Souris.ClicA(geste.Clics[i]);
    }
    banc.Souris.BougeA(geste.Clics.back() + PointVek(-40.0, 20.0));
    banc.Souris.BougeA(geste.Clics.back());
    const Capture bande = banc.Image();
    if (geste.Saisie && !enEntrant) RepondSaisie(geste.Saisie);
    banc.Souris.ClicA(geste.Clics.back());
    const Capture ajoute = banc.Image();

    ASSERT_EQ(BddCourante.Elements.Nombre(), avant + 1);
    const EltGeo& elt = *BddCourante.Elements.Premier();
    EXPECT_EQ(elt.Type, geste.Type);
    EXPECT_EQ(DerniereLigne(elt), geste.Fin);
    EXPECT_GT(ajoute.Ecart(vide), 0);
    // Where a band crosses an element it shows the inverse.
    const int ecart = bande.EcartSur(vide, ajoute);
    if (enEntrant && ecart != 0) {
        bande.Garde(std::string(geste.Nom) + "-bande");
        ajoute.Garde(std::string(geste.Nom) + "-element");
        ADD_FAILURE() << ecart << " pixels differ between band and element";
    }

    // One undo takes it away again, to the pixel.
    banc.Zone.Outils.RazEtat();
    banc.Zone.AnnuleAction();
    EXPECT_EQ(BddCourante.Elements.Nombre(), avant);
    EXPECT_EQ(banc.Image().Ecart(vide), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Tous, Outil,
    testing::Values(
        Geste{"Droite", ETAT_DROITE_1, nullptr, {{-100, 0}, {100, 50}}, 14, "-100 0 0 100 50 0"},
        Geste{"DroiteVerticale", ETAT_DROITE_1, nullptr, {{7, 0}, {7, 50}}, 14, "7 0 0 7 50 0"},
        Geste{"Segment", ETAT_SEGMENT_1, nullptr, {{-50, -20}, {70, 30}}, 1, "-50 -20 0 70 30 0"},
        Geste{"SegmentCE", ETAT_SEGMENT_CE_1, nullptr, {{10, 10}, {40, 20}}, 1, "-20 0 0 40 20 0"},
        // From (-100, 100) the point lies at (0, -130), and the tangent from there to the circle of
        // radius 50 touches it at 5/13 of the radius along and 12/13 across that way.
        Geste{"SegmentAE",
              ETAT_SEGMENT_AE_1,
              nullptr,
              {{-150, 100}, {-100, -30}},
              1,
              "-53.8462 80.7692 0 -100 -30 0"},
        Geste{"SegmentAEAnti",
              ETAT_SEGMENT_AEANTI_1,
              nullptr,
              {{-150, 100}, {-100, -30}},
              1,
              "-146.154 80.7692 0 -100 -30 0"},
        Geste{"SegmentAE_segment",
              ETAT_SEGMENT_AE_1,
              nullptr,
              {{-250, -100}, {0, -30}},
              1,
              "0 -30 0 180 -30 0"},
        Geste{"SegmentAA_haut",
              ETAT_SEGMENT_AA_1,
              nullptr,
              {{-150, 100}, {150, 100}, {0, 180}},
              1,
              "-100 150 0 100 150 0"},
        // Inner tangents: the radii to the contacts are at 60 degrees to the line of centres.
        Geste{"SegmentAA_croise",
              ETAT_SEGMENT_AA_1,
              nullptr,
              {{-150, 100}, {150, 100}, {0, 110}},
              1,
              "-75 143.301 0 75 56.6987 0"},
        Geste{
            "SegmentParaDist", ETAT_SEGMENT_PARA, "30", {{-250, -95}}, 1, "-290 -70 0 -110 -70 0"},
        Geste{"SegmentParaDist_dessous",
              ETAT_SEGMENT_PARA,
              "12,5",
              {{-250, -105}},
              1,
              "-290 -112.5 0 -110 -112.5 0"},
        Geste{"SegmentOrtho",
              ETAT_SEGMENT_ORTHO_1,
              nullptr,
              {{-250, -95}, {20, 60}},
              1,
              "20 150 0 20 -30 0"},
        Geste{"Cercle", ETAT_CERCLE_1, nullptr, {{0, 0}, {30, 40}}, 4, "50 0 6.28319"},
        Geste{"CercleRayon", ETAT_CERCLE_RAYON, "25", {{10, 10}}, 4, "25 0 6.28319"},
        Geste{"Disque", ETAT_DISQUE_1, nullptr, {{0, 0}, {-30, 40}}, 13, "50 0 6.28319"},
        Geste{"ArcCDF", ETAT_ARC_CDF_1, nullptr, {{0, 0}, {50, 0}, {0, 70}}, 4, "50 0 1.5708"},
        // Centre at (0, 80), radius the root of 50^2 + 80^2, half opening the arc tangent of 50/80.
        Geste{"ArcDFC",
              ETAT_ARC_DFC_1,
              nullptr,
              {{-50, 0}, {50, 0}, {0, 80}},
              4,
              "94.3398 4.15379 1.1172"},
        Geste{"ArcTE", ETAT_ARC_TE_1, nullptr, {{-250, -97}, {20, 60}}, 4, "160 0 6.28319"},
        // On the bisector of the two segments of the cross.
        Geste{"ArcTT",
              ETAT_ARC_TT_1,
              nullptr,
              {{-150, -100}, {-200, -40}, {-150, -60}},
              4,
              "45 0 6.28319"},
        Geste{"ArcRayon",
              ETAT_ARC_RAYON_1,
              "20",
              {{-150, -100}, {-200, -40}, {-150, -60}},
              4,
              "20 3.14159 1.5708"},
        Geste{"Rectangle",
              ETAT_RECTANGLE_1,
              nullptr,
              {{50, -30}, {-40, 60}},
              14,
              "-40 60 0 50 -30 0"},
        // Of these the last line is the texture, and the radius of the top.
        Geste{"Pave", ETAT_PAVE_1, nullptr, {{50, -30}, {-40, 60}}, 19, ""},
        Geste{"Sphere", ETAT_SPHERE_1, nullptr, {{20, -10}, {50, 30}}, 22, ""},
        Geste{"Cylindre", ETAT_CYLINDRE_1, nullptr, {{20, -10}, {50, 30}}, 21, "50"}),
    [](const testing::TestParamInfo<Geste>& cas) { return std::string(cas.param.Nom); });
