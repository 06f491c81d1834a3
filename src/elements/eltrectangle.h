#pragma once

#include "elements/eltsegment.h"

/// An axis-parallel rectangle kept by two opposite corners. `Origine` is the upper left one and
/// `Extremite` the lower right one once the corners have been put in order; a file may hold them
/// otherwise, so everything reads them through `Coins`.
class EltRectangle : public EltSegment {
  public:
    explicit EltRectangle(int type = TypeRectangle);
    EltRectangle(const PointVek& origine, const PointVek& extremite, int calque);
    EltRectangle(const EltRectangle&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Dessine(Trace& trace) const override;
    void DessinePoignees(Trace& trace) const override;
    void Transforme(const TransformeColle& t) override;
    void ChangeTrait(const Trait& trait) override;
    void Deforme(const PointVek& v) override;

    /// To the nearest edge, for a filled rectangle too.
    double Distance(const PointVek& p) const override;
    double DistanceSupport(const PointVek& p) const override;
    Minorant MinorantDistance() const override;
    PointVek PointProche(const PointVek& p) const override;
    bool Proprietes() override;

    /// Moves the whole rectangle.
    void SetOrigine(const PointVek& p) override;

    struct CoinsOrdonnes {
        PointVek HautGauche;
        PointVek BasDroite;

        PointVek BasGauche() const { return {HautGauche.x, BasDroite.y}; }
        PointVek HautDroite() const { return {BasDroite.x, HautGauche.y}; }
    };

    /// The corners in the class's order, whatever the data.
    CoinsOrdonnes Coins() const;

    /// Puts the corners in the class's order.
    void Ordonne();

    /// True when the centre of elt lies strictly inside.
    bool Contient(const EltGeo& elt) const;

  private:
    void DessinePolygone(Trace& trace) const;
};
