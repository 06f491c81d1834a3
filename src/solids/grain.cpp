#include "solids/grain.h"

int FacettesTenables(int facettes, const std::function<double(double)>& cout, double maximum) {
    if (facettes <= 1 || cout(facettes) <= maximum) return facettes;
    int tenables = 1;
    for (int trop = facettes; trop - tenables > 1;) {
        const int milieu = (tenables + trop) / 2;
        (cout(milieu) <= maximum ? tenables : trop) = milieu;
    }
    return tenables;
}
