// Tubes swept along a profile.

#include <initializer_list>
#include <vector>

#include "model/bddgeo.h"
#include "zone/outils/communs.h"

namespace {

EltGeo* ProfilEn(const PointVek& p) {
    return BddCourante.ChercheType(p, TypeProfil);
}

bool DemandeJonc(ZoneDessin& zone) {
    if (!zone.DemandeRayon()) return false;
    zone.Protos.ProfilTubeRond.rayon = zone.Rayon;
    return true;
}

template <auto Proto>
bool Accroche(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).Place(p);
    return true;
}

/// Adds a copy of the prototype that holds the profiles as its children.
void AjouteTube(ZoneDessin& zone, const EltGeo& prototype, std::initializer_list<EltGeo*> profils) {
    if (EltGeo* tube = BddCourante.Ajoute(prototype))
        for (EltGeo* profil : profils)
            tube->AjouteFils(profil);
    zone.Redessine();
}

bool PoseJonc(ZoneDessin& zone, const PointVek& p) {
    EltGeo* chemin = ProfilEn(p);
    if (chemin) AjouteTube(zone, zone.Protos.ProfilTubeRond, {chemin});
    return chemin;
}

bool PrendChemin(ZoneDessin& zone, const PointVek& p) {
    return zone.Prend(ProfilEn(p));
}

/// The envelope may be the path itself.
bool PoseBoa(ZoneDessin& zone, const PointVek& p) {
    EltGeo* enveloppe = ProfilEn(p);
    if (enveloppe) AjouteTube(zone, zone.Protos.ProfilBoaRond, {zone.EltCourant, enveloppe});
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
