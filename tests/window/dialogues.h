#pragma once

#include <gtkmm/dialog.h>
#include <gtkmm/entry.h>

#include <string>
#include <utility>
#include <vector>

/// The parts of a text between two marks.
std::vector<std::string> Decoupe(const std::string& texte, const std::string& marque);

/// What a dialog shows, as the eye reads it: its title, then each line of the screen. A field is in
/// brackets, a button in angle brackets, a tick has its sign, what has the keys a star.
std::string Ecran(Gtk::Dialog& dialogue);

/// The fields with the labels that stand on their left on the screen; a label that came before gets
/// a prime.
std::vector<std::pair<std::string, Gtk::Widget*>> Champs(Gtk::Dialog& dialogue);

/// What a field of those shows.
std::string TexteDe(Gtk::Widget& champ);

/// Plays gestures, separated by commas: "Rayon=5" types, "Dessus" clicks on what is called so,
/// "#ff0000" picks a colour, "Trait.Axe" plays one in the dialog behind the button, which is
/// validated, "Trait!.Axe" in one that is given up.
void Joue(Gtk::Dialog& dialogue, const std::string& gestes);

/// What came of gestures in a dialog.
struct Reponse {
    std::string Vu;     ///< What it showed before.
    std::string Suivi;  ///< The fields that followed what was typed into another one.
    std::string Refus;  ///< What was said against it, with the field that has the keys then.
};

/// Plays the gestures in a dialog and validates, or gives up where that is refused.
void Soumet(Gtk::Dialog& dialogue, const std::string& gestes, Reponse& reponse);

/// The same with the next dialog. The reponse lasts until then.
void RepondGestes(const std::string& gestes, Reponse& reponse);
