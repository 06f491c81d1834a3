#pragma once

#include <string>

#include "elements/eltgeo.h"

/// A line of text placed by its anchor, `Position`: the start of its base side, or its middle. Also
/// the base of all dimensions.
class EltTxt : public EltGeo {
  public:
    explicit EltTxt(int type = TypeTxt);
    EltTxt(const EltTxt&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Dessine(Trace& trace) const override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    Minorant MinorantDistance() const override;
    bool Proprietes() override;
    bool EstFini() const override;

    /// Takes one line: line ends and other control characters become blanks.
    void SetTexte(const Glib::ustring& texte);
    void SetTaille(double taille);

    /// Whole degrees, rounded up.
    double GetAngleDegres() const;

    /// Rounds up to whole degrees and brings them into -180 to 180.
    void SetAngleDegres(double degres);

    Glib::ustring Texte;
    double Angle = 0.0;    ///< Radians, counter-clockwise on screen.
    double Taille = 10.0;  ///< Height in drawing units.
    Glib::ustring Police;  ///< A font description.
    bool Centre_ = false;  ///< The anchor is the middle of the base side.

  protected:
    /// Paints the anchor and the text given, in place of `Texte`.
    void DessineTexte(Trace& trace, const Glib::ustring& texte, double angle, bool centre) const;

    /// Farthest that the text may reach from its anchor, in drawing units.
    double Portee(const Glib::ustring& texte) const;
};
