#pragma once

#include <cstdlib>
#include <random>

#include "elements/pointvek.h"

/// Random values that are the same on every run.
class Hasard {
  public:
    explicit Hasard(unsigned graine) : Moteur(graine) {}

    double Reel(double bas, double haut) { return bas + (haut - bas) * (Moteur() / 4294967296.0); }
    int Entier(int borne) { return static_cast<int>(Moteur() % static_cast<unsigned>(borne)); }
    PointVek Point(double portee) { return {Reel(-portee, portee), Reel(-portee, portee)}; }

  private:
    std::mt19937 Moteur;
};

/// The seed of a user who acts at random: `KRVEK_GRAINE` where it is set, for longer runs.
inline unsigned Graine(unsigned habituelle) {
    const char* const autre = std::getenv("KRVEK_GRAINE");
    return autre ? static_cast<unsigned>(std::strtoul(autre, nullptr, 10)) : habituelle;
}
