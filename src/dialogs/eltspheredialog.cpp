// The properties of spheres and of the envelopes made of them.

#include "dialogs/elt3ddialog.h"
#include "dialogs/nombres.h"
#include "solids/eltsphere.h"

namespace {

class EltSphereDialog : public Elt3dDialog {
  public:
    explicit EltSphereDialog(EltSphere& sphere)
        : Elt3dDialog(TitreProprietes(sphere), sphere, sphere), Rayon(TexteNombre(sphere.Rayon)) {
        AjouteChamp("Rayon", Rayon, PlusQue(0.0, "Le rayon"));
        AjouteChamps3d();
    }

  private:
    void PrendChamps() override {
        if (const auto rayon = Rayon.Nombre()) static_cast<EltSphere&>(Copie()).Rayon = *rayon;
    }

    ChampSaisie Rayon;
};

}  // namespace

bool EltSphere::Proprietes() {
    return EltSphereDialog(*this).run() == Gtk::RESPONSE_OK;
}
