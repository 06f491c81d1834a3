// Rest, the tool that moves and deforms, and the one that deletes.

#include <gdk/gdkkeysyms.h>

#include <vector>

#include "model/bddgeo.h"
#include "zone/outils/communs.h"
#include "zone/zonedessin.h"

namespace {

bool PrendPoignee(ZoneDessin& zone, const PointVek& p) {
    zone.EltCourant->DebutDeforme(p);
    zone.PointDepart = zone.EltCourant->PointProche(p);
    return true;
}

/// A copy brought to where a click at p would put it.
std::unique_ptr<EltGeo> Deplace(const ZoneDessin& zone, const PointVek& p) {
    auto deforme = zone.EltCourant->Clone();
    deforme->Deforme(p - zone.PointDepart);
    return deforme;
}

/// What cannot be, such as a segment brought to a point, is not placed, and the drag goes on.
bool Pose(ZoneDessin& zone, const PointVek& p) {
    auto deforme = Deplace(zone, p);
    bool pose;
    // Only the left key makes a copy.
    if (zone.Touche == GDK_Control_L)
        pose = BddCourante.Ajoute(std::move(deforme)) != nullptr;
    else if (PoigneeCourante == 1)
        pose = BddCourante.ChangeEnsemble(*zone.EltCourant, *deforme, p - zone.PointDepart);
    else
        pose = BddCourante.Change(*zone.EltCourant, *deforme);
    zone.DessinChange();
    return pose;
}

Bande ApercuPose(ZoneDessin& zone, const PointVek& p) {
    return BandeDe(*Deplace(zone, p));
}

bool Supprime(ZoneDessin& zone, const PointVek& p) {
    BddCourante.Efface(p);
    zone.DessinChange();
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
            .Montre(ApercuPose)
            .Pointe(Gdk::HAND1)
            .AvecPoignees(),
        LigneEtat(ETAT_SUPPRIME, ETAT_SUPPRIME, "Elément à supprimer")
            .AuClic(Supprime, ETAT_SUPPRIME),
    };
}
