// The dialogs of solids made of profiles, and the one on the size of grids.

#include <gtest/gtest.h>
#include <gtkmm/checkbutton.h>

#include "bureau.h"
#include "commun/record.h"
#include "dialogues.h"
#include "solids/eltimage3d.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofilruban.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltrainurep.h"

namespace {

const std::string Attributs =
    "|h=10|alpha=0|béta=0|gamma=0|texture=|facétisation=50|Echelle Texture=1|Brillance=0|0";
const std::string Change = "1.5 2.5 -3.5\n-4.5 0 0 0 0 0.5 7 1 12\nbois é.png\n";

void Inverse(Gtk::Dialog& dialogue) {
    std::vector<Gtk::CheckButton*> coches;
    Recolte(dialogue, coches);
    for (Gtk::CheckButton* coche : coches)
        coche->set_active(!coche->get_active());
}

/// What the dialog of a new element showed, whose attributes start at the field of rank premier,
/// after all of them were changed; nothing was when nothing was entered, or the answer was no.
template <class Elt>
std::string ToutChange(Elt& elt, std::size_t premier) {
    const std::string avant = Record(elt);
    const char* const textes[] = {"-4.5", "1.5", "2.5", "-3.5", "bois é.png", "12.4", "0,5", "7"};
    Saisies saisies;
    for (std::size_t i = 0; i < 8; ++i)
        saisies.emplace_back(premier + i, textes[i]);
    Repond(elt, {});
    Repond(elt, saisies, Gtk::RESPONSE_CANCEL, Inverse);
    EXPECT_EQ(Record(elt), avant);
    return Repond(elt, saisies, Gtk::RESPONSE_OK, Inverse);
}

template <class Elt>
Elt Profil() {
    Elt elt;
    elt.Debut({1, 2});
    elt.Ajoute({1, 2});
    elt.Ajoute({11, 2});
    return elt;
}

/// The record behind the style.
std::string Suite(const EltGeo& elt) {
    const std::string record = Record(elt);
    return record.substr(record.find("  0\n") + 4);
}

}  // namespace

TEST(ProprietesProfils, ChaqueChamp) {
    const std::string centre = "|X=1|Y=2|Z=0", sommets = "1 2 0\n1\n2\n0 0 0 10 0 0 \n";
    auto elevation = Profil<EltProfilElevation>();
    EXPECT_EQ(ToutChange(elevation, 3), "Propriété du ProfilElevation" + centre + Attributs);
    EXPECT_EQ(Suite(elevation), sommets + Change);
    auto tourne = Profil<EltProfilTourne>();
    EXPECT_EQ(ToutChange(tourne, 3), "Propriété du ProfilTourne" + centre + Attributs);
    EXPECT_EQ(Suite(tourne), sommets + Change);
    auto ruban = Profil<EltProfilRuban>();
    EXPECT_EQ(ToutChange(ruban, 3), "Propriété du Ruban" + centre + Attributs);
    EXPECT_EQ(Suite(ruban), sommets + Change);
    auto surface = Profil<EltProfilSurface>();
    EXPECT_EQ(ToutChange(surface, 3), "Propriété du profil Surface" + centre + Attributs);
    EXPECT_EQ(Suite(surface), sommets + Change + "4 4\n");
    auto rainure = Profil<EltRainureP>();
    EXPECT_EQ(ToutChange(rainure, 3), "Propriété du RainureProfil" + centre + Attributs);
    EXPECT_EQ(Suite(rainure), sommets + Change + "0\n");
}

TEST(ProprietesProfils, TubesEtImages) {
    EltProfilTubeRond tube;
    EXPECT_EQ(ToutChange(tube, 4), "Propriété du ProfilTubeRond|X=0|Y=0|Z=0|R Inf=10" + Attributs);
    EXPECT_EQ(Suite(tube), "0 0 0\n" + Change + "10\n");
    Repond(tube, {{2, "5"}, {3, "2.5"}});
    EXPECT_EQ(Suite(tube), "0 0 5\n" + Change + "2.5\n");
    Repond(tube, {{3, "-1"}, {4, "8"}}, Gtk::RESPONSE_OK, [](Gtk::Dialog& dialogue) {
        EXPECT_EQ(RefusDe(dialogue), "R Inf doit dépasser 0.");
        Champs(dialogue).at(3)->set_text("3");
    });
    EXPECT_EQ(tube.rayon, 3.0);
    EXPECT_EQ(tube.h, 8.0);
    EltProfilBoaRond boa;
    EXPECT_EQ(ToutChange(boa, 3), "Propriété du ProfilBoaRond|X=0|Y=0|Z=0" + Attributs);
    EXPECT_EQ(Suite(boa), "0 0 0\n" + Change);
    EltImage3d image;
    EXPECT_EQ(
        ToutChange(image, 6),
        "Image de bdd|X=0|Y=0|Z=0|Identificateur=defaut|angle=0|Agrandissement=1" + Attributs);
    // No facets on an image.
    EXPECT_EQ(Suite(image),
              "0 0 0\ndefaut\n0\n1\n1.5 2.5 -3.5\n-4.5 0 0 0 0 0.5 7 1 50\nbois é.png\n");
    Repond(image, {{3, "vis"}, {4, "90"}, {5, "2"}});
    EXPECT_EQ(Suite(image).substr(0, 24), "0 0 0\nvis\n1.5708\n2\n1.5 2");
}

TEST(ProprietesProfils, DimensionDuTableauDePoints) {
    Bureau bureau;
    const auto repond = [&](const char* lignes, const char* colonnes, int reponse) {
        RepondDialogue(reponse, [&](Gtk::Dialog& dialogue) {
            EXPECT_EQ(dialogue.get_title(), "Nombre de lignes / Nombre de Colonnes");
            std::vector<Gtk::Entry*> champs;
            Recolte(dialogue, champs);
            ASSERT_EQ(champs.size(), 2u);
            champs[0]->set_text(lignes);
            champs[1]->set_text(colonnes);
        });
        bureau.Choisit("SurfacePref");
        const EltProfilSurface& surface = bureau.Zone.Outils.Protos.ProfilSurface;
        return std::pair(surface.nbX, surface.nbY);
    };
    EXPECT_EQ(repond("6", "7", Gtk::RESPONSE_CANCEL), std::pair(4, 4));
    EXPECT_EQ(repond("6", "7.4", Gtk::RESPONSE_OK), std::pair(6, 7));
    std::string phrase;
    RefuseSaisie("2", phrase);
    bureau.Choisit("SurfacePref");
    EXPECT_EQ(phrase, "Chaque nombre doit valoir 3 au moins.");
}
