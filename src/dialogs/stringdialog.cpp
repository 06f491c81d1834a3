#include "dialogs/stringdialog.h"

StringDialog::StringDialog(const Glib::ustring& titre, Glib::ustring* valeur, Examen examen)
    : SaisieDialog(titre), Valeur(valeur), Champ(*valeur), Regle(std::move(examen)) {
    AjouteLigne(Champ);
}

void StringDialog::Prend() {
    *Valeur = Champ.get_text();
}
