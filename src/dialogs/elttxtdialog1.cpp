// The properties of texts and dimensions.

#include "dialogs/eltgeodialog.h"
#include "dialogs/elttxtdialog.h"
#include "elements/eltcote.h"

namespace {

class EltTxtDialog1 : public EltGeoDialog {
  public:
    explicit EltTxtDialog1(EltTxt& txt, const Glib::ustring& titre = "Propriété du texte",
                           bool avecAngle = true, bool avecPosition = true)
        : EltGeoDialog(titre, txt, avecPosition), Champs(txt) {
        AjouteChamp("Texte", Champs.Texte);
        if (avecAngle) AjouteChamp("Angle", Champs.Angle, UnNombre());
        AjouteChamp("Taille", Champs.Taille, PlusQue(0.0, "La taille"));
        AjouteChamp("Police", Champs.Police);
    }

  private:
    void PrendChamps() override { Champs.Prend(static_cast<EltTxt&>(Copie())); }

    ChampsTxt Champs;
};

/// A dimension's points give its angle, and those of an angular one its place as well.
class EltCoteDialog : public EltTxtDialog1 {
  public:
    explicit EltCoteDialog(EltCote& cote)
        : EltTxtDialog1(cote, "Propriété de la cote", false, cote.Type != TypeCoteAng) {}
};

}  // namespace

bool EltTxt::Proprietes() {
    return EltTxtDialog1(*this).run() == Gtk::RESPONSE_OK;
}

bool EltCote::Proprietes() {
    return EltCoteDialog(*this).run() == Gtk::RESPONSE_OK;
}
