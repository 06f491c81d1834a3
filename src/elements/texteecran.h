#pragma once

#include <gdkmm/color.h>
#include <gdkmm/drawable.h>
#include <glibmm/ustring.h>

#include <memory>

#include "elements/boite.h"

class Lettres;

typedef struct _PangoLayout PangoLayout;
typedef struct _cairo cairo_t;

/// A line of text on the screen or the page. Lengths are pixels or page units, y downward.
struct TexteEcran {
    Glib::ustring Texte;
    Glib::ustring Police;  ///< A font description.
    double Taille;
    double Angle;  ///< Radians, counter-clockwise as seen.

    /// What of the text lies at its anchor.
    enum Point { Debut, Milieu, CoinHaut } Accroche;
    PointVek Ancre;

    /// Too small to be read, or larger than any screen.
    bool EstInvisible() const { return !(Taille >= 2.0 && Taille <= 4000.0) || Texte.empty(); }
};

/// The text laid out: asks the text system once, then paints where it is wanted.
class TexteMisEnPage {
  public:
    /// For the screen, on whole pixels.
    explicit TexteMisEnPage(const TexteEcran& texte);

    /// For the page, with a layout of its context, which is the caller's and outlives this.
    TexteMisEnPage(const TexteEcran& texte, PangoLayout* mise);

    /// A box that holds the turned text.
    const Boite& Cadre() const { return CadreTourne; }

    void Peint(const Glib::RefPtr<Gdk::Drawable>& surface, const Gdk::Color& couleur) const;

    /// With the context's present source.
    void Peint(cairo_t* cr) const;

  private:
    /// Where the text stands that is w wide and h high.
    void Dispose(const TexteEcran& texte, double w, double h);

    double Taille;                         ///< Side of the square of a letter.
    std::shared_ptr<const Lettres> Ecran;  ///< For the screen.
    PangoLayout* Mise = nullptr;           ///< For the page.
    double Angle;
    bool EnContours;  ///< Painted as filled outlines, and not letter by letter.
    PointVek Depart;  ///< Upper left corner of the unturned text.
    Boite CadreTourne;
};
