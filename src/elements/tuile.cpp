#include "elements/tuile.h"

#include <cairomm/context.h>
#include <gdkmm/general.h>

#include <algorithm>
#include <cmath>

#include "elements/angles.h"

namespace {

constexpr double PresqueDroit = 0.05;  ///< Radians: nearer than this a hatch is axis-parallel.

int CoteTuile(double cote) {
    return static_cast<int>(std::clamp(std::round(cote), 1.0, 2048.0));
}

struct DessinTuile {
    int Largeur;
    int Hauteur;
    int x0, y0, x1, y1;  ///< The hatch line.
};

DessinTuile Dispose(double angle, double pas) {
    const double ecart = std::abs(angle);
    const int cote = CoteTuile(pas);
    if (ecart < PresqueDroit) return {cote, cote, 0, cote / 2, cote - 1, cote / 2};
    if (ecart > Pi / 2.0 - PresqueDroit) return {cote, cote, cote / 2, 0, cote / 2, cote - 1};
    const int largeur = CoteTuile(pas / std::sin(ecart));
    const int hauteur = CoteTuile(pas / std::cos(ecart));
    if (angle >= 0.0) return {largeur, hauteur, largeur - 1, 0, 0, hauteur - 1};
    return {largeur, hauteur, 0, 0, largeur - 1, hauteur - 1};
}

}  // namespace

double AngleHachureBorne(const Trait& trait) {
    const double angle = trait.AngleHachure;
    return std::isfinite(angle) ? std::clamp(angle, -Pi / 2.0, Pi / 2.0) : 0.0;
}

double PasHachureBorne(const Trait& trait) {
    const double pas = trait.PasHachure;
    return std::isfinite(pas) ? std::clamp(pas, 1.0, 500.0) : 1.0;
}

int EpaisseurBornee(const Trait& trait) {
    return std::clamp(trait.Epaisseur, 0, 100);
}

Glib::RefPtr<Gdk::Pixmap> TuileHachure(const Glib::RefPtr<Gdk::Drawable>& surface,
                                       const Trait& trait) {
    const DessinTuile d = Dispose(AngleHachureBorne(trait), PasHachureBorne(trait));
    const auto tuile = Gdk::Pixmap::create(surface, d.Largeur, d.Hauteur, surface->get_depth());
    tuile->set_colormap(surface->get_colormap());
    const auto cr = tuile->create_cairo_context();
    cr->set_line_join(Cairo::LINE_JOIN_ROUND);
    cr->set_line_cap(Cairo::LINE_CAP_SQUARE);
    cr->set_antialias(Cairo::ANTIALIAS_SUBPIXEL);
    cr->save();
    Gdk::Cairo::set_source_color(cr, trait.CouleurFond);
    cr->paint();
    cr->restore();
    Gdk::Cairo::set_source_color(cr, trait.Couleur);
    cr->set_line_width(EpaisseurBornee(trait));
    cr->move_to(d.x0, d.y0);
    cr->line_to(d.x1, d.y1);
    cr->stroke();
    return tuile;
}
