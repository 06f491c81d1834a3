#pragma once

#include <gtkmm/action.h>
#include <gtkmm/actiongroup.h>
#include <gtkmm/menu.h>
#include <gtkmm/uimanager.h>

#include <functional>
#include <string>
#include <vector>

/// How a command shows: in a menu, on the tool bar, by a key, in the help.
struct Enseigne {
    enum Genre { Simple, Icone, Stock, Bascule, Recents, Menu, Separateur };

    Genre Forme = Separateur;
    std::string Nom;        ///< Of the action.
    std::string Libelle;    ///< Empty: the stock item's.
    std::string Bulle;      ///< Tooltip.
    std::string Touche;     ///< Accelerator, as the toolkit reads it.
    std::string Raccourci;  ///< A key that does the same without being the accelerator.
    std::string Image;      ///< Name of an icon, or of a stock item.
    std::string MotDonne;   ///< Where the label is not what a user would call it.
    bool DansMenu = true;
    int GroupeBarre = 0;  ///< Which group of the tool bar, from the left; 0: none.
    int RangBarre = 0;    ///< Place within it.

    /// What a user would call it: by default the label without its mnemonic.
    std::string Mot() const;

    /// The keys that it has of its own, as a user calls them; empty for none.
    std::string Touches() const;

    /// What the tool bar says of it: the tooltip, or else the word with the keys.
    std::string BulleBarre() const;
};

/// The action, without what it does. active: the start value of a toggle.
Glib::RefPtr<Gtk::Action> CreeAction(const Enseigne& enseigne, bool active);

/// The effect follows whenever the action is chosen.
void RelieAction(const Glib::RefPtr<Gtk::Action>& action, const sigc::slot<void>& effet);

/// A whole definition for the toolkit's user interface manager, out of the menus and bars in it.
std::string DefinitionUI(const std::string& contenu);

/// The tool items of a bar of that name, in the order of their groups and ranks.
std::string DefinitionBarre(const char* nom, std::vector<const Enseigne*> outils);

/// One command of a Cible, or one submenu of them, whole. A table of such rows stands in the order
/// of its menu. A row is written as a chain that starts with what it is.
template <class Cible>
struct Commande : Enseigne {
    using Effet = std::function<void(Cible&)>;
    using Etat = std::function<bool(const Cible&)>;

    Effet Execute;
    Etat Active;  ///< Start value of a toggle; none: false.
    std::vector<Commande> Entrees;

    Commande(Genre forme, const char* nom, std::string libelle, Effet execute = {}) {
        Forme = forme;
        Nom = nom;
        Libelle = std::move(libelle);
        Execute = std::move(execute);
    }

    /// A line between two rows.
    static Commande Trait() { return Commande(Separateur, "", ""); }

    Commande& AvecBulle(const char* bulle) {
        Bulle = bulle;
        return *this;
    }

    Commande& AvecTouche(const char* touche) {
        Touche = touche;
        return *this;
    }

    Commande& AussiPar(const char* touche) {
        Raccourci = touche;
        return *this;
    }

    Commande& AvecImage(std::string image) {
        Image = std::move(image);
        return *this;
    }

    Commande& DansLaBarre(int groupe, int rang) {
        GroupeBarre = groupe;
        RangBarre = rang;
        return *this;
    }

    Commande& Appelee(const char* mot) {
        MotDonne = mot;
        return *this;
    }

    /// In no menu: an action that something else may choose.
    Commande& HorsMenu() {
        DansMenu = false;
        return *this;
    }

    Commande& SelonEtat(Etat active) {
        Active = std::move(active);
        return *this;
    }

    Commande& Contient(std::vector<Commande> entrees) {
        Entrees = std::move(entrees);
        return *this;
    }
};

/// Calls visite on every row but the separators, from the first to the last, a submenu before its
/// rows. chemin: for each level the rank among the entries that the keys stop at, from 0; empty for
/// what stands in no menu.
template <class Cible, class Visite>
void ParcourtCommandes(const std::vector<Commande<Cible>>& table, const Visite& visite,
                       const std::vector<int>& parent = {}) {
    std::vector<int> chemin = parent;
    chemin.push_back(0);
    for (const Commande<Cible>& commande : table) {
        if (commande.Forme == Enseigne::Separateur) continue;
        visite(commande, commande.DansMenu ? chemin : std::vector<int>());
        ParcourtCommandes(commande.Entrees, visite, chemin);
        if (commande.DansMenu) ++chemin.back();
    }
}

/// The actions of all rows, which act on cible; it outlives them.
template <class Cible>
Glib::RefPtr<Gtk::ActionGroup> CreeActions(const Glib::ustring& nom,
                                           const std::vector<Commande<Cible>>& table,
                                           Cible& cible) {
    const auto actions = Gtk::ActionGroup::create(nom);
    ParcourtCommandes(table, [&](const Commande<Cible>& commande, const std::vector<int>&) {
        const auto action = CreeAction(commande, commande.Active && commande.Active(cible));
        if (commande.Execute)
            RelieAction(action, [&cible, effet = commande.Execute] { effet(cible); });
        if (commande.Touche.empty())
            actions->add(action);
        else
            actions->add(action, Gtk::AccelKey(commande.Touche));
    });
    return actions;
}

/// The menu of the rows. forme: menubar or popup.
template <class Cible>
std::string DefinitionMenu(const char* forme, const char* nom,
                           const std::vector<Commande<Cible>>& table) {
    const std::string marge = "  ";
    std::string texte = marge + '<' + forme + " name='" + nom + "'>\n";
    const std::function<void(const std::vector<Commande<Cible>>&, const std::string&)> ecrit =
        [&](const auto& entrees, const std::string& retrait) {
            for (const Commande<Cible>& commande : entrees) {
                if (!commande.DansMenu) continue;
                if (commande.Forme == Enseigne::Separateur) {
                    texte += retrait + "<separator/>\n";
                } else if (commande.Forme == Enseigne::Menu) {
                    texte += retrait + "<menu action='" + commande.Nom + "'>\n";
                    ecrit(commande.Entrees, retrait + marge);
                    texte += retrait + "</menu>\n";
                } else {
                    texte += retrait + "<menuitem action='" + commande.Nom + "'/>\n";
                }
            }
        };
    ecrit(table, marge + marge);
    return texte + marge + "</" + forme + ">\n";
}

/// The menu that a button of the mouse or a key opens at the pointer.
class MenuContextuel {
  public:
    /// groupe: the name of its actions' group. cible outlives the menu.
    template <class Cible>
    void Construit(const Glib::ustring& groupe, const std::vector<Commande<Cible>>& table,
                   Cible& cible) {
        Gestionnaire = Gtk::UIManager::create();
        Gestionnaire->insert_action_group(CreeActions(groupe, table, cible));
        Gestionnaire->add_ui_from_string(DefinitionUI(DefinitionMenu("popup", "Popup", table)));
    }

    /// By that button of the mouse, 0 for a key, at that time of its event.
    void Ouvre(guint bouton, guint32 instant);

  private:
    Glib::RefPtr<Gtk::UIManager> Gestionnaire;
};
