// commandes places: prints where each command stands, for whoever chooses it by keys: its menu
// (barre; zone, element and vue for the menus of the mouse), its name, and the rank of the entry in
// each level, from 0. commandes aide FILE: writes the list of the commands into the help page,
// between its two marks. commandes verifie FILE: fails where that list is not up to date.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

#include "view3d/dessin3d.h"
#include "window/complements.h"
#include "window/listecommandes.h"
#include "window/tablecommandes.h"
#include "zone/zonedessin.h"

namespace {

template <class Cible>
void EcritPlaces(const char* menu, const std::vector<Commande<Cible>>& table) {
    ParcourtCommandes(table, [menu](const Enseigne& commande, const std::vector<int>& chemin) {
        if (chemin.empty()) return;
        std::cout << menu << ' ' << commande.Nom;
        for (const int rang : chemin)
            std::cout << ' ' << rang;
        std::cout << '\n';
    });
}

void EcritPlaces() {
    std::vector<Commande<DessinWindow>> barre = TableCommandes();
    const auto& complements = TableComplements();
    barre.insert(barre.end(), complements.begin(), complements.end());
    EcritPlaces("barre", barre);
    EcritPlaces("zone", ZoneDessin::CommandesPopup());
    EcritPlaces("element", Dessin3D::CommandesElement());
    EcritPlaces("vue", Dessin3D::CommandesOutil());
}

std::string Lit(const char* nom) {
    std::ifstream fichier(nom, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), {}};
}

}  // namespace

int main(int nombre, char** mots) {
    const std::string quoi = nombre > 1 ? mots[1] : "";
    if (quoi == "places" && nombre == 2) {
        EcritPlaces();
        return 0;
    }
    if ((quoi != "aide" && quoi != "verifie") || nombre != 3) {
        std::cerr << "commandes places | aide FILE | verifie FILE\n";
        return 2;
    }
    const std::string page = Lit(mots[2]), neuve = AvecListeCommandes(page);
    if (quoi == "aide") {
        std::ofstream(mots[2], std::ios::binary) << neuve;
        return 0;
    }
    if (neuve.empty() || neuve != page) {
        std::cerr << "The list of commands in " << mots[2]
                  << " is not that of the tables: build/commandes aide " << mots[2] << '\n';
        return 1;
    }
    return 0;
}
