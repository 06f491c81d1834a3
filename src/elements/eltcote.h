#pragma once

#include "elements/elttxt.h"

/// Decimals that every dimension shows at most; one for the program.
extern int NbDecimales;

/// Whether that many decimals can be shown: 0 to 15.
bool EstNombreDecimales(int nombre);

/// A dimension between two points, along the line that joins them, and the base of all dimensions:
/// a text that knows the value it measures. `Position` is the anchor of the text, on the dimension
/// line; `Angle` follows from the points, and `Texte` is shown as it stands, or is the value of the
/// moment when it begins with "*".
class EltCote : public EltTxt {
  public:
    explicit EltCote(int type = TypeCote, const char* police = "Arial");
    EltCote(const EltCote&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Dessine(Trace& trace) const override;
    void DessinePoignees(Trace& trace) const override;
    void Deplace(const PointVek& v) override;
    void Transforme(const TransformeColle& t) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    Minorant MinorantDistance() const override;
    bool Proprietes() override;

    /// The unit vector along which it measures; null between equal points.
    PointVek Direction() const override;
    bool EstFini() const override;
    bool EstValide() const override;

    /// What is measured: drawing units, degrees for an angle.
    virtual double Valeur() const;

    // Each brings the dimension line back onto the points.
    virtual void SetPoint1(const PointVek& p);
    virtual void SetPoint2(const PointVek& p);

    /// Brings the dimension line to p and stores the value as the text.
    virtual void PlaceLigne(const PointVek& p);

    /// The value as it is shown: 12 significant digits, then cut, not rounded, to `NbDecimales`.
    /// What the digits of a file may have taken from it is given back before the cut, so that a
    /// dimension reads the same before and after a drawing is saved.
    virtual Glib::ustring TexteValeur() const;

    PointVek Point1;
    PointVek Point2;

  protected:
    /// Angle of the text in radians.
    virtual double AngleCote() const;

    /// How far the value may be from that of the points before they were written to a file.
    virtual double Flou() const;

    /// Farthest that the lines reach from `Position`, in drawing units.
    virtual double PorteeLignes() const;

    /// The lines and arrows, in the style applied last.
    virtual void DessineLignes(Trace& trace) const;

    /// To be called when the points have changed.
    void AccordeAngle() { Angle = AngleCote(); }

  private:
    bool EstAutomatique() const;

    /// From the middle of the dimension line to its end on the side of `Point2`.
    PointVek DemiLigne() const;
};

/// An open arrow of eight pixels at pointe, its barbs to both sides of direction; nothing when the
/// direction is null. In pixels.
void DessineFleche(Trace& trace, const PointVek& pointe, const PointVek& direction);
