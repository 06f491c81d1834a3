#include "dialogs/intdialog.h"

#include "dialogs/nombres.h"

IntDialog::IntDialog(const Glib::ustring& titre, int* valeur)
    : SaisieDialog(titre), Valeur(valeur), Champ(TexteNombre(*valeur)) {
    AjouteLigne(Champ);
}

void IntDialog::Prend() {
    if (const auto nombre = Champ.Nombre()) *Valeur = EnEntier(*nombre);
}
