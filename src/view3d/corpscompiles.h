#pragma once

#include <GL/gl.h>

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "elements/pointvek.h"
#include "solids/grain.h"

class EltGeo;

/// A box in the world, its edges along the axes.
struct Etendue {
    PointVek Bas;
    PointVek Haut;
    bool Bornee = false;  ///< False when it cannot be told: the corners then mean nothing.

    /// Nothing is drawn.
    bool EstVide() const { return Bornee && Haut.x < Bas.x; }

    /// Whether they have a point in common; also when that cannot be told.
    bool Touche(const Etendue& autre) const;
};

/// Which of the boxes touch another one.
std::vector<bool> SeTouchent(const std::vector<const Etendue*>& boites);

/// What is drawn of an element, as the passes ask for it.
enum class Partie { Corps, Paroi, Fonds };

/// Draws parts of elements through GL display lists, so that an unchanged one is not tessellated
/// again. A list is made anew when the element's record, with the records of what its body is made
/// from, or the grain are no longer those it was made from. Belongs to one GL context, which is
/// current whenever it is used.
class CorpsCompiles {
  public:
    /// Draws the part in colour or in white.
    using Trace = std::function<void(bool couleur)>;

    /// grain: how finely bodies are made at the time; to outlive this.
    explicit CorpsCompiles(const Grain& grain);
    ~CorpsCompiles();
    CorpsCompiles(const CorpsCompiles&) = delete;
    CorpsCompiles& operator=(const CorpsCompiles&) = delete;

    /// The records of the elements are looked at again.
    void DebutImage();

    /// Lets go of the elements that were not drawn since the beginning of the image. Elements are
    /// known by their address, and those that have left the drawing may be gone.
    void FinImage();

    /// Makes every list anew.
    void Oublie();

    void Dessine(const EltGeo& elt, Partie partie, bool couleur, const Trace& trace);

    /// What the part takes up in the world.
    const Etendue& EtendueDe(const EltGeo& elt, Partie partie, const Trace& trace);

  private:
    /// A part of an element: measured once, compiled once for each colour.
    struct Piece {
        bool Mesuree = false;
        Etendue Place;
        int Taille = 0;  ///< Numbers that GL gives back for it; 0 when it is not to be compiled.
        GLuint Listes[2] = {0, 0};
    };

    struct Element {
        std::string Record;
        Grain Finesse;
        int Image = -1;  ///< The last image in which the record was looked at.
        Piece Pieces[3];
    };

    Piece& PieceDe(const EltGeo& elt, Partie partie, const Trace& trace);
    std::string RecordDe(const EltGeo& elt) const;
    void Mesure(Piece& piece, const Trace& trace) const;
    void Compile(Piece& piece, bool couleur, const Trace& trace);
    void Detruit(Element& element);

    const Grain& Finesse;
    std::unordered_map<const EltGeo*, Element> Elements;
    int Image = 0;
    int TailleTotale = 0;  ///< Of all lists.
};
