#include "elements/eltcoterayon.h"

#include "elements/trace.h"
#include "elements/vue.h"

std::unique_ptr<EltGeo> EltCoteRayon::Clone() const {
    return std::make_unique<EltCoteRayon>(*this);
}

double EltCoteRayon::PorteeLignes() const {
    return ::Distance(Position, Point2) + Valeur();
}

void EltCoteRayon::DessineLignes(Trace& trace) const {
    // From the text to Point2, and from there as far as the radius back toward the text.
    const double ecart = ::Distance(Position, Point2);
    const PointVek u = ecart > vue::Epsilon() ? (Point2 - Position) / ecart : Direction();
    const PointVek centre = vue::VersEcran(Point2), e = vue::VersEcran(Point2 - u * Valeur());
    trace.Segment(vue::VersEcran(Position), centre);
    trace.Segment(centre, e);
    DessineFleche(trace, e, centre - e);
}
