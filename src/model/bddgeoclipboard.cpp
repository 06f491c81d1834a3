#include "model/bddgeoclipboard.h"

#include "model/vuedecalee.h"

void BDDGeoClipboard::DessineEn(Trace& trace, const PointVek& position) const {
    const VueDecalee vue(position);
    Dessine(trace);
}

void BDDGeoClipboard::TransformeTout(const TransformeColle& t) {
    for (EltGeo* elt : Elements)
        elt->Transforme(t);
}
