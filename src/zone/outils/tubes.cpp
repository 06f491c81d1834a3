// Tubes swept along a profile.

#include <vector>

#include "zone/ligneetat.h"

std::vector<LigneEtat> LignesTubes() {
    return {
        LigneEtat(ETAT_JONC_1, ETAT_JONC_1, "Cliquer sur le point d'accrochage du Jonc"),
        LigneEtat(ETAT_JONC_2, ETAT_JONC_1, "Cliquer sur un profil"),
        LigneEtat(ETAT_BOA_1, ETAT_BOA_1, "Cliquer sur le point d'accrochage du Boa"),
        LigneEtat(ETAT_BOA_2, ETAT_BOA_1, "Cliquer sur le profil du tracer"),
        LigneEtat(ETAT_BOA_3, ETAT_BOA_1, "Cliquer sur un profil de l'enveloppe"),
    };
}
