#include "model/bddgeo.h"

#include <glibmm/convert.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtkmm/recentmanager.h>

#include <filesystem>
#include <functional>
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

void BDDGeo::Insere(std::unique_ptr<EltGeo> elt, int rang) {
    if (rang == 0) {
        AjouteDebut(std::move(elt));
        return;
    }
    Modifie = true;
    Table.Perime();
    Elements.Insere(elt.release(), rang);
}

void BDDGeo::Vide() {
    Retrait.emit(nullptr);
    DernierTrouve = nullptr;
    Histoire.Vide();
    Table.Perime();
    BDDGeoBase::Vide();
    Modifie = false;
    Nomme = false;
    NomFichier.clear();
    Original.clear();
    EtatFichier.clear();
    NbEcrits = ++NbChangements;
    Lecture = {};
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
    EltGeo* ajoute = elt.get();
    Histoire.Fait(std::make_unique<PasAjout>(std::move(elt)));
    NoteChangement();
    return ajoute;
}

EltGeo* BDDGeo::Ajoute(const EltGeo& prototype) {
    return Ajoute(prototype.Clone());
}

void BDDGeo::AjouteFils(EltGeo& parent, const EltGeo& prototype) {
    if (!prototype.EstValide()) return;
    auto ajout = std::make_unique<PasAjout>(prototype.Clone());
    auto lien = std::make_unique<PasLien>(parent, *ajout->Element());
    auto ensemble = std::make_unique<PasEnsemble>();
    ensemble->Ajoute(std::move(ajout));
    ensemble->Ajoute(std::move(lien));
    Histoire.Fait(std::move(ensemble));
    NoteChangement();
}

void BDDGeo::AjouteParent(const EltGeo& prototype, const std::vector<EltGeo*>& fils) {
    if (!prototype.EstValide()) return;
    auto parent = prototype.Clone();
    for (EltGeo* elt : fils)
        parent->Fils.Ajoute(elt);
    Histoire.Fait(std::make_unique<PasAjout>(std::move(parent)));
    NoteChangement();
}

