#include "elements/tracepage.h"

#include <gdkmm/general.h>
#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/tuile.h"
#include "elements/vue.h"

namespace {

/// Cairo keeps coordinates in 32 bits, 8 of them behind the point.
constexpr double Limite = 1e6;
constexpr Boite Envoyable{-Limite, -Limite, Limite, Limite};

constexpr double FlecheMm = 2.0;

bool EstDirect(const ArcEcran& arc) {
    const Boite boite = Boite::Autour(arc.Centre, arc.Centre).Elargie(arc.Rayon);
    return Envoyable.Contient({boite.Gauche, boite.Haut}) &&
           Envoyable.Contient({boite.Droite, boite.Bas});
}

bool EstBlanc(const Gdk::Color& couleur) {
    return couleur == Gdk::Color("white");
}

}  // namespace

TracePage::TracePage(const Cairo::RefPtr<Cairo::Context>& contexte, double largeur, double hauteur,
                     double parMm, bool noir)
    : Trace(Boite{0.0, 0.0, largeur, hauteur}),
      Contexte(contexte),
      Mise(pango_cairo_create_layout(contexte->cobj())),
      ParMm(parMm),
      Noir(noir) {
    // The letters have the size that they have on the screen, relative to the lines; no pixel holds
    // them back.
    PangoContext* lettres = pango_layout_get_context(Mise);
    pango_cairo_context_set_resolution(lettres, 96.0);
    pango_context_set_round_glyph_positions(lettres, FALSE);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    pango_cairo_context_set_font_options(lettres, options);
    cairo_font_options_destroy(options);
    Contexte->set_line_join(Cairo::LINE_JOIN_ROUND);
    Contexte->rectangle(0.0, 0.0, largeur, hauteur);
    Contexte->clip();
}

TracePage::~TracePage() {
    g_object_unref(Mise);
}

double TracePage::LongueurFleche() const {
    return FlecheMm * ParMm;
}

void TracePage::Encre(const Gdk::Color& couleur) {
    Gdk::Cairo::set_source_color(Contexte, Noir ? Gdk::Color("black") : couleur);
}

void TracePage::AppliqueTrait(const Trait& trait, Matiere matiere) {
    Style = trait;
    Plein = matiere == Surface;
    // As on the screen, a width of 0 is the thinnest that can be seen.
    Contexte->set_line_width(std::max(EpaisseurBornee(Style), 1));
    PlaceTirets(0.0);
}

void TracePage::PlaceTirets(double phase) {
    // Dots stand farther apart than on the screen, as on the sheets printed so far.
    static const std::vector<double> tirets[] = {{}, {5.0}, {10.0, 5.0, 3.0, 5.0}, {2.0, 4.0}};
    const std::vector<double>& tiret =
        tirets[std::clamp<int>(Style.StyleLigne, Continu, Pointille)];
    // Round ends would close the gaps of a wide dashed line.
    Contexte->set_line_cap(tiret.empty() ? Cairo::LINE_CAP_ROUND : Cairo::LINE_CAP_BUTT);
    if (tiret.empty())
        Contexte->unset_dash();
    else
        Contexte->set_dash(tiret, std::isfinite(phase) ? phase : 0.0);
}

void TracePage::Compose(const Boite&, const std::function<void(Trace&)>& dessine) {
    dessine(*this);
}

void TracePage::TraceChemin() {
    Encre(Style.Couleur);
    Contexte->stroke();
}

void TracePage::Segment(const PointVek& a, const PointVek& b) {
    LigneDepuis(a, b, 0.0);
}

void TracePage::LigneDepuis(PointVek a, PointVek b, double phase) {
    const PointVek origine = a;
    if (!CoupeLigne(a, b, Envoyable) || !a.EstFini() || !b.EstFini()) return;
    PlaceTirets(phase + Norme(a - origine));
    Contexte->begin_new_path();
    Contexte->move_to(a.x, a.y);
    Contexte->line_to(b.x, b.y);
    TraceChemin();
}

void TracePage::Droite(const PointVek& p, const PointVek& d) {
    const double longueur = Norme(d);
    if (!p.EstFini() || !std::isfinite(longueur)) return;
    const PointVek u = longueur > 0.0 ? d / longueur : PointVek(0.0, 1.0);
    const double glissement = Scalaire(Zone.Centre() - p, u);
    const PointVek milieu = p + u * glissement;
    const PointVek portee = u * (Zone.Droite + Zone.Bas);
    PointVek a = milieu - portee, b = milieu + portee;
    if (CoupeLigne(a, b, Zone.Elargie(EpaisseurBornee(Style)))) LigneDepuis(a, b, 0.0);
}

void TracePage::AjouteArc(const ArcEcran& arc) {
    const double debut = -arc.Debut, fin = debut - arc.Ouverture;
    if (arc.Ouverture > 0.0)
        Contexte->arc_negative(arc.Centre.x, arc.Centre.y, arc.Rayon, debut, fin);
    else
        Contexte->arc(arc.Centre.x, arc.Centre.y, arc.Rayon, debut, fin);
}

