// The properties of solids made of profiles.

#include "dialogs/elt3ddialog.h"
#include "dialogs/nombres.h"
#include "dialogs/soustractifdialog.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltrainurep.h"

namespace {

/// Nothing but what all solids have.
class EltProfil3dDialog : public Elt3dDialog {
  public:
    template <class Elt>
    EltProfil3dDialog(const Glib::ustring& titre, Elt& elt) : Elt3dDialog(titre, elt, elt) {
        AjouteChamps3d();
    }
};

using EltRainurePDialog = SoustractifDialog<EltProfil3dDialog, EltRainureP>;

class EltProfilTubeRondDialog : public Elt3dDialog {
  public:
    explicit EltProfilTubeRondDialog(EltProfilTubeRond& tube)
        : Elt3dDialog(TitreProprietes(tube), tube, tube), Rayon(TexteNombre(tube.rayon)) {
        AjouteChamp("R Inf", Rayon, PlusQue(0.0, "R Inf"));
        AjouteChamps3d();
    }

  private:
    void PrendChamps() override {
        if (const auto rayon = Rayon.Nombre())
            static_cast<EltProfilTubeRond&>(Copie()).rayon = *rayon;
    }

    ChampSaisie Rayon;
};

}  // namespace

bool EltProfilElevation::Proprietes() {
    return EltProfil3dDialog(TitreProprietes(*this), *this).run() == Gtk::RESPONSE_OK;
}

bool EltProfilTourne::Proprietes() {
    return EltProfil3dDialog(TitreProprietes(*this), *this).run() == Gtk::RESPONSE_OK;
}

bool EltProfilSurface::Proprietes() {
    return EltProfil3dDialog("Propriété du profil Surface", *this).run() == Gtk::RESPONSE_OK;
}

bool EltProfilBoaRond::Proprietes() {
    return EltProfil3dDialog(TitreProprietes(*this), *this).run() == Gtk::RESPONSE_OK;
}

bool EltProfilTubeRond::Proprietes() {
    return EltProfilTubeRondDialog(*this).run() == Gtk::RESPONSE_OK;
}

bool EltRainureP::Proprietes() {
    return EltRainurePDialog(TitreProprietes(*this), *this).run() == Gtk::RESPONSE_OK;
}
