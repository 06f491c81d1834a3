#include "elements/trace.h"

#include "elements/tuile.h"

bool Trace::Touche(const Boite& boite, const Trait& trait) const {
    return boite.Touche(Zone.Elargie(EpaisseurBornee(trait) + 2.0));
}

bool Trace::PeutPeindreContenus(int nombre) {
    constexpr int limite = 100000;
    if (ContenusPeints >= limite) return false;
    ContenusPeints += nombre;
    return true;
}

void Trace::Lien(const LienEcran& lien) {
    if (!lien.Visible) return;
    if (lien.Arc)
        Arc(*lien.Arc, false);
    else
        Segment(lien.Debut, lien.Fin);
}
