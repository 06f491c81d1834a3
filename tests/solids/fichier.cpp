// Drawings with solids: the text byte for byte, and bad ones.

#include <gtest/gtest.h>

#include <string>

#include "commun/hasard.h"
#include "commun/mutation.h"
#include "commun/record.h"
#include "elements/lecteur.h"
#include "elements/toile.h"
#include "model/bddgeo.h"
#include "solids/soustractif.h"

namespace {

// Each class of solid, with all that a solid may hold as children.
const char* const Solides = KRVEK_ESSAIS "/solids/data/solides.vek";

// The same of those made of profiles, and a group that holds an image of itself.
const char* const Profils = KRVEK_ESSAIS "/solids/data/profils.vek";

std::string Relit(const std::string& texte) {
    BddCourante.Vide();
    Lecteur entree(texte);
    BddCourante.Charge(entree);
    return BddCourante.SauveTexte();
}

}  // namespace

TEST(FichierSolides, OctetPourOctet) {
    const std::string texte = Contenu(Solides);
    ASSERT_FALSE(texte.empty());
    EXPECT_EQ(Relit(texte), texte);
    const EltGeo& plaque = *BddCourante.Elements.Premier();
    std::string creux;
    for (const EltGeo* fils : plaque.Fils) {
        EXPECT_EQ(fils->NbParents, 1);
        const Soustractif* soustractif = CommeSoustractif(*fils);
        creux += soustractif ? (soustractif->debouchant ? 'd' : 'b') : '-';
    }
    EXPECT_EQ(creux, "dbb-") << "a hole and a blind one, a blind groove, an envelope";
    BddCourante.Vide();
}

TEST(FichierSolides, OctetPourOctetDesProfils) {
    const std::string texte = Contenu(Profils);
    ASSERT_FALSE(texte.empty());
    EXPECT_EQ(Relit(texte), texte);
    std::string enfants;
    for (const EltGeo* elt : BddCourante.Elements)
        for (const EltGeo* fils : elt->Fils)
            enfants += std::to_string(elt->Type) + '-' + std::to_string(fils->Type) + ' ';
    EXPECT_EQ(enfants, "20-30 32-5 33-5 33-5 ");
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
