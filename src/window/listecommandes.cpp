#include "window/listecommandes.h"

#include <glibmm/markup.h>

#include "window/complements.h"
#include "window/tablecommandes.h"

namespace {

const std::string Debut = "<!-- commandes -->\n", Fin = "<!-- /commandes -->";

/// The rows of a menu, each with the names of the menus that lead to it.
void AjouteLignes(const std::vector<Commande<DessinWindow>>& entrees, const std::string& menu,
                  std::string& liste) {
    for (const Commande<DessinWindow>& commande : entrees) {
        if (!commande.DansMenu || commande.Forme == Enseigne::Separateur) continue;
        const std::string nom = menu + Glib::Markup::escape_text(commande.Mot()).raw();
        if (commande.Forme == Enseigne::Menu) {
            AjouteLignes(commande.Entrees, nom + " / ", liste);
            continue;
        }
        liste += "<tr id=\"" + AncreAide(commande.Nom) + "\"><td>" + nom + "</td><td>";
        if (const std::string touches = commande.Touches(); !touches.empty())
            liste += "<kbd>" + Glib::Markup::escape_text(touches).raw() + "</kbd>";
        liste += "</td><td>" + Glib::Markup::escape_text(commande.Bulle).raw() + "</td></tr>\n";
    }
}

std::string ListeCommandes() {
    std::string liste =
        "<table>\n<tr><th>Commande</th><th>Touche</th><th>Ce qu'elle attend</th></tr>\n";
    AjouteLignes(TableCommandes(), "", liste);
    AjouteLignes(TableComplements(), "", liste);
    return liste + "</table>\n";
}

}  // namespace

std::string AncreAide(const std::string& action) {
    return "commande-" + action;
}

std::string AvecListeCommandes(const std::string& page) {
    const std::size_t debut = page.find(Debut), fin = page.find(Fin);
    if (debut == std::string::npos || fin == std::string::npos || fin < debut) return {};
    return page.substr(0, debut + Debut.size()) + ListeCommandes() + page.substr(fin);
}