void TracePage::Arc(ArcEcran arc, bool plein) {
    if (!arc.Centre.EstFini() || !std::isfinite(arc.Rayon) || arc.Rayon < 0.0) return;
    arc.Debut = std::fmod(arc.Debut, DeuxPi);
    arc.Ouverture = std::clamp(arc.Ouverture, -DeuxPi, DeuxPi);
    if (plein) {
        const bool entier = std::abs(arc.Ouverture) >= DeuxPi;
        const PointVek a = arc.Point(arc.Debut), b = arc.Point(arc.Debut + arc.Ouverture);
        if (entier)
            Polygone({{a, a, arc}});
        else
            Polygone({{arc.Centre, a, {}}, {a, b, arc}, {b, arc.Centre, {}}});
        return;
    }
    if (EstDirect(arc)) {
        PlaceTirets(0.0);
        Contexte->begin_new_path();
        AjouteArc(arc);
        TraceChemin();
        return;
    }
    const Boite vue = Zone.Elargie(EpaisseurBornee(Style));
    const std::vector<double> angles = PasArc(arc, vue);
    for (std::size_t i = 1; i < angles.size(); ++i) {
        const PointVek a = arc.Point(angles[i - 1]), b = arc.Point(angles[i]);
        if (Boite::Autour(a, b).Touche(vue))
            LigneDepuis(a, b, std::abs(angles[i - 1] - arc.Debut) * arc.Rayon);
    }
}

void TracePage::Polygone(const std::vector<LienEcran>& liens) {
    const bool direct = std::all_of(liens.begin(), liens.end(), [](const LienEcran& lien) {
        return Envoyable.Contient(lien.Debut) && (!lien.Arc || EstDirect(*lien.Arc));
    });
    Contexte->begin_new_path();
    if (direct) {
        for (const LienEcran& lien : liens) {
            Contexte->line_to(lien.Debut.x, lien.Debut.y);
            if (lien.Arc) AjouteArc(*lien.Arc);
        }
    } else {
        std::vector<PointVek> sommets;
        for (const LienEcran& lien : liens) {
            sommets.push_back(lien.Debut);
            if (!lien.Arc) continue;
            for (const double angle : PasArc(*lien.Arc, Zone))
                sommets.push_back(lien.Arc->Point(angle));
        }
        for (const PointVek& p : CoupePolygone(std::move(sommets), Envoyable))
            if (p.EstFini()) Contexte->line_to(p.x, p.y);
    }
    Contexte->close_path();
    Remplit();
}

void TracePage::Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein) {
    const PointVek b(coin.x + largeur, coin.y), c(b.x, coin.y + hauteur), d(coin.x, c.y);
    const std::vector<LienEcran> cotes = {{coin, b, {}}, {b, c, {}}, {c, d, {}}, {d, coin, {}}};
    if (plein) {
        Polygone(cotes);
        return;
    }
    for (const LienEcran& cote : cotes)
        Lien(cote);
}

void TracePage::Remplit() {
    // What crosses itself shows the same holes as on the screen.
    Contexte->set_fill_rule(Cairo::FILL_RULE_EVEN_ODD);
    if (!Plein || Style.Hachure != 1) {
        const Gdk::Color& couleur = Plein && Style.Remplissage ? Style.CouleurFond : Style.Couleur;
        if (EstBlanc(couleur))
            Gdk::Cairo::set_source_color(Contexte, couleur);
        else
            Encre(couleur);
        Contexte->fill();
        return;
    }
    Contexte->save();
    Gdk::Cairo::set_source_color(Contexte, Noir ? Gdk::Color("white") : Style.CouleurFond);
    Contexte->fill_preserve();
    Contexte->clip();
    Hachures();
    Contexte->restore();
}

void TracePage::Hachures() {
    double gauche = 0.0, haut = 0.0, droite = 0.0, bas = 0.0;
    Contexte->get_clip_extents(gauche, haut, droite, bas);
    if (!(droite > gauche && bas > haut)) return;
    const double angle = AngleHachureBorne(Style), pas = PasHachureBorne(Style);
    const PointVek u(std::cos(angle), -std::sin(angle)), n(std::sin(angle), std::cos(angle));
    const PointVek centre((gauche + droite) / 2.0, (haut + bas) / 2.0);
    const double portee = Norme(PointVek(droite - gauche, bas - haut)) / 2.0 + pas;
    // The lines are those of the whole plane, so that neighbouring surfaces continue one another.
    const PointVek ancre = vue::VersEcran({0.0, 0.0});
    const double phase = ancre.EstFini() ? std::fmod(Scalaire(ancre - centre, n), pas) : 0.0;
    Contexte->unset_dash();
    Contexte->begin_new_path();
    for (double ecart = phase - std::ceil(portee / pas) * pas; ecart <= portee; ecart += pas) {
        const PointVek milieu = centre + n * ecart;
        const PointVek a = milieu - u * portee, b = milieu + u * portee;
        Contexte->move_to(a.x, a.y);
        Contexte->line_to(b.x, b.y);
    }
    TraceChemin();
}

void TracePage::Texte(const TexteEcran& texte, const Gdk::Color& couleur) {
    if (!(texte.Taille > 1.0 / Limite && texte.Taille < Limite) || !texte.Ancre.EstFini()) return;
    const TexteMisEnPage mise(texte, Mise);
    if (!mise.Cadre().Touche(Zone)) return;
    Encre(couleur);
    mise.Peint(Contexte->cobj());
}
