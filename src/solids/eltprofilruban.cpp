#include "solids/eltprofilruban.h"

#include <GL/gl.h>

EltProfilRuban::EltProfilRuban() : EltProfilVertex(TypeProfilRuban) {}

std::unique_ptr<EltGeo> EltProfilRuban::Clone() const {
    return std::make_unique<EltProfilRuban>(*this);
}

void EltProfilRuban::DessineVertex() const {
    DessineSuite(GL_TRIANGLE_STRIP);
}
