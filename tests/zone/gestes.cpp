// Gestures as they are written down under data/, with what must come of each: the numbers were
// worked out by hand. A line is a gesture or a command, with positions in drawing units; `etat`
// enters the tool of that number, `saisie` and `refus` answer the next dialog with what is typed
// into its fields, `?` asks for the colour at a place.

#include <gtest/gtest.h>

#include <sstream>

#include "commun/record.h"
#include "zone/seance.h"

class Gestes : public testing::TestWithParam<const char*> {};

TEST_P(Gestes, FontCeQuiEstEcrit) {
    const std::string nom = std::string("zone/data/") + GetParam() + ".txt";
    std::istringstream ecrit(Contenu(KRVEK_ESSAIS "/" + nom));
    std::string vu;
    Seance seance;
    for (std::string ligne; std::getline(ecrit, ligne);)
        if (ligne.compare(0, 4, "    ") != 0) vu += ligne + '\n' + seance.Joue(ligne);
    seance.Finit();
    ExigeFichier(nom, vu);
}

INSTANTIATE_TEST_SUITE_P(Tous, Gestes,
                         testing::Values("outils", "cotes", "solides", "profils", "edition", "vue",
                                         "collage"),
                         [](const auto& cas) { return std::string(cas.param); });
