// What the view shows and what is done in it, as the files beside this tell.

#include <gtest/gtest.h>

#include "scenario.h"

class Scenes : public testing::TestWithParam<CasEcrit> {};

TEST_P(Scenes, SontCommeEcrites) {
    Scenario(GetParam()).Joue();
}

// Bodies, holes and envelopes against rays: exactly where the passes subtract exactly, elsewhere
// as the passes do.
INSTANTIATE_TEST_SUITE_P(Corps, Scenes, testing::ValuesIn(CasDe("view3d/data/corps.txt")),
                         testing::PrintToStringParamName());

// Where textures lie, how light falls, what free surfaces cover: probes worked out by hand.
INSTANTIATE_TEST_SUITE_P(Faces, Scenes, testing::ValuesIn(CasDe("view3d/data/faces.txt")),
                         testing::PrintToStringParamName());

// Keys, mouse, menus, and what they do to the drawing.
INSTANTIATE_TEST_SUITE_P(Gestes, Scenes, testing::ValuesIn(CasDe("view3d/data/gestes.txt")),
                         testing::PrintToStringParamName());
