// The properties of groups and of their images.

#include "dialogs/champsimage.h"
#include "dialogs/eltgeodialog.h"
#include "dialogs/signes.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"

namespace {

class EltBDDDialog : public EltGeoDialog {
  public:
    explicit EltBDDDialog(EltBDD& groupe)
        : EltGeoDialog("BDD", groupe), Identificateur(groupe.Identificateur) {
        AjouteChamp("Identificateur", Identificateur);
        OffreSignes(Identificateur);
    }

  private:
    void PrendChamps() override {
        if (Identificateur.EstModifie())
            static_cast<EltBDD&>(Copie()).SetIdentificateur(Identificateur.get_text());
    }

    ChampSaisie Identificateur;
};

class EltImageDialog : public EltGeoDialog {
  public:
    explicit EltImageDialog(EltImage& image) : EltGeoDialog("Image de bdd", image), Image(image) {
        AjouteChamp("Identificateur", Image.Identificateur);
        AjouteChamp("angle", Image.Angle, UnNombre());
        AjouteChamp("Agrandissement", Image.Agrandissement, PlusQue(0.0, "L'agrandissement"));
    }

  private:
    void PrendChamps() override { Image.Prend(static_cast<EltImage&>(Copie())); }

    ChampsImage Image;
};

}  // namespace

bool EltBDD::Proprietes() {
    return EltBDDDialog(*this).run() == Gtk::RESPONSE_OK;
}

bool EltImage::Proprietes() {
    return EltImageDialog(*this).run() == Gtk::RESPONSE_OK;
}
