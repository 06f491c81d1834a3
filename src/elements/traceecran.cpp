#include "elements/traceecran.h"

#include <gdk/gdk.h>

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/tuile.h"
#include "elements/vue.h"

namespace {

/// The window system takes coordinates and lengths of 16 bits; this leaves room for wide lines and
/// for the offset of a partial exposure.
constexpr double Limite = 16000.0;
constexpr Boite Envoyable{-Limite, -Limite, Limite, Limite};

/// Radius in pixels up to which an arc is left to the window system.
constexpr double RayonDirect = 4000.0;

struct Tirage {
    gint8 Longueurs[4];
    int Nombre;
    int Periode;
};

const Tirage& TirageDe(int styleLigne) {
    static const Tirage tirages[] = {
        {{5, 5, 0, 0}, 2, 10}, {{10, 5, 3, 5}, 4, 23}, {{2, 2, 0, 0}, 2, 4}};
    return tirages[styleLigne - Tirets];
}

int Pixels(double v) {
    return static_cast<int>(std::lround(v));
}

/// True when the window system can paint the arc.
bool EstDirect(const ArcEcran& arc) {
    const Boite boite = Boite::Autour(arc.Centre, arc.Centre).Elargie(arc.Rayon);
    return arc.Rayon <= RayonDirect && Envoyable.Contient({boite.Gauche, boite.Haut}) &&
           Envoyable.Contient({boite.Droite, boite.Bas});
}

/// The whole pixels by which the window system takes the circle of an arc.
struct Carre {
    explicit Carre(const ArcEcran& arc)
        : x(Pixels(arc.Centre.x - arc.Rayon)),
          y(Pixels(arc.Centre.y - arc.Rayon)),
          Cote(Pixels(2.0 * arc.Rayon)) {}

    int x;
    int y;
    int Cote;
};

}  // namespace

TraceEcran::TraceEcran(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur)
    : Trace(Boite{0.0, 0.0, static_cast<double>(largeur), static_cast<double>(hauteur)}),
      Support(surface),
      Contexte(Gdk::GC::create(surface)),
      Aire(Zone) {}

TraceEcran::TraceEcran(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur,
                       const Gdk::Rectangle& exposee)
    : TraceEcran(surface, largeur, hauteur) {
    const double x = exposee.get_x(), y = exposee.get_y();
    Zone = {std::max(0.0, x), std::max(0.0, y), std::min<double>(largeur, x + exposee.get_width()),
            std::min<double>(hauteur, y + exposee.get_height())};
}

TraceEcran::TraceEcran(const Glib::RefPtr<Gdk::Drawable>& surface, int largeur, int hauteur,
                       const Gdk::Color& fond)
    : TraceEcran(surface, largeur, hauteur) {
    Bande = true;
    Fond = fond;
    PixelFond = Pixel(fond);
    Contexte->set_function(Gdk::XOR);
}

void TraceEcran::AppliqueTrait(const Trait& trait, Matiere matiere) {
    AppliqueLigne(EpaisseurBornee(trait), trait.StyleLigne);
    const bool tuile = matiere == Surface && trait.Hachure == 1;
    if (tuile) {
        AppliqueTuile(trait);
    } else {
        const bool remplie = matiere == Surface && trait.Remplissage;
        // A fill in the colour of the background is no band by itself; the outline will show it.
        const bool discrete = remplie && trait.Contour;
        const Gdk::Color& couleur = remplie ? trait.CouleurFond : trait.Couleur;
        AppliqueCouleur(discrete ? couleur : Visible(couleur));
        if (Tuilage) Contexte->set_fill(Gdk::SOLID);
    }
    Tuilage = tuile;
}

