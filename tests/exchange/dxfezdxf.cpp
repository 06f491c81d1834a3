// Drawings that another library has written (scripts/dessins_dxf.py), and what must be found in
// them.

#include <gtest/gtest.h>

#include <filesystem>

#include "commun/record.h"
#include "exchange/dxf.h"
#include "exchange/resume.h"
#include "model/bddgeo.h"

namespace {

const std::string Dossier = KRVEK_ESSAIS "/exchange/data/ezdxf/";

struct Attendu {
    const char* Nom;
    const char* Elements;      ///< Behind the two blocks that every such file has.
    const char* Laisses = "";  ///< What is counted as left out.
};

const Attendu Dessins[] = {
    {"lignes",
     "1: 5 10 0\n0 0 0 10 20 0\n"
     "1: 1.25 -1.375 4.5\n-1.5 2.25 3 4 -5 6\n"
     "1: 500004 3.5005 0\n1e+06 0.001 0 7 7 0\n"},
    {"points", "3: 1 2 0\n3: -3.5 4.5 5.5\n"},
    {"cercles",
     "4: 1 2 0\n3 0 6.28319\n"
     "4: -4 5 6\n0.125 0 6.28319\n"
     "4: 0 0 0\n9 0 6.28319\n"},
    {"arcs",
     "4: 0 0 0\n2 0 1.5708\n"
     "4: 1 1 0\n3 6.10865 0.523599\n"
     "4: 5 5 0\n1 3.14159 6.28319\n"},
    {"polylignes",
     "5: 0 0 0\n0\n3\n0 0 0 4 0 0 4 3 0 \n"
     "5: 1 1 0\n1\n3\n0 0 0 4 0 0 4 3 0 \n"
     "5: 0 0 0\n0\n2\n0 0 0 2 0 0 \n"
     "5: 1 1 1\n0\n3\n0 0 0 1 2 4 -1 -1 -1 \n"},
    {"lwpolylignes",
     "5: 0 0 0\n0\n3\n0 0 0 4 0 0 4 3 0 \n"
     "5: 1 1 0\n1\n3\n0 0 0 4 0 0 4 3 0 \n"
     "5: 2 2 0\n0\n2\n0 0 0 4 0 0 \n"},
    {"faces",
     "5: 0 0 0\n1\n4\n0 0 0 4 0 0 0 3 0 4 3 0 \n"
     "5: 1 1 0\n1\n4\n0 0 0 1 0 0 0 1 0 1 1 0 \n"
     "5: 0 0 1\n1\n4\n0 0 0 4 0 1 4 3 2 4 3 2 \n"},
    {"textes",
     "6: 1 2 0\nBride\n1.5708 5 0\nTITRE\n"
     "6: 3 4 0\nØ 80 à 45°\n0 2.5 0\nArial\n"
     "6: 0 0 0\n30 ≤ α\n0 2 0\nArial\n"},
    {"textes_utf8", "6: 1 2 0\nPièce n° 1 ≤ α\n-0.523599 5 0\nArial\n"},
    {"blocs",
     "15: VIS {1: 2 0 0\n0 0 0 4 0 0\n4: 0 0 0\n4 0 6.28319\n}\n"
     "16: 10 20 0\nVIS\n0\n1\n"
     "16: 30 40 0\nVIS\n1.5708\n2\n"
     "16: 50 60 0\nVIS\n0\n1.5\n"},
    {"blocs_emboites",
     "15: vis_a_bois {3: 1 0 0\n}\n"
     "15: paire {16: 0 8 0\nvis_a_bois\n3.14159\n1\n16: 0 0 0\nvis_a_bois\n0\n1\n}\n"
     "16: 100 0 0\npaire\n0\n1\n"
     "3: 3 3 0\n",
     ", 1 ATTRIB"},
    {"cotes_lineaires",
     "10: 15 50 0\n*\n0 3.3 0\nArial\n0 0 0 30 40 0\n"
     "9: -10 20 0\n40 h7\n1.5708 3.3 0\nArial\n0 0 0 30 40 0\n"
     "7: -9 38 0\n*\n0.927295 3.3 0\nArial\n0 0 0 30 40 0\n"
     "7: 11 23 0\n*\n0.927295 3.3 0\nArial\n0 0 0 30 40 0\n",
     ", 1 DIMENSION"},
    {"cotes_angulaires",
     "8: 3.53553 3.53553 0\n*\n-0.785398 3.3 0\nArial\n1 0 0 0 1 0\n0 0 0 5 0 0 0 5 0\n"
     "8: 3.53553 3.53553 0\n*\n-0.785398 3.3 0\nArial\n0 0 0 0 0 0\n0 0 0 5 0 0 0 5 0\n"},
    {"cotes_rondes",
     "12: 1 2 0\n*\n0 3.3 0\nArial\n6 2 0 1 2 0\n"
     "11: 1 7 0\nØ 10\n0 3.3 0\nArial\n1 -3 0 1 7 0\n",
     ", 1 DIMENSION"},
    {"couleurs", "3: 1 0 0\n3: 2 0 0\n3: 3 0 0\n3: 4 0 0\n"},
    {"sautees", "1: 2 3 0\n1 2 0 3 4 0\n",
     ", 1 ELLIPSE, 1 HATCH, 1 LEADER, 1 MESH, 1 MTEXT, 1 RAY, 1 SHAPE, 1 SPLINE, 1 XLINE"},
    {"maillages", "5: 0 0 0\n0\n4\n0 0 0 0 1 0 1 0 0 1 1 0 \n3: 9 9 0\n"},
    {"papier", "4: 0 0 0\n1 0 6.28319\n1: 105 148.5 0\n0 0 0 210 297 0\n"},
    {"nombres",
     "1: 6.17285e+07 -0.33334 0\n1.23457e+08 -1.2345e-05 0 0.333333 -0.666667 0\n"
     "4: 1e+15 -1e+15 0\n1e-09 0 6.28319\n"},
    {"donnees_etrangeres", "3: 1 2 0\n1: 0.5 0.5 0\n0 0 0 1 1 0\n"},
};

}  // namespace

