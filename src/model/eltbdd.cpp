#include "model/eltbdd.h"

#include <unordered_map>
#include <vector>

#include "elements/ecrivain.h"
#include "elements/encodage.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/vue.h"
#include "model/fichier.h"
#include "model/vuedecalee.h"

namespace {

constexpr char NomDefaut[] = "defaut";
constexpr char MotFin[] = "FinEltBDD";

/// Groups inside groups beyond this depth are no drawing of anyone's.
constexpr int ProfondeurMax = 100;

}  // namespace

Glib::ustring EnUnMot(const Glib::ustring& nom) {
    Glib::ustring mot;
    for (const gunichar c : nom)
        mot += g_unichar_isspace(c) || g_unichar_iscntrl(c) ? gunichar('_') : c;
    return mot.empty() ? Glib::ustring(NomDefaut) : mot;
}

EltBDD::EltBDD() : EltGeo(TypeBDD), Identificateur(NomDefaut) {}

EltBDD::EltBDD(const EltBDD& source) : EltGeo(source), Identificateur(source.Identificateur) {
    CopieListe(source.Contenu);
}

std::unique_ptr<EltGeo> EltBDD::Clone() const {
    return std::make_unique<EltBDD>(*this);
}

void EltBDD::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    const auto& groupe = static_cast<const EltBDD&>(source);
    Identificateur = groupe.Identificateur;
    CopieListe(groupe.Contenu);
}

void EltBDD::CopieListe(const BDDGeoBase& source) {
    Contenu.Vide();
    std::unordered_map<const EltGeo*, EltGeo*> clones;
    for (const EltGeo* elt : source.Elements)
        clones[elt] = Contenu.AjouteDebut(elt->Clone());
    // The clones hold their own children, not those of the source.
    for (EltGeo* elt : Contenu.Elements) {
        std::vector<EltGeo*> fils(elt->Fils.begin(), elt->Fils.end());
        elt->Fils.Vide();
        for (EltGeo* ancien : fils)
            if (const auto clone = clones.find(ancien); clone != clones.end())
                elt->AjouteFils(clone->second);
    }
}

void EltBDD::Dessine(Trace& trace) const {
    // Only the images of groups are printed: to users the group itself is the mould of its images.
    if (trace.SurPapier()) return;
    trace.Compose(trace.ZonePeinte(), [this](Trace& t) {
        EltGeo::Dessine(t);
        const PointVek coin = vue::VersEcran(Position);
        t.Texte({Identificateur, "Courrier", 10.0, 0.0, TexteEcran::CoinHaut, coin}, Style.Couleur);
        const VueDecalee decalee(Position);
        DessineContenu(t);
    });
}

int EltBDD::NombrePeints() const {
    int nombre = Contenu.Elements.Nombre();
    for (const EltGeo* elt : Contenu.Elements)
        if (elt->Type == TypeBDD) nombre += static_cast<const EltBDD*>(elt)->NombrePeints();
    return nombre;
}

void EltBDD::DessineContenu(Trace& trace) const {
    Contenu.Dessine(trace);
}

void EltBDD::Dessine3DContenu(DC3D& dc, bool couleur) const {
    for (const EltGeo* elt : Contenu.Elements)
        if (Contenu.EstVisible(*elt)) elt->DessineCorps3D(dc, couleur);
}

void EltBDD::Sauve(Ecrivain& sortie) const {
    EltGeo::Sauve(sortie);
    sortie << Identificateur.raw() << '\n';
    Contenu.Ecrit(sortie);
    sortie << MotFin << '\n';
}

void EltBDD::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    const std::string_view nom = entree.Mot();
    if (!entree.Echec()) Identificateur = EnUtf8(nom);
    const Lecteur::Niveau niveau(entree, ProfondeurMax);
    const bool entier = Contenu.Charge(entree).RienPerdu();
    if (entree.Mot() != MotFin || !entier) entree.NoteManque();
}

void EltBDD::Ouvre(const std::string& nom) {
    std::string texte;
    LitFichier(nom, texte);
    Contenu.Vide();
    if (!texte.empty()) Contenu.ChargeTexte(texte);
}

void EltBDD::SetIdentificateur(const Glib::ustring& identificateur) {
    Identificateur = EnUnMot(identificateur);
}

bool EltBDD::EstIdentifie(const Glib::ustring& identificateur) const {
    return Identificateur.raw() == identificateur.raw();
}
