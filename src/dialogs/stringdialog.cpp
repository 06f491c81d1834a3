#include "dialogs/stringdialog.h"

StringDialog::StringDialog(const Glib::ustring& titre, Glib::ustring* valeur)
    : SaisieDialog(titre), Valeur(valeur), Champ(*valeur) {
    AjouteLigne(Champ);
}

void StringDialog::Prend() {
    *Valeur = Champ.get_text();
}
