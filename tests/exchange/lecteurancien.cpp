// Drawings of former generations, whole, cut short, and broken.

#include "exchange/lecteurancien.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "commun/hasard.h"
#include "commun/mutation.h"
#include "commun/record.h"
#include "elements/eltcote.h"
#include "exchange/importancien.h"
#include "model/bddgeo.h"
#include "model/fichier.h"

namespace {

using Lignes = std::vector<std::string>;

std::string Chemin(const std::string& nom) {
    return KRVEK_ESSAIS "/exchange/data/" + nom;
}

std::string Change(std::string texte, const std::string& ancien, const std::string& nouveau) {
    for (std::size_t ou = 0; (ou = texte.find(ancien, ou)) != std::string::npos;
         ou += nouveau.size())
        texte.replace(ou, ancien.size(), nouveau);
    return texte;
}

/// Each element by its type, its own lines of the record, and no style but that of a new one.
Lignes Resume(const BDDGeo& bdd) {
    Lignes resume;
    for (const EltGeo* elt : bdd.Elements) {
        const std::string record = Record(*elt), neuf = Record(EltGeo(elt->Type));
        const std::size_t commun = neuf.rfind('\n', neuf.size() - 2) + 1;
        EXPECT_EQ(record.substr(0, commun), neuf.substr(0, commun));
        const std::string suite = record.substr(commun, record.size() - commun - 1);
        resume.push_back(std::to_string(elt->Type) + ": " + Change(suite, "\n", " | "));
    }
    return resume;
}

Lignes Lus(const std::string& texte, bool entier) {
    BDDGeo bdd;
    LecteurAncien lecteur(texte);
    EXPECT_EQ(lecteur.Lit(bdd), entier) << texte;
    EXPECT_EQ(lecteur.Bilan().Entier, entier);
    EXPECT_EQ(lecteur.Bilan().Lus, bdd.Elements.Nombre());
    return Resume(bdd);
}

std::string Ecrit(const std::string& octets) {
    const std::string chemin = std::string(std::getenv("HOME")) + "/ancien";
    EXPECT_TRUE(EcritFichier(chemin, octets));
    return chemin;
}

}  // namespace

TEST(LecteurAncien, PointsSegmentsEtArcsDeToutesLesVersions) {
    // The null segment and the radii that are not above 0 are left out.
    const Lignes attendus = {
        "3: 3 4 0",
        "3: -7.5 20 1",
        "1: 15 20 0 | 0 0 0 30 40 0",
        "1: -10 -4.125 0 | -10 0 0 -10 -8.25 0",
        "4: 10 20 0 | 5 0 1.5708",
        "4: 0 0 0 | 7 1.5708 1.5708",
        "4: 0 0 0 | 1 4.71239 1.5708",
        "4: 8 8 0 | 2 0 6.28319",
    };
    const std::string texte = Contenu(Chemin("version10.vek"));
    for (const char* version : {"1.0", "2.0", "2.1", "2.2"})
        EXPECT_EQ(Lus(Change(texte, "N1.0", std::string("N") + version), true), attendus);
    // The last version has one section more, which is not there.
    EXPECT_EQ(Lus(Change(texte, "N1.0", "N2.3"), false), attendus);
    EXPECT_EQ(Lus(Change(texte, "N1.0", "N3.3"), false), Lignes());
    EXPECT_EQ(Lus("\n" + texte, false), Lignes());
}

TEST(LecteurAncien, QuatriemeSectionSansRecords) {
    const std::string texte = Contenu(Chemin("version22.vek"));
    const Lignes segment = {"1: 5 0 0 | 0 0 0 10 0 0"};
    EXPECT_EQ(Lus(texte, true), segment);
    BDDGeo bdd;
    ImporteVek(bdd, Chemin("version22.vek"));
    EXPECT_EQ(Resume(bdd.Lecture), "1/-1, 2 sections non lues");
    const std::string cinq = Change(texte, "N2.2", "N2.3");
    EXPECT_EQ(Lus(cinq, true), (Lignes{segment[0], "6: 5 2 0 | jamais lu | 0 3 0 | Arial"}));
    // Only the markers go by: a record throws the reading out of step.
    for (const char* record : {"3\n5 -1 7\n", "3\n5 0.25 7\n"})
        EXPECT_EQ(Lus(Change(cinq, "3 5 7\n", record), false), segment) << record;
}

