// The properties of arcs and circles.

#include "dialogs/eltgeodialog.h"
#include "dialogs/nombres.h"
#include "elements/angles.h"
#include "elements/eltarc.h"

namespace {

class EltArcDialog : public EltGeoDialog {
  public:
    explicit EltArcDialog(EltArc& arc)
        : EltGeoDialog("Propriété du cercle", arc),
          Arc(static_cast<EltArc&>(Copie())),
          Rayon(TexteNombre(arc.Rayon)),
          AngleDebut(TexteNombre(EnDegres(arc.AngleDebut))),
          Ouverture(TexteNombre(EnDegres(arc.Ouverture))) {
        AjouteChamp("Rayon", Rayon, PlusQue(0.0, "Le rayon"));
        AjouteChamp("Angle Début", AngleDebut, UnNombre());
        AjouteChamp(" Angle ouverture", Ouverture, UnNombre());
    }

  private:
    void PrendChamps() override {
        if (const auto rayon = Rayon.Nombre()) Arc.Rayon = *rayon;
        if (const auto degres = AngleDebut.Nombre()) Arc.AngleDebut = EnRadians(*degres);
        // Nothing opens wider than a full turn.
        if (const auto degres = Ouverture.Nombre())
            Arc.Ouverture = std::clamp(EnRadians(*degres), -DeuxPi, DeuxPi);
    }

    EltArc& Arc;
    ChampSaisie Rayon;
    ChampSaisie AngleDebut;  ///< Degrees.
    ChampSaisie Ouverture;   ///< Degrees.
};

}  // namespace

bool EltArc::Proprietes() {
    return EltArcDialog(*this).run() == Gtk::RESPONSE_OK;
}
