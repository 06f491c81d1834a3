// What comes in from other programs and former generations and what goes out, as it is written
// down under data/; then what no table can hold: encodings, files that are none, depth, chance.

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "commun/mutation.h"
#include "commun/record.h"
#include "elements/elttxt.h"
#include "exchange/dxf.h"
#include "exchange/importancien.h"
#include "exchange/lecteurancien.h"
#include "exchange/lignes.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/fichier.h"

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

/// The groups of a DXF text, of which the same come back.
std::string Groupes(const std::string& texte) {
    std::istringstream lignes(texte);
    std::string groupes, code, valeur;
    while (std::getline(lignes >> std::ws, code) && std::getline(lignes, valeur))
        groupes += (groupes.empty() ? "" : "|") + code + '=' + valeur;
    return groupes;
}

std::string Change(std::string texte, const std::string& ancien, const std::string& nouveau) {
    for (std::size_t ou = 0; (ou = texte.find(ancien, ou)) != std::string::npos;
         ou += nouveau.size())
        texte.replace(ou, ancien.size(), nouveau);
    return texte;
}

std::string Ecrit(const std::string& octets) {
    const std::string chemin = std::string(std::getenv("HOME")) + "/lu";
    EXPECT_TRUE(EcritFichier(chemin, octets));
    return chemin;
}

/// The elements of a drawing that was read, behind what was left out.
std::string Lecture(const BDDGeoBase& bdd, const BilanLecture& bilan) {
    const std::string resume = Resume(bilan), lus = std::to_string(bilan.Lus) + "/-1";
    EXPECT_EQ(bilan.Lus, bdd.Elements.Nombre());
    return (resume == lus ? "" : "    + left out" + resume.substr(lus.size()) + '\n') + Resume(bdd);
}

/// "file; what -> by what; ...", a bar for the end of a line.
std::string LuDuFichier(const std::string& ligne) {
    std::istringstream parts(ligne);
    std::string nom, change;
    std::getline(parts, nom, ';');
    std::string texte = Contenu(Donnees + nom);
    while (std::getline(parts >> std::ws, change, ';')) {
        const std::size_t fleche = change.find(" -> ");
        const std::string nouveau = Change(change.substr(fleche + 4), "|", "\n");
        texte = Change(texte, change.substr(0, fleche), nouveau);
    }
    BDDGeo bdd;
    const bool dxf = nom.find(".dxf") != std::string::npos;
    (dxf ? ImporteDxf : ImporteVek)(bdd, Ecrit(texte));
    return Lecture(bdd, bdd.Lecture);
}

std::string LuDesGroupes(const std::string& groupes) {
    BDDGeoBase bdd;
    const BilanLecture bilan = LitDxf(Dxf(groupes + "|0=ENDSEC|0=EOF"), bdd);
    return Lecture(bdd, bilan);
}

/// What goes out between the opening of the entities and their end.
std::string EcritDe(const std::string& ligne) {
    BDDGeo bdd;
    bdd.AjouteFin(DepuisLigne(ligne));
    const std::string texte = EcritDxf(bdd), debut = "  2\nENTITIES\n";
    const std::size_t i = texte.find(debut) + debut.size(), fin = texte.find("  0\nENDSEC", i);
    return "    " + (fin == i ? "nothing" : Groupes(texte.substr(i, fin - i))) + '\n';
}

std::string Lu(const std::string& texte) {
    BDDGeoBase bdd;
    LitDxf(texte, bdd);
    return Resume(bdd);
}

class Echange : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(Echange, FaitCeQuiEstEcrit) {
    const std::string nom = std::string("exchange/data/") + GetParam() + ".txt";
    std::istringstream ecrit(Contenu(KRVEK_ESSAIS "/" + nom));
    std::string vu;
    for (std::string ligne; std::getline(ecrit, ligne);) {
        if (ligne.compare(0, 4, "    ") == 0) continue;
        vu += ligne + '\n';
        if (ligne.empty() || ligne[0] == '#') continue;
        if (ligne[0] == '<')
            vu += LuDuFichier(ligne.substr(2));
        else
            vu += ligne[1] == '=' ? LuDesGroupes(ligne) : EcritDe(ligne);
    }
    ExigeFichier(nom, vu);
}

