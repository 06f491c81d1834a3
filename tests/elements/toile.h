#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gdkmm/colormap.h>
#include <gdkmm/pixbuf.h>
#include <gdkmm/pixmap.h>

#include <vector>

#include "elements/eltgeo.h"
#include "elements/trace.h"
#include "model/echelle.h"

/// What was painted, as 0xrrggbb.
struct Image {
    int Largeur;
    int Hauteur;
    std::vector<unsigned> Pixels;

    unsigned operator()(int x, int y) const {
        return Pixels[static_cast<std::size_t>(y * Largeur + x)];
    }
    bool operator==(const Image& autre) const { return Pixels == autre.Pixels; }
    bool operator!=(const Image& autre) const { return Pixels != autre.Pixels; }
};

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
    ~Toile() {
        EchelleCourante.ZoomInit();
        EchelleCourante.SetCentre(0, 0);
    }
    Toile(const Toile&) = delete;
    Toile& operator=(const Toile&) = delete;

    Trace Pinceau() const { return Pinceau(Gdk::Rectangle(0, 0, Largeur, Hauteur)); }
    Trace Pinceau(const Gdk::Rectangle& exposee) const {
        return Trace(Surface, Largeur, Hauteur, exposee);
    }
    Trace Bande() const { return Trace(Surface, Largeur, Hauteur, Gdk::Color("#ffffff")); }

    void Peint(const EltGeo& elt) const {
        Trace trace = Pinceau();
        elt.Dessine(trace);
    }

    Image Lit() const {
        const auto lu =
            Gdk::Pixbuf::create(Glib::RefPtr<Gdk::Drawable>(Surface), 0, 0, Largeur, Hauteur);
        Image image{Largeur, Hauteur, {}};
        for (int y = 0; y < Hauteur; ++y)
            for (int x = 0; x < Largeur; ++x) {
                const guint8* p =
                    lu->get_pixels() + y * lu->get_rowstride() + x * lu->get_n_channels();
                image.Pixels.push_back(p[0] * 65536u + p[1] * 256u + p[2]);
            }
        return image;
    }

    const Glib::RefPtr<Gdk::Pixmap> Surface;
};