TEST(LecteurAncien, CotesEtTextes) {
    const std::string nom = Chemin("version23.vek");
    BDDGeo bdd;
    ImporteVek(bdd, nom);
    const Lignes attendus = {
        "3: 1 2 0",
        "1: 5 0 0 | 0 0 0 10 0 0",
        "4: 50 0 0 | 5 0.927295 0.643501",
        "7: 16 9 0 | côté 12,5 | 0 3.5 0 | Arial | 10 5 0 22.5 5 0",
        "10: 15 -4 0 | * | 0 3 0 | Sans | 10 5 0 20 15 0",
        "9: 25 12 0 | 10 | 1.5708 3 0 |  | 10 5 0 20 15 0",
        // The text of this one comes in where a file keeps it, on the middle of its arc.
        "8: 1.41421 9.89949 0 | 90° | -0.141897 4 0 | Arial | 0 0 0 0 0 0 | 0 0 0 8 6 0 -6 8 0",
        "12: 60 8 0 | R5 | 0 4 0 | Arial | 53 4 0 50 0 0",
        "11: 40 8 0 | Ø10 | 0 4 0 | Arial | 53 4 0 47 -4 0",
        "6: -6 -7 0 |  Pièce vue de côté | -1.5708 2.5 0 | Times New Roman",
        "6: -6 -9 0 | dernier | 0 2.5 0 | Arial",
    };
    EXPECT_EQ(Resume(bdd), attendus);
    // Each stands where it stands once it has been saved and opened.
    BDDGeo relu;
    relu.ChargeTexte(bdd.SauveTexte());
    const EltGeo* angle = nullptr;
    auto apres = relu.Elements.begin();
    for (const EltGeo* avant : bdd.Elements) {
        EXPECT_LT(Distance(avant->Position, (*apres++)->Position), 1e-5) << avant->Type;
        if (avant->Type == TypeCoteAng) angle = avant;
    }
    ASSERT_TRUE(angle);
    EXPECT_DOUBLE_EQ(static_cast<const EltCote*>(angle)->Valeur(), 90);

    const std::string texte = Contenu(nom);
    EXPECT_EQ(Lus(Change(texte, "\n", "\r\n"), true), attendus);
    ImporteVek(bdd, Ecrit(Change(texte, "\n", "\r")));
    EXPECT_EQ(Resume(bdd), attendus);
    ImporteVek(bdd, Ecrit(Change(texte, "22.5 5 0", "10 5 0")));
    EXPECT_EQ(Resume(bdd.Lecture),
              "10/-1, 1 cotes de genre inconnu, 1 cotes de mesure nulle, 1 cotes sans contenu");
    // Only so much of a line is a text.
    ImporteVek(bdd, Ecrit(Change(texte, " Pièce", std::string(1000000, '\xe9'))));
    EXPECT_EQ(bdd.Elements.Nombre(), 11);
    EXPECT_EQ(static_cast<const EltTxt*>(bdd.ChercheType({-6, -7}, 6))->Texte.size(), 512u);
}

TEST(LecteurAncien, CeQuiEtaitLuAvantLaFauteReste) {
    const std::string texte = Contenu(Chemin("version23.vek"));
    const std::size_t fin = texte.rfind("-1") + 2;
    std::size_t avant = 0;
    for (std::size_t taille = 0; taille < fin; ++taille) {
        const std::size_t lus = Lus(texte.substr(0, taille), false).size();
        ASSERT_GE(lus, avant) << taille;
        avant = lus;
    }
    EXPECT_EQ(Lus(texte.substr(0, fin), true).size(), avant);
    for (const char* faux : {"nan", "inf", "1e400", "x"})
        EXPECT_EQ(Lus(Change(texte, "22.5", faux), false).size(), 3u) << faux;
}

