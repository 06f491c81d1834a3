// Solids swept along a profile: records and children.

#include <gtest/gtest.h>

#include "commun/record.h"
#include "elements/eltprofil.h"
#include "elements/lecteur.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofiltuberond.h"

namespace {

const std::string Entete = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
const std::string Neuf = "0 0 0\n10 1 1 1 1 1 0 0 50\n\n";
const std::string Marque = "1.5 2.5 3.5\n4.5 0 0 0 0 5.5 6.5 1 7\nmarque\n";

template <class Elt>
Elt Lu(const std::string& record) {
    Lecteur entree(record);
    int type = 0;
    entree >> type;
    Elt elt;
    elt.Charge(entree);
    EXPECT_EQ(type, elt.Type);
    return elt;
}

}  // namespace

TEST(Tubes, Records) {
    EXPECT_EQ(Record(EltProfilTubeRond()), "32" + Entete + "0 0 0\n" + Neuf + "10\n");
    EXPECT_EQ(Record(EltProfilBoaRond()), "33" + Entete + "0 0 0\n" + Neuf);
    const std::string jonc = "32" + Entete + "1 2 3\n" + Marque + "2.5\n";
    const std::string boa = "33" + Entete + "1 2 3\n" + Marque;
    const auto lu = Lu<EltProfilTubeRond>(jonc);
    EXPECT_EQ(Record(lu), jonc);
    EXPECT_EQ(Record(Lu<EltProfilBoaRond>(boa)), boa);
    EltProfilTubeRond copie, change;
    static_cast<EltGeo&>(copie).Copie(lu);
    EXPECT_EQ(Record(copie), jonc);
    change.ChangeElt3d(lu);
    EXPECT_EQ(Record(change), "32" + Entete + "0 0 0\n" + Marque + "10\n");
    EXPECT_EQ(lu.Distance3D({1, 2, 10}), 7.0);
    copie.rayon = -1.0;
    EXPECT_FALSE(copie.EstValide());
}

TEST(Tubes, UnGroupeATousSesProfils) {
    BDDGeoBase source;
    EltGeo* chemin = source.AjouteFin(std::make_unique<EltProfil>());
    EltGeo* enveloppe = source.AjouteFin(std::make_unique<EltProfil>());
    EltGeo* boa = source.AjouteFin(std::make_unique<EltProfilBoaRond>());
    boa->AjouteFils(chemin);
    boa->AjouteFils(enveloppe);
    EltBDD groupe;
    groupe.CopieListe(source);
    std::vector<EltGeo*> clones(groupe.Contenu.Elements.begin(), groupe.Contenu.Elements.end());
    ASSERT_EQ(clones.size(), 3u);
    const std::vector<EltGeo*> fils(clones[0]->Fils.begin(), clones[0]->Fils.end());
    EXPECT_EQ(fils, (std::vector<EltGeo*>{clones[2], clones[1]}));
    EXPECT_EQ(clones[2]->NbParents, 1);
}
