// What comes in from DXF: each kind of entity, values that are odd, and files that are none.

#include <gtest/gtest.h>

#include <cmath>

#include "commun/mutation.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltcoteang.h"
#include "elements/eltprofil.h"
#include "elements/eltsegment.h"
#include "exchange/dxf.h"
#include "exchange/resume.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/eltimage.h"

namespace {

const std::string Donnees = KRVEK_ESSAIS "/exchange/data/";

/// A DXF text from groups like "10=1.5", separated by bars.
std::string Dxf(std::string groupes, const char* fin = "\n") {
    std::string texte;
    groupes += '|';
    for (std::size_t i = 0, j = 0; (j = groupes.find('|', i)) != std::string::npos; i = j + 1) {
        const std::size_t egal = groupes.find('=', i);
        texte += groupes.substr(i, egal - i) + fin + groupes.substr(egal + 1, j - egal - 1) + fin;
    }
    return texte;
}

std::string Lu(const std::string& texte) {
    BDDGeoBase bdd;
    LitDxf(texte, bdd);
    return Resume(bdd);
}

/// The single element of groups that end like a file.
template <class Elt = EltGeo>
std::unique_ptr<Elt> Seul(const std::string& groupes) {
    BDDGeoBase bdd;
    LitDxf(Dxf(groupes + "|0=ENDSEC|0=EOF"), bdd);
    EXPECT_EQ(bdd.Elements.Nombre(), 1) << groupes;
    if (bdd.Elements.Nombre() != 1) return std::make_unique<Elt>();
    return std::unique_ptr<Elt>(static_cast<Elt*>(bdd.Elements.Premier()->Clone().release()));
}

std::string LuSeul(const std::string& groupes) {
    return Lu(Dxf(groupes + "|0=ENDSEC|0=EOF"));
}

}  // namespace

TEST(DxfLecture, FormesSimples) {
    EXPECT_EQ(LuSeul("0=LINE|8=0|10=1|20=2|30=3|11=5|21=-6|31=7"), "1: 3 -2 5\n1 2 3 5 -6 7\n");
    EXPECT_EQ(LuSeul("0=POINT|10=1.5|20=-2|30=4"), "3: 1.5 -2 4\n");
    EXPECT_EQ(LuSeul("0=CIRCLE|10=1|20=2|40=2.5"), "4: 1 2 0\n2.5 0 6.28319\n");
    EXPECT_EQ(LuSeul("0=ARC|10=1|20=2|40=3|50=90|51=180"), "4: 1 2 0\n3 1.5708 1.5708\n");
    // Across 0 degrees, from a negative angle, all around.
    EXPECT_EQ(LuSeul("0=ARC|40=3|50=270|51=90"), "4: 0 0 0\n3 4.71239 3.14159\n");
    EXPECT_EQ(LuSeul("0=ARC|40=3|50=-90|51=0"), "4: 0 0 0\n3 4.71239 1.5708\n");
    EXPECT_EQ(LuSeul("0=ARC|40=3|50=0|51=360"), "4: 0 0 0\n3 0 6.28319\n");
    EXPECT_EQ(LuSeul("0=TEXT|10=1|20=2|40=5|1=Vis M6|50=30|7=Serif"),
              "6: 1 2 0\nVis M6\n0.523599 5 0\nSerif\n");
    EXPECT_EQ(LuSeul("0=INSERT|2=vis|10=3|20=4|41=-2.5|50=180"), "16: 3 4 0\nvis\n3.14159\n2.5\n");
    EXPECT_EQ(LuSeul("0=INSERT|2=|41=0"), "16: 0 0 0\ndefaut\n0\n1\n");
    EXPECT_EQ(LuSeul("0=MTEXT|1=a|0=ELLIPSE|10=1|0=HATCH|10=1|0=SPLINE|10=1"), "");
}