void TraceEcran::AppliqueLigne(int epaisseur, int styleLigne) {
    if (LigneConnue && epaisseur == EpaisseurPosee && styleLigne == StylePose) return;
    // Round caps would join the dots of a wide dashed line.
    if (styleLigne == Continu)
        Contexte->set_line_attributes(epaisseur, Gdk::LINE_SOLID, Gdk::CAP_ROUND, Gdk::JOIN_MITER);
    else
        Contexte->set_line_attributes(epaisseur, Gdk::LINE_ON_OFF_DASH, Gdk::CAP_BUTT,
                                      Gdk::JOIN_MITER);
    LigneConnue = true;
    EpaisseurPosee = epaisseur;
    StylePose = styleLigne;
    PhasePosee = -1;
    PlacePhase(0.0);
}

void TraceEcran::PlacePhase(double phase) {
    if (StylePose == Continu) return;
    const Tirage& tirage = TirageDe(StylePose);
    double reste = std::fmod(phase, tirage.Periode);
    if (reste < 0.0) reste += tirage.Periode;
    const int entiere = Pixels(reste) % tirage.Periode;
    if (entiere == PhasePosee) return;
    gint8 longueurs[4];
    std::copy_n(tirage.Longueurs, 4, longueurs);
    gdk_gc_set_dashes(Contexte->gobj(), entiere, longueurs, tirage.Nombre);
    PhasePosee = entiere;
}

guint32 TraceEcran::Pixel(const Gdk::Color& couleur) const {
    GdkColor cherchee = *couleur.gobj();
    gdk_rgb_find_color(Support->get_colormap()->gobj(), &cherchee);
    return cherchee.pixel;
}

void TraceEcran::AppliqueCouleur(const Gdk::Color& couleur) {
    if (CouleurConnue && gdk_color_equal(couleur.gobj(), &CouleurPosee)) return;
    CouleurConnue = true;
    CouleurPosee = *couleur.gobj();
    if (!Bande) {
        Contexte->set_rgb_fg_color(couleur);
        return;
    }
    GdkColor exclusif = CouleurPosee;
    exclusif.pixel = Pixel(couleur) ^ PixelFond;
    gdk_gc_set_foreground(Contexte->gobj(), &exclusif);
}

void TraceEcran::AppliqueTuile(const Trait& trait) {
    const bool posee =
        TuilePosee && trait.PasHachure == TraitTuile.PasHachure &&
        trait.AngleHachure == TraitTuile.AngleHachure && trait.Epaisseur == TraitTuile.Epaisseur &&
        trait.Couleur == TraitTuile.Couleur && trait.CouleurFond == TraitTuile.CouleurFond;
    if (!posee) {
        Trait visible = trait;
        if (visible.CouleurFond == visible.Couleur) visible.Couleur = Visible(visible.Couleur);
        TuilePosee = TuileHachure(Support, visible);
        TraitTuile = trait;
        Contexte->set_tile(TuilePosee);
    }
    AncreTuile();
    if (!posee || !Tuilage) Contexte->set_fill(Gdk::TILED);
}

void TraceEcran::AncreTuile() {
    int largeur = 0, hauteur = 0;
    TuilePosee->get_size(largeur, hauteur);
    // The hatch moves with the drawing.
    const PointVek origine = vue::VersEcran({0.0, 0.0});
    if (!origine.EstFini()) return;
    const std::pair<int, int> ancre(Pixels(std::fmod(origine.x, largeur)),
                                    Pixels(std::fmod(origine.y, hauteur)));
    if (ancre == AncrePosee) return;
    Contexte->set_ts_origin(ancre.first, ancre.second);
    AncrePosee = ancre;
}

Gdk::Color TraceEcran::Visible(const Gdk::Color& couleur) const {
    if (!(Bande || PourBande) || couleur != Fond) return couleur;
    Gdk::Color inverse;
    inverse.set_rgb(static_cast<gushort>(~Fond.get_red()), static_cast<gushort>(~Fond.get_green()),
                    static_cast<gushort>(~Fond.get_blue()));
    return inverse;
}