INSTANTIATE_TEST_SUITE_P(Tous, Echange, testing::Values("dxf", "ezdxf", "anciens", "ecriture"),
                         [](const auto& cas) { return std::string(cas.param); });

TEST(Dxf, SortOctetPourOctetEtSansRienChanger) {
    BDDGeo bdd;
    bdd.Ouvre(Donnees + "toutes.vek");
    ASSERT_EQ(bdd.Elements.Nombre(), 15);
    EXPECT_EQ(EcritDxf(bdd), Contenu(Donnees + "toutes.dxf"));
    bdd.Modifie = true;
    ExporteDxf(bdd, "/nonexistent/plan.dxf");
    const std::string nom = Ecrit("");
    ExporteDxf(bdd, nom);
    EXPECT_EQ(Contenu(nom), Contenu(Donnees + "toutes.dxf"));
    EXPECT_TRUE(bdd.Modifie && bdd.Nomme);
    EXPECT_EQ(bdd.NomFichier, Donnees + "toutes.vek");
    EXPECT_EQ(bdd.Elements.Nombre(), 15);
    // A text that is not one line would be taken for groups.
    EltTxt txt;
    txt.Texte = "a\n  0\r\nEOF";
    bdd.Vide();
    bdd.Ajoute(txt);
    EXPECT_NE(EcritDxf(bdd).find("  1\na   0  EOF\n"), std::string::npos);
}

TEST(Dxf, UnAngleEstLuATouteEchelle) {
    EchelleCourante.Facteur = 1e-6;
    EXPECT_EQ(LuDesGroupes("0=DIMENSION|70=2|14=0.001|15=0|10=0|20=0.001|16=0.0003|26=0.0004"),
              "    8: 0.000353553 0.000353553 0 | * | -0.785398 3.3 0 | Arial | 0 0 0 0 0 0 | "
              "0 0 0 0.0005 0 0 0 0.0005 0\n");
    EchelleCourante.ZoomInit();
}

TEST(Dxf, Encodages) {
    const auto texte = [](const std::string& octets) {
        BDDGeoBase bdd;
        LitDxf(Dxf("0=TEXT|40=1|1=" + octets), bdd);
        return static_cast<const EltTxt*>(bdd.Elements.Premier())->Texte.raw();
    };
    EXPECT_EQ(texte("Ø 8 à 45°"), "Ø 8 à 45°");
    EXPECT_EQ(texte("\xd8 8 \xe0 45\xb0 \x80"), "Ø 8 à 45° €");
    EXPECT_EQ(texte("\xe9\\U+00e9"), "éé");
    EXPECT_EQ(texte("a\tb"), "a b");
    // A line holds 512 bytes, and no half of a character.
    EXPECT_EQ(texte(std::string(511, 'a') + "éé"), std::string(511, 'a'));
    EXPECT_EQ(texte(std::string(509, 'a') + "€€"), std::string(509, 'a') + "€");
    EXPECT_EQ(texte(std::string(1000000, 'a')).size(), 512u);
}

TEST(Dxf, LignesDeTousLesSystemes) {
    const std::string groupes =
        "0=SECTION|2=ENTITIES|  0=LINE|  8=0| 10=1|20 =2|\t11=3|21=4|0 =POINT |10=9|0=EOF";
    const std::string lu = "    1: 2 3 0 | 1 2 0 3 4 0\n    3: 9 0 0\n";
    for (const char* fin : {"\n", "\r\n", "\r"})
        EXPECT_EQ(Lu(Dxf(groupes, fin)), lu);
    EXPECT_EQ(Lu("\xef\xbb\xbf" + Dxf(groupes)), lu);
    EXPECT_EQ(Lu("\n" + Dxf("999=a comment|" + groupes)), lu);
    // Without the end of the section and of the file, and with lines too many.
    EXPECT_EQ(Lu(Dxf("0=POINT|10=1|0=POINT|10=2")), "    3: 1 0 0\n    3: 2 0 0\n");
    EXPECT_EQ(Lu("0\nPOINT\n10\n1\n20\n2"), "    3: 1 2 0\n");
    EXPECT_EQ(Lu("0\nTEXT\n1\nabc\nsecond\nline\n10\n7\n0\nPOINT\n10\n1\n0"),
              "    6: 7 0 0 | abc | 0 0 0 | Arial\n    3: 1 0 0\n");
}