TEST(DxfLecture, Polygones) {
    EXPECT_EQ(LuSeul("0=LWPOLYLINE|90=3|70=1|43=0|10=1|20=2|42=0.5|10=4|20=2|10=4|20=6"),
              "5: 1 2 0\n1\n3\n0 0 0 3 0 0 3 4 0 \n");
    // The count takes vertices away, unless it is none.
    EXPECT_EQ(LuSeul("0=LWPOLYLINE|90=2|10=1|20=2|10=4|20=2|10=4|20=6"),
              "5: 1 2 0\n0\n2\n0 0 0 3 0 0 \n");
    for (const char* compte : {"90=-3|", "90=0|", "90=2147483647|", ""})
        EXPECT_EQ(LuSeul("0=LWPOLYLINE|" + std::string(compte) + "10=1|20=2|10=4|20=6"),
                  "5: 1 2 0\n0\n2\n0 0 0 3 4 0 \n");
    EXPECT_EQ(LuSeul("0=POLYLINE|66=1|70=1|10=9|20=9|0=VERTEX|10=1|20=2|30=3|0=VERTEX|10=4|20=6|"
                     "30=5|0=SEQEND|8=0"),
              "5: 1 2 3\n1\n2\n0 0 0 3 4 2 \n");
    const std::string triangle = "5: 0 0 0\n1\n4\n0 0 0 4 0 0 0 3 0 0 3 0 \n";
    for (const char* nom : {"SOLID", "TRACE", "3DFACE"})
        EXPECT_EQ(LuSeul(std::string("0=") + nom + "|10=0|20=0|11=4|21=0|12=0|22=3"), triangle);
    EXPECT_EQ(LuSeul("0=SOLID|10=1|20=1|11=4|21=1|12=1|22=3|13=4|23=3"),
              "5: 1 1 0\n1\n4\n0 0 0 3 0 0 0 2 0 3 2 0 \n");
    // Without vertices or without their end there is no polygon; what follows is read.
    EXPECT_EQ(LuSeul("0=LWPOLYLINE|90=2|70=1|0=POLYLINE|70=1|0=SEQEND|0=POINT|10=1"), "3: 1 0 0\n");
    EXPECT_EQ(LuSeul("0=POLYLINE|0=VERTEX|10=1|0=VERTEX|10=2|0=POINT|10=7|0=VERTEX|10=3"),
              "3: 7 0 0\n");
}

TEST(DxfLecture, Groupes) {
    const std::string texte = Dxf(
        "0=SECTION|2=BLOCKS|0=BLOCK|2=vis  à bois|10=5|20=5|62=1|0=POINT|10=1|62=1|0=POINT|10=2|"
        "0=POLYLINE|62=1|0=VERTEX|10=4|0=SEQEND|0=ENDBLK|8=0|0=BLOCK|2=|0=ENDBLK|0=ENDSEC|"
        "0=SECTION|2=ENTITIES|0=INSERT|2=vis  à bois|0=ENDSEC|0=EOF");
    BDDGeo bdd;
    LitDxf(texte, bdd);
    ASSERT_EQ(bdd.Elements.Nombre(), 3);
    const auto& groupe = static_cast<const EltBDD&>(*bdd.Elements.Premier());
    EXPECT_EQ(groupe.Identificateur, "vis__à_bois");
    EXPECT_EQ(groupe.Position.x, 0.0);
    // The newest first, in the style of new elements; the group itself takes its own.
    ASSERT_EQ(groupe.Contenu.Elements.Nombre(), 3);
    EXPECT_EQ(groupe.Style.Couleur, Gdk::Color("red"));
    EXPECT_EQ(groupe.Contenu.Elements.Premier()->Type, TypeProfil);
    for (const EltGeo* elt : groupe.Contenu.Elements)
        EXPECT_EQ(elt->Style.Couleur, Gdk::Color("black"));
    EXPECT_NE(bdd.ChercheBDD("vis__à_bois"), nullptr);
    EXPECT_NE(bdd.ChercheBDD("defaut"), nullptr);
    // A block without end goes to the end of the file, and stands in the one before it.
    EXPECT_EQ(Lu(Dxf("0=BLOCK|2=a|0=BLOCK|2=b|0=POINT|10=1|0=ENDBLK|0=POINT|10=2|0=ENDSEC")),
              LuSeul("0=BLOCK|2=a|0=BLOCK|2=b|0=POINT|10=1|0=ENDBLK|0=POINT|10=2|0=ENDBLK"));
}