TEST(ImportAncien, RemplaceLeDessinSansPrendreLeFichier) {
    const std::string nom = Chemin("version10.vek");
    BDDGeo bdd;
    bdd.Ouvre(KRVEK_ESSAIS "/model/data/pieces.vek");
    bdd.Ajoute(EltSegment({0, 0}, {9, 9}, 0));
    ImporteVek(bdd, nom);
    EXPECT_EQ(bdd.Elements.Nombre(), 8);
    EXPECT_EQ(bdd.NomFichier, nom);
    EXPECT_EQ(Resume(bdd.Lecture),
              "8/-1, 2 arcs de rayon nul ou négatif, 1 segments de longueur nulle");
    EXPECT_FALSE(bdd.Nomme || bdd.Annule());
    EXPECT_TRUE(bdd.Modifie) << "the next save asks for a name";
    // Without anything to read there is nothing to save.
    for (const auto importe : {ImporteVek, ImporteVe9}) {
        ImporteVek(bdd, nom);
        importe(bdd, nom + "/absent");
        EXPECT_EQ(bdd.Elements.Nombre(), 0);
        EXPECT_EQ(bdd.NomFichier, nom + "/absent");
        EXPECT_FALSE(bdd.Nomme || bdd.Modifie);
        EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::Absent);
    }
}

TEST(ImportAncien, Ve9) {
    const std::string texte = Contenu(Chemin("version23.vek"));
    const Lignes attendus = Lus(texte, true);
    // Bytes of other kinds, first and within; the word stands anywhere in lines of any length.
    const std::string parseme =
        Change(Change(texte, "3 0", std::string("\0003 0\xff\xff", 6)), "P", std::string("\0P", 2));
    const std::size_t dernier = parseme.rfind("1\n0 2.5 0  -6 -9");
    for (const std::size_t taille : {0u, 7u, 119u, 1000u}) {
        const std::string entete =
            std::string(taille, '\xfe') + "\0V\nVERSION2.2\n" + std::string(taille, 'V');
        BDDGeo bdd;
        ImporteVe9(bdd, Ecrit(entete + parseme));
        EXPECT_EQ(Resume(bdd), attendus) << taille;
        // The last bytes count once, also where nothing separates them from the end.
        ImporteVe9(bdd, Ecrit(entete + parseme.substr(0, dernier) + "-1"));
        EXPECT_EQ(Resume(bdd), Lignes(attendus.begin(), attendus.end() - 1)) << taille;
        // Any other version is none.
        ImporteVe9(bdd, Ecrit(entete + Change(parseme, "N2.3", "N2.2")));
        EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::PasUnDessin);
        EXPECT_EQ(bdd.Elements.Nombre(), 0);
    }
}

TEST(LecteurAncien, MutationsAuHasard) {
    const std::string bons[] = {Contenu(Chemin("version10.vek")), Contenu(Chemin("version23.vek"))};
    Hasard hasard(23);
    int lus = 0;
    for (int essai = 0; essai < 6000; ++essai) {
        const std::string texte = Mute(bons[essai % 2], hasard);
        BDDGeo bdd, relu;
        LecteurAncien(texte).Lit(bdd);
        lus += bdd.Elements.Nombre();
        for (const EltGeo* elt : bdd.Elements)
            ASSERT_TRUE(elt->EstValide()) << texte;
        relu.ChargeTexte(bdd.SauveTexte());
        ASSERT_EQ(relu.Elements.Nombre(), bdd.Elements.Nombre()) << texte;
    }
    EXPECT_GT(lus, 12000);
}
