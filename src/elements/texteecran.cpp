#include "elements/texteecran.h"

#include <gdk/gdk.h>
#include <pango/pangocairo.h>

#include <cmath>

namespace {

/// More than this many characters reach beyond any screen.
constexpr std::size_t CaracteresMax = 4000;

/// Above this size the pictures of letters, most of them outside the view, cost more than filling
/// their outlines within it.
constexpr double TailleContours = 400.0;

/// The one layout of the program, on the fonts of the screen at 96 dots an inch whatever the
/// desktop says, so that a drawing looks the same everywhere.
PangoLayout* MiseEnPage() {
    static PangoLayout* mise = [] {
        PangoContext* contexte = gdk_pango_context_get_for_screen(gdk_screen_get_default());
        pango_cairo_context_set_resolution(contexte, 96.0);
        PangoLayout* neuve = pango_layout_new(contexte);
        g_object_unref(contexte);
        return neuve;
    }();
    return mise;
}

void RegleMiseEnPage(PangoLayout* mise, const TexteEcran& texte) {
    PangoFontDescription* police = pango_font_description_from_string(texte.Police.c_str());
    pango_font_description_set_weight(police, PANGO_WEIGHT_BOLD);
    pango_font_description_set_gravity(police, PANGO_GRAVITY_SOUTH);
    pango_font_description_set_size(police,
                                    static_cast<int>(std::lround(PANGO_SCALE * texte.Taille)));
    pango_layout_set_font_description(mise, police);
    pango_font_description_free(police);
    pango_layout_set_single_paragraph_mode(mise, TRUE);
    const Glib::ustring& mots = texte.Texte;
    pango_layout_set_text(
        mise, (mots.size() > CaracteresMax ? mots.substr(0, CaracteresMax) : mots).c_str(), -1);
}

}  // namespace

TexteMisEnPage::TexteMisEnPage(const TexteEcran& texte)
    : Mise(MiseEnPage()), Angle(texte.Angle), EnContours(texte.Taille > TailleContours) {
    RegleMiseEnPage(Mise, texte);
    int w = 0, h = 0;
    pango_layout_get_pixel_size(Mise, &w, &h);
    Dispose(texte, w, h);
    Depart = {std::round(Depart.x), std::round(Depart.y)};
}

TexteMisEnPage::TexteMisEnPage(const TexteEcran& texte, PangoLayout* mise)
    : Mise(mise), Angle(texte.Angle), EnContours(false) {
    RegleMiseEnPage(Mise, texte);
    int w = 0, h = 0;
    pango_layout_get_size(Mise, &w, &h);
    Dispose(texte, 1.0 * w / PANGO_SCALE, 1.0 * h / PANGO_SCALE);
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
    cairo_move_to(cr, 0.0, 0.0);
    if (EnContours) {
        pango_cairo_layout_path(cr, Mise);
        cairo_fill(cr);
    } else {
        pango_cairo_show_layout(cr, Mise);
    }
    cairo_restore(cr);
}
