// What solids have in a file, what is copied of them, and bad drawings.

#include <gtest/gtest.h>

#include <fstream>

#include "commun/hasard.h"
#include "commun/mutation.h"
#include "commun/record.h"
#include "ecrit.h"
#include "elements/ecrivain.h"
#include "elements/toile.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "solids/elt3d.h"
#include "solids/eltprofilsurface.h"
#include "solids/soustractif.h"

namespace {

// Each class of solid and what it may hold, then those made of profiles and a group of itself.
const char* const Solides = KRVEK_ESSAIS "/solids/data/solides.vek";
const char* const Profils = KRVEK_ESSAIS "/solids/data/profils.vek";

/// Attributes that are all different from those of a new solid.
const std::string Marques = "1.5 2.5 3.5\n4.5 0 0 0 0 5.5 6.5 1 7\nmarque\n";

std::string Relit(const std::string& texte) {
    BddCourante.Vide();
    Lecteur entree(texte);
    BddCourante.Charge(entree);
    return BddCourante.SauveTexte();
}

std::string Ecrit(const Elt3d& solide) {
    Ecrivain sortie;
    solide.Sauve(sortie);
    return sortie.Texte();
}

/// The attributes of a record with that second line and that texture, read and written again.
std::string RelitAttributs(const std::string& ligne, const std::string& texture = "bois.png") {
    const std::string record = "1 2 3\n" + ligne + "\n" + texture + "\n77";
    Lecteur entree(record);
    Elt3d solide;
    solide.Charge(entree);
    int suite = 0;
    entree >> suite;
    EXPECT_EQ(suite, 77) << "what follows the record";
    return Ecrit(solide);
}

Elt3d& Solide(EltGeo& elt) {
    return dynamic_cast<Elt3d&>(elt);
}

}  // namespace

TEST(Attributs, DeTousLesAges) {
    std::ifstream fichier(KRVEK_ESSAIS "/solids/data/attributs.txt");
    for (std::string ligne; std::getline(fichier, ligne);) {
        if (ligne[0] == '#') continue;
        const std::size_t fleche = ligne.find("=> ");
        EXPECT_EQ(RelitAttributs(ligne.substr(0, fleche - 1)),
                  "1 2 3\n" + ligne.substr(fleche + 3) + "\nbois.png\n")
            << ligne;
    }
    EXPECT_EQ(RelitAttributs("10 1 0 " + std::string(5000, '1')),
              "1 2 3\n10 1 0 1 1 1 0 0 100\nbois.png\n");
}

TEST(Attributs, NomsDeTextures) {
    const auto relit = [](const std::string& nom) {
        const std::string texte = RelitAttributs("10", nom);
        return texte.substr(texte.find("100\n") + 4);
    };
    EXPECT_EQ(relit(""), "\n");
    EXPECT_EQ(relit(" bois clair é.png "), " bois clair é.png \n");
    EXPECT_EQ(relit("ch\xeane.png"), "chêne.png\n");
    Glib::ustring longue;
    for (int i = 0; i < 300; ++i)
        longue += "é";
    const std::string coupe = longue.substr(0, 256).raw() + '\n';
    EXPECT_EQ(relit(longue), coupe);
    Elt3d solide;
    solide.texture = longue;
    EXPECT_EQ(Ecrit(solide), "0 0 0\n10 1 1 1 1 1 0 0 50\n" + coupe);
    solide.texture = "deux\nlignes";
    EXPECT_EQ(Ecrit(solide), "0 0 0\n10 1 1 1 1 1 0 0 50\ndeux lignes\n");
}

// What a dialog changes, what is pasted over an existing element, and what a clone has.
TEST(Attributs, CeQueChaqueClassePrend) {
    std::string vu;
    for (int type = TypePave; type <= TypeProfilBoaRond; ++type) {
        const auto source = CreeElement(type), change = CreeElement(type),
                   copie = CreeElement(type);
        Lecteur entree(Marques);
        Solide(*source).Charge(entree);
        change->ChangeElt3d(Solide(*source));
        copie->Copie(*source);
        const auto clone = source->Clone();
        vu += std::to_string(type) + '\n';
        for (EltGeo* elt : {change.get(), copie.get(), clone.get()})
            vu += Ecrit(Solide(*elt));
    }
    ExigeFichier("solids/data/prises.txt", vu);
}

