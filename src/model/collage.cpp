// Cut, copy, paste and groups: what the drawing does with its clipboard.

#include <map>
#include <string>
#include <vector>

#include "elements/eltrectangle.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"

const EltBDD* BDDGeo::ChercheBDD(const Glib::ustring& identificateur) const {
    const auto bonne = [&identificateur](const EltGeo& elt) {
        return static_cast<const EltBDD&>(elt).EstIdentifie(identificateur);
    };
    return static_cast<const EltBDD*>(Table.PremierGroupe(Elements, bonne));
}

void BDDGeo::CopieZone(const EltRectangle& zone, bool couper) {
    PressePapier.Vide();
    std::vector<EltGeo*> coupes;
    const PointVek coin = zone.Coins().HautGauche;
    for (EltGeo* elt : Elements) {
        if (!EstVisible(*elt) || elt->Type == TypeBDD || !zone.Contient(*elt)) continue;
        auto clone = elt->Clone();
        clone->Deplace(-coin);
        PressePapier.AjouteDebut(std::move(clone));
        if (couper && elt->NbParents == 0) coupes.push_back(elt);
    }
    if (!couper) return;
    const bool change = !coupes.empty();
    Histoire.Fait(std::make_unique<PasCoupe>(std::move(coupes)));
    if (change) NoteChangement();
}

void BDDGeo::Coller(const BDDGeoClipboard& collage, const PointVek& p, int calque) {
    std::vector<std::unique_ptr<EltGeo>> clones;
    for (const EltGeo* elt : collage.Elements) {
        auto clone = elt->Clone();
        clone->Deplace(p);
        clone->Calque = calque;
        // The children of the source are not of this drawing.
        clone->Fils.Vide();
        if (clone->EstFini()) clones.push_back(std::move(clone));
    }
    const bool change = !clones.empty();
    Histoire.Fait(std::make_unique<PasCollage>(std::move(clones)));
    if (change) NoteChangement();
}

void BDDGeo::CollerCommeBDD(const BDDGeoClipboard& collage, const PointVek& p,
                            const Glib::ustring& identificateur) {
    auto groupe = std::make_unique<EltBDD>();
    groupe->CopieListe(collage);
    groupe->SetIdentificateur(identificateur);
    groupe->Place(p);
    AjouteDebut(std::move(groupe));
    NoteChangement();
}

int BDDGeo::ImagesSansGroupe(const BDDGeoClipboard& collage) const {
    std::map<std::string, int> parNom;
    for (const EltGeo* elt : collage.Elements)
        if (const auto* image = dynamic_cast<const EltImage*>(elt))
            ++parNom[image->Identificateur.raw()];
    int nombre = 0;
    for (const auto& [nom, images] : parNom)
        if (!ChercheBDD(nom)) nombre += images;
    return nombre;
}
