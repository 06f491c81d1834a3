// The text of a drawing, and what bad ones do.

#include <gtest/gtest.h>
#include <gtkmm/messagedialog.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "commun/hasard.h"
#include "commun/mutation.h"
#include "commun/record.h"
#include "elements/eltarc.h"
#include "elements/eltdroite.h"
#include "elements/lecteur.h"
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

/// Reads a text that has a good version, and says what types came out of it.
std::string Types(BDDGeo& bdd, const std::string& texte) {
    bdd.Vide();
    Lecteur entree(texte);
    bdd.Charge(entree);
    EXPECT_FALSE(entree.VersionRefusee());
    std::string types;
    for (const EltGeo* elt : bdd.Elements)
        types += std::to_string(elt->Type) + ' ';
    return types;
}

/// Answers every dialog that comes up during an action with OK, and collects their texts.
template <class Action>
std::vector<std::string> Messages(const Action& action) {
    std::vector<std::string> textes;
    sigc::connection guet = Glib::signal_timeout().connect(
        [&textes] {
            for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
                if (auto* message = dynamic_cast<Gtk::MessageDialog*>(fenetre)) {
                    textes.push_back(message->property_text().get_value());
                    message->response(Gtk::RESPONSE_OK);
                }
            return true;
        },
        20);
    action();
    guet.disconnect();
    return textes;
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
    ASSERT_EQ(elts.size(), 7u);
    EXPECT_EQ(elts[0]->Calque, -2);
    EXPECT_EQ(elts[0]->NbParents, 1);
    EXPECT_EQ(elts[1]->Style.Epaisseur, 2);
    EXPECT_EQ(elts[1]->Style.StyleLigne, Tirets);
    EXPECT_EQ(static_cast<EltSegment*>(elts[1])->Extremite.x, 100);
    const auto& disque = *static_cast<EltArc*>(elts[3]);
    EXPECT_EQ(disque.Rayon, 1234.57);
    EXPECT_EQ(disque.AngleDebut, 3.14159);
    EXPECT_EQ(disque.Ouverture, -1.5);
    EXPECT_TRUE(disque.Style.Remplissage && disque.Style.Hachure == 1 && !disque.Style.Contour);
    EXPECT_EQ(disque.Style.AngleHachure, 0.785398);
    EXPECT_EQ(disque.Style.PasHachure, 4.5);
    EXPECT_EQ(disque.Style.Couleur, Gdk::Color("#00ff00"));
    // A line drawn with the mouse is written, and so read back, as a rectangle.
    bdd.Vide();
    bdd.AjouteFin(std::make_unique<EltDroite>(PointVek(10, 0), PointVek(0, 0), 0));
    EXPECT_NE(bdd.SauveTexte().find("\n2\n14 1 0\n"), std::string::npos);
}

TEST(FichierNatif, TextesCoupesOuFaux) {
    BDDGeo bdd;
    // Cut off behind a record: one more of its type, with its default values.
    EXPECT_EQ(Types(bdd, "VERSION3.3\n9\n1" + Segment(0) + "1" + Segment(7)), "1 1 1 ");
    EXPECT_EQ(Types(bdd, "VERSION3.3\n2\n1" + Segment(0) + "1" + Segment(7)), "1 1 ");
    EXPECT_EQ(Types(bdd, "VERSION3.3\n2147483647\n1" + Segment(0) + "10000\n-1\n"), "1 ");
    EXPECT_EQ(Types(bdd, "VERSION3.3\n-5\n1" + Segment(0)), "");
    // A code that is none, and those that no drawing holds, take nothing with them.
    EXPECT_EQ(Types(bdd, "VERSION3.3\n5\n99 2 17 1" + Segment(0) + "10000\n-1\n"), "1 ");
    // A bad token stops the reading; what came before it stays.
    for (const char* faux : {"x", "1e400", "nan", "inf", "-"}) {
        std::string texte = "VERSION3.3\n4\n1" + Segment(3) + "1" + Segment(7) + "1" + Segment(9);
        texte.replace(texte.find("7 5 0"), 1, faux);
        EXPECT_EQ(Types(bdd, texte), "1 1 ") << faux;
        EXPECT_EQ(bdd.Elements.Premier()->Position.x, 3);
    }
    EXPECT_EQ(Types(bdd, "VERSION3.20\n2\n1" + Segment(0) + "10000\n-1\n"), "1 ");
}

