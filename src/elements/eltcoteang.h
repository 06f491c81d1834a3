#pragma once

#include "elements/eltcote.h"

/// The angle of a sector, counter-clockwise from its first side to its second. `Point1` and
/// `Point2` are the origins of the two segments that give the sides; `Position` is the middle of
/// the dimension arc, whose radius is the distance of `Extremite2` from the apex.
class EltCoteAng : public EltCote {
  public:
    EltCoteAng() : EltCote(TypeCoteAng, "Nice") {}
    EltCoteAng(const EltCoteAng&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Deplace(const PointVek& v) override;

    /// One mirror exchanges the two sides, so that the sector stays the same.
    void Transforme(const TransformeColle& t) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;

    /// Puts the text on the middle of the arc, across the bisector.
    void Recalcule() override;
    bool EstFini() const override;

    /// False when one of the sides is null.
    bool EstValide() const override;

    /// In degrees; a full turn where a side is null.
    double Valeur() const override;
    void SetPoint1(const PointVek& p) override;
    void SetPoint2(const PointVek& p) override;

    /// Places the end of the first segment, and of the second as a beginning.
    void PlaceLigne(const PointVek& p) override;

    /// Places the end of the second segment, and stores the value as the text.
    void PlaceExtremite2(const PointVek& p);

    Glib::ustring TexteValeur() const override;

    PointVek Extremite1;
    PointVek Extremite2;
    PointVek Sommet;

  protected:
    double AngleCote() const override;
    double Flou() const override;
    double PorteeLignes() const override;
    void DessineLignes(Trace& trace) const override;

  private:
    /// In radians.
    struct Ouvert {
        double Debut;
        double Ouverture;
        double Milieu() const { return Debut + Ouverture / 2.0; }
    };

    /// The sector from the direction a to the direction b, y upward; a full turn where one is null.
    static Ouvert Secteur(const PointVek& a, const PointVek& b, double epsilon);
    Ouvert Secteur() const;

    /// The apex, where the lines of the two segments cross.
    void CalculeSommet();
};
