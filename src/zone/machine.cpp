#include "zone/machine.h"

#include "dialogs/reeldialog.h"
#include "elements/vue.h"
#include "model/bddgeo.h"
#include "zone/pointeur.h"
#include "zone/tableetats.h"
#include "zone/vuezone.h"

Machine::Machine(VueZone& vue, Pointeur& pointeur) : Vue(vue), Souris(pointeur) {
    BddCourante.SignalRetrait().connect(sigc::mem_fun(*this, &Machine::LaisseElement));
    BddCourante.SignalReprise().connect(sigc::mem_fun(*this, &Machine::ElementRepris));
}

const LigneEtat& Machine::Ligne() const {
    return LigneDe(Etat);
}

void Machine::Entre(int etat) {
    const LigneEtat& ligne = LigneDe(etat);
    if (ligne.Entree && !ligne.Entree(*this)) return;
    MetEtat(etat);
}

void Machine::RazEtat() {
    MetEtat(ETAT_REPOS);
}

void Machine::MetEtat(int etat) {
    Etat = etat;
    const LigneEtat& ligne = Ligne();
    if (ligne.Premier == etat) EltCourant = EltSecond = nullptr;
    // Within a ring the last band stays until the pointer moves.
    if (ligne.Premier == etat || !ligne.BandeVers) Vue.Dessus.Montre(Bandes::Outil, {});
    MontrePoignees();
    Etats.emit(ligne);
}

std::optional<PointAccroche> Machine::ClicDeplace() const {
    if (!Ligne().Clic) return std::nullopt;
    auto cible = Souris.Cible(!Ligne().IgnoreRepere);
    if (cible && Distance(cible->Point, Souris.Position()) == 0.0) cible.reset();
    return cible;
}

void Machine::Impose(const std::optional<PointVek>& p) {
    Impose_ = p;
    MontreBande();
}

void Machine::Clique(const PointVek& p) {
    Souris.Reference = p;
    const LigneEtat& ligne = Ligne();
    if (!ligne.Clic || !ligne.Clic(*this, p)) {
        Etats.emit(Ligne());
        return;
    }
    MetEtat(ligne.Suivant);
    // What an open ring has placed so far is only in its band.
    if (Ligne().Fin) MontreBande();
}

void Machine::Finit() {
    const LigneEtat& ligne = Ligne();
    if (!ligne.Fin) return;
    ligne.Fin(*this);
    MetEtat(ligne.SuivantFin);
    Redessine();
}

void Machine::MontreBande() {
    const LigneEtat& ligne = Ligne();
    if (ligne.BandeVers)
        Vue.Dessus.Montre(Bandes::Outil,
                          ligne.BandeVers(*this, Impose_.value_or(Souris.Position())));
}

void Machine::MontrePoignees() {
    if (!Ligne().MontrePoignees || !EltCourant) {
        Vue.Dessus.Montre(Bandes::Poignees, {});
        return;
    }
    const std::shared_ptr<EltGeo> copie = EltCourant->Clone();
    Vue.Dessus.Montre(Bandes::Poignees, [copie](Trace& trace) { copie->DessinePoignees(trace); });
}

void Machine::MontreBandes() {
    MontrePoignees();
    MontreBande();
    Souris.MajRepere();
}

void Machine::LaisseElement(EltGeo* elt) {
    const bool tenu = EltCourant && (!elt || elt == EltCourant || elt == EltSecond);
    if (tenu) MetEtat(Ligne().Premier);
}

void Machine::ElementRepris(const EltGeo* elt) {
    if (elt == EltCourant) LaisseDeplacement();
}

void Machine::LaisseDeplacement() {
    if (Etat == ETAT_MODIFIE_POSITION) MetEtat(Ligne().Premier);
}

void Machine::DessinChange() {
    Redessine();
    MontrePoignees();
    Souris.MajRepere();
}

void Machine::DessinRepris() {
    LaisseDeplacement();
    DessinChange();
}

void Machine::Recommence() {
    RazEtat();
    Souris.CacheRepere();
    Redessine();
}

void Machine::VueChangee(bool suite) {
    Vue.Precedentes.Note(suite);
    Redessine();
    Souris.SuitVue();
    if (Vue.Dessus.Visible(Bandes::Outil)) MontreBande();
}

void Machine::SetCalqueAffiche(int calque) {
    BddCourante.SetCalqueAffiche(calque);
    for (EltGeo* elt : {EltCourant, EltSecond})
        if (elt && !BddCourante.EstVisible(*elt)) LaisseElement(elt);
    Souris.CacheRepere();
    DessinChange();
}

void Machine::EntreCollage(std::shared_ptr<BDDGeoClipboard> collage, int etat) {
    Collage = std::move(collage);
    MetEtat(etat);
}

void Machine::Redessine() {
    Vue.Redessine();
}

void Machine::Ajoute(const EltGeo& prototype) {
    BddCourante.Ajoute(prototype);
    Redessine();
}

bool Machine::Prend(EltGeo* trouve) {
    EltCourant = trouve;
    return trouve;
}

bool Machine::PrendSecond(EltGeo* trouve) {
    if (!trouve || trouve == EltCourant) return false;
    EltSecond = trouve;
    return true;
}

bool Machine::DemandeRayon() {
    ReelDialog dialogue("Rayon ?", &Rayon, PlusQue(vue::Epsilon(), "Le rayon"));
    return dialogue.run() == Gtk::RESPONSE_OK;
}
