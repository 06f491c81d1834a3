#pragma once

#include <glibmm/ustring.h>

#include <memory>
#include <vector>

#include "elements/texteecran.h"

typedef struct _PangoFont PangoFont;
typedef struct _PangoGlyphString PangoGlyphString;
typedef struct _PangoLayout PangoLayout;
typedef struct _cairo cairo_t;

// The size of letters is the side of their square, in pixels or page units.

/// The one at which texts are laid out. Fonts are so matched once for each family and style; where
/// a text is painted, the context gives the size. A power of two, so that the widths of most fonts
/// are whole numbers.
constexpr double Cadratin = 128.0;

/// That of a text of that size, at 96 dots an inch whatever the desktop says, so that a drawing
/// looks the same everywhere.
double CadratinDe(double taille);

/// Gives the layout a text, its letters of that size.
void RegleMiseEnPage(PangoLayout* mise, const TexteEcran& texte, double cadratin);

/// The letters of a line of text on the screen, chosen and kept without regard to size. At each
/// size they stand on whole pixels.
class Lettres {
  public:
    /// Those of the text, its place aside, to be painted at that size or one on the same side of
    /// where fonts look otherwise. A number of them is remembered.
    static std::shared_ptr<const Lettres> De(const TexteEcran& texte, double cadratin);

    /// Those of a layout whose letters are of that size.
    Lettres(PangoLayout* mise, double cadratin);
    ~Lettres();
    Lettres(const Lettres&) = delete;
    Lettres& operator=(const Lettres&) = delete;

    // In whole pixels, for letters of that size.
    int Largeur(double cadratin) const;
    int Montee(double cadratin) const;
    int Descente(double cadratin) const;

    /// Paints the line or, with contours, its outlines filled, its upper left corner at the origin
    /// of the context.
    void Peint(cairo_t* cr, double cadratin, bool contours) const;

  private:
    std::size_t Nombre() const;

    /// What is of one font.
    struct Suite {
        PangoFont* Police;
        PangoGlyphString* Glyphes;
        double Montee;    ///< Above the base line, for letters of size 1.
        double Descente;  ///< Below it.
    };

    /// A length of the layout as whole pixels, for letters of that size.
    int EnPixels(int longueur, double cadratin) const;

    const double Pose;  ///< Size of the letters in the layout.
    std::vector<Suite> Suites;
};
