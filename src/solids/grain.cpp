#include "solids/grain.h"

int FacettesTenables(int facettes, const std::function<double(double)>& cout, double maximum) {
    while (facettes > 1 && cout(facettes) > maximum)
        --facettes;
    return facettes;
}
