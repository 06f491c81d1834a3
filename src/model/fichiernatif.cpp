// The text of a drawing: version, count, records, table of children.

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "model/bddgeobase.h"
#include "model/messageversion.h"
#include "model/registre.h"

namespace {

constexpr int MarqueFils = 10000;  ///< Ends the records and opens the table of children.

bool CommencePar(std::string_view mot, std::string_view debut) {
    return mot.substr(0, debut.size()) == debut;
}

/// Whether the link can close a loop: only one from an element that is held to one that holds.
bool PeutBoucler(const EltGeo& parent, const EltGeo& fils) {
    return &parent == &fils || (parent.NbParents > 0 && fils.Fils.Nombre() > 0);
}

}  // namespace

void BDDGeoBase::ChargeTexte(std::string_view texte) {
    Vide();
    LitTexte(texte);
}

void BDDGeoBase::LitTexte(std::string_view texte) {
    Lecteur entree(texte);
    Charge(entree);
    if (!entree.VersionRefusee().empty()) MessageVersion(entree.VersionRefusee());
}

void BDDGeoBase::Charge(Lecteur& entree) {
    const std::string_view version = entree.Mot();
    if (!CommencePar(version, "VERSION3.2") && !CommencePar(version, "VERSION3.3")) {
        entree.RefuseVersion(version);
        return;
    }
    int nombre = 0;
    entree >> nombre;
    // A code that can't be read keeps its former value, so that a text cut off behind a record
    // gives one more element of that record's type: that is meant.
    int code = -1;
    for (int i = 0; i < nombre && entree.PeutLire(); ++i) {
        entree >> code;
        if (code == MarqueFils) {
            ChargeFils(entree);
        } else if (auto elt = CreeElement(code)) {
            elt->Charge(entree);
            AjouteFin(std::move(elt));
        }
    }
    Modifie = false;
}

void BDDGeoBase::ChargeFils(Lecteur& entree) {
    const std::vector<EltGeo*> rangs(Elements.begin(), Elements.end());
    std::set<std::pair<int, int>> liens;
    const int borne = static_cast<int>(rangs.size());
    while (entree.PeutLire()) {
        int parent = -1;
        entree >> parent;
        if (entree.Echec() || parent == -1) return;
        int nombre = 0;
        entree >> nombre;
        for (int i = 0; i < nombre && entree.PeutLire(); ++i) {
            int fils = -1;
            entree >> fils;
            // An index that names nothing, a loop and a child given twice are dropped.
            if (parent < 0 || parent >= borne || fils < 0 || fils >= borne) continue;
            if (PeutBoucler(*rangs[parent], *rangs[fils])) continue;
            if (liens.emplace(parent, fils).second) rangs[parent]->AjouteFils(rangs[fils]);
        }
    }
}

void BDDGeoBase::Sauve(Ecrivain& sortie) {
    sortie << "VERSION3.3\n" << Elements.Nombre() + 1 << '\n';
    for (const EltGeo* elt : Elements)
        elt->Sauve(sortie);
    sortie << MarqueFils << '\n';
    SauveFils(sortie);
    sortie << -1 << '\n';
    Modifie = false;
}

void BDDGeoBase::SauveFils(Ecrivain& sortie) const {
    const bool aucun = std::none_of(Elements.begin(), Elements.end(),
                                    [](const EltGeo* elt) { return elt->Fils.Nombre() > 0; });
    if (aucun) return;
    std::unordered_map<const EltGeo*, int> rangs;
    for (const EltGeo* elt : Elements)
        rangs.emplace(elt, static_cast<int>(rangs.size()));
    for (const EltGeo* elt : Elements) {
        if (elt->Fils.Nombre() == 0) continue;
        sortie << rangs[elt] << ' ' << elt->Fils.Nombre() << ' ';
        for (const EltGeo* fils : elt->Fils) {
            const auto trouve = rangs.find(fils);
            sortie << (trouve == rangs.end() ? -1 : trouve->second) << ' ';
        }
        sortie << '\n';
    }
}

std::string BDDGeoBase::SauveTexte() {
    Ecrivain sortie;
    Sauve(sortie);
    return sortie.Texte();
}
