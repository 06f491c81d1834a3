// Rest, the tool that moves and deforms, and the one that deletes.

#include <gdk/gdkkeysyms.h>

#include <vector>

#include "model/bddgeo.h"
#include "zone/machine.h"
#include "zone/outils/communs.h"

namespace {

bool PrendPoignee(Machine& outils, const PointVek& p) {
    outils.EltCourant->DebutDeforme(p);
    outils.PointDepart = outils.EltCourant->PointProche(p);
    return true;
}

/// A copy brought to where a click at p would put it.
std::unique_ptr<EltGeo> Deplace(const Machine& outils, const PointVek& p) {
    auto deforme = outils.EltCourant->Clone();
    deforme->Deforme(p - outils.PointDepart);
    return deforme;
}

/// What cannot be, such as a segment brought to a point, is not placed, and the drag goes on.
bool Pose(Machine& outils, const PointVek& p) {
    auto deforme = Deplace(outils, p);
    bool pose;
    // Only the left key makes a copy.
    if (outils.Touche == GDK_Control_L)
        pose = BddCourante.Ajoute(std::move(deforme)) != nullptr;
    else if (PoigneeCourante == 1)
        pose = BddCourante.ChangeEnsemble(*outils.EltCourant, *deforme, p - outils.PointDepart);
    else
        pose = BddCourante.Change(*outils.EltCourant, *deforme);
    outils.DessinChange();
    return pose;
}

Bande BandePose(Machine& outils, const PointVek& p) {
    return BandeDe(*Deplace(outils, p));
}

bool Supprime(Machine& outils, const PointVek& p) {
    BddCourante.Efface(p);
    outils.DessinChange();
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesEdition() {
    return {
        LigneEtat(ETAT_REPOS, ETAT_REPOS, "").Pointe(Gdk::ARROW),
        LigneEtat(ETAT_MODIFIE, ETAT_MODIFIE, "Elément à déplacer")
            .AuClic(PrendElement, ETAT_MODIFIE_POINT),
        LigneEtat(ETAT_MODIFIE_POINT, ETAT_MODIFIE, "Point de l'élément à déplacer")
            .AuClic(PrendPoignee, ETAT_MODIFIE_POSITION)
            .Pointe(Gdk::HAND1)
            .AvecPoignees(),
        LigneEtat(ETAT_MODIFIE_POSITION, ETAT_MODIFIE,
                  "Nouvelle position, appuyer sur Ctrl pour faire une copie")
            .AuClic(Pose, ETAT_MODIFIE)
            .Montre(BandePose)
            .Pointe(Gdk::HAND1)
            .AvecPoignees(),
        LigneEtat(ETAT_SUPPRIME, ETAT_SUPPRIME, "Elément à supprimer")
            .AuClic(Supprime, ETAT_SUPPRIME),
    };
}
