// Centring and zoom by clicks.

#include <vector>

#include "model/echelle.h"
#include "zone/machine.h"
#include "zone/outils/communs.h"
#include "zone/vuezone.h"

namespace {

bool CentreVue(Machine& outils, const PointVek& p) {
    EchelleCourante.Origine = p;
    outils.VueChangee();
    return true;
}

/// The frame without the fill of the present style, which would hide what is framed.
Bande BandeCadre(Machine& outils, const PointVek& p) {
    const PointVek& coin = outils.Protos.Rectangle.Origine;
    outils.Protos.Rectangle.SetExtremite(p);
    return BandeDe(EltRectangle(coin, p, 0));
}

bool Zoome(Machine& outils, const PointVek& p) {
    EchelleCourante.ZoomRectangle(outils.Protos.Rectangle.Origine, p, outils.Vue.Largeur());
    outils.VueChangee();
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesVue() {
    return {
        LigneEtat(ETAT_ZOOM_ORIGINE, ETAT_ZOOM_ORIGINE, "Position du nouveau centre de la vue")
            .AuClic(CentreVue, ETAT_ZOOM_ORIGINE),
        LigneEtat(ETAT_ZOOM_1, ETAT_ZOOM_1, "Zoom Position haut gauche")
            .AuClic(PrendCoin<&Prototypes::Rectangle>, ETAT_ZOOM_2),
        LigneEtat(ETAT_ZOOM_2, ETAT_ZOOM_1, "Zoom Position bas droite")
            .AuClic(Zoome, ETAT_ZOOM_1)
            .Montre(BandeCadre),
    };
}
