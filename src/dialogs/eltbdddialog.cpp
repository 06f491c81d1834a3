// The properties of groups and of their images.

#include "dialogs/eltgeodialog.h"
#include "dialogs/nombres.h"
#include "elements/angles.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"

namespace {

class EltBDDDialog : public EltGeoDialog {
  public:
    explicit EltBDDDialog(EltBDD& groupe)
        : EltGeoDialog("BDD", groupe), Identificateur(groupe.Identificateur) {
        AjouteChamp("Identificateur", Identificateur);
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
    explicit EltImageDialog(EltImage& image)
        : EltGeoDialog("Image de bdd", image),
          Image(static_cast<EltImage&>(Copie())),
          Identificateur(image.Identificateur),
          Angle(TexteNombre(EnDegres(image.Angle))),
          Agrandissement(TexteNombre(image.Agrandissement)) {
        AjouteChamp("Identificateur", Identificateur);
        AjouteChamp("angle", Angle);
        AjouteChamp("Agrandissement", Agrandissement);
    }

  private:
    void PrendChamps() override {
        if (Identificateur.EstModifie()) Image.SetIdentificateur(Identificateur.get_text());
        if (const auto degres = Angle.Nombre()) Image.Angle = EnRadians(*degres);
        // An image of no size could not be told from a lost one.
        if (const auto k = Agrandissement.Nombre(); k && *k > 0.0) Image.Agrandissement = *k;
    }

    EltImage& Image;
    ChampSaisie Identificateur;
    ChampSaisie Angle;  ///< Degrees.
    ChampSaisie Agrandissement;
};

}  // namespace

bool EltBDD::Proprietes() {
    return EltBDDDialog(*this).run() == Gtk::RESPONSE_OK;
}

bool EltImage::Proprietes() {
    return EltImageDialog(*this).run() == Gtk::RESPONSE_OK;
}
