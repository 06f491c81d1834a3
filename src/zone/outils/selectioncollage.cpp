// The zone selection, and pasting.

#include <vector>

#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

namespace {

bool PremierCoin(ZoneDessin& zone, const PointVek& p) {
    zone.PointDepart = p;
    return true;
}

/// The selection that would go from the first corner to p, in the selection's own style.
EltRectangle SelectionVers(const ZoneDessin& zone, const PointVek& p) {
    EltRectangle rectangle(zone.RectangleSelection);
    rectangle.SetPoints(zone.PointDepart, p);
    rectangle.Ordonne();
    return rectangle;
}

Bande ApercuSelection(ZoneDessin& zone, const PointVek& p) {
    return BandeDe(SelectionVers(zone, p));
}

bool Selectionne(ZoneDessin& zone, const PointVek& p) {
    zone.RectangleSelection.Copie(SelectionVers(zone, p));
    zone.SelectionVisible = true;
    zone.Redessine();
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesSelectionCollage() {
    return {
        LigneEtat(ETAT_COLLER, ETAT_COLLER, "Où coller ?"),
        LigneEtat(ETAT_COLLER_BDD, ETAT_COLLER_BDD, "Position de la BDD ?"),
        LigneEtat(ETAT_SELECTION_1, ETAT_SELECTION_1, "Coin supérieur gauche de la sélection")
            .AuClic(PremierCoin, ETAT_SELECTION_2),
        LigneEtat(ETAT_SELECTION_2, ETAT_SELECTION_1, "Coin inférieur droit de la sélection")
            .AuClic(Selectionne, ETAT_SELECTION_1)
            .Montre(ApercuSelection),
    };
}
