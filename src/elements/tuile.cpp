#include "elements/tuile.h"

#include <cairomm/context.h>
#include <gdkmm/general.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "elements/angles.h"

namespace {

constexpr double PresqueDroit = 0.05;  ///< Radians: nearer than this a hatch is axis-parallel.

int CoteTuile(double cote) {
    return static_cast<int>(std::clamp(std::round(cote), 1.0, 2048.0));
}

/// A tile and its hatch line, from edge to edge.
struct DessinTuile {
    int Largeur;
    int Hauteur;
    double x0, y0, x1, y1;
};

DessinTuile Dispose(double angle, double pas, int epaisseur) {
    const double ecart = std::abs(angle);
    const int cote = CoteTuile(pas);
    // A line of odd width is sharp between two pixel borders.
    const double milieu = cote / 2 + (epaisseur % 2) * 0.5;
    if (ecart < PresqueDroit) return {cote, cote, 0.0, milieu, 1.0 * cote, milieu};
    if (ecart > Pi / 2.0 - PresqueDroit) return {cote, cote, milieu, 0.0, milieu, 1.0 * cote};
    const int largeur = CoteTuile(pas / std::sin(ecart));
    const int hauteur = CoteTuile(pas / std::cos(ecart));
    if (angle >= 0.0) return {largeur, hauteur, 1.0 * largeur, 0.0, 0.0, 1.0 * hauteur};
    return {largeur, hauteur, 0.0, 0.0, 1.0 * largeur, 1.0 * hauteur};
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
    const DessinTuile d =
        Dispose(AngleHachureBorne(trait), PasHachureBorne(trait), EpaisseurBornee(trait));
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
    // The lines of the neighbouring tiles reach into this one's corners.
    const bool oblique = d.x0 != d.x1 && d.y0 != d.y1;
    for (const int rang : oblique ? std::vector<int>{-1, 0, 1} : std::vector<int>{0}) {
        cr->move_to(d.x0 + rang * d.Largeur, d.y0);
        cr->line_to(d.x1 + rang * d.Largeur, d.y1);
    }
    cr->stroke();
    return tuile;
}