TEST(FichierNatif, CeQuiManqueEstCompte) {
    const std::string chemin = std::string(getenv("HOME")) + "/bilan.vek";
    BDDGeo bdd;
    const auto bilan = [&](const std::string& texte) {
        std::ofstream(chemin) << "VERSION3.3\n" << texte;
        bdd.Ouvre(chemin);
        return Resume(bdd.Lecture);
    };
    const std::string deux = "1" + Segment(0) + "1" + Segment(7), fin = "10000\n-1\n";
    EXPECT_EQ(bilan("3\n" + deux + fin), "2/2");
    EXPECT_TRUE(bdd.Lecture.RienPerdu());
    EXPECT_EQ(bilan("2\n" + deux), "2/2");
    EXPECT_EQ(bilan("1\n" + fin), "0/0");
    // The element that a cut text gives besides is none of the file's.
    EXPECT_EQ(bilan("9\n" + deux), "2/8 cut");
    EXPECT_EQ(bdd.Elements.Nombre(), 3);
    EXPECT_EQ(bilan("3\n" + deux.substr(0, deux.size() - 4)), "1/2 cut");
    EXPECT_EQ(bilan("2\n" + deux + fin), "2/2 cut");
    EXPECT_EQ(bilan("3\n" + deux + "10000\n"), "2/2 cut");
    EXPECT_EQ(bilan("x"), "0/-1 cut");
    EXPECT_EQ(bilan("6\n99 2 17 " + deux + fin), "2/5, 3 éléments inconnus");
    EXPECT_FALSE(bdd.Lecture.RienPerdu());
    EXPECT_EQ(bilan("3\n" + deux + "10000\n0 5 -1 4 0 1 1 \n1 1 0 \n-1\n"),
              "2/2, 5 liens impossibles");
    // What a group lacks.
    const std::string groupe =
        "2\n15" + Segment(0).substr(0, Segment(0).find("\n0 0 0")) + "\nmoule\nVERSION3.3\n";
    const std::string ferme = "FinEltBDD\n" + fin;
    EXPECT_EQ(bilan(groupe + "3\n" + deux + fin + ferme), "1/1");
    EXPECT_EQ(bilan(groupe + "4\n99 " + deux + fin + ferme), "1/1 cut");
    EXPECT_EQ(bilan(groupe + "1\n" + fin), "0/1 cut");
    bdd.Vide();
    EXPECT_TRUE(bdd.Lecture.RienPerdu());
}

TEST(FichierNatif, LiensDEnfants) {
    BDDGeo bdd;
    const std::string quatre = "VERSION3.3\n5\n1" + Segment(0) + "1" + Segment(1) + "1" +
                               Segment(2) + "1" + Segment(3) + "10000\n";
    const auto relit = [&](const std::string& liens) {
        Types(bdd, quatre + liens);
        const std::string texte = bdd.SauveTexte();
        return texte.substr(texte.find("10000\n") + 6);
    };
    EXPECT_EQ(relit("3 2 1 2 \n-1\n"), "3 2 1 2 \n-1\n");
    // Bad indices, an element that holds itself; a child may be given twice.
    EXPECT_EQ(relit("0 5 -1 4 0 2 2 \n9 1 0 \n-7 2 1 1 \n3 1 -2147483648 \n-1\n"),
              "0 2 2 2 \n-1\n");
    EXPECT_EQ(relit("0 2147483647 1 "), "0 1 1 \n-1\n");
    EXPECT_EQ(relit("0 -3 3 1 1 \n-1\n"), "3 1 1 \n-1\n");
    // No loop, of whatever length.
    EXPECT_EQ(relit("0 1 1 \n1 1 0 \n-1\n"), "-1\n");
    relit("0 1 1 \n1 1 2 \n2 1 3 \n3 1 0 \n-1\n");
    int liens = 0;
    for (const EltGeo* elt : bdd.Elements)
        liens += elt->Fils.Nombre();
    EXPECT_LT(liens, 4);
    // What one reading kept, the next one keeps.
    const std::string garde = relit("1 1 3 \n2 1 1 \n0 1 2 \n-1\n");
    EXPECT_EQ(relit(garde), garde);
    // A child of another drawing is written as one that is nowhere.
    EltGeo ailleurs;
    Types(bdd, quatre + "-1\n");
    bdd.Elements.Premier()->AjouteFils(&ailleurs);
    EXPECT_NE(bdd.SauveTexte().find("10000\n0 1 -1 \n-1\n"), std::string::npos);
    EXPECT_EQ(relit("0 1 -1 \n-1\n"), "-1\n");
}

TEST(FichierNatif, MessageDeVersionUneFois) {
    const std::string chemin = std::string(getenv("HOME")) + "/ancien.vek";
    std::ofstream(chemin) << "VERSION2.3\n3\n1" << Segment(0);
    BDDGeo bdd;
    bdd.Ajoute(EltSegment({0, 0}, {9, 9}, 0));
    const std::string annonce =
        "Version du fichier incompatible.\n Contacter l'editeur.\nVersion3.2 attendue \n";
    EXPECT_EQ(Messages([&] { bdd.Ouvre(chemin); }),
              std::vector<std::string>{annonce + "VERSION2.3 reçue"});
    EXPECT_EQ(bdd.Elements.Nombre(), 0);
    EXPECT_EQ(bdd.NomFichier, chemin);
    EXPECT_TRUE(bdd.Nomme);
    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::PasUnDessin);
    EXPECT_FALSE(bdd.Annule());
    // Words that are no text for the toolkit, or far too long.
    EXPECT_EQ(Messages([&] {
                  bdd.ChargeTexte(
                      "PI\xc8"
                      "CE<b> 3");
              }),
              std::vector<std::string>{annonce + "PIÈCE<b> reçue"});
    EXPECT_EQ(Messages([&] { bdd.ChargeTexte(std::string(5000000, 'x')); }).size(), 1u);
    // A file that is not there, or is a folder, says nothing.
    EXPECT_TRUE(Messages([&] {
                    bdd.Ouvre(chemin + "/rien");
                    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::Absent);
                    bdd.Ouvre("/tmp");
                    EXPECT_EQ(bdd.Lecture.Fichier, BilanLecture::Dossier);
                    EXPECT_FALSE(bdd.Lecture.RienPerdu());
                    bdd.ChargeTexte("VERSION3.2\n1\n10000\n-1\n");
                }).empty());
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
