#pragma once

#include <gdkmm/drawable.h>
#include <gdkmm/gc.h>
#include <gdkmm/rectangle.h>

#include <set>
#include <utility>

#include "elements/trace.h"

/// Paints on a window or pixmap: the only place where elements and bands meet the toolkit's drawing
/// calls. Coordinates are rounded here, and cut here to what the window system can take (16 bits):
/// what lies outside the area is never sent.
class TraceEcran : public Trace {
  public:
    /// Plain painting of the part exposee of an area of largeur by hauteur pixels.
    TraceEcran(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur,
               const Gdk::Rectangle& exposee);

    /// Painting of a band: painted twice it leaves no trace, and on the plain background fond it
    /// shows the element's own colours, or the inverse of the background where they are equal.
    TraceEcran(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur,
               const Gdk::Color& fond);

    void AppliqueTrait(const Trait& trait, Matiere matiere) override;
    void Compose(const Boite& boite, const std::function<void(Trace&)>& dessine) override;
    void Segment(const PointVek& a, const PointVek& b) override;
    void Droite(const PointVek& p, const PointVek& d) override;
    void Arc(ArcEcran arc, bool plein) override;
    void Polygone(const std::vector<LienEcran>& liens) override;
    void Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein) override;
    void Poignee(const PointVek& centre) override;
    void Croix(const PointVek& centre, double bras) override;
    void Texte(const TexteEcran& texte, const Gdk::Color& couleur) override;

    /// One pixel.
    void Point(const PointVek& p);

  private:
    TraceEcran(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur);

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
};