void TraceEcran::Compose(const Boite& boite, const std::function<void(Trace&)>& dessine) {
    if (!Bande) {
        dessine(*this);
        return;
    }
    // Painted on the plain background in a pixmap, then combined with that background: what is left
    // shows the picture by exclusive-or on the window, text, hatch and overlaps included, and takes
    // it away again.
    const int x = Pixels(std::max(boite.Gauche, 0.0)), y = Pixels(std::max(boite.Haut, 0.0));
    const int largeur = Pixels(std::min(boite.Droite, Aire.Droite)) - x;
    const int hauteur = Pixels(std::min(boite.Bas, Aire.Bas)) - y;
    if (largeur <= 0 || hauteur <= 0) return;
    const auto image =
        Gdk::Pixmap::create(Support, Pixels(Aire.Droite), Pixels(Aire.Bas), Support->get_depth());
    image->set_colormap(Support->get_colormap());
    TraceEcran interne(image, Pixels(Aire.Droite), Pixels(Aire.Bas));
    interne.Zone = Boite{1.0 * x, 1.0 * y, 1.0 * (x + largeur), 1.0 * (y + hauteur)};
    interne.PourBande = true;
    interne.Fond = Fond;
    const auto fond = Gdk::GC::create(image);
    fond->set_rgb_fg_color(Fond);
    image->draw_rectangle(fond, true, x, y, largeur, hauteur);
    dessine(interne);
    fond->set_function(Gdk::XOR);
    image->draw_rectangle(fond, true, x, y, largeur, hauteur);
    gdk_draw_drawable(Support->gobj(), Contexte->gobj(), image->gobj(), x, y, x, y, largeur,
                      hauteur);
}

void TraceEcran::Segment(const PointVek& a, const PointVek& b) {
    LigneDepuis(a, b, 0.0);
}

void TraceEcran::LigneDepuis(const PointVek& a, const PointVek& b, double phase) {
    if (Envoyable.Contient(a) && Envoyable.Contient(b)) {
        PlacePhase(phase);
        gdk_draw_line(Support->gobj(), Contexte->gobj(), Pixels(a.x), Pixels(a.y), Pixels(b.x),
                      Pixels(b.y));
        return;
    }
    PointVek debut = a, fin = b;
    if (!CoupeLigne(debut, fin, Envoyable) || !debut.EstFini() || !fin.EstFini()) return;
    PlacePhase(phase + Norme(debut - a));
    gdk_draw_line(Support->gobj(), Contexte->gobj(), Pixels(debut.x), Pixels(debut.y),
                  Pixels(fin.x), Pixels(fin.y));
}

void TraceEcran::Droite(const PointVek& p, const PointVek& d) {
    const double longueur = Norme(d);
    if (!p.EstFini() || !std::isfinite(longueur)) return;
    const PointVek u = longueur > 0.0 ? d / longueur : PointVek(0.0, 1.0);
    // From the point of the line nearest to the centre of the area, which may be far from p, to
    // beyond both edges. Dashes are counted from p, so that they stay with the line when the view
    // moves.
    const PointVek centre = Aire.Centre();
    const double glissement = Scalaire(centre - p, u);
    const PointVek milieu = p + u * glissement;
    const double portee = Aire.Droite + Aire.Bas + 2.0 * EpaisseurPosee;
    const PointVek depart = milieu - u * portee;
    PointVek a = depart, b = milieu + u * portee;
    if (!CoupeLigne(a, b, Aire.Elargie(EpaisseurPosee + 2.0))) return;
    LigneDepuis(a, b, glissement - portee + Norme(a - depart));
}

void TraceEcran::Arc(ArcEcran arc, bool plein) {
    if (!arc.Centre.EstFini() || !std::isfinite(arc.Rayon) || arc.Rayon < 0.0) return;
    arc.Debut = std::fmod(arc.Debut, DeuxPi);
    arc.Ouverture = std::clamp(arc.Ouverture, -DeuxPi, DeuxPi);
    if (!EstDirect(arc)) {
        ArcParPas(arc, plein);
        return;
    }
    PlacePhase(0.0);
    const Carre carre(arc);
    gdk_draw_arc(Support->gobj(), Contexte->gobj(), plein, carre.x, carre.y, carre.Cote, carre.Cote,
                 Pixels(EnDegres(arc.Debut) * 64.0), Pixels(EnDegres(arc.Ouverture) * 64.0));
}

