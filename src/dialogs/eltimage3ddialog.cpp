// The properties of images in space.

#include "dialogs/champsimage.h"
#include "dialogs/elt3ddialog.h"
#include "solids/eltimage3d.h"

namespace {

class EltImage3dDialog : public Elt3dDialog {
  public:
    explicit EltImage3dDialog(EltImage3d& image)
        : Elt3dDialog("Image de bdd", image, image), Image(image) {
        AjouteChamp("Identificateur", Image.Identificateur);
        AjouteChamp("angle", Image.Angle, UnNombre());
        AjouteChamp("Agrandissement", Image.Agrandissement, PlusQue(0.0, "L'agrandissement"));
        AjouteChamps3d();
    }

  private:
    void PrendChamps() override { Image.Prend(static_cast<EltImage3d&>(Copie())); }

    ChampsImage Image;
};

}  // namespace

bool EltImage3d::Proprietes() {
    return EltImage3dDialog(*this).run() == Gtk::RESPONSE_OK;
}
