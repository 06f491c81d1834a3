#pragma once

#include <optional>

#include "elements/trace.h"

/// Paints nothing: finds how far what is painted reaches, in the view's pixels. Of an endless line
/// and of a marker one point counts.
class TraceEtendue : public Trace {
  public:
    /// surPapier: of what is printed; else of all that shows on the screen.
    explicit TraceEtendue(bool surPapier);

    /// The box that holds all; none when nothing was painted.
    const std::optional<Boite>& Etendue() const { return Tout; }

    bool SurPapier() const override { return Papier; }
    void AppliqueTrait(const Trait&, Matiere) override {}
    void Compose(const Boite& boite, const std::function<void(Trace&)>& dessine) override;
    void Segment(const PointVek& a, const PointVek& b) override;
    void Droite(const PointVek& p, const PointVek& d) override;
    void Arc(ArcEcran arc, bool plein) override;
    void Polygone(const std::vector<LienEcran>& liens) override;
    void Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein) override;
    void Poignee(const PointVek&) override {}
    void Croix(const PointVek& centre, double bras) override;
    void Texte(const TexteEcran& texte, const Gdk::Color& couleur) override;

  private:
    void Atteint(const PointVek& p);
    const bool Papier;
    std::optional<Boite> Tout;
};