std::vector<double> TraceEcran::PasVisibles(const ArcEcran& arc) const {
    return PasArc(arc, Aire.Elargie(EpaisseurPosee + 2.0));
}

void TraceEcran::Remplit(std::vector<PointVek> sommets) {
    std::vector<GdkPoint> pixels;
    for (const PointVek& p : CoupePolygone(std::move(sommets), Envoyable)) {
        if (!p.EstFini()) continue;
        const GdkPoint pixel{Pixels(p.x), Pixels(p.y)};
        if (pixels.empty() || pixel.x != pixels.back().x || pixel.y != pixels.back().y)
            pixels.push_back(pixel);
    }
    // The window system takes a time that grows with the square of their number.
    constexpr std::size_t maximum = 10000;
    const std::size_t pas = (pixels.size() / maximum) | 1;  // Odd, for what goes to and fro.
    for (std::size_t i = 0; i < pixels.size(); i += pas)
        pixels[i / pas] = pixels[i];
    pixels.resize((pixels.size() + pas - 1) / pas);
    if (pixels.size() > 2)
        gdk_draw_polygon(Support->gobj(), Contexte->gobj(), TRUE, pixels.data(),
                         static_cast<int>(pixels.size()));
}

void TraceEcran::Polygone(const std::vector<LienEcran>& liens) {
    std::vector<PointVek> sommets;
    for (const LienEcran& lien : liens) {
        sommets.push_back(lien.Debut);
        if (lien.Arc) AjouteBord(*lien.Arc, sommets);
        sommets.push_back(lien.Fin);
    }
    Remplit(std::move(sommets));
}

void TraceEcran::AjouteBord(const ArcEcran& arc, std::vector<PointVek>& sommets) const {
    if (!arc.Centre.EstFini() || !std::isfinite(arc.Rayon)) return;
    if (!EstDirect(arc)) {
        for (const double angle : PasVisibles(arc))
            sommets.push_back(arc.Point(angle));
        return;
    }
    // Through the pixels of the arc's line, close to one another: what lies between the edge and
    // the line would keep the colour of the background.
    constexpr double fleche = 0.02;
    const Carre carre(arc);
    const double rayon = carre.Cote / 2.0;
    const ArcEcran peint{{carre.x + rayon, carre.y + rayon}, rayon, arc.Debut, arc.Ouverture};
    const auto ecart = [&](const PointVek& p) {
        return std::abs(Distance(p, peint.Centre) - rayon);
    };
    for (const double angle : PasArc(peint, Envoyable, fleche)) {
        const PointVek p = peint.Point(angle);
        const double g = std::floor(p.x), d = std::ceil(p.x);
        const double h = std::floor(p.y), b = std::ceil(p.y);
        sommets.push_back(std::min(
            {PointVek(g, h), PointVek(g, b), PointVek(d, h), PointVek(d, b)},
            [&](const PointVek& p1, const PointVek& p2) { return ecart(p1) < ecart(p2); }));
    }
}

void TraceEcran::ArcParPas(const ArcEcran& arc, bool plein) {
    const std::vector<double> angles = PasVisibles(arc);
    if (plein) {
        std::vector<PointVek> sommets;
        if (std::abs(arc.Ouverture) < DeuxPi) sommets.push_back(arc.Centre);
        for (const double angle : angles)
            sommets.push_back(arc.Point(angle));
        Remplit(std::move(sommets));
        return;
    }
    const Boite vue = Aire.Elargie(EpaisseurPosee + 2.0);
    std::vector<PointVek> suite;
    double phase = 0.0;
    const auto envoie = [&] {
        if (suite.size() > 1) PolyligneDepuis(suite, phase);
        suite.clear();
    };
    for (std::size_t i = 1; i < angles.size(); ++i) {
        const PointVek a = arc.Point(angles[i - 1]), b = arc.Point(angles[i]);
        if (!Boite::Autour(a, b).Touche(vue)) {
            envoie();
            continue;
        }
        if (suite.empty()) {
            suite.push_back(a);
            phase = std::abs(angles[i - 1] - arc.Debut) * arc.Rayon;
        }
        suite.push_back(b);
    }
    envoie();
}

