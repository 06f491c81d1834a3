#include "elements/eltarc.h"

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/distances.h"
#include "elements/ecrivain.h"
#include "elements/eltsegment.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/tuile.h"
#include "elements/vue.h"

EltArc::EltArc(int type) : EltGeo(type), Ouverture(DeuxPi) {}

EltArc::EltArc(const PointVek& centre, double rayon, double debut, double ouverture, int calque)
    : EltGeo(centre, calque), Rayon(rayon), AngleDebut(debut), Ouverture(ouverture) {
    Type = TypeArc;
}

std::unique_ptr<EltGeo> EltArc::Clone() const {
    return std::make_unique<EltArc>(*this);
}

void EltArc::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    const auto& arc = static_cast<const EltArc&>(source);
    Type = arc.Type;
    Rayon = arc.Rayon;
    AngleDebut = arc.AngleDebut;
    Ouverture = arc.Ouverture;
}

ArcEcran EltArc::VersEcran() const {
    return {vue::VersEcran(Position), vue::LongueurEcran(Rayon), AngleDebut + vue::Rotation(),
            Ouverture};
}

void EltArc::Dessine(Trace& trace) const {
    if (Style.Remplissage) {
        DessinePlein(trace);
        return;
    }
    const ArcEcran arc = VersEcran();
    if (!trace.Touche(Boite::Autour(arc.Centre, arc.Centre).Elargie(arc.Rayon), Style)) return;
    trace.AppliqueTrait(Style, Trace::Ligne);
    trace.Arc(arc, false);
}

void EltArc::DessinePlein(Trace& trace) const {
    const ArcEcran arc = VersEcran();
    const Boite boite = Boite::Autour(arc.Centre, arc.Centre).Elargie(arc.Rayon);
    if (!trace.Touche(boite, Style)) return;
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        t.AppliqueTrait(Style, Trace::Surface);
        t.Arc(arc, true);
        if (!Style.Remplissage || !Style.Contour) return;
        t.AppliqueTrait(Style, Trace::Ligne);
        t.Arc(arc, false);
    });
}

void EltArc::DessinePoignees(Trace& trace) const {
    trace.AppliqueTrait(Style, Trace::Ligne);
    trace.Poignee(vue::VersEcran(Position));
    const PointVek debut = vue::VersEcran(Debut()), fin = vue::VersEcran(Fin());
    trace.Poignee(debut);
    const bool confondus =
        std::round(debut.x) == std::round(fin.x) && std::round(debut.y) == std::round(fin.y);
    if (!confondus) trace.Poignee(fin);
}

void EltArc::Transforme(const TransformeColle& t) {
    Position.Transforme(t);
    Rayon *= t.Agrandissement;
    const auto miroir = [&t](double angle) {
        if (t.SymetrieX) angle = -angle;
        if (t.SymetrieY) angle = -(angle + Pi / 2.0) - Pi / 2.0;
        return angle;
    };
    const double fin = miroir(AngleDebut + Ouverture);
    AngleDebut = miroir(AngleDebut);
    Ouverture = fin - AngleDebut;
}

void EltArc::ChangeTrait(const Trait& trait) {
    Style = trait;
}

void EltArc::DebutDeforme(const PointVek& p) {
    const double proche = vue::Proche10();
    if (::Distance(p, Debut()) < proche)
        PoigneeCourante = Ouverture < DeuxPi - vue::Epsilon() ? 3 : 2;
    else if (::Distance(p, Fin()) < proche)
        PoigneeCourante = 2;
    else
        PoigneeCourante = 1;
}

void EltArc::Deforme(const PointVek& v) {
    if (PoigneeCourante == 2)
        PlaceFin(Fin() + v);
    else if (PoigneeCourante == 3)
        PlaceDebut(Debut() + v);
    else
        EltGeo::Deforme(v);
}

void EltArc::Sauve(Ecrivain& sortie) const {
    EltGeo::Sauve(sortie);
    sortie << Rayon << ' ' << AngleDebut << ' ' << Ouverture << '\n';
}

void EltArc::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    entree >> Rayon >> AngleDebut >> Ouverture;
}

