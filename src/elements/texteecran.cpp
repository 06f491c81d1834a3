#include "elements/texteecran.h"

#include <gdk/gdk.h>
#include <pango/pangocairo.h>

#include <cmath>

#include "elements/lettres.h"

namespace {

/// Above this size the pictures of letters, most of them outside the view, cost more than filling
/// their outlines within it.
constexpr double TailleContours = 400.0;

}  // namespace

TexteMisEnPage::TexteMisEnPage(const TexteEcran& texte)
    : Taille(CadratinDe(texte.Taille)),
      Ecran(Lettres::De(texte, Taille)),
      Angle(texte.Angle),
      EnContours(texte.Taille > TailleContours) {
    Dispose(texte, Ecran->Largeur(Taille), Ecran->Montee(Taille) + Ecran->Descente(Taille));
    Depart = {std::round(Depart.x), std::round(Depart.y)};
}

TexteMisEnPage::TexteMisEnPage(const TexteEcran& texte, PangoLayout* mise)
    : Taille(texte.Taille * 96.0 / 72.0), Mise(mise), Angle(texte.Angle), EnContours(false) {
    RegleMiseEnPage(Mise, texte, Cadratin);
    int w = 0, h = 0;
    pango_layout_get_size(Mise, &w, &h);
    const double unite = Taille / Cadratin / PANGO_SCALE;
    Dispose(texte, w * unite, h * unite);
}

void TexteMisEnPage::Dispose(const TexteEcran& texte, double w, double h) {
    // Along the base side, and up from it, as seen.
    const PointVek u(std::cos(Angle), -std::sin(Angle));
    const PointVek haut(-std::sin(Angle), -std::cos(Angle));
    const double recul = texte.Accroche == TexteEcran::Milieu ? w / 2.0 : 0.0;
    const double montee = texte.Accroche == TexteEcran::CoinHaut ? 0.0 : h;
    Depart = texte.Ancre - u * recul + haut * montee;
    // Slanted letters and accents may leave the logical box.
    const double marge = std::ceil(h / 2.0) + 2.0;
    CadreTourne = Boite::Autour(Depart, Depart + u * w);
    for (const PointVek& coin : {Depart - haut * h, Depart + u * w - haut * h})
        CadreTourne = CadreTourne.Avec(coin);
    CadreTourne = CadreTourne.Elargie(marge);
}

void TexteMisEnPage::Peint(const Glib::RefPtr<Gdk::Drawable>& surface,
                           const Gdk::Color& couleur) const {
    cairo_t* cr = gdk_cairo_create(surface->gobj());
    gdk_cairo_set_source_color(cr, couleur.gobj());
    Peint(cr);
    cairo_destroy(cr);
}

void TexteMisEnPage::Peint(cairo_t* cr) const {
    cairo_save(cr);
    cairo_translate(cr, Depart.x, Depart.y);
    cairo_rotate(cr, -Angle);
    if (Ecran) {
        Ecran->Peint(cr, Taille, EnContours);
    } else {
        cairo_scale(cr, Taille / Cadratin, Taille / Cadratin);
        cairo_move_to(cr, 0.0, 0.0);
        pango_cairo_show_layout(cr, Mise);
    }
    cairo_restore(cr);
}