TEST(FichierSolides, OctetPourOctet) {
    std::string enfants;
    for (const char* nom : {Solides, Profils}) {
        const std::string texte = Contenu(nom);
        EXPECT_EQ(Relit(texte), texte);
        for (const EltGeo* elt : BddCourante.Elements)
            for (const EltGeo* fils : elt->Fils) {
                const Soustractif* creux = CommeSoustractif(*fils);
                enfants += std::to_string(elt->Type) + '-' + std::to_string(fils->Type) +
                           (creux                   ? creux->debouchant ? "d " : "b "
                            : CommeEnveloppe(*fils) ? "e "
                                                    : " ");
            }
        // Besides its attributes a solid has nothing that a copy of it has not.
        for (const EltGeo* elt : BddCourante.Elements) {
            if (elt->Type < TypePave) continue;
            const auto copie = CreeElement(elt->Type);
            copie->Copie(*elt);
            Solide(*copie).Copie(dynamic_cast<const Elt3d&>(*elt));
            EXPECT_EQ(Record(*copie), Record(*elt));
            EXPECT_EQ(Record(*elt->Clone()), Record(*elt));
        }
    }
    EXPECT_EQ(enfants, "19-27d 19-27b 19-29b 19-28e 22-27d 20-30b 32-5 33-5 33-5 ");
    BddCourante.Vide();
}

TEST(FichierSolides, UnGroupeATousSesProfils) {
    Relit(Contenu(Profils));
    EltBDD groupe;
    groupe.CopieListe(BddCourante);
    int enfants = 0;
    for (const EltGeo* elt : groupe.Contenu.Elements)
        for (const EltGeo* fils : elt->Fils)
            enfants += groupe.Contenu.Elements.Contient(fils);
    EXPECT_EQ(enfants, 4);
    BddCourante.Vide();
}

class MutationsSolides : public testing::TestWithParam<const char*> {};

TEST_P(MutationsSolides, AuHasard) {
    const std::string bon = Contenu(GetParam());
    Hasard hasard(11);
    const Toile toile;
    int lus = 0;
    for (int essai = 0; essai < 3000; ++essai) {
        const std::string texte = Mute(bon, hasard);
        const std::string premier = Relit(texte);
        ASSERT_LE(premier.size(), 2 * texte.size() + 500);
        const std::string second = Relit(premier);
        ASSERT_EQ(Relit(second), second) << texte;
        if (essai % 8 > 0) continue;
        TraceEcran trace = toile.Pinceau();
        BddCourante.Dessine(trace);
        for (EltGeo* elt : BddCourante.Elements) {
            ++lus;
            ASSERT_TRUE(elt->EstFini()) << texte;
            elt->Distance3D({1, 2, 3});
            elt->PointProche3D({1, 2, 3});
            BddCourante.ChangeEnsemble(*elt, *elt->Clone(), {1, 1});
        }
        while (BddCourante.Annule()) {
        }
    }
    EXPECT_GT(lus, 1500);
    BddCourante.Vide();
}

INSTANTIATE_TEST_SUITE_P(Tous, MutationsSolides, testing::Values(Solides, Profils));

// Undo takes back all that a dialog changes; what is not finite, or no body, does not enter.
TEST(FichierSolides, ChangeEtAnnule) {
    for (const char* nom : {Solides, Profils}) {
        Relit(Contenu(nom));
        for (EltGeo* elt : BddCourante.Elements) {
            if (!dynamic_cast<Elt3d*>(elt)) continue;
            const std::string avant = Record(*elt);
            auto change = elt->Clone();
            Solide(*change).brillance = 12.25;
            Solide(*change).h = 7.25;
            EXPECT_TRUE(BddCourante.Change(*elt, *change)) << avant;
            EXPECT_NE(Record(*elt), avant);
            EXPECT_TRUE(BddCourante.Annule());
            EXPECT_EQ(Record(*elt), avant);
            for (double Elt3d::*champ : {&Elt3d::alpha, &Elt3d::beta, &Elt3d::gamma, &Elt3d::h,
                                         &Elt3d::echelleTexture, &Elt3d::brillance}) {
                change = elt->Clone();
                Solide(*change).*champ = NAN;
                EXPECT_FALSE(change->EstFini());
                EXPECT_FALSE(BddCourante.Change(*elt, *change));
            }
        }
    }
    BddCourante.Vide();
    for (const char* record : {"21 1 0 0 0|5 0 6.28319|0 0 0|10 1 1 1 1 1 0 0 50||-1",
                               "32 1 0 0 0|0 0 0|10 1 1 1 1 1 0 0 50||0"}) {
        std::istringstream mots(record);
        EXPECT_FALSE(EltDe(LitRecord(mots))->EstValide()) << record;
    }
}
