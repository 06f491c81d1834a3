#pragma once

#include <glibmm/ustring.h>

#include <string>
#include <vector>

/// A command as it can be called by a word.
struct MotCommande {
    std::string Action;     ///< The name of its action.
    Glib::ustring Mot;      ///< Its label, without the letter that is underlined.
    Glib::ustring Conseil;  ///< What it says of itself; empty for nothing.
    std::string Cles[2];    ///< Label and name in plain small letters.
};

/// All commands that the words of a line can mean, in the order of the menus.
const std::vector<MotCommande>& MotsCommandes();

/// Small letters without accents, blanks and underscores.
std::string EnCle(const Glib::ustring& texte);

/// Those that a beginning of a word can mean: the ones of exactly that word alone where there are
/// any.
std::vector<const MotCommande*> CommandesPour(const Glib::ustring& debut);

/// The one of those that is meant: the only one, or the one whose whole word all the others begin
/// with; null where it cannot be told.
const MotCommande* CommandeVoulue(const std::vector<const MotCommande*>& commandes);