TEST(DxfLecture, CotesLineaires) {
    const std::string points = "|10=0|20=50|13=0|23=0|14=30|24=40|1=|70=";
    // Level, upright, along its points; the place of the line from the first point.
    EXPECT_EQ(LuSeul("0=DIMENSION" + points + "32|50=0"),
              "10: 15 50 0\n*\n0 3.3 0\nArial\n0 0 0 30 40 0\n");
    EXPECT_EQ(LuSeul("0=DIMENSION" + points + "160|50=90"),
              "9: 0 20 0\n*\n1.5708 3.3 0\nArial\n0 0 0 30 40 0\n");
    // The point (0, 50) is 30 to the left of the line through (0, 0) and (30, 40).
    EXPECT_EQ(LuSeul("0=DIMENSION" + points + "0|50=53.13|1=<>"),
              "7: -9 38 0\n*\n0.927295 3.3 0\nArial\n0 0 0 30 40 0\n");
    EXPECT_EQ(Seul<EltCote>("0=DIMENSION|13=0|14=5|1=5 h7|50=0")->Texte, "5 h7");
    for (const char* genre : {"1", "33", "6", "7", "31"})
        EXPECT_EQ(LuSeul("0=DIMENSION" + points + genre), "");
}

TEST(DxfLecture, CotesRondes) {
    EXPECT_EQ(LuSeul("0=DIMENSION|70=3|15=-5|25=0|10=5|20=0|11=8|21=2"),
              "11: 8 2 0\n*\n0 3.3 0\nArial\n-5 0 0 5 0 0\n");
    EXPECT_EQ(LuSeul("0=DIMENSION|70=4|15=5|25=0|10=1|20=0|1=R4"),
              "12: 1 0 0\nR4\n0 3.3 0\nArial\n5 0 0 1 0 0\n");
}

TEST(DxfLecture, CotesAngulaires) {
    const auto cote = [](const std::string& groupes) {
        auto lue = Seul<EltCoteAng>("0=DIMENSION|" + groupes);
        EXPECT_EQ(lue->Type, TypeCoteAng);
        EXPECT_EQ(lue->Texte, "*");
        EXPECT_TRUE(lue->EstValide());
        return lue;
    };
    const std::string lignes = "70=2|13=2|23=1|14=9|24=1|15=1|25=2|10=1|20=9|";
    // Lines that would meet at (1, 1): the quarter that holds the arc, whose radius is 5.
    const auto droit = cote(lignes + "16=4|26=5");
    EXPECT_NEAR(droit->Valeur(), 90.0, 1e-9);
    EXPECT_NEAR(Distance(droit->Sommet, {1, 1}), 0.0, 1e-9);
    EXPECT_NEAR(Distance(droit->Extremite1, {6, 1}), 0.0, 1e-9);
    EXPECT_NEAR(Distance(droit->Extremite2, {1, 6}), 0.0, 1e-9);
    EXPECT_NEAR(Distance(droit->Position, {1 + 5 * std::sqrt(0.5), 1 + 5 * std::sqrt(0.5)}), 0.0,
                1e-9);
    // The same without group 16, and in another quarter.
    EXPECT_EQ(DerniereLigne(*cote(lignes + "11=4|21=5")), DerniereLigne(*droit));
    const auto gauche = cote(lignes + "16=-2|26=5");
    EXPECT_NEAR(gauche->Valeur(), 90.0, 1e-9);
    EXPECT_NEAR(Distance(gauche->Extremite1, {1, 6}), 0.0, 1e-9);
    EXPECT_NEAR(Distance(gauche->Extremite2, {-4, 1}), 0.0, 1e-9);
    EXPECT_NEAR(cote("70=2|13=0|23=0|14=9|24=0|15=0|25=0|10=5|20=8.660254|16=4|26=1")->Valeur(),
                60.0, 1e-5);
    // A place on one of the sides to the decimals of a file, at any zoom.
    for (const char* place : {"16=2|26=3.464102", "16=2|26=3.464101"})
        EXPECT_NEAR(cote(std::string("70=2|14=10|15=0|10=5|20=8.660254|") + place)->Valeur(), 60.0,
                    1e-5);
    EchelleCourante.Facteur = 1e-6;
    EXPECT_NEAR(cote("70=2|14=0.001|15=0|10=0|20=0.001|16=0.001|26=0.001")->Valeur(), 90.0, 1e-9);
    EchelleCourante.ZoomInit();
    // A place on one of the sides, and none at all.
    for (const char* place : {"16=3|26=0", "16=2.4|26=3.2", ""})
        EXPECT_NEAR(cote(std::string("70=2|14=0.3|15=0|10=0.6|20=0.8|") + place)->Valeur(),
                    53.130102, 1e-6);
    // By three points: what lies on the other side of the arc is left out.
    const std::string points = "70=5|15=1|25=1|13=4|23=1|14=1|24=3|";
    EXPECT_NEAR(cote(points + "10=2|20=2")->Valeur(), 90.0, 1e-9);
    const auto large = cote(points + "10=1|20=-3");
    EXPECT_NEAR(large->Valeur(), 270.0, 1e-9);
    EXPECT_NEAR(Distance(large->Sommet, {1, 1}), 0.0, 1e-9);
    EXPECT_NEAR(Distance(large->Extremite2, {5, 1}), 0.0, 1e-9);
    // Parallel lines, no side, no radius.
    EXPECT_EQ(LuSeul("0=DIMENSION|70=2|13=0|14=9|15=0|25=5|10=9|20=5|16=4|26=2"), "");
    EXPECT_EQ(LuSeul("0=DIMENSION|70=5|15=1|13=1|14=5|10=9"), "");
    EXPECT_EQ(LuSeul("0=DIMENSION|70=5|13=1|14=5"), "");
}

