#include "window/vignette.h"

#include <gdkmm/pixmap.h>
#include <gdkmm/screen.h>
#include <gdkmm/window.h>

#include <algorithm>

#include "elements/lecteur.h"
#include "elements/traceetendue.h"
#include "elements/tracepage.h"
#include "model/bddgeobase.h"
#include "model/echelle.h"

namespace {

constexpr double Marge = 5.0;        ///< Around the drawing, in pixels.
constexpr double PixelsParMm = 3.0;  ///< Widths and dashes are those of a coarse page.

/// How far the drawing reaches, y downward, in drawing units.
std::optional<Boite> EtendueDe(const BDDGeoBase& bdd) {
    const VuePage unite({0.0, 0.0}, 1.0);
    TraceEtendue trace(true);
    bdd.Dessine(trace);
    return trace.Etendue();
}

void Peint(const BDDGeoBase& bdd, const Boite& etendue, const Cairo::RefPtr<Cairo::Context>& page,
           int largeur, int hauteur) {
    const double w = std::max(etendue.Droite - etendue.Gauche, 1e-3);
    const double h = std::max(etendue.Bas - etendue.Haut, 1e-3);
    const double facteur = std::min((largeur - 2 * Marge) / w, (hauteur - 2 * Marge) / h);
    const PointVek centre = etendue.Centre();
    const PointVek coin(centre.x - largeur / 2.0 / facteur, -(centre.y - hauteur / 2.0 / facteur));
    const VuePage vue(coin, facteur);
    TracePage trace(page, largeur, hauteur, PixelsParMm, false);
    bdd.Dessine(trace);
}

}  // namespace

Glib::RefPtr<Gdk::Pixbuf> Vignette(const std::string& texte, int largeur, int hauteur) {
    const auto racine = Gdk::Screen::get_default()->get_root_window();
    const auto surface = Gdk::Pixmap::create(Glib::RefPtr<Gdk::Drawable>(racine), largeur, hauteur);
    const auto page = surface->create_cairo_context();
    page->set_source_rgb(1.0, 1.0, 1.0);
    page->paint();
    if (texte.size() <= VignetteMax) {
        // Read without the words that a refused version gets.
        BDDGeoBase bdd;
        Lecteur entree(texte);
        bdd.Charge(entree);
        if (const auto etendue = EtendueDe(bdd)) Peint(bdd, *etendue, page, largeur, hauteur);
    }
    return Gdk::Pixbuf::create(Glib::RefPtr<Gdk::Drawable>(surface), racine->get_colormap(), 0, 0,
                               0, 0, largeur, hauteur);
}
