#include "elements/eltdroite.h"

#include "elements/trace.h"
#include "elements/vue.h"

EltDroite::EltDroite() : EltSegment(TypeDroite) {}

EltDroite::EltDroite(const PointVek& origine, const PointVek& extremite, int calque)
    : EltSegment(origine, extremite, calque) {
    Type = TypeRectangle;
}

EltDroite::EltDroite(const EltDroite& source) : EltSegment(source) {
    Type = TypeDroite;
}

std::unique_ptr<EltGeo> EltDroite::Clone() const {
    return std::make_unique<EltDroite>(*this);
}

void EltDroite::Dessine(Trace& trace) const {
    const PointVek a = vue::VersEcran(Origine), b = vue::VersEcran(Extremite);
    trace.AppliqueTrait(Style, Trace::Ligne);
    trace.Droite(a, b - a);
}

void EltDroite::DessinePoignees(Trace& trace) const {
    EltGeo::DessinePoignees(trace);
}

void EltDroite::ChangeTrait(const Trait& trait) {
    Style = trait;
}

double EltDroite::Distance(const PointVek& p) const {
    return DistanceSupport(p);
}

Minorant EltDroite::MinorantDistance() const {
    // A null one is measured to its point but painted as a vertical line.
    return Longueur() > 0.0 ? EltSegment::MinorantDistance() : Minorant::Nul();
}

void EltDroite::SetOrigine(const PointVek& p) {
    SetPoints(p, p + (Extremite - Origine));
}
