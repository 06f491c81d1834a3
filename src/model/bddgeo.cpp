#include "model/bddgeo.h"

#include <glibmm/convert.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtkmm/recentmanager.h>

#include <unordered_set>

#include "elements/ecrivain.h"
#include "elements/eltrectangle.h"
#include "elements/trace.h"
#include "elements/vue.h"
#include "model/echelle.h"
#include "model/fichier.h"

BDDGeo BddCourante;

EltGeo* BDDGeo::AjouteDebut(std::unique_ptr<EltGeo> elt) {
    Modifie = true;
    EltGeo* ajoute = BDDGeoBase::AjouteDebut(std::move(elt));
    Table.AjouteDebut(ajoute);
    return ajoute;
}

EltGeo* BDDGeo::AjouteFin(std::unique_ptr<EltGeo> elt) {
    Table.Perime();
    return BDDGeoBase::AjouteFin(std::move(elt));
}

void BDDGeo::Vide() {
    Retrait.emit(nullptr);
    DernierTrouve = nullptr;
    Annulations.clear();
    Table.Perime();
    BDDGeoBase::Vide();
    Modifie = false;
    Nomme = false;
    NomFichier.clear();
}

void BDDGeo::Dessine(Trace& trace) const {
    if (!EchelleCourante.EstPlane()) {
        BDDGeoBase::Dessine(trace);
        return;
    }
    // Wide enough for the widest line and for what is painted at a fixed size in pixels.
    constexpr double marge = 64.0;
    const Boite pixels = trace.ZonePeinte().Elargie(marge);
    const Boite zone = Boite::Autour(EchelleCourante.VersDessin({pixels.Gauche, pixels.Haut}),
                                     EchelleCourante.VersDessin({pixels.Droite, pixels.Bas}));
    Table.Parcourt(Elements, zone, [&](const EltGeo& elt) { DessineElement(trace, elt); });
}

EltGeo* BDDGeo::Ajoute(std::unique_ptr<EltGeo> elt) {
    if (!elt->EstValide()) return nullptr;
    elt->ReferenceFils();
    EltGeo* ajoute = AjouteDebut(std::move(elt));
    Annulations.push_back({EnregAnnul::Ajoute, nullptr, ajoute});
    return ajoute;
}

EltGeo* BDDGeo::Ajoute(const EltGeo& prototype) {
    return Ajoute(prototype.Clone());
}

namespace {

/// Gives cible the content of source, and children that are counted.
void Reprend(EltGeo& cible, const EltGeo& source) {
    cible.VideFils();
    cible.Copie(source);
    // Some solids leave out of their copy what their dialogs change all the same.
    if (const Elt3d* solide = source.GetElt3d()) cible.ChangeElt3d(*solide);
    cible.ReferenceFils();
}

/// All that elt holds as children, directly or not, each once and itself left out.
std::vector<EltGeo*> Tenus(const EltGeo& elt) {
    std::vector<EltGeo*> tenus;
    std::unordered_set<const EltGeo*> vus = {&elt};
    std::vector<const EltGeo*> parents = {&elt};
    while (!parents.empty()) {
        const EltGeo* parent = parents.back();
        parents.pop_back();
        for (EltGeo* fils : parent->Fils) {
            if (!vus.insert(fils).second) continue;
            tenus.push_back(fils);
            parents.push_back(fils);
        }
    }
    return tenus;
}

}  // namespace

bool BDDGeo::Change(EltGeo& cible, const EltGeo& source) {
    if (!source.EstFini() || (cible.EstValide() && !source.EstValide())) return false;
    auto avant = cible.Clone();
    Reprend(cible, source);
    Memorise(cible, std::move(avant));
    return true;
}

bool BDDGeo::ChangeEnsemble(EltGeo& cible, const EltGeo& source, const PointVek& v) {
    const std::vector<EltGeo*> tenus = Tenus(cible);
    if (!Change(cible, source)) return false;
    int nombre = 1;
    for (EltGeo* elt : tenus) {
        const auto deplace = elt->Clone();
        deplace->Deplace(v);
        if (Change(*elt, *deplace)) ++nombre;
    }
    if (nombre > 1) Annulations.push_back({EnregAnnul::Ensemble, nullptr, nullptr, nombre});
    return true;
}

void BDDGeo::NoteChangement() {
    Table.Perime();
    Modifie = true;
}

void BDDGeo::Memorise(EltGeo& cible, std::unique_ptr<EltGeo> avant) {
    Annulations.push_back({EnregAnnul::Change, std::move(avant), &cible});
    NoteChangement();
}

bool BDDGeo::Annule() {
    if (Annulations.empty()) return false;
    EnregAnnul pas = std::move(Annulations.back());
    Annulations.pop_back();
    switch (pas.Quoi) {
        case EnregAnnul::Retire:
            // At the tail, not at its old place: that is meant.
            AjouteFin(std::move(pas.Element))->ReferenceFils();
            break;
        case EnregAnnul::Ajoute:
            Retire(pas.Cible);
            break;
        case EnregAnnul::Change:
            if (!Elements.Contient(pas.Cible)) break;
            Reprend(*pas.Cible, *pas.Element);
            Table.Perime();
            break;
        case EnregAnnul::Coupe:
            AnnuleCoupe(pas.Nombre);
            break;
        case EnregAnnul::Colle:
            AnnuleColle(pas.Nombre);
            break;
        case EnregAnnul::Ensemble:
            for (; pas.Nombre > 0; --pas.Nombre)
                Annule();
            break;
    }
    return true;
}

