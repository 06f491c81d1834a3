// Linear dimensions.

#include <vector>

#include "zone/outils/cotes.h"

std::vector<LigneEtat> LignesCotesLineaires() {
    return {
        LigneEtat(ETAT_COTE_1, ETAT_COTE_1, "Position origine")
            .AuClic(PrendPoint1<&Prototypes::Cote>, ETAT_COTE_2),
        LigneEtat(ETAT_COTE_2, ETAT_COTE_1, "Position extrémité")
            .AuClic(PrendPoint2<&Prototypes::Cote>, ETAT_COTE_3)
            .Montre(BandePoint2<&Prototypes::Cote>),
        LigneEtat(ETAT_COTE_3, ETAT_COTE_1, "Position du texte de la ĉote")
            .AuClic(PoseLigne<&Prototypes::Cote>, ETAT_COTE_1)
            .Montre(BandeLigne<&Prototypes::Cote>),

        LigneEtat(ETAT_COTE_VERT_1, ETAT_COTE_VERT_1, "Position origine")
            .AuClic(PrendPoint1<&Prototypes::CoteVert>, ETAT_COTE_VERT_2),
        LigneEtat(ETAT_COTE_VERT_2, ETAT_COTE_VERT_1, "Position extrémité")
            .AuClic(PrendPoint2<&Prototypes::CoteVert>, ETAT_COTE_VERT_3)
            .Montre(BandePoint2<&Prototypes::CoteVert>),
        LigneEtat(ETAT_COTE_VERT_3, ETAT_COTE_VERT_1, "Position du texte de la ĉote")
            .AuClic(PoseLigne<&Prototypes::CoteVert>, ETAT_COTE_VERT_1)
            .Montre(BandeLigne<&Prototypes::CoteVert>),

        LigneEtat(ETAT_COTE_HORI_1, ETAT_COTE_HORI_1, "Position origine")
            .AuClic(PrendPoint1<&Prototypes::CoteHori>, ETAT_COTE_HORI_2),
        LigneEtat(ETAT_COTE_HORI_2, ETAT_COTE_HORI_1, "Position extrémité")
            .AuClic(PrendPoint2<&Prototypes::CoteHori>, ETAT_COTE_HORI_3)
            .Montre(BandePoint2<&Prototypes::CoteHori>),
        LigneEtat(ETAT_COTE_HORI_3, ETAT_COTE_HORI_1, "Position du texte de la ĉote")
            .AuClic(PoseLigne<&Prototypes::CoteHori>, ETAT_COTE_HORI_1)
            .Montre(BandeLigne<&Prototypes::CoteHori>),
    };
}
