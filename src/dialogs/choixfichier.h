#pragma once

#include <gtkmm/dialog.h>

#include <string>

/// What a question for a file says. `Extension` begins with a point.
struct GenreFichier {
    const char* Titre;
    const char* Filtre;
    const char* Extension;
};

// File names are absolute and in the encoding of file names. A question starts in the folder of the
// file `voisin`; in the current one where that has no name.

/// Asks for a file to read; empty when the user gives up.
std::string ChoisitLecture(Gtk::Window& parente, const GenreFichier& genre,
                           const std::string& voisin);

/// Adds the button "Non", answering `Gtk::RESPONSE_NO`, and leaves it alone with its letter: words
/// of the toolkit share it, and a letter of several does nothing but move the focus among them.
void AjouteNon(Gtk::Dialog& question);

/// Asks for a file to write, and again until an existing one may be replaced. The answer is
/// `Gtk::RESPONSE_OK`, with the name, its extension ensured, in `nom`; `Gtk::RESPONSE_NO` from the
/// further button that `refus` asks for; anything else when the user gives up. propose: a name of
/// the file's own to begin with; empty for none.
int ChoisitEcriture(Gtk::Window& parente, const GenreFichier& genre, const std::string& voisin,
                    std::string& nom, bool refus = false, const std::string& propose = {});
