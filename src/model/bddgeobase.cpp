#include "model/bddgeobase.h"

EltGeo* BDDGeoBase::AjouteDebut(std::unique_ptr<EltGeo> elt) {
    Elements.AjouteDebut(elt.get());
    return elt.release();
}

EltGeo* BDDGeoBase::AjouteFin(std::unique_ptr<EltGeo> elt) {
    Elements.Ajoute(elt.get());
    return elt.release();
}

void BDDGeoBase::Vide() {
    Elements.Vide();
}

void BDDGeoBase::Dessine(Trace& trace) const {
    for (const EltGeo* elt : Elements)
        DessineElement(trace, *elt);
}

void BDDGeoBase::DessineElement(Trace& trace, const EltGeo& elt) const {
    if (EstVisible(elt) && (AfficheBDD || elt.Type != TypeBDD)) elt.Dessine(trace);
}

bool BDDGeoBase::EstVisible(const EltGeo& elt) const {
    return CalqueAffiche_ == -1 || CalqueAffiche_ == elt.Calque;
}
