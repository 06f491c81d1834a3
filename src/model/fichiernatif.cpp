// The text of a drawing: version, count, records, table of children.

#include <algorithm>
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
constexpr char LiensImpossibles[] = "liens impossibles";

bool CommencePar(std::string_view mot, std::string_view debut) {
    return mot.substr(0, debut.size()) == debut;
}

/// The links, from parent to child by their ranks, that close no loop: those of the elements that
/// are reached from one without parent by taking away, again and again, the elements without
/// parent.
std::vector<std::pair<int, int>> SansBoucle(const std::vector<std::pair<int, int>>& liens,
                                            int nombre) {
    std::vector<std::vector<int>> fils(static_cast<std::size_t>(nombre));
    std::vector<int> parents(static_cast<std::size_t>(nombre), 0);
    for (const auto& [parent, enfant] : liens) {
        fils[static_cast<std::size_t>(parent)].push_back(enfant);
        ++parents[static_cast<std::size_t>(enfant)];
    }
    std::vector<int> libres;
    for (int rang = 0; rang < nombre; ++rang)
        if (parents[static_cast<std::size_t>(rang)] == 0) libres.push_back(rang);
    std::vector<bool> atteints(static_cast<std::size_t>(nombre), false);
    while (!libres.empty()) {
        const auto rang = static_cast<std::size_t>(libres.back());
        libres.pop_back();
        atteints[rang] = true;
        for (const int enfant : fils[rang])
            if (--parents[static_cast<std::size_t>(enfant)] == 0) libres.push_back(enfant);
    }
    std::vector<std::pair<int, int>> gardes;
    for (const auto& lien : liens)
        if (atteints[static_cast<std::size_t>(lien.first)]) gardes.push_back(lien);
    return gardes;
}

}  // namespace

void BDDGeoBase::ChargeTexte(std::string_view texte) {
    Vide();
    LitTexte(texte);
}

BilanLecture BDDGeoBase::LitTexte(std::string_view texte) {
    Lecteur entree(texte);
    BilanLecture bilan = Charge(entree);
    if (entree.Manque() || entree.ResteTexte()) bilan.Entier = false;
    if (entree.VersionRefusee()) MessageVersion(*entree.VersionRefusee());
    return bilan;
}

BilanLecture BDDGeoBase::Charge(Lecteur& entree) {
    if (!entree.PeutLire()) return BilanLecture::Refus(BilanLecture::Illisible);
    const std::string_view version = entree.Mot();
    if (!CommencePar(version, "VERSION3.2") && !CommencePar(version, "VERSION3.3")) {
        entree.RefuseVersion(version);
        return BilanLecture::Refus(BilanLecture::PasUnDessin);
    }
    int nombre = 0;
    entree >> nombre;
    // A code that can't be read keeps its former value, so that a text cut off behind a record
    // gives one more element of that record's type: what damaged files have always given.
    int code = -1;
    LiensFils liens;
    BilanLecture bilan;
    int inconnus = 0;
    bool termine = false;
    for (int i = 0; i < nombre && entree.PeutLire(); ++i) {
        entree >> code;
        if (code == MarqueFils) {
            termine = ChargeFils(entree, liens, bilan) || termine;
        } else if (auto elt = CreeElement(code)) {
            elt->Charge(entree);
            AjouteFin(std::move(elt));
            if (!entree.Echec()) ++bilan.Lus;
        } else if (!entree.Echec()) {
            bilan.Laisse("éléments inconnus");
            ++inconnus;
        }
    }
    bilan.Laisse(LiensImpossibles, RelieFils(liens));
    Modifie = false;
    // The count of a text without end mark may be that of its elements alone.
    const bool sansMarque = !entree.Echec() && bilan.Lus + inconnus == nombre;
    bilan.Annonces = sansMarque ? nombre : std::max(nombre, 0) - 1;
    bilan.Entier = sansMarque || (termine && bilan.Lus + inconnus == bilan.Annonces);
    return bilan;
}

bool BDDGeoBase::ChargeFils(Lecteur& entree, LiensFils& liens, BilanLecture& bilan) const {
    const auto existe = [borne = Elements.Nombre()](int rang) { return rang >= 0 && rang < borne; };
    while (entree.PeutLire()) {
        int parent = -1;
        entree >> parent;
        if (entree.Echec()) return false;
        if (parent == -1) return true;
        int nombre = 0;
        entree >> nombre;
        for (int i = 0; i < nombre && entree.PeutLire(); ++i) {
            int fils = -1;
            entree >> fils;
            // An index that names nothing, and a child of itself, are dropped. That of -1 stands
            // for a child that no drawing held when the text was written.
            if (existe(parent) && existe(fils) && parent != fils)
                liens.emplace_back(parent, fils);
            else if (fils != -1)
                bilan.Laisse(LiensImpossibles);
        }
    }
    return false;
}

int BDDGeoBase::RelieFils(const LiensFils& liens) {
    if (liens.empty()) return 0;
    const std::vector<EltGeo*> rangs(Elements.begin(), Elements.end());
    const LiensFils gardes = SansBoucle(liens, Elements.Nombre());
    for (const auto& [parent, fils] : gardes)
        rangs[static_cast<std::size_t>(parent)]->AjouteFils(rangs[static_cast<std::size_t>(fils)]);
    return static_cast<int>(liens.size() - gardes.size());
}

void BDDGeoBase::Ecrit(Ecrivain& sortie) const {
    sortie << "VERSION3.3\n" << Elements.Nombre() + 1 << '\n';
    for (const EltGeo* elt : Elements)
        elt->Sauve(sortie);
    sortie << MarqueFils << '\n';
    SauveFils(sortie);
    sortie << -1 << '\n';
}

void BDDGeoBase::Sauve(Ecrivain& sortie) {
    Ecrit(sortie);
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
