#include "solids/soustractif.h"

#include "solids/eltenvboule.h"
#include "solids/eltpercage.h"
#include "solids/eltrainure.h"
#include "solids/eltrainurep.h"

const Soustractif* CommeSoustractif(const EltGeo& elt) {
    switch (elt.Type) {
        case TypePercage:
            return static_cast<const EltPercage*>(&elt);
        case TypeRainure:
            return static_cast<const EltRainure*>(&elt);
        case TypeRainureP:
            return static_cast<const EltRainureP*>(&elt);
        default:
            return nullptr;
    }
}

const EltEnvBoule* CommeEnveloppe(const EltGeo& elt) {
    return elt.Type == TypeEnvBoule ? static_cast<const EltEnvBoule*>(&elt) : nullptr;
}
