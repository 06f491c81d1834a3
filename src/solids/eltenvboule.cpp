#include "solids/eltenvboule.h"

EltEnvBoule::EltEnvBoule() : EltSphere(TypeEnvBoule) {}

std::unique_ptr<EltGeo> EltEnvBoule::Clone() const {
    return std::make_unique<EltEnvBoule>(*this);
}
