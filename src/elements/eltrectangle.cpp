#include "elements/eltrectangle.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "elements/distances.h"
#include "elements/trace.h"
#include "elements/tuile.h"
#include "elements/vue.h"

EltRectangle::EltRectangle(int type) : EltSegment(type) {}

EltRectangle::EltRectangle(const PointVek& origine, const PointVek& extremite, int calque)
    : EltSegment(origine, extremite, calque) {
    Type = TypeRectangle;
}

std::unique_ptr<EltGeo> EltRectangle::Clone() const {
    return std::make_unique<EltRectangle>(*this);
}

/// Where nothing is rounded to pixels: the polygon of the corners.
void EltRectangle::DessinePolygone(Trace& trace) const {
    const CoinsOrdonnes coins = Coins();
    const PointVek a = vue::VersEcran(coins.HautGauche), b = vue::VersEcran(coins.HautDroite());
    const PointVek c = vue::VersEcran(coins.BasDroite), d = vue::VersEcran(coins.BasGauche());
    const Boite boite = Boite::Autour(a, c).Avec(b).Avec(d);
    if (!trace.Touche(boite, Style)) return;
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        const std::vector<LienEcran> cotes = {{a, b, {}}, {b, c, {}}, {c, d, {}}, {d, a, {}}};
        if (Style.Remplissage) {
            t.AppliqueTrait(Style, Trace::Surface);
            t.Polygone(cotes);
            if (!Style.Contour) return;
        }
        t.AppliqueTrait(Style, Trace::Ligne);
        for (const LienEcran& cote : cotes)
            t.Lien(cote);
    });
}

void EltRectangle::Dessine(Trace& trace) const {
    if (vue::Rotation() != 0.0 || trace.SurPapier()) {
        DessinePolygone(trace);
        return;
    }
    const CoinsOrdonnes coins = Coins();
    const PointVek a = vue::VersEcran(coins.HautGauche), b = vue::VersEcran(coins.BasDroite);
    double largeur = std::round(b.x - a.x), hauteur = std::round(b.y - a.y);
    // A rectangle without area stays visible, so that it can be picked.
    if (largeur < 1.0 || hauteur < 1.0) largeur = hauteur = 10.0;
    const Boite boite = Boite::Autour(a, a + PointVek(largeur, hauteur));
    if (!trace.Touche(boite, Style)) return;
    if (!Style.Remplissage) {
        trace.AppliqueTrait(Style, Trace::Ligne);
        trace.Rectangle(a, largeur, hauteur, false);
        return;
    }
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        t.AppliqueTrait(Style, Trace::Surface);
        t.Rectangle(a, largeur, hauteur, true);
        if (!Style.Contour) return;
        t.AppliqueTrait(Style, Trace::Ligne);
        t.Rectangle(a, largeur, hauteur, false);
    });
}

void EltRectangle::DessinePoignees(Trace& trace) const {
    trace.AppliqueTrait(Style, Trace::Ligne);
    const CoinsOrdonnes coins = Coins();
    for (const PointVek& p :
         {coins.HautGauche, coins.BasDroite, coins.BasGauche(), coins.HautDroite()})
        trace.Poignee(vue::VersEcran(p));
}

void EltRectangle::Transforme(const TransformeColle& t) {
    EltSegment::Transforme(t);
    Ordonne();
}

void EltRectangle::ChangeTrait(const Trait& trait) {
    Style = trait;
}

void EltRectangle::Deforme(const PointVek& v) {
    EltSegment::Deforme(v);
    Ordonne();
}

double EltRectangle::Distance(const PointVek& p) const {
    const CoinsOrdonnes coins = Coins();
    const PointVek a = coins.HautGauche, b = coins.HautDroite();
    const PointVek c = coins.BasDroite, d = coins.BasGauche();
    return std::min({DistanceSegment(p, a, b), DistanceSegment(p, b, c), DistanceSegment(p, c, d),
                     DistanceSegment(p, d, a)});
}

double EltRectangle::DistanceSupport(const PointVek& p) const {
    return Distance(p);
}

Minorant EltRectangle::MinorantDistance() const {
    return Minorant::Rectangle(Origine, Extremite);
}

PointVek EltRectangle::PointProche(const PointVek& p) const {
    const CoinsOrdonnes coins = Coins();
    return PlusProche(p,
                      {coins.HautGauche, coins.BasDroite, coins.BasGauche(), coins.HautDroite()});
}

void EltRectangle::SetOrigine(const PointVek& p) {
    SetPoints(p, p + (Extremite - Origine));
}

EltRectangle::CoinsOrdonnes EltRectangle::Coins() const {
    const auto [gauche, droite] = std::minmax(Origine.x, Extremite.x);
    const auto [bas, haut] = std::minmax(Origine.y, Extremite.y);
    return {{gauche, haut, Origine.z}, {droite, bas, Extremite.z}};
}

void EltRectangle::Ordonne() {
    const CoinsOrdonnes coins = Coins();
    SetPoints(coins.HautGauche, coins.BasDroite);
}

bool EltRectangle::Contient(const EltGeo& elt) const {
    const CoinsOrdonnes coins = Coins();
    const PointVek c = elt.Centre();
    return coins.HautGauche.x < c.x && c.x < coins.BasDroite.x && coins.BasDroite.y < c.y &&
           c.y < coins.HautGauche.y;
}
