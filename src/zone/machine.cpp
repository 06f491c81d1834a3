// The engine of the tool machine: entering and leaving states, clicks, previews.

#include "model/bddgeo.h"
#include "zone/etats.h"
#include "zone/tableetats.h"
#include "zone/zonedessin.h"

void ZoneDessin::Entre(int etat) {
    const LigneEtat& ligne = LigneDe(etat);
    if (ligne.Entree && !ligne.Entree(*this)) return;
    MetEtat(etat);
}

void ZoneDessin::RazEtat() {
    MetEtat(ETAT_REPOS);
}

void ZoneDessin::MetEtat(int etat) {
    Etat = etat;
    const LigneEtat& ligne = LigneDe(etat);
    if (ligne.Premier == etat) EltCourant = EltCopie = nullptr;
    // Within a ring the last preview stays until the pointer moves.
    if (ligne.Premier == etat || !ligne.Apercu) Dessus.Montre(Surimpression::Apercu, {});
    MontrePoignees();
    AfficheEtat();
}

void ZoneDessin::AfficheEtat() {
    const LigneEtat& ligne = LigneDe(Etat);
    if (LabelAction) LabelAction->set_text(ligne.Invite);
    if (const auto fenetre = get_window()) fenetre->set_cursor(Gdk::Cursor(ligne.Curseur));
}

void ZoneDessin::Clique(const PointVek& p) {
    const LigneEtat& ligne = LigneDe(Etat);
    if (!ligne.Clic || !ligne.Clic(*this, p)) {
        AfficheEtat();
        return;
    }
    MetEtat(ligne.Suivant);
    // What an open ring has placed so far is only in its preview.
    if (LigneDe(Etat).Fin) MontreApercu();
}

void ZoneDessin::FinProfil() {
    const LigneEtat& ligne = LigneDe(Etat);
    if (!ligne.Fin) return;
    ligne.Fin(*this);
    MetEtat(ligne.SuivantFin);
    Redessine();
}

void ZoneDessin::MontreApercu() {
    const LigneEtat& ligne = LigneDe(Etat);
    if (ligne.Apercu) Dessus.Montre(Surimpression::Apercu, ligne.Apercu(*this, PointSouris));
}

void ZoneDessin::MontrePoignees() {
    if (!LigneDe(Etat).MontrePoignees || !EltCourant) {
        Dessus.Montre(Surimpression::Poignees, {});
        return;
    }
    const std::shared_ptr<EltGeo> copie = EltCourant->Clone();
    Dessus.Montre(Surimpression::Poignees,
                  [copie](Trace& trace) { copie->DessinePoignees(trace); });
}

void ZoneDessin::LaisseElement(EltGeo* elt) {
    const bool tenu = EltCourant && (!elt || elt == EltCourant || elt == EltCopie);
    if (tenu) MetEtat(LigneDe(Etat).Premier);
}

void ZoneDessin::LaisseDeplacement() {
    if (Etat == ETAT_MODIFIE_POSITION) MetEtat(LigneDe(Etat).Premier);
}

void ZoneDessin::Ajoute(const EltGeo& prototype) {
    BddCourante.Ajoute(prototype);
    Redessine();
}

bool ZoneDessin::Prend(EltGeo* trouve) {
    EltCourant = trouve;
    return trouve;
}

bool ZoneDessin::PrendSecond(EltGeo* trouve) {
    if (!trouve || trouve == EltCourant) return false;
    EltCopie = trouve;
    return true;
}
