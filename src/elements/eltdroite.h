#pragma once

#include "elements/eltsegment.h"

/// An endless line through two points.
class EltDroite : public EltSegment {
  public:
    EltDroite();

    /// The line carries the type code of the rectangle, and so does its record in a file, which is
    /// read back as a rectangle: the form of the files written so far.
    EltDroite(const PointVek& origine, const PointVek& extremite, int calque);
    EltDroite(const EltDroite& source);

    std::unique_ptr<EltGeo> Clone() const override;
    void Dessine(Trace& trace) const override;
    void DessinePoignees(Trace& trace) const override;
    void ChangeTrait(const Trait& trait) override;
    double Distance(const PointVek& p) const override;
    Minorant MinorantDistance() const override;
    bool Proprietes() override;

    /// Moves the whole line.
    void SetOrigine(const PointVek& p) override;
};
