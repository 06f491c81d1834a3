#include "solids/eltprofilevantail.h"

#include <GL/gl.h>

EltProfilEvantail::EltProfilEvantail() : EltProfilVertex(TypeProfilEvantail) {}

std::unique_ptr<EltGeo> EltProfilEvantail::Clone() const {
    return std::make_unique<EltProfilEvantail>(*this);
}

void EltProfilEvantail::DessineVertex() const {
    DessineSuite(GL_TRIANGLE_FAN);
}
