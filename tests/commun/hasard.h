#pragma once

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
