#pragma once

#include <cairomm/context.h>

#include "elements/trace.h"

/// Paints on a page through cairo, as the screen shows it: widths, dashes and hatch steps are the
/// style's, in page units.
class TracePage : public Trace {
  public:
    /// A page of largeur by hauteur units, parMm of them a millimetre. With noir lines, texts and
    /// hatches are black, and fills too unless they are white.
    TracePage(const Cairo::RefPtr<Cairo::Context>& contexte, double largeur, double hauteur,
              double parMm, bool noir);
    ~TracePage() override;

    bool SurPapier() const override { return true; }
    double LongueurFleche() const override;

    void AppliqueTrait(const Trait& trait, Matiere matiere) override;
    void Compose(const Boite& boite, const std::function<void(Trace&)>& dessine) override;
    void Segment(const PointVek& a, const PointVek& b) override;
    void Droite(const PointVek& p, const PointVek& d) override;
    void Arc(ArcEcran arc, bool plein) override;
    void Polygone(const std::vector<LienEcran>& liens) override;
    void Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein) override;

    // Nothing is picked on paper.
    void Poignee(const PointVek&) override {}
    void Croix(const PointVek&, double) override {}

    void Texte(const TexteEcran& texte, const Gdk::Color& couleur) override;

  private:
    /// A line whose dashes have already run over phase units.
    void LigneDepuis(PointVek a, PointVek b, double phase);
    void PlaceTirets(double phase);

    /// Adds to the path from where it stands.
    void AjouteArc(const ArcEcran& arc);

    // Each takes the path.
    void TraceChemin();
    void Remplit();

    void Hachures();
    void Encre(const Gdk::Color& couleur);

    Cairo::RefPtr<Cairo::Context> Contexte;
    PangoLayout* Mise;
    const double ParMm;
    const bool Noir;
    Trait Style;         ///< The one applied last.
    bool Plein = false;  ///< It was applied for a surface.
};
