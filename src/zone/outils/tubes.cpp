// Tubes swept along a profile.

#include <vector>

#include "model/bddgeo.h"
#include "zone/outils/communs.h"

namespace {

EltGeo* ProfilEn(const PointVek& p) {
    return BddCourante.ChercheType(p, TypeProfil);
}

bool DemandeJonc(Machine& outils) {
    if (!outils.DemandeRayon()) return false;
    outils.Protos.ProfilTubeRond.rayon = outils.Rayon;
    return true;
}

template <auto Proto>
bool Accroche(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).Place(p);
    return true;
}

/// Adds a copy of the prototype that holds the profiles as its children.
void AjouteTube(Machine& outils, const EltGeo& prototype, const std::vector<EltGeo*>& profils) {
    BddCourante.AjouteParent(prototype, profils);
    outils.Redessine();
}

bool PoseJonc(Machine& outils, const PointVek& p) {
    EltGeo* chemin = ProfilEn(p);
    if (chemin) AjouteTube(outils, outils.Protos.ProfilTubeRond, {chemin});
    return chemin;
}

bool PrendChemin(Machine& outils, const PointVek& p) {
    return outils.Prend(ProfilEn(p));
}

/// The envelope may be the path itself.
bool PoseBoa(Machine& outils, const PointVek& p) {
    EltGeo* enveloppe = ProfilEn(p);
    if (enveloppe) AjouteTube(outils, outils.Protos.ProfilBoaRond, {outils.EltCourant, enveloppe});
    return enveloppe;
}

}  // namespace

std::vector<LigneEtat> LignesTubes() {
    return {
        LigneEtat(ETAT_JONC_1, ETAT_JONC_1, "Cliquer sur le point d'accrochage du Jonc")
            .Demande(DemandeJonc)
            .AuClic(Accroche<&Prototypes::ProfilTubeRond>, ETAT_JONC_2),
        LigneEtat(ETAT_JONC_2, ETAT_JONC_1, "Cliquer sur un profil").AuClic(PoseJonc, ETAT_JONC_1),

        LigneEtat(ETAT_BOA_1, ETAT_BOA_1, "Cliquer sur le point d'accrochage du Boa")
            .AuClic(Accroche<&Prototypes::ProfilBoaRond>, ETAT_BOA_2),
        LigneEtat(ETAT_BOA_2, ETAT_BOA_1, "Cliquer sur le profil du tracer")
            .AuClic(PrendChemin, ETAT_BOA_3),
        LigneEtat(ETAT_BOA_3, ETAT_BOA_1, "Cliquer sur un profil de l'enveloppe")
            .AuClic(PoseBoa, ETAT_BOA_1)
            .AvecPoignees(),
    };
}