TEST(Dxf, FichiersQuiNEnSontPas) {
    std::string large = "\xff\xfe", genres = "0=SECTION|2=ENTITIES|0=\xe9";
    for (const char c : Contenu(Donnees + "toutes.dxf"))
        large += {c, '\0'};
    for (const std::string& faux :
         {large, std::string("AutoCAD Binary DXF\r\n\x1a\0\0SECTION\0", 30), std::string(),
          "\x89PNG\r\n\x1a\n" + std::string(5000, '\0'), std::string(3000000, '0')}) {
        BDDGeoBase bdd;
        EXPECT_EQ(LitDxf(faux, bdd).Fichier, BilanLecture::PasUnDessin);
        EXPECT_EQ(bdd.Elements.Nombre(), 0);
    }
    EXPECT_EQ(Lu(std::string(3000000, '\n') + "0\nPOINT\n"), "    3: 0 0 0\n");
    EXPECT_EQ(Lu("99999999999999999999\n0\n0\nPOINT\n" + std::string(1000000, '1') + "\n0\n"),
              "    3: 0 0 0\n");
    // What is counted does not grow without end; nor is a file without its end mark whole.
    for (int i = 0; i < 1000; ++i)
        genres += "|0=G" + std::to_string(i);
    BDDGeoBase bdd;
    EXPECT_EQ(LitDxf(Dxf(genres), bdd).Laisses["éléments inconnus"], 802);
    EXPECT_EQ(Resume(LitDxf(Dxf("0=POINT|10=1|0=POLYLINE|0=VERTEX"), bdd)), "1/-1 cut, 1 POLYLINE");
}

TEST(Dxf, DixMilleNiveaux) {
    std::string texte;
    for (int i = 0; i < 10000; ++i)
        texte += Dxf("0=BLOCK|2=n");
    texte += Dxf("0=POINT|10=1");
    for (int i = 0; i < 10000; ++i)
        texte += Dxf("0=ENDBLK");
    texte += Dxf("0=POINT|10=2|0=ENDBLK|0=POINT|10=3|0=EOF");
    BDDGeo bdd, relu;
    EXPECT_EQ(LitDxf(texte, bdd).Laisses["BLOCK"], 9900);
    // As many as a drawing file holds, so that it can be saved and opened again.
    std::string niveaux = "    ";
    for (int i = 0; i < 100; ++i)
        niveaux += "15: 0 0 0 | n {";
    EXPECT_EQ(Resume(bdd),
              niveaux + "3: 1 0 0" + std::string(100, '}') + "\n    3: 2 0 0\n    3: 3 0 0\n");
    relu.ChargeTexte(bdd.SauveTexte());
    EXPECT_EQ(Resume(relu), Resume(bdd));
}

TEST(Import, RemplaceLeDessinSansPrendreLeFichier) {
    const auto importe = [](const auto importeur, const std::string& nom) {
        BDDGeo bdd;
        bdd.Ouvre(KRVEK_ESSAIS "/model/data/pieces.vek");
        bdd.Ajoute(EltSegment({0, 0}, {9, 9}, 0));
        importeur(bdd, nom);
        EXPECT_EQ(bdd.NomFichier, nom);
        EXPECT_FALSE(bdd.Nomme || bdd.Annule()) << "the next save asks for a name";
        EXPECT_EQ(bdd.Modifie, bdd.Elements.Nombre() > 0) << "nothing read is nothing to save";
        return bdd.Elements.Nombre() > 0 ? BilanLecture::Lu : bdd.Lecture.Fichier;
    };
    EXPECT_EQ(importe(ImporteDxf, Donnees + "toutes.dxf"), BilanLecture::Lu);
    EXPECT_EQ(importe(ImporteVek, Donnees + "version10.vek"), BilanLecture::Lu);
    EXPECT_EQ(importe(ImporteVe9, Donnees + "version23.vek"), BilanLecture::Lu);
    // Any other version is none to that one.
    EXPECT_EQ(importe(ImporteVe9, Donnees + "version10.vek"), BilanLecture::PasUnDessin);
    for (const auto importeur : {ImporteDxf, ImporteVek, ImporteVe9}) {
        EXPECT_EQ(importe(importeur, "/nonexistent/plan"), BilanLecture::Absent);
        EXPECT_EQ(importe(importeur, Ecrit("rien\n")), BilanLecture::PasUnDessin);
    }
}

