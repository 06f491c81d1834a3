#include "model/annulation.h"

#include <utility>

#include "model/bddgeo.h"

PasAjout::PasAjout(std::unique_ptr<EltGeo> elt) : Sorti(std::move(elt)), Cible(Sorti.get()) {}

void PasAjout::Fait(BDDGeo& bdd) {
    if (!Sorti) return;
    Sorti->ReferenceFils();
    bdd.Insere(std::move(Sorti), Rang);
}

void PasAjout::Defait(BDDGeo& bdd) {
    Rang = bdd.Elements.Rang(Cible);
    Sorti = bdd.Detache(Cible, true);
}

PasCollage::PasCollage(std::vector<std::unique_ptr<EltGeo>> elements)
    : Sortis(std::move(elements)), Rangs(Sortis.size(), 0) {
    for (const auto& elt : Sortis)
        Cibles.push_back(elt.get());
}

void PasCollage::Fait(BDDGeo& bdd) {
    for (std::size_t rang = 0; rang < Sortis.size(); ++rang)
        if (Sortis[rang]) bdd.Insere(std::move(Sortis[rang]), Rangs[rang]);
}

void PasCollage::Defait(BDDGeo& bdd) {
    // From the head on, where each is found at once.
    for (std::size_t rang = Cibles.size(); rang-- > 0;) {
        Rangs[rang] = bdd.Elements.Rang(Cibles[rang]);
        Sortis[rang] = bdd.Detache(Cibles[rang], true);
    }
}

void PasRetrait::Fait(BDDGeo& bdd) {
    Sorti = bdd.Detache(Cible, false);
}

void PasRetrait::Defait(BDDGeo& bdd) {
    if (Sorti) bdd.AjouteFin(std::move(Sorti));
}

PasCoupe::PasCoupe(std::vector<EltGeo*> elements) : Cibles(std::move(elements)) {}

void PasCoupe::Fait(BDDGeo& bdd) {
    Sortis = bdd.Detache(Cibles, true);
}

void PasCoupe::Defait(BDDGeo& bdd) {
    for (auto sorti = Sortis.rbegin(); sorti != Sortis.rend(); ++sorti)
        if (*sorti) bdd.AjouteFin(std::move(*sorti))->ReferenceFils();
}

PasChange::PasChange(EltGeo& cible, std::unique_ptr<EltGeo> avant)
    : Cible(&cible), Autre(std::move(avant)) {}

void PasChange::Fait(BDDGeo& bdd) {
    if (!bdd.Elements.Contient(Cible)) return;
    auto present = Cible->Clone();
    bdd.Remplace(*Cible, *Autre);
    Autre = std::move(present);
    bdd.SignalReprise().emit(Cible);
}

void PasLien::Fait(BDDGeo&) {
    if (Lie) Parent->AjouteFils(Fils);
}

void PasLien::Defait(BDDGeo&) {
    Lie = Parent->Fils.Contient(Fils);
    if (Lie) Parent->RetireFils(Fils);
}

void PasEnsemble::Fait(BDDGeo& bdd) {
    for (const auto& pas : Tous)
        pas->Fait(bdd);
}

void PasEnsemble::Defait(BDDGeo& bdd) {
    for (auto pas = Tous.rbegin(); pas != Tous.rend(); ++pas)
        (*pas)->Defait(bdd);
}

void Historique::Fait(std::unique_ptr<Pas> pas) {
    pas->Fait(Bdd);
    Note(std::move(pas));
}

void Historique::Note(std::unique_ptr<Pas> pas) {
    Faits.push_back(std::move(pas));
    Defaits.clear();
}

bool Historique::Annule() {
    OublieSiChange();
    return Passe(Faits, Defaits, &Pas::Defait);
}

bool Historique::Refait() {
    OublieSiChange();
    return Passe(Defaits, Faits, &Pas::Fait);
}

void Historique::Vide() {
    Faits.clear();
    Defaits.clear();
}

bool Historique::Passe(Pile& de, Pile& vers, void (Pas::*operation)(BDDGeo&)) {
    if (de.empty()) return false;
    std::unique_ptr<Pas> pas = std::move(de.back());
    de.pop_back();
    ((*pas).*operation)(Bdd);
    vers.push_back(std::move(pas));
    Bdd.NoteChangement();
    Vu = Bdd.Changements();
    return true;
}

void Historique::OublieSiChange() {
    if (Vu != Bdd.Changements()) Defaits.clear();
}
