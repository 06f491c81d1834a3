// The zone selection, and pasting.

#include <vector>

#include "dialogs/stringdialog.h"
#include "elements/trace.h"
#include "model/bddgeo.h"
#include "zone/ligneetat.h"
#include "zone/machine.h"
#include "zone/vuezone.h"

namespace {

bool PremierCoin(Machine& outils, const PointVek& p) {
    outils.PointDepart = p;
    return true;
}

/// The selection that would go from the first corner to p, in the selection's own style.
EltRectangle SelectionVers(const Machine& outils, const PointVek& p) {
    EltRectangle rectangle(outils.Vue.RectangleSelection);
    rectangle.SetPoints(outils.PointDepart, p);
    rectangle.Ordonne();
    return rectangle;
}

Bande BandeSelection(Machine& outils, const PointVek& p) {
    return BandeDe(SelectionVers(outils, p));
}

bool Selectionne(Machine& outils, const PointVek& p) {
    outils.Vue.Selectionne(SelectionVers(outils, p));
    return true;
}

Bande BandeCollage(Machine& outils, const PointVek& p) {
    if (!outils.Collage) return {};
    const std::shared_ptr<const BDDGeoClipboard> collage = outils.Collage;
    return [collage, p](Trace& trace) {
        trace.Compose(trace.ZonePeinte(), [&](Trace& t) { collage->DessineEn(t, p); });
    };
}

bool Colle(Machine& outils, const PointVek& p) {
    if (!outils.Collage) return false;
    BddCourante.Coller(*outils.Collage, p, outils.Protos.Calque());
    outils.DessinChange();
    return true;
}

bool ColleCommeBDD(Machine& outils, const PointVek& p) {
    if (!outils.Collage) return false;
    Glib::ustring nom;
    StringDialog dialogue("Identificateur ?", &nom);
    if (dialogue.run() == Gtk::RESPONSE_OK) BddCourante.CollerCommeBDD(*outils.Collage, p, nom);
    outils.DessinChange();
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesSelectionCollage() {
    return {
        LigneEtat(ETAT_COLLER, ETAT_COLLER, "Où coller ?")
            .AuClic(Colle, ETAT_COLLER)
            .Montre(BandeCollage),
        LigneEtat(ETAT_COLLER_BDD, ETAT_COLLER_BDD, "Position de la BDD ?")
            .AuClic(ColleCommeBDD, ETAT_REPOS)
            .Montre(BandeCollage),
        LigneEtat(ETAT_SELECTION_1, ETAT_SELECTION_1, "Coin supérieur gauche de la sélection")
            .AuClic(PremierCoin, ETAT_SELECTION_2),
        LigneEtat(ETAT_SELECTION_2, ETAT_SELECTION_1, "Coin inférieur droit de la sélection")
            .AuClic(Selectionne, ETAT_SELECTION_1)
            .Montre(BandeSelection),
    };
}
