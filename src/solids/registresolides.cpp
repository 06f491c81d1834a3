// The solids that files hold.

#include "model/registre.h"
#include "solids/eltcylindre.h"
#include "solids/eltenvboule.h"
#include "solids/eltimage3d.h"
#include "solids/eltpave.h"
#include "solids/eltpercage.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofilevantail.h"
#include "solids/eltprofilruban.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltrainure.h"
#include "solids/eltrainurep.h"
#include "solids/eltsphere.h"

std::unique_ptr<EltGeo> CreeSolide(int type) {
    static constexpr ClasseElt classes[] = {
        {TypePave, NouvelElt<EltPave>},
        {TypeCylindre, NouvelElt<EltCylindre>},
        {TypeSphere, NouvelElt<EltSphere>},
        {TypePercage, NouvelElt<EltPercage>},
        {TypeEnvBoule, NouvelElt<EltEnvBoule>},
        {TypeRainure, NouvelElt<EltRainure>},
        {TypeProfilElevation, NouvelElt<EltProfilElevation>},
        {TypeProfilTourne, NouvelElt<EltProfilTourne>},
        {TypeProfilSurface, NouvelElt<EltProfilSurface>},
        {TypeProfilRuban, NouvelElt<EltProfilRuban>},
        {TypeProfilEvantail, NouvelElt<EltProfilEvantail>},
        {TypeRainureP, NouvelElt<EltRainureP>},
        {TypeImage3d, NouvelElt<EltImage3d>},
        {TypeProfilTubeRond, NouvelElt<EltProfilTubeRond>},
        {TypeProfilBoaRond, NouvelElt<EltProfilBoaRond>},
    };
    return CreeParmi(classes, type);
}
