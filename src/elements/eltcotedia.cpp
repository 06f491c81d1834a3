#include "elements/eltcotedia.h"

#include "elements/trace.h"
#include "elements/vue.h"

std::unique_ptr<EltGeo> EltCoteDia::Clone() const {
    return std::make_unique<EltCoteDia>(*this);
}

void EltCoteDia::DepuisArc(const EltArc& arc) {
    EltCoteCercle::DepuisArc(arc);
    Point2 = Position * 2.0 - Point1;
}

double EltCoteDia::PorteeLignes() const {
    return ::Distance(Position, (Point1 + Point2) / 2.0) + Valeur() / 2.0;
}

void EltCoteDia::DessineLignes(Trace& trace) const {
    // The diameter that is drawn turns with the text.
    const PointVek milieu = (Point1 + Point2) / 2.0;
    const double ecart = ::Distance(Position, milieu);
    PointVek u(1.0, 0.0);
    if (ecart > vue::Epsilon()) u = (Position - milieu) / ecart;
    const PointVek rayon = u * (Valeur() / 2.0);
    const PointVek f = vue::VersEcran(milieu + rayon), g = vue::VersEcran(milieu - rayon);
    trace.Segment(vue::VersEcran(Position), f);
    trace.Segment(f, g);
    DessineFleche(trace, f, g - f);
    DessineFleche(trace, g, f - g);
}
