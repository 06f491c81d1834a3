#pragma once

#include <gdkmm/color.h>
#include <gdkmm/drawable.h>
#include <glibmm/ustring.h>

#include "elements/boite.h"

/// A line of text on the screen. Lengths are pixels, y downward.
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
    explicit TexteMisEnPage(const TexteEcran& texte);

    /// A box that holds the turned text.
    const Boite& Cadre() const { return CadreTourne; }

    void Peint(const Glib::RefPtr<Gdk::Drawable>& surface, const Gdk::Color& couleur) const;

  private:
    double Angle;
    bool EnContours;
    PointVek Depart;  ///< Upper left corner of the unturned text.
    Boite CadreTourne;
};
