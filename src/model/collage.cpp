// Cut, copy, paste and groups: what the drawing does with its clipboard.

#include <vector>

#include "elements/eltrectangle.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"

const EltBDD* BDDGeo::ChercheBDD(const Glib::ustring& identificateur) const {
    const auto bonne = [&identificateur](const EltGeo& elt) {
        return static_cast<const EltBDD&>(elt).EstIdentifie(identificateur);
    };
    return static_cast<const EltBDD*>(Table.PremierGroupe(Elements, bonne));
}

void BDDGeo::CopieZone(const EltRectangle& zone, bool couper) {
    PressePapier.Vide();
    std::vector<const EltGeo*> coupes;  // In the order of the list.
    const PointVek coin = zone.Coins().HautGauche;
    for (const EltGeo* elt : Elements) {
        if (!EstVisible(*elt) || elt->Type == TypeBDD || !zone.Contient(*elt)) continue;
        auto clone = elt->Clone();
        clone->Deplace(-coin);
        PressePapier.AjouteDebut(std::move(clone));
        if (couper && elt->NbParents == 0) coupes.push_back(elt);
    }
    if (!couper) return;
    auto prochain = coupes.begin();
    Elements.RetireSi(
        [&](const EltGeo& elt) {
            if (prochain == coupes.end() || *prochain != &elt) return false;
            ++prochain;
            return true;
        },
        [&](EltGeo* elt) {
            Retrait.emit(elt);
            // It keeps its children for the day it comes back, but holds them no more.
            for (EltGeo* fils : elt->Fils)
                --fils->NbParents;
            Annulations.push_back({EnregAnnul::Retire, std::unique_ptr<EltGeo>(elt), nullptr});
        });
    DernierTrouve = nullptr;
    Table.Perime();
    // As many as were copied, whether or not all of them were cut: that is meant.
    Annulations.push_back({EnregAnnul::Coupe, nullptr, nullptr, PressePapier.Elements.Nombre()});
}

void BDDGeo::Coller(const BDDGeoClipboard& collage, const PointVek& p, int calque) {
    int nombre = 0;
    for (const EltGeo* elt : collage.Elements) {
        auto clone = elt->Clone();
        clone->Deplace(p);
        clone->Calque = calque;
        // The children of the source are not of this drawing.
        clone->Fils.Vide();
        if (!clone->EstFini()) continue;
        Annulations.push_back({EnregAnnul::Ajoute, nullptr, AjouteDebut(std::move(clone))});
        ++nombre;
    }
    Annulations.push_back({EnregAnnul::Colle, nullptr, nullptr, nombre});
}

void BDDGeo::CollerCommeBDD(const BDDGeoClipboard& collage, const PointVek& p,
                            const Glib::ustring& identificateur) {
    auto groupe = std::make_unique<EltBDD>();
    groupe->CopieListe(collage);
    groupe->SetIdentificateur(identificateur);
    groupe->Place(p);
    AjouteDebut(std::move(groupe));
}

void BDDGeo::AnnuleCoupe(int nombre) {
    for (; nombre > 0 && !Annulations.empty(); --nombre) {
        EnregAnnul pas = std::move(Annulations.back());
        Annulations.pop_back();
        if (pas.Quoi == EnregAnnul::Retire) AjouteFin(std::move(pas.Element))->ReferenceFils();
    }
}

void BDDGeo::AnnuleColle(int nombre) {
    for (; nombre > 0 && !Annulations.empty(); --nombre) {
        const EnregAnnul pas = std::move(Annulations.back());
        Annulations.pop_back();
        if (pas.Quoi == EnregAnnul::Ajoute) Retire(pas.Cible);
    }
}
