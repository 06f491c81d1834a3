// The properties of cylinders and of round holes.

#include "dialogs/elt3ddialog.h"
#include "dialogs/nombres.h"
#include "dialogs/soustractifdialog.h"
#include "solids/eltpercage.h"

namespace {

class EltCylindreDialog : public Elt3dDialog {
  public:
    EltCylindreDialog(const Glib::ustring& titre, EltCylindre& cylindre)
        : Elt3dDialog(titre, cylindre, cylindre),
          RayonBas(TexteNombre(cylindre.Rayon)),
          RayonHaut(TexteNombre(cylindre.rayonHaut)) {
        AjouteChamp("R Inf", RayonBas, PlusQue(0.0, "R Inf"));
        AjouteChamp("R Sup", RayonHaut, AuMoins(0.0, "R Sup"));
        AjouteChamps3d();
    }

  protected:
    void PrendChamps() override {
        auto& cylindre = static_cast<EltCylindre&>(Copie());
        if (const auto rayon = RayonBas.Nombre()) cylindre.Rayon = *rayon;
        if (const auto rayon = RayonHaut.Nombre()) cylindre.rayonHaut = *rayon;
    }

  private:
    ChampSaisie RayonBas;
    ChampSaisie RayonHaut;
};

using EltPercageDialog = SoustractifDialog<EltCylindreDialog, EltPercage>;

}  // namespace

bool EltCylindre::Proprietes() {
    return EltCylindreDialog("Propriété du Cylindre", *this).run() == Gtk::RESPONSE_OK;
}

bool EltPercage::Proprietes() {
    return EltPercageDialog("Propriete du Percage", *this).run() == Gtk::RESPONSE_OK;
}
