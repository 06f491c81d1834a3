#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commun/banc.h"

/// Plays gestures that are written down, one a line, and answers what a user sees of each.
///
/// `*` opens a new window on an empty drawing, and `pose` puts elements there. Behind every gesture
/// the window must show what a repaint would, and an element just added the very pixels of its
/// band. At the end of all gestures an undo for each goes back to the start, to the pixel.
class Seance {
  public:
    ~Seance();

    /// What the line brought about: the state, the elements that left and came, the children, the
    /// view, an answer; each on a line of its own that begins with four blanks.
    std::string Joue(const std::string& ligne);

    /// Undoes everything and closes the window.
    void Finit();

  private:
    void Commence();

    /// Types into the fields of the next dialog, a semicolon between them, and answers it.
    void Attend(const std::string& saisies, int reponse);

    /// The window shows what it would after a repaint, of a part and of all.
    Capture ExigeRepeinte(bool enBande);

    /// What the band showed is what was added, wherever there was nothing before; where it is
    /// another outline, it showed at least.
    void ExigeBande(const Capture& bande, const Capture& element, bool autre);

    /// From here on nothing is undone.
    void Oublie();

    /// The picture of the zone selection in the clipboard: its size, and the colour of a pixel.
    std::string Image(const PointVek& pixel);

    /// Closes the menu that is open, and chooses an entry.
    std::string FermeMenu(const std::string& choix);

    /// What has changed since it was said last.
    std::string Dit();

    std::unique_ptr<Banc> Table;
    std::shared_ptr<Capture> Depart;               ///< Before the first tool.
    std::shared_ptr<Capture> Vide;                 ///< The last picture without a band.
    std::vector<std::vector<std::string>> Etapes;  ///< What the drawing was before each step.
    int Attendues = 0;                             ///< Dialogs that are to come.
    int EtatDit = 0;                               ///< As the tools tell it.

    // As they were behind the last line.
    std::vector<std::string> Dessin, Tenu;
    std::string Fils, VueDite, Reponse;
    int EtatAvant = 0;
};