std::unique_ptr<EltGeo> BDDGeo::Retire(EltGeo* elt) {
    if (!Elements.Retire(elt)) return nullptr;
    Table.Perime();
    if (DernierTrouve == elt) DernierTrouve = nullptr;
    Retrait.emit(elt);
    if (elt->NbParents > 0)
        for (EltGeo* parent : Elements)
            while (parent->Fils.Contient(elt))
                parent->RetireFils(elt);
    elt->VideFils();
    return std::unique_ptr<EltGeo>(elt);
}

template <class Admet>
EltGeo* BDDGeo::ChercheSelon(const PointVek& p, bool support, const Admet& admet,
                             double& distance) {
    const auto mesure = [&](const EltGeo& elt) {
        return support ? elt.DistanceSupport(p) : elt.Distance(p);
    };
    const auto admis = [&](const EltGeo& elt) { return EstVisible(elt) && admet(elt); };
    return Table.PlusProche(Elements, p, mesure, admis, distance);
}

namespace {

bool Tous(const EltGeo&) {
    return true;
}

EltGeo* SiProche(EltGeo* trouve, double distance) {
    return distance < vue::Proche10() ? trouve : nullptr;
}

}  // namespace

EltGeo* BDDGeo::Cherche(const PointVek& p) {
    double distance;
    EltGeo* trouve = ChercheSelon(p, false, Tous, distance);
    return SiProche(trouve, distance);
}

EltGeo* BDDGeo::ChercheType(const PointVek& p, int type) {
    double distance;
    const auto duType = [type](const EltGeo& elt) { return elt.Type == type; };
    EltGeo* trouve = ChercheSelon(p, false, duType, distance);
    return SiProche(trouve, distance);
}

EltGeo* BDDGeo::ChercheProche(const PointVek& p, bool support) {
    double distance;
    DernierTrouve = ChercheSelon(p, support, Tous, distance);
    return SiProche(DernierTrouve, distance);
}

EltGeo* BDDGeo::ChercheAutre(const PointVek& p, bool support) {
    double distance;
    const auto autre = [this](const EltGeo& elt) { return &elt != DernierTrouve; };
    EltGeo* trouve = ChercheSelon(p, support, autre, distance);
    return SiProche(trouve, distance);
}

EltGeo* BDDGeo::Cherche3D(const PointVek& p) const {
    double distance = vue::Proche3D;
    EltGeo* trouve = nullptr;
    for (EltGeo* elt : Elements) {
        if (!EstVisible(*elt)) continue;
        const double d = elt->Distance3D(p);
        if (!(d < distance)) continue;
        distance = d;
        trouve = elt;
    }
    return trouve;
}

bool BDDGeo::Efface(const PointVek& p) {
    EltGeo* elt = Cherche(p);
    if (!elt || elt->NbParents != 0) return false;
    Annulations.push_back({EnregAnnul::Retire, Retire(elt), nullptr});
    Modifie = true;
    return true;
}

bool BDDGeo::ProprieteProche(const PointVek& p) {
    EltGeo* elt = Cherche(p);
    if (!elt) return false;
    Modifie = true;
    elt->Proprietes();
    Table.Perime();
    return true;
}

std::unique_ptr<EltGeo> BDDGeo::Decroche(const PointVek& p) {
    EltGeo* elt = Cherche(p);
    if (!elt) return nullptr;
    Elements.Retire(elt);
    Table.Perime();
    Modifie = true;
    return std::unique_ptr<EltGeo>(elt);
}

bool BDDGeo::Avant(const PointVek& p) {
    auto elt = Decroche(p);
    return elt && AjouteFin(std::move(elt));
}

bool BDDGeo::Arriere(const PointVek& p) {
    auto elt = Decroche(p);
    return elt && AjouteDebut(std::move(elt));
}

void BDDGeo::ChangeTraitZone(const EltRectangle& zone, const Trait& trait) {
    for (EltGeo* elt : Elements)
        if (EstVisible(*elt) && zone.Contient(*elt)) elt->ChangeTrait(trait);
}

void BDDGeo::Ouvre(std::string nom) {
    std::string texte;
    const bool lu = LitFichier(nom, texte);
    Vide();
    NomFichier = std::move(nom);
    Nomme = true;
    if (lu) LitTexte(texte);
}

void BDDGeo::EnregistreSous(std::string nom) {
    NomFichier = std::move(nom);
    Nomme = true;
    Enregistre();
}

void BDDGeo::Enregistre() {
    std::string chemin = NomFichier;
    if (!Glib::path_is_absolute(chemin))
        chemin = Glib::build_filename(Glib::get_current_dir(), chemin);
    Gtk::RecentManager::get_default()->add_item(Glib::filename_to_uri(chemin));
    Ecrivain sortie;
    Sauve(sortie);
    EcritFichier(NomFichier, sortie.Texte());
}
