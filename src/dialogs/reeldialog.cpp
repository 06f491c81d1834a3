#include "dialogs/reeldialog.h"

#include "dialogs/nombres.h"

ReelDialog::ReelDialog(const Glib::ustring& titre, double* valeur, const Examen& examen)
    : SaisieDialog(titre), Valeur(valeur), Champ(TexteNombre(*valeur)) {
    AjouteLigne(Champ, examen);
}

void ReelDialog::Prend() {
    if (const auto nombre = Champ.Nombre()) *Valeur = *nombre;
}
