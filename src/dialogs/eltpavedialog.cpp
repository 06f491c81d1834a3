// The properties of boxes and of box-shaped grooves.

#include <cmath>

#include "dialogs/elt3ddialog.h"
#include "dialogs/nombres.h"
#include "dialogs/soustractifdialog.h"
#include "solids/eltrainure.h"

namespace {

class EltPaveDialog : public Elt3dDialog {
  public:
    EltPaveDialog(const Glib::ustring& titre, EltPave& pave)
        : Elt3dDialog(titre, pave, pave),
          Longueur(TexteNombre(std::abs(pave.Extremite.x - pave.Origine.x))),
          Largeur(TexteNombre(std::abs(pave.Extremite.y - pave.Origine.y))) {
        AjouteChamp("Longueur", Longueur, PlusQue(0.0, "La longueur"));
        AjouteChamp("Largeur", Largeur, PlusQue(0.0, "La largeur"));
        AjouteChamps3d();
    }

  protected:
    /// The box grows about its centre.
    void PrendChamps() override {
        if (!Longueur.EstModifie() && !Largeur.EstModifie()) return;
        auto& pave = static_cast<EltPave&>(Copie());
        pave.Ordonne();
        PointVek demi = (pave.Extremite - pave.Origine) / 2.0;
        if (const auto x = Longueur.Nombre()) demi.x = *x / 2.0;
        if (const auto y = Largeur.Nombre()) demi.y = -*y / 2.0;
        pave.SetPoints(pave.Position - demi, pave.Position + demi);
    }

  private:
    ChampSaisie Longueur;  ///< Along x.
    ChampSaisie Largeur;   ///< Along y.
};

using EltRainureDialog = SoustractifDialog<EltPaveDialog, EltRainure>;

}  // namespace

bool EltPave::Proprietes() {
    return EltPaveDialog(TitreProprietes(*this), *this).run() == Gtk::RESPONSE_OK;
}

bool EltRainure::Proprietes() {
    return EltRainureDialog(TitreProprietes(*this), *this).run() == Gtk::RESPONSE_OK;
}
