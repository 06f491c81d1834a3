#include "dialogs/stringdialog.h"

#include "dialogs/signes.h"

StringDialog::StringDialog(const Glib::ustring& titre, Glib::ustring* valeur)
    : SaisieDialog(titre), Valeur(valeur), Champ(*valeur) {
    AjouteLigne(Champ);
    OffreSignes(Champ);
}

void StringDialog::Prend() {
    *Valeur = Champ.get_text();
}
