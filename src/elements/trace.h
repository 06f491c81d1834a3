#pragma once

#include <functional>
#include <vector>

#include "elements/coupe.h"
#include "elements/texteecran.h"
#include "elements/trait.h"

/// What elements paint themselves with, on the screen or on paper. Coordinates are in doubles:
/// pixels, or the units of the page; y downward.
class Trace {
  public:
    /// How a style is put on: a shape's surface takes its fill and hatch, anything else its plain
    /// colour.
    enum Matiere { Ligne, Surface };

    virtual ~Trace() = default;
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;

    /// Paper shows no markers, and neither groups nor what is there only to be picked.
    virtual bool SurPapier() const { return false; }

    /// Length of a dimension's arrows.
    virtual double LongueurFleche() const { return 8.0; }

    /// True when something inside the box, painted with the style, may show.
    bool Touche(const Boite& boite, const Trait& trait) const;

    /// What is being painted.
    const Boite& ZonePeinte() const { return Zone; }

    virtual void AppliqueTrait(const Trait& trait, Matiere matiere) = 0;

    /// Paints something made of several parts that may cover one another, within the box: dessine
    /// paints it with the trace that it is given. In a band it shows as it does in a picture.
    virtual void Compose(const Boite& boite, const std::function<void(Trace&)>& dessine) = 0;

    /// From a to b, in the style applied last, like all that follow.
    virtual void Segment(const PointVek& a, const PointVek& b) = 0;

    /// The endless line through p along d, from edge to edge; vertical when d is null.
    virtual void Droite(const PointVek& p, const PointVek& d) = 0;

    /// The arc's line, or with plein its sector.
    virtual void Arc(ArcEcran arc, bool plein) = 0;

    void Lien(const LienEcran& lien);

    /// The surface that the links enclose, each starting where the one before it ends; its edge
    /// runs below the pixels of the links' own lines.
    virtual void Polygone(const std::vector<LienEcran>& liens) = 0;

    virtual void Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein) = 0;

    /// The open square of 10 by 10 pixels that marks a grab handle.
    virtual void Poignee(const PointVek& centre) = 0;

    /// A marker: two lines of bras to each side of the centre.
    virtual void Croix(const PointVek& centre, double bras) = 0;

    virtual void Texte(const TexteEcran& texte, const Gdk::Color& couleur) = 0;

    /// Whether that many elements more may be painted through an image: a drawing whose images hold
    /// one another must not take for ever.
    bool PeutPeindreContenus(int nombre);

  protected:
    explicit Trace(const Boite& zone) : Zone(zone) {}

    Boite Zone;  ///< The part to paint: what does not touch it may be left out.

  private:
    int ContenusPeints = 0;
};
