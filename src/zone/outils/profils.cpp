// Profiles, plain, extruded and turned.

#include <vector>

#include "zone/outils/chaines.h"

std::vector<LigneEtat> LignesProfils() {
    constexpr auto profil = &Prototypes::Profil;
    constexpr auto elevation = &Prototypes::ProfilElevation;
    constexpr auto tourne = &Prototypes::ProfilTourne;
    return {
        LigneEtat(ETAT_PROFIL_1, ETAT_PROFIL_1, "Position du centre du profil")
            .AuClic(PrendCentreProfil<profil>, ETAT_PROFIL_2),
        LigneEtat(ETAT_PROFIL_2, ETAT_PROFIL_1, "Position du premier sommet du profil")
            .AuClic(PrendSommet<profil>, ETAT_PROFIL_3)
            .Montre(BandeChaine<profil>),
        LigneEtat(ETAT_PROFIL_3, ETAT_PROFIL_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil")
            .AuClic(PrendSommet<profil>, ETAT_PROFIL_3)
            .Montre(BandeChaine<profil>)
            .ALaFin(FinChaine<profil>, ETAT_PROFIL_1),

        LigneEtat(ETAT_PROFIL_ELT_1, ETAT_PROFIL_ELT_1, "Position du centre du profil")
            .AuClic(PrendCentreProfil<profil>, ETAT_PROFIL_ELT_2),
        LigneEtat(ETAT_PROFIL_ELT_2, ETAT_PROFIL_ELT_1, "Position du premier sommet du profil")
            .AuClic(PrendSommet<profil>, ETAT_PROFIL_ELT_3)
            .Montre(BandeChaine<profil>),
        LigneEtat(ETAT_PROFIL_ELT_3, ETAT_PROFIL_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil")
            .AuClic(SuitElement<profil>, ETAT_PROFIL_ELT_3)
            .Montre(BandeChaine<profil>)
            .ALaFin(FinChaine<profil>, ETAT_PROFIL_ELT_1),

        LigneEtat(ETAT_ELEVATION_1, ETAT_ELEVATION_1, "Position du centre du profil")
            .AuClic(PrendCentreProfil<elevation>, ETAT_ELEVATION_2),
        LigneEtat(ETAT_ELEVATION_2, ETAT_ELEVATION_1, "Position du premier sommet du profil")
            .AuClic(PrendSommet<elevation>, ETAT_ELEVATION_3)
            .Montre(BandeChaine<elevation>),
        LigneEtat(ETAT_ELEVATION_3, ETAT_ELEVATION_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil")
            .AuClic(PrendSommet<elevation>, ETAT_ELEVATION_3)
            .Montre(BandeChaine<elevation>)
            .ALaFin(FinChaine<elevation>, ETAT_ELEVATION_1),

        LigneEtat(ETAT_TOURNE_1, ETAT_TOURNE_1, "Position du centre du profil ( axe de tournage )")
            .AuClic(PrendCentreProfil<tourne>, ETAT_TOURNE_2),
        LigneEtat(ETAT_TOURNE_2, ETAT_TOURNE_1, "Position du premier sommet du profil")
            .AuClic(PrendSommet<tourne>, ETAT_TOURNE_3)
            .Montre(BandeChaine<tourne>),
        LigneEtat(ETAT_TOURNE_3, ETAT_TOURNE_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil")
            .AuClic(PrendSommet<tourne>, ETAT_TOURNE_3)
            .Montre(BandeChaine<tourne>)
            .ALaFin(FinChaine<tourne>, ETAT_TOURNE_1),

        LigneEtat(ETAT_ELEVATION_ELT_1, ETAT_ELEVATION_ELT_1, "Position du centre du profil")
            .AuClic(PrendCentreProfil<elevation>, ETAT_ELEVATION_ELT_2),
        LigneEtat(ETAT_ELEVATION_ELT_2, ETAT_ELEVATION_ELT_1,
                  "Position du premier sommet du profil")
            .AuClic(PrendSommet<elevation>, ETAT_ELEVATION_ELT_3)
            .Montre(BandeChaine<elevation>),
        LigneEtat(ETAT_ELEVATION_ELT_3, ETAT_ELEVATION_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil")
            .AuClic(SuitElement<elevation>, ETAT_ELEVATION_ELT_3)
            .Montre(BandeChaine<elevation>)
            .ALaFin(FinChaine<elevation>, ETAT_ELEVATION_ELT_1),

        LigneEtat(ETAT_TOURNE_ELT_1, ETAT_TOURNE_ELT_1,
                  "Position du centre du profil ( axe de tournage )")
            .AuClic(PrendCentreProfil<tourne>, ETAT_TOURNE_ELT_2),
        LigneEtat(ETAT_TOURNE_ELT_2, ETAT_TOURNE_ELT_1, "Position du premier sommet du profil")
            .AuClic(PrendSommet<tourne>, ETAT_TOURNE_ELT_3)
            .Montre(BandeChaine<tourne>),
        LigneEtat(ETAT_TOURNE_ELT_3, ETAT_TOURNE_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil")
            .AuClic(SuitElement<tourne>, ETAT_TOURNE_ELT_3)
            .Montre(BandeChaine<tourne>)
            .ALaFin(FinChaine<tourne>, ETAT_TOURNE_ELT_1),
    };
}
