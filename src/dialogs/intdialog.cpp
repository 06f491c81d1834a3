#include "dialogs/intdialog.h"

#include "dialogs/nombres.h"

IntDialog::IntDialog(const Glib::ustring& titre, int* valeur, const Examen& examen)
    : SaisieDialog(titre), Valeur(valeur), Champ(TexteNombre(*valeur)) {
    AjouteLigne(Champ, examen);
}

void IntDialog::Prend() {
    if (const auto nombre = Champ.Nombre()) *Valeur = EnEntier(*nombre);
}
