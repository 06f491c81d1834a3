// The text of a drawing, and what bad ones do.

#include <gtest/gtest.h>
#include <gtkmm/messagedialog.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>

#include "commun/banc.h"
#include "commun/hasard.h"
#include "commun/mutation.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/lecteur.h"
#include "elements/table.h"
#include "elements/toile.h"
#include "model/bddgeo.h"

namespace {

// What mechanical parts are drawn with, and all that a sheet holds besides.
const char* const Pieces = KRVEK_ESSAIS "/model/data/pieces.vek";
const char* const Feuille = KRVEK_ESSAIS "/model/data/feuille.vek";

/// A segment's record from (x, 0) to (x, 10), without its type code.
std::string Segment(int x) {
    const std::string abscisse = std::to_string(x);
    return " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n" + abscisse + " 5 0\n" +
           abscisse + " 0 0 " + abscisse + " 10 0\n";
}

/// The text that the words of a line of data/lectures.txt stand for: "S7" the record of a segment
/// at x = 7, "S7x" one where a bad word takes the place of its middle, "S7<" one that is cut off,
/// "G" that of a group up to its count, "FIN" what ends a drawing.
std::string Texte(const std::string& question) {
    const std::string coupe = Segment(0);
    std::istringstream mots(question);
    std::string mot, texte = "VERSION3.3\n";
    while (mots >> mot) {
        std::string record = mot + '\n';
        if (mot == "FIN") record = "10000\n-1\n";
        if (mot == "G")
            record = "15" + coupe.substr(0, coupe.find("\n0 0 0")) + "\nmoule\nVERSION3.3\n";
        if (mot[0] == 'S') {
            record = '1' + Segment(mot[1] - '0');
            if (mot.back() == '<')
                record.resize(record.size() - 4);
            else if (mot.size() > 2)
                record.replace(record.find(" 5 0\n") - 1, 1, mot.substr(2));
        }
        texte += record;
    }
    return texte;
}

/// What the one dialog says that comes up during an action.
template <class Action>
std::string Message(const Action& action) {
    std::string texte;
    RepondDialogue(Gtk::RESPONSE_OK, [&texte](Gtk::Dialog& dialogue) {
        texte = static_cast<Gtk::MessageDialog&>(dialogue).property_text().get_value();
    });
    action();
    return texte;
}

}  // namespace

TEST(FichierNatif, OctetPourOctet) {
    BDDGeo bdd;
    EXPECT_EQ(bdd.SauveTexte(), "VERSION3.3\n1\n10000\n-1\n");
    bdd.Ouvre(Pieces);
    EXPECT_EQ(bdd.NomFichier, Pieces);
    EXPECT_TRUE(bdd.Nomme);
    bdd.Modifie = true;
    EXPECT_EQ(bdd.SauveTexte(), Contenu(Pieces));
    EXPECT_FALSE(bdd.Modifie);
    BDDGeo feuille;
    feuille.Ouvre(Feuille);
    EXPECT_EQ(feuille.SauveTexte(), Contenu(Feuille));

    const std::vector<EltGeo*> elts(bdd.Elements.begin(), bdd.Elements.end());
    // Read right, and not only written as it was read.
    EXPECT_EQ(elts[0]->NbParents, 1);
    const auto& disque = *static_cast<EltArc*>(elts[3]);
    EXPECT_EQ(disque.Style.StyleLigne, Pointille);
    EXPECT_EQ(disque.Rayon, 1234.57);
    EXPECT_TRUE(disque.Style.Remplissage && !disque.Style.Contour);
    // A child of another drawing is written as one that is nowhere.
    EltGeo ailleurs;
    elts[0]->AjouteFils(&ailleurs);
    EXPECT_NE(bdd.SauveTexte().find("10000\n0 1 -1 \n2 2 0 1 \n-1\n"), std::string::npos);
    // A line drawn with the mouse is written, and so read back, as a rectangle.
    bdd.Vide();
    bdd.AjouteFin(std::make_unique<EltDroite>(PointVek(10, 0), PointVek(0, 0), 0));
    EXPECT_NE(bdd.SauveTexte().find("\n2\n14 1 0\n"), std::string::npos);
}

TEST(FichierNatif, LecturesSelonLaTable) {
    const std::string chemin = std::string(getenv("HOME")) + "/lecture.vek";
    ExigeTable("model/data/lectures.txt", [&chemin](const std::string& question, const auto&) {
        std::ofstream(chemin) << Texte(question);
        BDDGeo bdd;
        bdd.Ouvre(chemin);
        EXPECT_EQ(bdd.Original.empty(), bdd.Lecture.RienPerdu());
        std::string vu = ' ' + Resume(bdd.Lecture) + " |";
        for (const EltGeo* elt : bdd.Elements)
            vu += ' ' +
                  (elt->Type == TypeBDD ? "group" : std::to_string(std::lround(elt->Position.x)));
        // What could be read is written, and that text reads the same.
        const std::string texte = bdd.SauveTexte();
        bdd.ChargeTexte(texte);
        EXPECT_EQ(bdd.SauveTexte(), texte);
        std::istringstream liens(texte.substr(texte.rfind("10000\n") + 6));
        vu += " |";
        for (std::string mot; liens >> mot && !liens.eof();)
            vu += ' ' + mot;
        return vu.substr(0, vu.rfind(" -1"));
    });
}

