#pragma once

#include <gdkmm/drawable.h>
#include <gdkmm/gc.h>
#include <gdkmm/rectangle.h>

#include <functional>
#include <set>
#include <utility>
#include <vector>

#include "elements/coupe.h"
#include "elements/texteecran.h"
#include "elements/trait.h"

/// Paints on a window or pixmap: the only place where elements and bands meet the toolkit's drawing
/// calls. Coordinates are pixels in doubles, y downward; they are rounded here, and cut here to
/// what the window system can take (16 bits): what lies outside the area is never sent.
class Trace {
  public:
    /// How a style is put on the context: a shape's surface takes its fill and hatch, anything else
    /// its plain colour.
    enum Matiere { Ligne, Surface };

    /// Plain painting of the part exposee of an area of largeur by hauteur pixels.
    Trace(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur,
          const Gdk::Rectangle& exposee);

    /// Painting of a band: painted twice it leaves no trace, and on the plain background fond it
    /// shows the element's own colours, or the inverse of the background where they are equal.
    Trace(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur,
          const Gdk::Color& fond);

    /// True when something inside the box, painted with the style, may show.
    bool Touche(const Boite& boite, const Trait& trait) const;

    /// The pixels that are being painted.
    const Boite& ZonePeinte() const { return Zone; }

    void AppliqueTrait(const Trait& trait, Matiere matiere);

    /// Paints something made of several parts that may cover one another, within the box: dessine
    /// paints it with the trace that it is given. In a band it shows as it does in a picture.
    void Compose(const Boite& boite, const std::function<void(Trace&)>& dessine);

    /// From a to b, in the style applied last, like all that follow.
    void Segment(const PointVek& a, const PointVek& b);

    /// The endless line through p along d, from edge to edge; vertical when d is null.
    void Droite(const PointVek& p, const PointVek& d);

    /// The arc's line, or with plein its sector.
    void Arc(ArcEcran arc, bool plein);

    void Lien(const LienEcran& lien);

    /// The surface that the links enclose, each starting where the one before it ends; its edge
    /// runs below the pixels of the links' own lines.
    void Polygone(const std::vector<LienEcran>& liens);

    void Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein);

    /// The open square of 10 by 10 pixels that marks a grab handle.
    void Poignee(const PointVek& centre);

    /// Two lines of bras pixels to each side of the centre.
    void Croix(const PointVek& centre, double bras);

    void Texte(const TexteEcran& texte, const Gdk::Color& couleur);

    /// Whether that many elements more may be painted through an image: a drawing whose images hold
    /// one another must not take for ever.
    bool PeutPeindreContenus(int nombre);

    /// One pixel.
    void Point(const PointVek& p);

  private:
    Trace(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur);

    void AppliqueCouleur(const Gdk::Color& couleur);
    void AppliqueLigne(int epaisseur, int styleLigne);
    void AppliqueTuile(const Trait& trait);
    void AncreTuile();
    guint32 Pixel(const Gdk::Color& couleur) const;

    /// A line whose dashes have already run over phase pixels.
    void LigneDepuis(const PointVek& a, const PointVek& b, double phase);
    void ArcParPas(const ArcEcran& arc, bool plein);

    /// The steps of an arc too large for the window system.
    std::vector<double> PasVisibles(const ArcEcran& arc) const;
    void AjouteBord(const ArcEcran& arc, std::vector<PointVek>& sommets) const;
    void Remplit(std::vector<PointVek> sommets);
    void PlacePhase(double phase);
    /// The colour, or the inverse of the background where that would hide it in a band.
    Gdk::Color Visible(const Gdk::Color& couleur) const;

    void PolyligneDepuis(const std::vector<PointVek>& points, double phase);

    Glib::RefPtr<Gdk::Drawable> Support;
    Glib::RefPtr<Gdk::GC> Contexte;
    Boite Aire;  ///< The whole area: lines are cut to it, the same in every partial exposure.
    Boite Zone;  ///< The part to paint: what does not touch it may be left out.
    bool Bande = false;      ///< Paints with the exclusive-or function.
    bool PourBande = false;  ///< Paints the picture that a band will show.
    Gdk::Color Fond;
    guint32 PixelFond = 0;

    // What the context holds, so that an attribute is set only when it changes.
    bool LigneConnue = false;
    int EpaisseurPosee = 0;
    int StylePose = Continu;
    int PhasePosee = 0;
    bool CouleurConnue = false;
    GdkColor CouleurPosee = {};
    bool Tuilage = false;
    Glib::RefPtr<Gdk::Pixmap> TuilePosee;
    Trait TraitTuile;
    std::pair<int, int> AncrePosee;  ///< Where the tile starts; the context's own is 0, 0.
    std::set<std::pair<int, int>> PoigneesPeintes;
    int ContenusPeints = 0;
};