TEST(Import, Ve9) {
    const std::string texte = Contenu(Donnees + "version23.vek");
    const auto lu = [](const auto importeur, const std::string& octets) {
        BDDGeo bdd;
        importeur(bdd, Ecrit(octets));
        return Resume(bdd);
    };
    const std::string attendu = lu(ImporteVek, texte);
    // Bytes of other kinds, first and within; the word stands anywhere in lines of any length.
    const std::string parseme =
        Change(Change(texte, "3 0", std::string("\0003 0\xff\xff", 6)), "P", std::string("\0P", 2));
    const std::size_t dernier = parseme.rfind("1\n0 2.5 0  -6 -9");
    for (const std::size_t taille : {0u, 7u, 119u, 1000u}) {
        const std::string entete =
            std::string(taille, '\xfe') + "\0V\nVERSION2.2\n" + std::string(taille, 'V');
        EXPECT_EQ(lu(ImporteVe9, entete + parseme), attendu) << taille;
        // The last bytes count once, also where nothing separates them from the end.
        EXPECT_EQ(lu(ImporteVe9, entete + parseme.substr(0, dernier) + "-1"),
                  attendu.substr(0, attendu.rfind("    6:")));
    }
    // Lines end as they do on any system, and only so much of a line is a text.
    EXPECT_EQ(lu(ImporteVek, Change(texte, "\n", "\r\n")), attendu);
    EXPECT_EQ(lu(ImporteVek, Change(texte, "\n", "\r")), attendu);
    BDDGeo bdd;
    ImporteVek(bdd, Ecrit(Change(texte, " Pièce", std::string(1000000, '\xe9'))));
    EXPECT_EQ(static_cast<const EltTxt*>(bdd.ChercheType({-6, -7}, TypeTxt))->Texte.size(), 512u);
}

TEST(Import, CeQuiEtaitLuAvantLaFauteReste) {
    const std::string texte = Contenu(Donnees + "version23.vek");
    const std::size_t fin = texte.rfind("-1") + 2;
    int avant = 0;
    for (std::size_t taille = 0; taille <= fin; ++taille) {
        BDDGeo bdd, relu;
        EXPECT_EQ(LecteurAncien(texte.substr(0, taille)).Lit(bdd), taille == fin) << taille;
        ASSERT_GE(bdd.Elements.Nombre(), avant) << taille;
        avant = bdd.Elements.Nombre();
        // Each stands where it stands once it has been saved and opened.
        relu.ChargeTexte(bdd.SauveTexte());
        auto apres = relu.Elements.begin();
        for (const EltGeo* elt : bdd.Elements)
            EXPECT_LT(Distance(elt->Position, (*apres++)->Position), 1e-5) << elt->Type;
    }
    EXPECT_EQ(avant, 11);
}

TEST(Import, MutationsAuHasard) {
    // Faults in the tables of a DXF text would never reach an entity.
    const std::string dxf = Contenu(Donnees + "toutes.dxf");
    const std::string bons[] = {dxf.substr(dxf.find("  2\nBLOCKS\n")),
                                Contenu(Donnees + "version10.vek"),
                                Contenu(Donnees + "version23.vek")};
    Hasard hasard(8);
    int lus[3] = {};
    for (int essai = 0; essai < 9000; ++essai) {
        const int sorte = essai % 3;
        const std::string texte = Mute(bons[sorte], hasard);
        BDDGeo bdd, relu;
        const int comptes = sorte > 0 ? (LecteurAncien(texte).Lit(bdd), bdd.Elements.Nombre())
                                      : LitDxf(texte, bdd).Lus;
        ASSERT_EQ(comptes, bdd.Elements.Nombre()) << texte;
        lus[sorte] += bdd.Elements.Nombre();
        for (const EltGeo* elt : bdd.Elements)
            ASSERT_TRUE(sorte > 0 ? elt->EstValide() : elt->EstFini()) << texte;
        // What was read can be saved, opened and written out again.
        relu.ChargeTexte(bdd.SauveTexte());
        ASSERT_EQ(relu.Elements.Nombre(), bdd.Elements.Nombre()) << texte;
        ASSERT_GT(EcritDxf(bdd).size(), 1000u);
    }
    EXPECT_GT(lus[0], 30000);
    EXPECT_GT(lus[1] + lus[2], 12000);
}
