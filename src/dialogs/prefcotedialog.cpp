#include "dialogs/prefcotedialog.h"

#include "dialogs/nombres.h"
#include "elements/eltcote.h"

// The title is that of the texts, by which users know this dialog too.
PrefCoteDialog::PrefCoteDialog(EltCote* cote)
    : EltTxtDialog("Préférences Texte", cote, false), Decimales(TexteNombre(NbDecimales)) {
    AjouteChamp("Décimales", Decimales, UnEntier(0, 15, "Le nombre de décimales"));
}

void PrefCoteDialog::Prend() {
    EltTxtDialog::Prend();
    if (const auto nombre = Decimales.Nombre()) NbDecimales = EnEntier(*nombre);
}
