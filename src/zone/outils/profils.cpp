// Profiles, plain, extruded and turned.

#include <vector>

#include "model/bddgeo.h"
#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

namespace {

bool CentreProfil(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Profil.Debut(p);
    return true;
}

bool SommetSuivant(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Profil.Ajoute(p);
    return true;
}

bool ElementSuivant(ZoneDessin& zone, const PointVek& p) {
    const EltGeo* elt = BddCourante.Cherche(p);
    if (!elt || (elt->Type != TypeSegment && elt->Type != TypeArc)) return false;
    zone.Protos.Profil.AjouteElement(*elt);
    return true;
}

Bande ApercuProfil(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Profil.SetProvisoire(p);
    const auto copie = std::make_shared<EltProfil>(zone.Protos.Profil);
    return [copie](Trace& trace) { copie->DessineEnCours(trace); };
}

void FinProfil(ZoneDessin& zone) {
    zone.Ajoute(zone.Protos.Profil);
}

}  // namespace

std::vector<LigneEtat> LignesProfils() {
    return {
        LigneEtat(ETAT_PROFIL_1, ETAT_PROFIL_1, "Position du centre du profil")
            .AuClic(CentreProfil, ETAT_PROFIL_2),
        LigneEtat(ETAT_PROFIL_2, ETAT_PROFIL_1, "Position du premier sommet du profil")
            .AuClic(SommetSuivant, ETAT_PROFIL_3)
            .Montre(ApercuProfil),
        LigneEtat(ETAT_PROFIL_3, ETAT_PROFIL_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil")
            .AuClic(SommetSuivant, ETAT_PROFIL_3)
            .Montre(ApercuProfil)
            .ALaFin(FinProfil, ETAT_PROFIL_1),

        LigneEtat(ETAT_PROFIL_ELT_1, ETAT_PROFIL_ELT_1, "Position du centre du profil")
            .AuClic(CentreProfil, ETAT_PROFIL_ELT_2),
        LigneEtat(ETAT_PROFIL_ELT_2, ETAT_PROFIL_ELT_1, "Position du premier sommet du profil")
            .AuClic(SommetSuivant, ETAT_PROFIL_ELT_3)
            .Montre(ApercuProfil),
        LigneEtat(ETAT_PROFIL_ELT_3, ETAT_PROFIL_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil")
            .AuClic(ElementSuivant, ETAT_PROFIL_ELT_3)
            .Montre(ApercuProfil)
            .ALaFin(FinProfil, ETAT_PROFIL_ELT_1),

        LigneEtat(ETAT_ELEVATION_1, ETAT_ELEVATION_1, "Position du centre du profil"),
        LigneEtat(ETAT_ELEVATION_2, ETAT_ELEVATION_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_ELEVATION_3, ETAT_ELEVATION_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_TOURNE_1, ETAT_TOURNE_1, "Position du centre du profil ( axe de tournage )"),
        LigneEtat(ETAT_TOURNE_2, ETAT_TOURNE_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_TOURNE_3, ETAT_TOURNE_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_ELEVATION_ELT_1, ETAT_ELEVATION_ELT_1, "Position du centre du profil"),
        LigneEtat(ETAT_ELEVATION_ELT_2, ETAT_ELEVATION_ELT_1,
                  "Position du premier sommet du profil"),
        LigneEtat(ETAT_ELEVATION_ELT_3, ETAT_ELEVATION_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil"),
        LigneEtat(ETAT_TOURNE_ELT_1, ETAT_TOURNE_ELT_1,
                  "Position du centre du profil ( axe de tournage )"),
        LigneEtat(ETAT_TOURNE_ELT_2, ETAT_TOURNE_ELT_1, "Position du premier sommet du profil"),
        LigneEtat(ETAT_TOURNE_ELT_3, ETAT_TOURNE_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil"),
    };
}
