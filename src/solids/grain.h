#pragma once

#include <functional>

/// How finely bodies are made. It is lowered where that does not show, or where a picture would
/// take too long.
struct Grain {
    /// Walls and caps are cut into rings. They need to be where the light varies along them.
    bool Anneaux = true;

    /// The most pieces that one solid may be made of.
    double PiecesMax = 200000.0;

    bool operator==(const Grain& autre) const {
        return Anneaux == autre.Anneaux && PiecesMax == autre.PiecesMax;
    }
};

/// At most facettes, and as few as it takes to hold cout(facettes), which grows with them, within
/// maximum; not below 1 but where facettes is.
int FacettesTenables(int facettes, const std::function<double(double)>& cout, double maximum);
