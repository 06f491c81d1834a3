#include "model/vuesprecedentes.h"

#include "model/echelle.h"

namespace {

/// A step of the arrow keys, with room for rounding.
constexpr double PetitPas = 11.0;

}  // namespace

void VuesPrecedentes::Note(bool suite) {
    const Vue vue = {EchelleCourante.Origine, EchelleCourante.Facteur};
    if (Presente) {
        const double chemin = Distance(vue.Origine, Presente->Origine) * vue.Facteur;
        const bool zoom = vue.Facteur != Presente->Facteur;
        if (!zoom && chemin == 0.0) return;
        const bool petit = !zoom && chemin < PetitPas;
        if (!suite && !(petit && Glisse)) Quittees.push_back(*Presente);
        if (Quittees.size() > Maximum) Quittees.pop_front();
        Glisse = petit;
    }
    Presente = vue;
}

bool VuesPrecedentes::Revient() {
    if (Quittees.empty()) return false;
    Presente = Quittees.back();
    Quittees.pop_back();
    Glisse = false;
    EchelleCourante.Montre(Presente->Origine, Presente->Facteur);
    return true;
}