TEST(FichierNatif, MessageDeVersionUneFois) {
    const std::string chemin = std::string(getenv("HOME")) + "/ancien.vek";
    std::ofstream(chemin) << "VERSION2.3\n3\n1" << Segment(0);
    BDDGeo bdd;
    bdd.Ajoute(EltSegment({0, 0}, {9, 9}, 0));
    const std::string annonce =
        "Version du fichier incompatible.\n Contacter l'editeur.\nVersion3.2 attendue \n";
    EXPECT_EQ(Message([&] { bdd.Ouvre(chemin); }), annonce + "VERSION2.3 reçue");
    EXPECT_EQ(bdd.Elements.Nombre(), 0);
    EXPECT_EQ(bdd.NomFichier, chemin);
    EXPECT_TRUE(bdd.Nomme);
    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::PasUnDessin);
    EXPECT_FALSE(bdd.Annule());
    // Words that are no text for the toolkit, or far too long.
    const std::string longue(5000000, 'x');
    const std::string mot =
        "PI\xc8"
        "CE<b>";
    EXPECT_EQ(Message([&] { bdd.ChargeTexte(mot + " 3"); }), annonce + "PIÈCE<b> reçue");
    EXPECT_EQ(Message([&] { bdd.ChargeTexte(longue); }),
              annonce + longue.substr(0, 60) + "… reçue");
    // A file that is not there, or is a folder, says nothing.
    bdd.Ouvre(chemin + "/rien");
    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::Absent);
    bdd.Ouvre("/tmp");
    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::Dossier);
    EXPECT_FALSE(bdd.Lecture.RienPerdu());
    bdd.ChargeTexte("VERSION3.2\n1\n10000\n-1\n");
    // The drawing is read again from its own name.
    bdd.Ouvre(Pieces);
    bdd.Ouvre(bdd.NomFichier);
    EXPECT_EQ(bdd.NomFichier, Pieces);
    EXPECT_EQ(bdd.Elements.Nombre(), 7);
}

TEST(FichierNatif, MutationsAuHasard) {
    const std::string bons[] = {Contenu(Pieces), Contenu(Feuille)};
    Hasard hasard(5);
    BilanLecture bilan;
    const auto relit = [&bilan](const std::string& texte) {
        BddCourante.Vide();
        Lecteur entree(texte);
        bilan = BddCourante.Charge(entree);
        EXPECT_LE(bilan.Lus, BddCourante.Elements.Nombre());
        return BddCourante.SauveTexte();
    };
    int lus = 0;
    const Toile toile;
    for (int essai = 0; essai < 6000; ++essai) {
        const std::string texte = Mute(bons[essai % 2], hasard);
        const std::string premier = relit(texte);
        ASSERT_LE(premier.size(), 2 * texte.size() + 500);
        const int nombre = BddCourante.Elements.Nombre();
        lus += nombre;
        // The format rounds, so that a middle may still move in its last digit at the first
        // reading.
        const std::string second = relit(premier);
        // What the program has written comes in whole.
        ASSERT_TRUE(bilan.RienPerdu()) << premier;
        ASSERT_EQ(BddCourante.Elements.Nombre(), nombre) << texte;
        ASSERT_EQ(relit(second), second) << texte;
        // What was read can be searched, painted and pasted, whatever it is.
        if (essai % 8 > 1) continue;
        BddCourante.Cherche({1, 2});
        TraceEcran trace = toile.Pinceau(), bande = toile.Bande();
        BddCourante.Dessine(trace);
        BddCourante.Dessine(bande);
        BDDGeoClipboard collage;
        collage.ChargeTexte(premier);
        TransformeColle transforme;
        transforme.SymetrieX = hasard.Entier(2) == 1;
        transforme.Sin = transforme.Cos = std::sqrt(0.5);
        transforme.Agrandissement = hasard.Entier(2) == 1 ? 999.0 : 0.002;
        collage.TransformeTout(transforme);
        BddCourante.Coller(collage, {5, 5}, 0);
        BddCourante.Dessine(trace);
        for (const EltGeo* elt : BddCourante.Elements)
            ASSERT_TRUE(elt->EstFini()) << texte;
    }
    EXPECT_GT(lus, 12000);
    BddCourante.Vide();
}
