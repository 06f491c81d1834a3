#include "elements/eltcotehori.h"

std::unique_ptr<EltGeo> EltCoteHori::Clone() const {
    return std::make_unique<EltCoteHori>(*this);
}

PointVek EltCoteHori::Direction() const {
    return {1.0, 0.0};
}

bool EltCoteHori::EstValide() const {
    return EstFini();
}