void TraceEcran::PolyligneDepuis(const std::vector<PointVek>& points, double phase) {
    std::vector<GdkPoint> pixels;
    for (const PointVek& p : points) {
        if (!Envoyable.Contient(p)) break;
        pixels.push_back({Pixels(p.x), Pixels(p.y)});
    }
    if (pixels.size() == points.size()) {
        // In one piece, so that a band has no holes where two lines meet.
        PlacePhase(phase);
        gdk_draw_lines(Support->gobj(), Contexte->gobj(), pixels.data(),
                       static_cast<int>(pixels.size()));
        return;
    }
    for (std::size_t i = 1; i < points.size(); ++i) {
        LigneDepuis(points[i - 1], points[i], phase);
        phase += Norme(points[i] - points[i - 1]);
    }
}

void TraceEcran::Rectangle(const PointVek& coin, double largeur, double hauteur, bool plein) {
    const PointVek oppose(coin.x + largeur, coin.y + hauteur);
    if (!coin.EstFini() || !oppose.EstFini()) return;
    if (Envoyable.Contient(coin) && Envoyable.Contient(oppose)) {
        PlacePhase(0.0);
        gdk_draw_rectangle(Support->gobj(), Contexte->gobj(), plein, Pixels(coin.x), Pixels(coin.y),
                           Pixels(largeur), Pixels(hauteur));
        return;
    }
    if (plein) {
        const double gauche = std::max(coin.x, -Limite), haut = std::max(coin.y, -Limite);
        const double l = std::min(oppose.x, Limite) - gauche;
        const double h = std::min(oppose.y, Limite) - haut;
        if (l > 0.0 && h > 0.0)
            gdk_draw_rectangle(Support->gobj(), Contexte->gobj(), TRUE, Pixels(gauche),
                               Pixels(haut), Pixels(l), Pixels(h));
        return;
    }
    const PointVek droit(oppose.x, coin.y), gauche(coin.x, oppose.y);
    LigneDepuis(coin, droit, 0.0);
    LigneDepuis(droit, oppose, largeur);
    LigneDepuis(oppose, gauche, largeur + hauteur);
    LigneDepuis(gauche, coin, largeur * 2.0 + hauteur);
}

void TraceEcran::Poignee(const PointVek& centre) {
    if (!Envoyable.Contient(centre)) return;
    const int x = Pixels(centre.x), y = Pixels(centre.y);
    // Two handles on the same pixels would take each other away in a band.
    if (!PoigneesPeintes.emplace(x, y).second) return;
    // Whatever the element's line: dashes or a width would make it unreadable.
    AppliqueLigne(1, Continu);
    gdk_draw_rectangle(Support->gobj(), Contexte->gobj(), FALSE, x - 5, y - 5, 10, 10);
}

void TraceEcran::Croix(const PointVek& centre, double bras) {
    Segment({centre.x - bras, centre.y}, {centre.x + bras, centre.y});
    Segment({centre.x, centre.y - bras}, {centre.x, centre.y + bras});
}

void TraceEcran::Texte(const TexteEcran& texte, const Gdk::Color& couleur) {
    if (texte.EstInvisible()) return;
    const TexteMisEnPage mise(texte);
    const Boite boite = mise.Cadre();
    if (!boite.Touche(Zone)) return;
    Compose(boite, [&](Trace& trace) {
        const auto& ecran = static_cast<TraceEcran&>(trace);
        mise.Peint(ecran.Support, ecran.Visible(couleur));
    });
}

void TraceEcran::Point(const PointVek& p) {
    if (!Zone.Elargie(1.0).Contient(p)) return;
    gdk_draw_point(Support->gobj(), Contexte->gobj(), Pixels(p.x), Pixels(p.y));
}