TEST(DxfLecture, StyleEtCouleur) {
    const auto style = [](const std::string& groupes) { return Seul("0=POINT|" + groupes)->Style; };
    const char* const noms[] = {"black", "red", "yellow", "green", "cyan", "blue"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(style("62=" + std::to_string(i)).Couleur, Gdk::Color(noms[i]));
    for (const char* indice : {"62=6", "62=-1", "62=256", "10=0"})
        EXPECT_EQ(style(indice).Couleur, Gdk::Color("black"));
    for (const char* vraie :
         {"62=2|420=0x10ff80", "420=1113984", "420=0xff10ff80", "420=4279304064"}) {
        const Gdk::Color couleur = style(vraie).Couleur;
        EXPECT_EQ(couleur.get_red(), 0x10 * 256);
        EXPECT_EQ(couleur.get_green(), 0xff * 256);
        EXPECT_EQ(couleur.get_blue(), 0x80 * 256);
    }
    EXPECT_EQ(style("6=DASHDOT2").StyleLigne, Axe);
    EXPECT_EQ(style("6=DASHED").StyleLigne, Tirets);
    EXPECT_EQ(style("6=DOT").StyleLigne, Pointille);
    EXPECT_EQ(style("6=BYLAYER").StyleLigne, Continu);
}

TEST(DxfLecture, ValeursFausses) {
    for (const char* x : {"nan", "1e400", "-inf", "INFINITY"}) {
        const std::string faux = std::string("|10=") + x;
        EXPECT_EQ(LuSeul("0=POINT" + faux + "|0=LINE" + faux + "|11=1|0=CIRCLE|40=1" + faux +
                         "|0=LWPOLYLINE|10=1|20=1" + faux + "|20=2|0=INSERT|41=" + x +
                         "|0=POLYLINE|0=VERTEX" + faux + "|0=SEQEND|0=DIMENSION|13=1" + faux +
                         "|20=1|0=POINT|10=5"),
                  "3: 5 0 0\n")
            << x;
    }
    EXPECT_EQ(LuSeul("0=CIRCLE|40=0|0=CIRCLE|40=-1|0=ARC|40=-0|0=CIRCLE|0=ARC|40=nan|0=LINE|10=1"),
              "");
    EXPECT_EQ(LuSeul("0=LINE|31=6|21=4|11=3|99=9|30=5|20=2|10=1"), "1: 2 3 5.5\n1 2 5 3 4 6\n");
    EXPECT_EQ(LuSeul("0=LWPOLYLINE|20=2|10=1|20=6|10=4|20=7|90=3|70=1"),
              "5: 1 2 0\n1\n3\n0 0 0 -1 4 0 3 5 0 \n");
    EXPECT_EQ(LuSeul("0=POINT|10= +1.5 mm|20=x|30=1e-400"), "3: 1.5 0 0\n");
}

TEST(DxfLecture, Encodages) {
    const auto texte = [](const std::string& octets) {
        return Seul<EltTxt>("0=TEXT|40=1|1=" + octets)->Texte.raw();
    };
    EXPECT_EQ(texte("Ø 8 à 45°"), "Ø 8 à 45°");
    EXPECT_EQ(texte("\xd8 8 \xe0 45\xb0 \x80"), "Ø 8 à 45° €");
    EXPECT_EQ(texte("\\U+00D8 8\\U+20AC"), "Ø 8€");
    EXPECT_EQ(texte("\xe9\\U+00e9"), "éé");
    // What names no character stays.
    EXPECT_EQ(texte("C:\\U+12 \\U+D800 \\U+0000 \\U+00G0 \\"),
              "C:\\U+12 \\U+D800 \\U+0000 \\U+00G0 \\");
    EXPECT_EQ(texte("a\tb"), "a b");
    // A line holds 512 bytes, and no half of a character.
    EXPECT_EQ(texte(std::string(511, 'a') + "éé"), std::string(511, 'a'));
    EXPECT_EQ(texte(std::string(1000000, 'a')).size(), 512u);
}

TEST(DxfLecture, LignesDeTousLesSystemes) {
    const std::string groupes =
        "0=SECTION|2=ENTITIES|  0=LINE|  8=0| 10=1|20 =2|\t11=3|21=4|0 =POINT |10=9|0=EOF";
    const std::string lu = "1: 2 3 0\n1 2 0 3 4 0\n3: 9 0 0\n";
    for (const char* fin : {"\n", "\r\n", "\r"})
        EXPECT_EQ(Lu(Dxf(groupes, fin)), lu);
    EXPECT_EQ(Lu("\xef\xbb\xbf" + Dxf(groupes)), lu);
    EXPECT_EQ(Lu("\n" + Dxf("999=a comment|" + groupes)), lu);
    // Without the end of the section and of the file, and with lines too many.
    EXPECT_EQ(Lu(Dxf("0=POINT|10=1|0=POINT|10=2")), "3: 1 0 0\n3: 2 0 0\n");
    EXPECT_EQ(Lu("0\nPOINT\n10\n1\n20\n2"), "3: 1 2 0\n");
    EXPECT_EQ(Lu("0\nTEXT\n1\nabc\nsecond\nline\n10\n7\n0\nPOINT\n10\n1\n0"),
              "6: 7 0 0\nabc\n0 0 0\nArial\n3: 1 0 0\n");
}

TEST(DxfLecture, CeQuiEstLaisseEstCompte) {
    const auto bilan = [](const std::string& groupes) {
        BDDGeoBase bdd;
        return Resume(LitDxf(Dxf(groupes), bdd));
    };
    // What only frames, what stands elsewhere, and what a dimension brings along, counts for
    // nothing.
    EXPECT_EQ(bilan("0=SECTION|2=HEADER|9=$ACADVER|0=ENDSEC|0=SECTION|2=TABLES|0=TABLE|0=LAYER|"
                    "0=ENDTAB|0=ENDSEC|0=SECTION|2=BLOCKS|0=BLOCK|2=*D4|0=MTEXT|0=ENDBLK|0=BLOCK|"
                    "2=vis|0=ATTDEF|0=SPLINE|0=ENDBLK|0=ENDSEC|0=SECTION|2=ENTITIES|0=LINE|11=1|"
                    "0=MTEXT|0=VIEWPORT|0=INSERT|2=vis|0=ATTRIB|70=1|0=ATTRIB|70=0|0=SEQEND|"
                    "0=SPLINE|0=ENDSEC|0=SECTION|2=OBJECTS|0=DICTIONARY|0=ENDSEC|0=EOF"),
              "4/-1, 1 ATTRIB, 1 MTEXT, 2 SPLINE");
    // Entities that are known, but say too little or nonsense.
    const std::string debut = "0=SECTION|2=ENTITIES|";
    EXPECT_EQ(bilan(debut + "0=LINE|10=1|0=CIRCLE|40=0|0=POINT|10=nan|0=DIMENSION|70=6|0=POLYLINE|"
                            "0=POINT|10=1|0=POLYLINE|0=VERTEX|10=nan|0=SEQEND|0=ENDSEC|0=EOF"),
              "1/-1, 1 CIRCLE, 1 DIMENSION, 1 LINE, 1 POINT, 2 POLYLINE");
    EXPECT_EQ(bilan(debut + "0=POINT|10=1|0=POLYLINE|0=VERTEX"), "1/-1 cut, 1 POLYLINE");
    EXPECT_EQ(bilan("0=POINT|10=1|0=HATCH|0=EOF"), "1/-1, 1 HATCH");
    std::string genres = debut + "0=\xe9";
    for (int i = 0; i < 1000; ++i)
        genres += "|0=G" + std::to_string(i);
    BDDGeoBase bdd;
    EXPECT_EQ(LitDxf(Dxf(genres), bdd).Laisses["éléments inconnus"], 802);
}

TEST(DxfLecture, FichiersQuiNEnSontPas) {
    const std::string bon = Contenu(Donnees + "toutes.dxf");
    std::string large = "\xff\xfe";
    for (const char c : bon)
        large += {c, '\0'};
    EXPECT_EQ(Lu(large), "");
    EXPECT_EQ(Lu(std::string("AutoCAD Binary DXF\r\n\x1a\0\0SECTION\0", 30)), "");
    EXPECT_EQ(Lu("\x89PNG\r\n\x1a\n" + std::string(5000, '\0')), "");
    EXPECT_EQ(Lu(""), "");
    EXPECT_EQ(Lu(std::string(3000000, '\n') + "0\nPOINT\n"), "3: 0 0 0\n");
    EXPECT_EQ(Lu(std::string(3000000, '0')), "");
    EXPECT_EQ(Lu("99999999999999999999\n0\n0\nPOINT\n" + std::string(1000000, '1') + "\n0\n"),
              "3: 0 0 0\n");
}

TEST(DxfLecture, DixMilleNiveaux) {
    std::string texte;
    for (int i = 0; i < 10000; ++i)
        texte += Dxf("0=BLOCK|2=n");
    texte += Dxf("0=POINT|10=1");
    for (int i = 0; i < 10000; ++i)
        texte += Dxf("0=ENDBLK");
    texte += Dxf("0=POINT|10=2|0=ENDBLK|0=POINT|10=3|0=EOF");
    BDDGeo bdd;
    LitDxf(texte, bdd);
    EXPECT_EQ(bdd.Elements.Nombre(), 3);
    const EltGeo* elt = bdd.Elements.Premier();
    int niveaux = 0;
    for (; elt && elt->Type == TypeBDD; ++niveaux)
        elt = static_cast<const EltBDD*>(elt)->Contenu.Elements.Premier();
    // As many as a drawing file holds, so that it can be saved and opened again.
    EXPECT_EQ(niveaux, 100);
    ASSERT_TRUE(elt);
    EXPECT_EQ(elt->Position.x, 1.0);
    const std::string natif = bdd.SauveTexte();
    BDDGeo relu;
    relu.ChargeTexte(natif);
    EXPECT_EQ(relu.SauveTexte(), natif);
}

TEST(DxfLecture, AllerRetour) {
    const std::string nom = Donnees + "toutes.dxf";
    BDDGeo bdd;
    bdd.Ajoute(EltSegment({0, 0}, {9, 9}, 0));
    ImporteDxf(bdd, nom);
    EXPECT_TRUE(bdd.Lecture.RienPerdu()) << Resume(bdd.Lecture);
    EXPECT_EQ(bdd.NomFichier, nom);
    EXPECT_FALSE(bdd.Nomme);
    EXPECT_FALSE(bdd.Annule());
    std::string types;
    for (const EltGeo* elt : bdd.Elements)
        types += std::to_string(elt->Type) + ' ';
    // The blocks of the format, of the three dimensions, the group; then the entities.
    EXPECT_EQ(types, "15 15 15 15 15 15 1 3 4 4 5 5 6 7 10 9 16 ");
    const std::vector<EltGeo*> elts(bdd.Elements.begin(), bdd.Elements.end());
    const auto& groupe = static_cast<const EltBDD&>(*elts[5]);
    EXPECT_EQ(groupe.Identificateur, "vis");
    EXPECT_EQ(groupe.Contenu.Elements.Nombre(), 2);
    EXPECT_EQ(DerniereLigne(*elts[6]), "1 2 0 10.5 -3.25 4");
    EXPECT_EQ(elts[6]->Style.StyleLigne, Tirets);
    // 254.003 times 255: the base in which colours go out is not that in which they come in.
    EXPECT_EQ(elts[6]->Style.Couleur.get_red(), 0xfd * 256);
    // Radians taken for degrees.
    const auto& arc = static_cast<const EltArc&>(*elts[8]);
    EXPECT_NEAR(arc.AngleDebut, EnRadians(0.5), 1e-9);
    EXPECT_NEAR(arc.Ouverture, EnRadians(1.5), 1e-9);
    EXPECT_EQ(DerniereLigne(*elts[9]), "1234.57 0 6.28319");
    EXPECT_EQ(DerniereLigne(*elts[10]), "0 0 0 0 20 0 -30 20 0 ");
    const auto& txt = static_cast<const EltTxt&>(*elts[12]);
    EXPECT_EQ(txt.Texte, "Bride Ø 80 à 45°");
    EXPECT_NEAR(txt.Angle, Pi / 4, 1e-9);
    EXPECT_EQ(txt.Police, "Serif Italic");
    for (int i = 13; i < 16; ++i)
        EXPECT_EQ(DerniereLigne(*elts[i]), "0 0 0 30 40 0");
    EXPECT_NEAR(Distance(elts[13]->Position, {7, 26}), 0.0, 1e-4);
    EXPECT_EQ(static_cast<EltTxt*>(elts[15])->Texte, "40 h7");
    EXPECT_EQ(static_cast<EltImage*>(elts[16])->Agrandissement, 2.5);
    // A file that cannot be read leaves nothing, under its name.
    ImporteDxf(bdd, "/nonexistent/plan.dxf");
    EXPECT_EQ(bdd.Elements.Nombre(), 0);
    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::Absent);
    EXPECT_EQ(bdd.NomFichier, "/nonexistent/plan.dxf");
    EXPECT_FALSE(bdd.Modifie);
}

TEST(DxfLecture, MutationsAuHasard) {
    const std::string bon = Contenu(Donnees + "toutes.dxf");
    // Faults in the tables would never reach an entity.
    const std::string entites = bon.substr(bon.find("  2\nBLOCKS\n"));
    Hasard hasard(8);
    int lus = 0;
    for (int essai = 0; essai < 4000; ++essai) {
        const std::string texte = Mute(entites, hasard);
        BDDGeo bdd;
        const BilanLecture bilan = LitDxf(texte, bdd);
        ASSERT_EQ(bilan.Lus, bdd.Elements.Nombre()) << texte;
        lus += bdd.Elements.Nombre();
        for (const EltGeo* elt : bdd.Elements)
            ASSERT_TRUE(elt->EstFini()) << texte;
        // What was read can be saved, opened and written out again.
        const std::string natif = bdd.SauveTexte();
        BDDGeo relu;
        relu.ChargeTexte(natif);
        ASSERT_EQ(relu.Elements.Nombre(), bdd.Elements.Nombre()) << texte;
        ASSERT_GT(EcritDxf(bdd).size(), 1000u);
    }
    EXPECT_GT(lus, 4000 * 10);
}
