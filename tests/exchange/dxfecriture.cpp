// What goes out as DXF.

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "commun/record.h"
#include "elements/eltarc.h"
#include "elements/elttxt.h"
#include "exchange/dxf.h"
#include "model/bddgeo.h"
#include "model/registre.h"

namespace {

const std::string Donnees = KRVEK_ESSAIS "/exchange/data/";

/// The text behind the opening of the entities.
std::string Entites(const BDDGeo& bdd) {
    const std::string texte = EcritDxf(bdd);
    const std::string debut = "  2\nENTITIES\n";
    return texte.substr(texte.find(debut) + debut.size());
}

constexpr char Fin[] = "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n  0\nENDSEC\n  0\nEOF\n";

}  // namespace

TEST(DxfEcriture, OctetPourOctet) {
    BDDGeo bdd;
    bdd.Ouvre(Donnees + "toutes.vek");
    ASSERT_EQ(bdd.Elements.Nombre(), 15);
    EXPECT_EQ(EcritDxf(bdd), Contenu(Donnees + "toutes.dxf"));
}

TEST(DxfEcriture, CeQuiNeSortPas) {
    const std::set<int> sortent = {TypeSegment, TypePoint,    TypeArc,      TypeProfil, TypeTxt,
                                   TypeCote,    TypeCoteVert, TypeCoteHori, TypeImage};
    BDDGeo bdd;
    EXPECT_EQ(Entites(bdd), Fin);
    for (int type = 0; type < NombreTypes; ++type) {
        auto elt = CreeElement(type);
        if (!elt || sortent.count(type)) continue;
        bdd.AjouteFin(std::move(elt));
        EXPECT_EQ(Entites(bdd), Fin) << type;
    }
    EXPECT_GT(bdd.Elements.Nombre(), 4);
}

TEST(DxfEcriture, CerclesEtTextes) {
    BDDGeo bdd;
    const auto nom = [&bdd](double ouverture) {
        bdd.Vide();
        bdd.AjouteFin(std::make_unique<EltArc>(PointVek(), 1.0, 0.0, ouverture, 7));
        const std::string texte = Entites(bdd);
        EXPECT_NE(texte.find("  8\nLAYER01\n"), std::string::npos);
        return texte.substr(4, texte.find('\n', 4) - 4);
    };
    EXPECT_EQ(nom(6.2831845), "CIRCLE");
    EXPECT_EQ(nom(6.28), "ARC");
    EXPECT_EQ(nom(-2.0), "ARC");
    // A text that is not one line would be taken for groups.
    bdd.Vide();
    auto txt = std::make_unique<EltTxt>();
    txt->Texte = "a\n  0\r\nEOF";
    txt->Position = {1234567.0, 1e-7, -0.125};
    bdd.AjouteFin(std::move(txt));
    const std::string texte = Entites(bdd);
    EXPECT_NE(texte.find(" 10\n1.23457e+06\n 20\n1e-07\n 30\n-0.125\n"), std::string::npos);
    EXPECT_NE(texte.find("  1\na   0  EOF\n"), std::string::npos);
}

TEST(DxfEcriture, UnEchecNeChangeRien) {
    BDDGeo bdd;
    bdd.Ouvre(Donnees + "toutes.vek");
    bdd.Modifie = true;
    ExporteDxf(bdd, "/nonexistent/plan.dxf");
    const std::string nom = std::string(getenv("HOME")) + "/plan.dxf";
    ExporteDxf(bdd, nom);
    EXPECT_EQ(Contenu(nom), Contenu(Donnees + "toutes.dxf"));
    EXPECT_TRUE(bdd.Modifie);
    EXPECT_TRUE(bdd.Nomme);
    EXPECT_EQ(bdd.NomFichier, Donnees + "toutes.vek");
    EXPECT_EQ(bdd.Elements.Nombre(), 15);
    std::filesystem::remove(nom);
}
