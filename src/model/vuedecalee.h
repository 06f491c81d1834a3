#pragma once

#include "model/echelle.h"

/// While it lives, what is painted appears displaced by plus position, which is itself enlarged and
/// turned as the view was before.
class VueDecalee {
  public:
    explicit VueDecalee(const PointVek& position)
        : Origine(EchelleCourante.Origine),
          Rotation(EchelleCourante.Rotation),
          Agrandissement(EchelleCourante.Agrandissement) {
        PointVek decalage = position * Agrandissement;
        decalage.Tourne(Rotation);
        EchelleCourante.Origine = Origine - decalage;
    }

    /// The content is turned (radians) and enlarged as well; the values replace those in force.
    VueDecalee(const PointVek& position, double rotation, double agrandissement)
        : VueDecalee(position) {
        EchelleCourante.Rotation = rotation;
        EchelleCourante.Agrandissement = agrandissement;
    }

    ~VueDecalee() {
        EchelleCourante.Agrandissement = Agrandissement;
        EchelleCourante.Rotation = Rotation;
        EchelleCourante.Origine = Origine;
    }

    VueDecalee(const VueDecalee&) = delete;
    VueDecalee& operator=(const VueDecalee&) = delete;

  private:
    const PointVek Origine;
    const double Rotation;
    const double Agrandissement;
};
