#pragma once

#include <gdkmm/colormap.h>
#include <gdkmm/pixbuf.h>
#include <gdkmm/pixmap.h>
#include <gtest/gtest.h>

#include <vector>

#include "elements/eltgeo.h"
#include "elements/traceecran.h"
#include "model/echelle.h"

constexpr unsigned Noir = 0x000000, Blanc = 0xffffff, Rouge = 0xff0000, Bleu = 0x0000ff;

/// A white pixmap to paint on and to read back. While it lives the view shows one pixel a unit, the
/// drawing's origin at its centre: (x, y) of the drawing is the pixel (100 + x, 80 - y).
class Toile {
  public:
    static constexpr int Largeur = 200, Hauteur = 160;

    Toile() : Surface(Gdk::Pixmap::create(Glib::RefPtr<Gdk::Drawable>(), Largeur, Hauteur, 24)) {
        Surface->set_colormap(Gdk::Colormap::get_system());
        EchelleCourante.ZoomInit();
        EchelleCourante.SetCentre(Largeur, Hauteur);
        const auto gc = Gdk::GC::create(Surface);
        gc->set_rgb_fg_color(Gdk::Color("#ffffff"));
        Surface->draw_rectangle(gc, true, 0, 0, Largeur, Hauteur);
    }
    ~Toile() { EchelleCourante.SetCentre(0, 0); }
    Toile(const Toile&) = delete;
    Toile& operator=(const Toile&) = delete;

    TraceEcran Pinceau(const Gdk::Rectangle& exposee = {0, 0, Largeur, Hauteur}) const {
        return TraceEcran(Surface, Largeur, Hauteur, exposee);
    }
    TraceEcran Bande() const {
        return TraceEcran(Surface, Largeur, Hauteur, Gdk::Color("#ffffff"));
    }

    /// The picture line by line, as 0xrrggbb.
    std::vector<unsigned> Lit() const {
        const auto lu =
            Gdk::Pixbuf::create(Glib::RefPtr<Gdk::Drawable>(Surface), 0, 0, Largeur, Hauteur);
        std::vector<unsigned> pixels;
        for (int y = 0; y < Hauteur; ++y)
            for (int x = 0; x < Largeur; ++x) {
                const guint8* p =
                    lu->get_pixels() + y * lu->get_rowstride() + x * lu->get_n_channels();
                pixels.push_back(p[0] * 65536u + p[1] * 256u + p[2]);
            }
        return pixels;
    }

    const Glib::RefPtr<Gdk::Pixmap> Surface;
};

/// The pixel of a picture.
inline unsigned Vu(const std::vector<unsigned>& image, int x, int y) {
    return image[static_cast<std::size_t>(y * Toile::Largeur + x)];
}

/// An element alone on a white drawing, or as a band on it.
inline std::vector<unsigned> Peint(const EltGeo& elt, bool bande = false) {
    const Toile toile;
    TraceEcran trace = bande ? toile.Bande() : toile.Pinceau();
    elt.Dessine(trace);
    return toile.Lit();
}

/// Every pixel against attendu(x, y), x and y counted from the centre, y upward; where that answers
/// -1 anything may be.
template <class Attendu>
void Compare(const std::vector<unsigned>& image, const Attendu& attendu) {
    int faux = 0;
    for (int y = 0; y < Toile::Hauteur; ++y)
        for (int x = 0; x < Toile::Largeur; ++x) {
            const long voulu = attendu(x - 100, 80 - y);
            if (voulu >= 0 && Vu(image, x, y) != static_cast<unsigned>(voulu) && ++faux == 1)
                ADD_FAILURE() << x - 100 << ", " << 80 - y << ": " << std::hex << Vu(image, x, y);
        }
    EXPECT_EQ(faux, 0);
}

inline long Si(bool condition, unsigned couleur = Noir) {
    return condition ? couleur : Blanc;
}
