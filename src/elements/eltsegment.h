#pragma once

#include "elements/eltgeo.h"

class EltArc;

/// A straight segment; `Position` is its middle. Also the home of the straight constructions.
class EltSegment : public EltGeo {
  public:
    explicit EltSegment(int type = TypeSegment);
    EltSegment(const PointVek& origine, const PointVek& extremite, int calque);
    EltSegment(const EltSegment&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Dessine(Trace& trace) const override;
    void DessinePoignees(Trace& trace) const override;
    void Place(const PointVek& p) override;
    void Deplace(const PointVek& v) override;
    void Transforme(const TransformeColle& t) override;
    void DebutDeforme(const PointVek& p) override;

    /// Handle 1 moves the whole, 2 the end, 3 the origin.
    void Deforme(const PointVek& v) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    double Distance(const PointVek& p) const override;
    double DistanceSupport(const PointVek& p) const override;
    Minorant MinorantDistance() const override;
    void Recalcule() override;
    PointVek PointProche(const PointVek& p) const override;
    bool Proprietes() override;

    /// Unit vector from origin to end; not a number for a null segment.
    PointVek Direction() const override;
    bool EstFini() const override;
    bool EstValide() const override;

    virtual void SetOrigine(const PointVek& p);

    /// Keeps middle and direction.
    void SetLongueur(double longueur);

    /// Keeps middle and length; angle in radians.
    void SetAngle(double angle);

    void SetExtremite(const PointVek& p);
    void SetPoints(PointVek origine, PointVek extremite);

    /// Grows the segment symmetrically about its unchanged middle, up to p.
    void SetExtremiteSymetrique(const PointVek& p);

    double Longueur() const;
    double Angle() const;

    /// Foot of p on the line; the middle when the segment is null.
    PointVek Projete(const PointVek& p) const;

    /// True when p lies to the right, looking from origin to end.
    bool Cote(const PointVek& p) const;

    /// Crossing of the two endless lines; false when they are parallel.
    bool Intersection(const EltSegment& autre, PointVek& croisement) const;

    void Parallele(const PointVek& p, const EltSegment& segment);
    void DepuisCentre(const PointVek& p, const EltGeo& elt);

    /// A copy of the segment's points shifted to its left by distance.
    void ParalleleDistance(const EltSegment& segment, double distance);

    /// The same on the side of p.
    void ParalleleCote(double distance, const EltSegment& segment, const PointVek& p);

    /// Asks the user for the distance, then `ParalleleCote`. False when he gives up. Defined beside
    /// its dialog.
    bool DemandeParallele(const EltSegment& segment, const PointVek& p);

    /// A segment of the same length at right angle, centred on the drawing's origin.
    void Orthogonal(const EltSegment& segment);

    /// From the circle to p, tangent to it on the side asked for; a radial segment when p is not
    /// outside the circle.
    void Tangente(const PointVek& p, const EltArc& arc, bool horaire);

    /// From what elt is to p: tangent to an arc, parallel to a segment or line, from the centre of
    /// anything else.
    void Accroche(const PointVek& p, const EltGeo& elt, bool horaire);

    /// The common tangent of two arcs whose middle is nearest to p. False, with nothing changed,
    /// when there is none or one of the elements is not an arc.
    bool Tangente2Arcs(const PointVek& p, const EltGeo& premier, const EltGeo& second);

    PointVek Origine;
    PointVek Extremite;
};
