#include "dialogs/int2dialog.h"

#include "dialogs/nombres.h"

Int2Dialog::Int2Dialog(const Glib::ustring& titre, int* premier, int* second, const Examen& examen)
    : SaisieDialog(titre),
      Valeurs{premier, second},
      Premier(TexteNombre(*premier)),
      Second(TexteNombre(*second)) {
    AjouteLigne(Premier, examen);
    AjouteLigne(Second, examen);
}

void Int2Dialog::Prend() {
    if (const auto nombre = Premier.Nombre()) *Valeurs[0] = EnEntier(*nombre);
    if (const auto nombre = Second.Nombre()) *Valeurs[1] = EnEntier(*nombre);
}
