#include "window/motscommandes.h"

#include <glib.h>

#include <algorithm>

#include "window/complements.h"
#include "window/tablecommandes.h"

namespace {

std::vector<MotCommande> FaitMots() {
    std::vector<MotCommande> mots;
    const auto ajoute = [&mots](const Enseigne& commande, const std::vector<int>&) {
        // A list of files is no command.
        if (commande.Forme == Enseigne::Menu || commande.Forme == Enseigne::Recents) return;
        MotCommande mot = {commande.Nom, commande.Mot(), commande.Bulle, {}};
        mot.Cles[0] = EnCle(mot.Mot);
        mot.Cles[1] = EnCle(mot.Action);
        mots.push_back(std::move(mot));
    };
    ParcourtCommandes(TableCommandes(), ajoute);
    ParcourtCommandes(TableComplements(), ajoute);
    return mots;
}

}  // namespace

std::string EnCle(const Glib::ustring& texte) {
    std::string cle;
    for (const gunichar c : texte.normalize(Glib::NORMALIZE_ALL)) {
        if (g_unichar_ismark(c) || g_unichar_isspace(c) || c == '_') continue;
        cle += Glib::ustring(1, g_unichar_tolower(c)).raw();
    }
    return cle;
}

const std::vector<MotCommande>& MotsCommandes() {
    static const std::vector<MotCommande> mots = FaitMots();
    return mots;
}

std::vector<const MotCommande*> CommandesPour(const Glib::ustring& debut) {
    const std::string cle = EnCle(debut);
    std::vector<const MotCommande*> entiers, commencent;
    if (cle.empty()) return {};
    for (const MotCommande& mot : MotsCommandes()) {
        const auto est = [&](const std::string& autre) { return autre == cle; };
        const auto commence = [&](const std::string& autre) {
            return autre.compare(0, cle.size(), cle) == 0;
        };
        if (std::any_of(std::begin(mot.Cles), std::end(mot.Cles), est)) entiers.push_back(&mot);
        if (std::any_of(std::begin(mot.Cles), std::end(mot.Cles), commence))
            commencent.push_back(&mot);
    }
    return entiers.empty() ? commencent : entiers;
}

const MotCommande* CommandeVoulue(const std::vector<const MotCommande*>& commandes) {
    if (commandes.empty()) return nullptr;
    const auto courte = std::min_element(commandes.begin(), commandes.end(),
                                         [](const MotCommande* a, const MotCommande* b) {
                                             return a->Cles[0].size() < b->Cles[0].size();
                                         });
    const std::string& cle = (*courte)->Cles[0];
    const bool seule = std::all_of(
        commandes.begin(), commandes.end(),
        [&](const MotCommande* autre) { return autre->Cles[0].compare(0, cle.size(), cle) == 0; });
    const auto pareilles =
        std::count_if(commandes.begin(), commandes.end(),
                      [&](const MotCommande* autre) { return autre->Cles[0] == cle; });
    return seule && pareilles == 1 ? *courte : nullptr;
}