TEST(DxfEzdxf, ClassesEtNombres) {
    for (const Attendu& attendu : Dessins) {
        BDDGeoBase bdd;
        const BilanLecture bilan = LitDxf(Contenu(Dossier + attendu.Nom + ".dxf"), bdd);
        EXPECT_EQ(Resume(bilan), std::to_string(bdd.Elements.Nombre()) + "/-1" + attendu.Laisses);
        const std::string lu = Resume(bdd);
        std::size_t blocs = 0;
        for (const char* bloc : {"Model_Space {}\n", "Paper_Space {}\n"}) {
            blocs = lu.find(bloc, blocs);
            ASSERT_NE(blocs, std::string::npos) << attendu.Nom;
            blocs += 15;
        }
        EXPECT_EQ(lu.substr(blocs), attendu.Elements) << attendu.Nom;
    }
    const auto fichiers = std::filesystem::directory_iterator(Dossier);
    EXPECT_EQ(std::distance(begin(fichiers), end(fichiers)),
              static_cast<std::ptrdiff_t>(std::size(Dessins)));
}

TEST(DxfEzdxf, Styles) {
    BDDGeoBase bdd;
    LitDxf(Contenu(Dossier + "couleurs.dxf"), bdd);
    const std::vector<EltGeo*> elts(bdd.Elements.begin(), bdd.Elements.end());
    ASSERT_EQ(elts.size(), 6u);
    const std::pair<const char*, int> styles[] = {{"#ffff00000000", Axe},
                                                  {"#00000000ffff", Tirets},
                                                  {"#000000000000", Pointille},
                                                  {"#1000ff008000", Continu}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(elts[i + 2]->Style.Couleur, Gdk::Color(styles[i].first));
        EXPECT_EQ(elts[i + 2]->Style.StyleLigne, styles[i].second);
    }
}
