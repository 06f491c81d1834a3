// The zone selection, and pasting.

#include <vector>

#include "dialogs/stringdialog.h"
#include "elements/trace.h"
#include "model/bddgeo.h"
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

Bande ApercuCollage(ZoneDessin& zone, const PointVek& p) {
    if (!zone.Collage) return {};
    const std::shared_ptr<const BDDGeoClipboard> collage = zone.Collage;
    return [collage, p](Trace& trace) {
        trace.Compose(trace.ZonePeinte(), [&](Trace& t) { collage->DessineEn(t, p); });
    };
}

bool Colle(ZoneDessin& zone, const PointVek& p) {
    if (!zone.Collage) return false;
    BddCourante.Coller(*zone.Collage, p, zone.Calque());
    zone.DessinChange();
    return true;
}

bool ColleCommeBDD(ZoneDessin& zone, const PointVek& p) {
    if (!zone.Collage) return false;
    Glib::ustring nom;
    StringDialog dialogue("Identificateur ?", &nom);
    if (dialogue.run() == Gtk::RESPONSE_OK) BddCourante.CollerCommeBDD(*zone.Collage, p, nom);
    zone.DessinChange();
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesSelectionCollage() {
    return {
        LigneEtat(ETAT_COLLER, ETAT_COLLER, "Où coller ?")
            .AuClic(Colle, ETAT_COLLER)
            .Montre(ApercuCollage),
        LigneEtat(ETAT_COLLER_BDD, ETAT_COLLER_BDD, "Position de la BDD ?")
            .AuClic(ColleCommeBDD, ETAT_REPOS)
            .Montre(ApercuCollage),
        LigneEtat(ETAT_SELECTION_1, ETAT_SELECTION_1, "Coin supérieur gauche de la sélection")
            .AuClic(PremierCoin, ETAT_SELECTION_2),
        LigneEtat(ETAT_SELECTION_2, ETAT_SELECTION_1, "Coin inférieur droit de la sélection")
            .AuClic(Selectionne, ETAT_SELECTION_1)
            .Montre(ApercuSelection),
    };
}
