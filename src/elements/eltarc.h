#pragma once

#include "elements/coupe.h"
#include "elements/eltgeo.h"

class EltSegment;

/// An arc or, with an opening of a full turn, a circle; `Position` is the centre. Also the home of
/// the round constructions.
class EltArc : public EltGeo {
  public:
    /// A full circle of radius 0.
    explicit EltArc(int type = TypeArc);

    /// Angles in radians.
    EltArc(const PointVek& centre, double rayon, double debut, double ouverture, int calque);
    EltArc(const EltArc&) = default;

    std::unique_ptr<EltGeo> Clone() const override;

    /// Takes the source's type too.
    void Copie(const EltGeo& source) override;
    void Dessine(Trace& trace) const override;
    void DessinePoignees(Trace& trace) const override;

    /// Mirrors reach the angles, leaving a negative opening after one mirror, which files hold too;
    /// the rotation does not, as users know their pasted arcs.
    void Transforme(const TransformeColle& t) override;
    void ChangeTrait(const Trait& trait) override;
    void DebutDeforme(const PointVek& p) override;

    /// Handle 1 moves the whole, 2 the end, 3 the start with the opening kept.
    void Deforme(const PointVek& v) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;

    /// To the full circle, whatever the opening.
    double Distance(const PointVek& p) const override;

    /// To the full circle or its centre.
    double DistanceSupport(const PointVek& p) const override;
    Minorant MinorantDistance() const override;
    PointVek PointProche(const PointVek& p) const override;
    bool Proprietes() override;

    /// (0, radius).
    PointVek Direction() const override;
    bool EstFini() const override;
    bool EstValide() const override;

    PointVek Debut() const;
    PointVek Fin() const;

    /// A full circle about the present centre through p.
    virtual void SetRayonPoint(const PointVek& p);

    /// A full circle of radius 10 about p.
    virtual void SetCentreDefaut(const PointVek& p);

    /// Radius and start from p; an opening of 15 degrees, so that a preview shows something.
    void SetDebutPoint(const PointVek& p);
    void SetFinPoint(const PointVek& p);

    /// Turns the arc so that it starts toward p; the opening is kept.
    void PlaceDebut(const PointVek& p);

    /// Ends the arc toward p; the opening never becomes null.
    void PlaceFin(const PointVek& p);

    /// Start, end and radius about the present centre; a full circle when a point is the centre.
    void DepuisPoints(const PointVek& debut, const PointVek& fin, double rayon);

    /// The quarter turn from a to b whose centre is on the left of a to b.
    void Arc2Points(const PointVek& a, const PointVek& b);

    /// The arc from a to b whose centre is on the left of a to b, as far from the chord's middle as
    /// c is. The side of c plays no part: users choose it by the order of the two ends.
    void Arc3Points(const PointVek& a, const PointVek& b, const PointVek& c);

    /// The full circle centred on p and tangent to elt, through the centre of what is neither
    /// straight nor round.
    void TangentPoint(const EltGeo& elt, const PointVek& p);

    /// A circle tangent to both elements, chosen by p. False, with nothing changed, when there is
    /// none.
    bool Tangent2Elements(const EltGeo& premier, const EltGeo& second, const PointVek& p);

    /// The arc of radius rayon, under half a turn, that rounds the two elements off on the side of
    /// p, from contact to contact. False, with nothing changed, when there is none.
    bool Tangent2ElementsRayon(const EltGeo& premier, const EltGeo& second, const PointVek& p,
                               double rayon);

    double Rayon = 0.0;
    double AngleDebut = 0.0;  ///< Radians.
    double Ouverture;         ///< Radians from the start, counter-clockwise when positive.

  protected:
    /// The arc in pixels.
    ArcEcran VersEcran() const;
    void DessinePlein(Trace& trace) const;

  private:
    void FaitCercle(const PointVek& centre, double rayon);

    /// Centre and radius, then start and opening from the two ends.
    void FaitArc(const PointVek& centre, double rayon, const PointVek& debut, const PointVek& fin);
    double AngleVers(const PointVek& p) const;

    bool TangentSegmentPoint(const EltGeo& point, const EltSegment& segment);
    bool Tangent2Segments(const EltSegment& s1, const EltSegment& s2, const PointVek& p);
    bool TangentSegmentArc(const EltSegment& segment, const EltArc& arc, const PointVek& p);
    bool Tangent2Arcs(const EltArc& a1, const EltArc& a2, const PointVek& p);
    bool Conge2Segments(const EltSegment& s1, const EltSegment& s2, const PointVek& p,
                        double rayon);
    bool CongeSegmentArc(const EltSegment& segment, const EltArc& arc, const PointVek& p,
                         double rayon);
    bool Conge2Arcs(const EltArc& a1, const EltArc& a2, const PointVek& p, double rayon);
    void FaitConge(const PointVek& centre, double rayon, const PointVek& c1, const PointVek& c2);
};
