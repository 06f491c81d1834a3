#include "dialogs/elttxtdialog.h"

#include "dialogs/nombres.h"
#include "dialogs/police.h"
#include "dialogs/signes.h"
#include "elements/elttxt.h"

namespace {

/// What a drawing file keeps of a text.
constexpr int LongueurTexte = 255;

}  // namespace

ChampsTxt::ChampsTxt(const EltTxt& txt)
    : Texte(txt.Texte, LongueurTexte),
      Angle(TexteNombre(txt.GetAngleDegres())),
      Taille(TexteNombre(txt.Taille)) {
    Texte.set_width_chars(32);
    OffreSignes(Texte);
    MontrePolice(Police, txt.Police);
}

void ChampsTxt::Prend(EltTxt& txt) const {
    if (Texte.EstModifie()) txt.SetTexte(Texte.get_text());
    if (const auto degres = Angle.Nombre()) txt.SetAngleDegres(*degres);
    if (const auto taille = Taille.Nombre()) txt.SetTaille(*taille);
    txt.Police = PoliceChoisie(Police, txt.Police);
}

EltTxtDialog::EltTxtDialog(const Glib::ustring& titre, EltTxt* txt, bool avecAngle)
    : SaisieDialog(titre), Valeur(txt), Champs(*txt) {
    AjouteChamp("Texte", Champs.Texte);
    if (avecAngle) AjouteChamp("Angle", Champs.Angle, UnNombre());
    AjouteChamp("Taille", Champs.Taille, PlusQue(0.0, "La taille"));
    AjouteChamp("Police", Champs.Police);
}

void EltTxtDialog::Prend() {
    Champs.Prend(*Valeur);
}