double EltArc::Distance(const PointVek& p) const {
    return std::abs(::Distance(Position, p) - Rayon);
}

double EltArc::DistanceSupport(const PointVek& p) const {
    return std::min(Distance(p), ::Distance(Position, p));
}

Minorant EltArc::MinorantDistance() const {
    return Minorant::Cercle(Position, Rayon);
}

PointVek EltArc::PointProche(const PointVek& p) const {
    return PlusProche(p, {Position, Debut(), Fin()});
}

PointVek EltArc::Direction() const {
    return {0.0, Rayon};
}

bool EltArc::EstFini() const {
    return Position.EstFini() && std::isfinite(Rayon) && std::isfinite(AngleDebut) &&
           std::isfinite(Ouverture);
}

bool EltArc::EstValide() const {
    return EstFini() && Rayon >= vue::Epsilon();
}

PointVek EltArc::Debut() const {
    return PointPolaire(Position, Rayon, AngleDebut);
}

PointVek EltArc::Fin() const {
    return PointPolaire(Position, Rayon, AngleDebut + Ouverture);
}

double EltArc::AngleVers(const PointVek& p) const {
    const double angle = std::atan2(p.y - Position.y, p.x - Position.x);
    return angle < -vue::Epsilon() ? angle + DeuxPi : angle;
}

void EltArc::FaitCercle(const PointVek& centre, double rayon) {
    Position = centre;
    Rayon = rayon;
    AngleDebut = 0.0;
    Ouverture = DeuxPi;
}

void EltArc::FaitArc(const PointVek& centre, double rayon, const PointVek& debut,
                     const PointVek& fin) {
    FaitCercle(centre, rayon);
    AngleDebut = AngleVers(debut);
    Ouverture = AngleReduit(AngleVers(fin) - AngleDebut, vue::Epsilon());
}

void EltArc::SetRayonPoint(const PointVek& p) {
    FaitCercle(Position, ::Distance(Position, p));
}

void EltArc::SetCentreDefaut(const PointVek& p) {
    FaitCercle(p, 10.0);
}

void EltArc::SetDebutPoint(const PointVek& p) {
    FaitCercle(Position, ::Distance(Position, p));
    Ouverture = EnRadians(15.0);
    if (Rayon >= vue::Epsilon()) AngleDebut = AngleVers(p);
}

void EltArc::SetFinPoint(const PointVek& p) {
    Ouverture =
        Rayon >= vue::Epsilon() ? AngleReduit(AngleVers(p) - AngleDebut, vue::Epsilon()) : 0.0;
}

void EltArc::PlaceDebut(const PointVek& p) {
    AngleDebut = AngleVers(p);
}

void EltArc::PlaceFin(const PointVek& p) {
    const double epsilon = vue::Epsilon();
    Ouverture = std::max(AngleReduit(AngleVers(p) - AngleDebut, epsilon), epsilon);
}

void EltArc::DepuisPoints(const PointVek& debut, const PointVek& fin, double rayon) {
    const double epsilon = vue::Epsilon();
    const auto auCentre = [&](const PointVek& p) {
        return std::abs(p.x - Position.x) < epsilon && std::abs(p.y - Position.y) < epsilon;
    };
    if (auCentre(debut) || auCentre(fin))
        FaitCercle(Position, rayon);
    else
        FaitArc(Position, rayon, debut, fin);
}

void EltArc::Arc2Points(const PointVek& a, const PointVek& b) {
    const PointVek h = (b - a) / 2.0;
    Arc3Points(a, b, a + h + Normale(h));
}

void EltArc::Arc3Points(const PointVek& a, const PointVek& b, const PointVek& c) {
    const PointVek h = (b - a) / 2.0;
    const PointVek milieu = a + h;
    const double demi = ::Distance({}, h);
    PointVek centre = milieu + Normale(h);
    if (demi > vue::Epsilon()) centre = milieu + Normale(h) * (::Distance(c, milieu) / demi);
    const double rayon = ::Distance(a, centre);
    if (rayon > vue::Epsilon())
        FaitArc(centre, rayon, a, b);
    else
        FaitCercle(centre, rayon);
}