namespace {

/// Whether an element may become what source is.
bool Accepte(const EltGeo& cible, const EltGeo& source) {
    return source.EstFini() && (source.EstValide() || !cible.EstValide());
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
    auto avant = cible.Clone();
    if (!ChangeSansRetour(cible, source)) return false;
    Histoire.Note(std::make_unique<PasChange>(cible, std::move(avant)));
    return true;
}

bool BDDGeo::ChangeSansRetour(EltGeo& cible, const EltGeo& source) {
    if (!Accepte(cible, source)) return false;
    Remplace(cible, source);
    Modifie = true;
    NoteChangement();
    return true;
}

bool BDDGeo::ChangeEnsemble(EltGeo& cible, const EltGeo& source, const PointVek& v) {
    const std::vector<EltGeo*> tenus = Tenus(cible);
    auto ensemble = std::make_unique<PasEnsemble>();
    const auto change = [&](EltGeo& elt, const EltGeo& nouveau) {
        auto avant = elt.Clone();
        if (!ChangeSansRetour(elt, nouveau)) return false;
        ensemble->Ajoute(std::make_unique<PasChange>(elt, std::move(avant)));
        return true;
    };
    if (!change(cible, source)) return false;
    for (EltGeo* elt : tenus) {
        const auto deplace = elt->Clone();
        deplace->Deplace(v);
        change(*elt, *deplace);
    }
    Histoire.Note(std::move(ensemble));
    return true;
}

bool BDDGeo::DemandeProprietes(EltGeo& elt) {
    auto avant = elt.Clone();
    const bool change = elt.Proprietes();
    // The dialog ran a loop of its own, and the element may have gone.
    if (!change || !Elements.Contient(&elt)) return false;
    Histoire.Note(std::make_unique<PasChange>(elt, std::move(avant)));
    Table.Perime();
    Modifie = true;
    NoteChangement();
    return true;
}

void BDDGeo::NoteChangement() {
    ++NbChangements;
    SignauxChangement.emit();
}

bool BDDGeo::Annule() {
    return Histoire.Annule();
}

void BDDGeo::Remplace(EltGeo& cible, const EltGeo& source) {
    cible.VideFils();
    cible.Copie(source);
    // Some solids leave out of their copy what their dialogs change all the same.
    if (const Elt3d* solide = source.GetElt3d()) cible.ChangeElt3d(*solide);
    cible.ReferenceFils();
    Table.Perime();
}

std::unique_ptr<EltGeo> BDDGeo::Detache(EltGeo* elt, bool garde) {
    if (!Elements.Retire(elt)) return nullptr;
    Delie(*elt, garde);
    return std::unique_ptr<EltGeo>(elt);
}

std::vector<std::unique_ptr<EltGeo>> BDDGeo::Detache(const std::vector<EltGeo*>& elements,
                                                     bool garde) {
    std::vector<std::unique_ptr<EltGeo>> detaches(elements.size());
    std::size_t premier = 0, fin = elements.size();
    Elements.RetireSi(
        [&](const EltGeo& elt) {
            return premier < fin && (&elt == elements[premier] || &elt == elements[fin - 1]);
        },
        [&](EltGeo* elt) {
            const std::size_t rang = elt == elements[premier] ? premier++ : --fin;
            detaches[rang].reset(elt);
        });
    for (const auto& elt : detaches)
        if (elt) Delie(*elt, garde);
    return detaches;
}

void BDDGeo::Delie(EltGeo& elt, bool garde) {
    Table.Perime();
    if (DernierTrouve == &elt) DernierTrouve = nullptr;
    Retrait.emit(&elt);
    if (elt.NbParents > 0)
        for (EltGeo* parent : Elements)
            while (parent->Fils.Contient(&elt))
                parent->RetireFils(&elt);
    if (!garde) {
        elt.VideFils();
        return;
    }
    for (EltGeo* fils : elt.Fils)
        --fils->NbParents;
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

std::vector<const EltGeo*> BDDGeo::VisiblesPres(const PointVek& p) const {
    std::vector<const EltGeo*> pres;
    Table.Parcourt(Elements, Boite::Autour(p, p).Elargie(vue::Proche10()), [&](const EltGeo& elt) {
        if (EstVisible(elt)) pres.push_back(&elt);
    });
    return pres;
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
    Histoire.Fait(std::make_unique<PasRetrait>(*elt));
    Modifie = true;
    NoteChangement();
    return true;
}

bool BDDGeo::ProprieteProche(const PointVek& p) {
    EltGeo* elt = Cherche(p);
    if (!elt) return false;
    Modifie = true;
    elt->Proprietes();
    Table.Perime();
    NoteChangement();
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
    if (!elt) return false;
    AjouteFin(std::move(elt));
    NoteChangement();
    return true;
}

bool BDDGeo::Arriere(const PointVek& p) {
    auto elt = Decroche(p);
    if (!elt) return false;
    AjouteDebut(std::move(elt));
    NoteChangement();
    return true;
}

void BDDGeo::ChangeTraitZone(const EltRectangle& zone, const Trait& trait) {
    bool change = false;
    for (EltGeo* elt : Elements) {
        if (!EstVisible(*elt) || !zone.Contient(*elt)) continue;
        elt->ChangeTrait(trait);
        change = true;
    }
    if (change) NoteChangement();
}

namespace {

/// How a drawing of the present format begins.
const std::string VersionPresente = "VERSION3.3";

/// The state of a file that is not there.
const std::string SansFichier = "absent";

}  // namespace

void BDDGeo::Ouvre(std::string nom) {
    std::string texte;
    const BilanLecture::Etat etat = LitFichierOuDit(nom, texte);
    Vide();
    NomFichier = std::move(nom);
    Nomme = true;
    Lecture = etat == BilanLecture::Lu ? LitTexte(texte) : BilanLecture::Refus(etat);
    const bool present = texte.compare(0, VersionPresente.size(), VersionPresente) == 0;
    const bool fichier =
        Lecture.Fichier != BilanLecture::Absent && Lecture.Fichier != BilanLecture::Dossier;
    if (fichier && (!present || !Lecture.RienPerdu())) Original = NomFichier;
    NoteFichier(texte);
}

void BDDGeo::NoteFichier(std::string_view contenu) {
    EtatFichier = EtatDuFichier(NomFichier);
    if (EtatFichier.empty()) EtatFichier = SansFichier;
    EmpreinteFichier = std::hash<std::string_view>()(contenu);
}

void BDDGeo::Recupere(std::string_view texte, std::string nom) {
    Vide();
    NomFichier = std::move(nom);
    // What is there now was not read.
    Original = NomFichier;
    Lecture = LitTexte(texte);
    Modifie = true;
    NoteChangement();
}

bool BDDGeo::EnregistreSous(std::string nom) {
    // Another file was agreed upon as it is.
    if (nom != NomFichier) EtatFichier.clear();
    NomFichier = std::move(nom);
    Nomme = true;
    return Enregistre();
}

namespace {

/// The same file under whatever names, through links too.
bool MemeFichier(const std::string& a, const std::string& b) {
    std::error_code erreur;
    return std::filesystem::equivalent(a, b, erreur);
}

}  // namespace

bool BDDGeo::GarderaOriginal() const {
    if (!Nomme) return false;
    const std::string etat = EtatDuFichier(NomFichier);
    if (etat == EtatGarde && !etat.empty()) return false;
    if (!Original.empty() && MemeFichier(Original, NomFichier)) return true;
    if (EtatFichier.empty() || etat.empty() || etat == EtatFichier) return false;
    // It may have been touched alone, or put back as it was.
    std::string contenu;
    return !LitFichier(NomFichier, contenu) ||
           std::hash<std::string_view>()(contenu) != EmpreinteFichier;
}

bool BDDGeo::Enregistre() {
    std::string chemin = NomFichier;
    if (!Glib::path_is_absolute(chemin))
        chemin = Glib::build_filename(Glib::get_current_dir(), chemin);
    Gtk::RecentManager::get_default()->add_item(Glib::filename_to_uri(chemin));
    // Until the disk has it the drawing is unsaved, even where nothing was changed.
    NbEcrits = NbChangements - 1;
    Ecrivain sortie;
    Sauve(sortie);
    OriginalGarde.clear();
    if (GarderaOriginal()) {
        OriginalGarde = GardeACote(NomFichier);
        if (OriginalGarde.empty()) return false;
        EtatGarde = EtatDuFichier(NomFichier);
    }
    if (!EcritFichier(NomFichier, sortie.Texte())) return false;
    // What was read in part may be saved elsewhere first.
    if (MemeFichier(Original, NomFichier)) Original.clear();
    NoteFichier(sortie.Texte());
    NbEcrits = NbChangements;
    return true;
}
