// What is taken away from a solid.

#include <vector>

#include "zone/outils/chaines.h"

std::vector<LigneEtat> LignesSoustractifs() {
    constexpr auto percage = &Prototypes::Percage;
    constexpr auto rainure = &Prototypes::Rainure;
    constexpr auto rainureP = &Prototypes::RainureP;
    constexpr auto boule = &Prototypes::EnvBoule;
    return {
        LigneEtat(ETAT_PERCAGE_1, ETAT_PERCAGE_1, "Cliquer sur l'élément à percer")
            .AuClic(PrendElement, ETAT_PERCAGE_2),
        LigneEtat(ETAT_PERCAGE_2, ETAT_PERCAGE_1, "Cliquer sur le centre du perçage")
            .AuClic(PrendCentre<percage>, ETAT_PERCAGE_3)
            .AvecPoignees(),
        LigneEtat(ETAT_PERCAGE_3, ETAT_PERCAGE_1, "Cliquer sur un point du diamètre de perçage")
            .AuClic(AttacheRond<percage>, ETAT_PERCAGE_2)
            .Montre(BandeRond<percage>)
            .AvecPoignees(),

        // A groove goes on with the holes: users drill behind it.
        LigneEtat(ETAT_RAINURE_1, ETAT_RAINURE_1, "Cliquer sur l'élément à rainurer")
            .AuClic(PrendElement, ETAT_RAINURE_2),
        LigneEtat(ETAT_RAINURE_2, ETAT_RAINURE_1, "Position de le point supérieur gauche du pavé")
            .AuClic(PrendCoin<rainure>, ETAT_RAINURE_3)
            .AvecPoignees(),
        LigneEtat(ETAT_RAINURE_3, ETAT_RAINURE_1, "Position de le point inférieur droit du pavé")
            .AuClic(AttacheCoins<rainure>, ETAT_PERCAGE_1)
            .Montre(BandeCoins<rainure>)
            .AvecPoignees(),

        LigneEtat(ETAT_RAINURE_P_1, ETAT_RAINURE_P_1, "Cliquer sur l'élément à rainurer")
            .AuClic(PrendElement, ETAT_RAINURE_P_2),
        LigneEtat(ETAT_RAINURE_P_2, ETAT_RAINURE_P_1, "Position du centre du profil")
            .AuClic(PrendCentreProfil<rainureP>, ETAT_RAINURE_P_3)
            .AvecPoignees(),
        LigneEtat(ETAT_RAINURE_P_3, ETAT_RAINURE_P_1, "Position du premier sommet du profil")
            .AuClic(PrendSommet<rainureP>, ETAT_RAINURE_P_4)
            .Montre(BandeChaine<rainureP>)
            .AvecPoignees(),
        LigneEtat(ETAT_RAINURE_P_4, ETAT_RAINURE_P_1,
                  "Position du sommet suivant, Taper touche Fin pour finir le profil")
            .AuClic(PrendSommet<rainureP>, ETAT_RAINURE_P_4)
            .Montre(BandeChaine<rainureP>)
            .ALaFin(AttacheChaine<rainureP>, ETAT_RAINURE_P_1)
            .AvecPoignees(),

        LigneEtat(ETAT_RAINURE_P_ELT_1, ETAT_RAINURE_P_ELT_1, "Cliquer sur l'élément à rainurer")
            .AuClic(PrendElement, ETAT_RAINURE_P_ELT_2),
        LigneEtat(ETAT_RAINURE_P_ELT_2, ETAT_RAINURE_P_ELT_1, "Position du centre du profil")
            .AuClic(PrendCentreProfil<rainureP>, ETAT_RAINURE_P_ELT_3)
            .AvecPoignees(),
        LigneEtat(ETAT_RAINURE_P_ELT_3, ETAT_RAINURE_P_ELT_1,
                  "Position du premier sommet du profil")
            .AuClic(PrendSommet<rainureP>, ETAT_RAINURE_P_ELT_4)
            .Montre(BandeChaine<rainureP>)
            .AvecPoignees(),
        LigneEtat(ETAT_RAINURE_P_ELT_4, ETAT_RAINURE_P_ELT_1,
                  "Segment ou arc suivant, Taper touche Fin pour finir le profil")
            .AuClic(SuitElement<rainureP>, ETAT_RAINURE_P_ELT_4)
            .Montre(BandeChaine<rainureP>)
            .ALaFin(AttacheChaine<rainureP>, ETAT_RAINURE_P_ELT_1)
            .AvecPoignees(),

        LigneEtat(ETAT_ENVBOULE_1, ETAT_ENVBOULE_1, "Cliquer sur l'élément à envellopper")
            .AuClic(PrendElement, ETAT_ENVBOULE_2),
        LigneEtat(ETAT_ENVBOULE_2, ETAT_ENVBOULE_1, "Cliquer sur le centre de la boule")
            .AuClic(PrendCentre<boule>, ETAT_ENVBOULE_3)
            .AvecPoignees(),
        LigneEtat(ETAT_ENVBOULE_3, ETAT_ENVBOULE_1, "Cliquer sur un point du diamètre de la boule")
            .AuClic(AttacheRond<boule>, ETAT_ENVBOULE_1)
            .Montre(BandeRond<boule>)
            .AvecPoignees(),
    };
}
