#include "dialogs/elttxtdialog.h"

#include "dialogs/nombres.h"
#include "dialogs/police.h"
#include "elements/elttxt.h"

namespace {

/// What a drawing file keeps of a text.
constexpr int LongueurTexte = 255;

}  // namespace

EltTxtDialog::EltTxtDialog(const Glib::ustring& titre, EltTxt* txt, bool avecAngle)
    : SaisieDialog(titre),
      Valeur(txt),
      Texte(txt->Texte, LongueurTexte),
      Angle(TexteNombre(txt->GetAngleDegres())),
      Taille(TexteNombre(txt->Taille)) {
    Texte.set_width_chars(32);
    MontrePolice(Police, txt->Police);
    AjouteChamp("Texte", Texte);
    if (avecAngle) AjouteChamp("Angle", Angle);
    AjouteChamp("Taille", Taille);
    AjouteChamp("Police", Police);
}

void EltTxtDialog::Prend() {
    if (Texte.EstModifie()) Valeur->SetTexte(Texte.get_text());
    if (const auto degres = Angle.Nombre()) Valeur->SetAngleDegres(*degres);
    if (const auto taille = Taille.Nombre()) Valeur->SetTaille(*taille);
    Valeur->Police = PoliceChoisie(Police, Valeur->Police);
}
