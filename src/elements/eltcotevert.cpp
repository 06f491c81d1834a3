#include "elements/eltcotevert.h"

std::unique_ptr<EltGeo> EltCoteVert::Clone() const {
    return std::make_unique<EltCoteVert>(*this);
}

PointVek EltCoteVert::Direction() const {
    return {0.0, 1.0};
}

bool EltCoteVert::EstValide() const {
    return EstFini();
}
