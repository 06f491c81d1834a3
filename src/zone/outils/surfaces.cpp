// Grids of points, ribbons and fans.

#include <vector>

#include "zone/outils/chaines.h"

namespace {

/// The grid lies on the rectangle, whichever way that was drawn.
bool FinSurface(Machine& outils, const PointVek& p) {
    outils.Protos.Rectangle.SetExtremite(p);
    const auto coins = outils.Protos.Rectangle.Coins();
    const PointVek coin = coins.BasGauche(), cotes = coins.HautDroite() - coin;
    outils.Protos.ProfilSurface.Place(coin);
    outils.Protos.ProfilSurface.Grille(cotes.x, cotes.y);
    outils.Ajoute(outils.Protos.ProfilSurface);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesSurfaces() {
    constexpr auto rectangle = &Prototypes::Rectangle;
    constexpr auto surface = &Prototypes::ProfilSurface;
    constexpr auto ruban = &Prototypes::ProfilRuban;
    constexpr auto evantail = &Prototypes::ProfilEvantail;
    return {
        LigneEtat(ETAT_SURFACE_PROFIL_1, ETAT_SURFACE_PROFIL_1, "?")
            .AuClic(PrendCentreProfil<surface>, ETAT_SURFACE_PROFIL_2),
        LigneEtat(ETAT_SURFACE_PROFIL_2, ETAT_SURFACE_PROFIL_1, "?")
            .AuClic(PrendSommet<surface>, ETAT_SURFACE_PROFIL_3)
            .Montre(BandeChaine<surface>),
        LigneEtat(ETAT_SURFACE_PROFIL_3, ETAT_SURFACE_PROFIL_1, "?")
            .AuClic(PrendSommet<surface>, ETAT_SURFACE_PROFIL_3)
            .Montre(BandeChaine<surface>)
            .ALaFin(FinChaine<surface>, ETAT_SURFACE_PROFIL_1),

        LigneEtat(ETAT_SURFACE_1, ETAT_SURFACE_1, "?").AuClic(PrendCoin<rectangle>, ETAT_SURFACE_2),
        LigneEtat(ETAT_SURFACE_2, ETAT_SURFACE_1, "?")
            .AuClic(FinSurface, ETAT_SURFACE_1)
            .Montre(BandeCoins<rectangle>),

        LigneEtat(ETAT_RUBAN_1, ETAT_RUBAN_1, "?").AuClic(PrendCentreProfil<ruban>, ETAT_RUBAN_2),
        LigneEtat(ETAT_RUBAN_2, ETAT_RUBAN_1, "?")
            .AuClic(PrendSommet<ruban>, ETAT_RUBAN_3)
            .Montre(BandeChaine<ruban>),
        LigneEtat(ETAT_RUBAN_3, ETAT_RUBAN_1, "?")
            .AuClic(PrendSommet<ruban>, ETAT_RUBAN_3)
            .Montre(BandeChaine<ruban>)
            .ALaFin(FinChaine<ruban>, ETAT_RUBAN_1),

        LigneEtat(ETAT_EVANTAIL_1, ETAT_EVANTAIL_1, "?")
            .AuClic(PrendCentreProfil<evantail>, ETAT_EVANTAIL_2),
        LigneEtat(ETAT_EVANTAIL_2, ETAT_EVANTAIL_1, "?")
            .AuClic(PrendSommet<evantail>, ETAT_EVANTAIL_3)
            .Montre(BandeChaine<evantail>),
        LigneEtat(ETAT_EVANTAIL_3, ETAT_EVANTAIL_1, "?")
            .AuClic(PrendSommet<evantail>, ETAT_EVANTAIL_3)
            .Montre(BandeChaine<evantail>)
            .ALaFin(FinChaine<evantail>, ETAT_EVANTAIL_1),
    };
}
