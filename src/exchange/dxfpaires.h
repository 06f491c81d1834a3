#pragma once

#include <glibmm/ustring.h>

#include <string_view>

/// Reads the lines of a DXF text by pairs, a group code and a value, in one pass and without
/// copying. Lines end as any system ends them. The text belongs to the caller and must outlive
/// this.
class PairesDxf {
  public:
    explicit PairesDxf(std::string_view texte) : Reste(texte) {}

    /// Goes to the next pair; false when there is none. Lines that stand where a code should and
    /// are no number are skipped, which finds the pairs again behind a line too many.
    bool Suivante();

    int Code() const { return Code_; }

    /// At most 512 bytes, whole characters of UTF-8.
    std::string_view Valeur() const { return Valeur_; }

  private:
    std::string_view Ligne();

    std::string_view Reste;
    int Code_ = 0;
    std::string_view Valeur_;
};

// What a value says. A number is what the value begins with, after blanks; 0 when that is none.

/// Not finite when the value says so, or is too large.
double EnReel(std::string_view valeur);

/// Decimal, or hexadecimal behind "0x"; the nearest that can be held when it is too large.
int EnEntier(std::string_view valeur);

/// The same as 0xrrggbb; what stands before these three bytes is dropped.
int EnCouleur(std::string_view valeur);

/// A text in UTF-8 or else Windows-1252, in which \U+XXXX stands for a character.
Glib::ustring EnTexte(std::string_view valeur);

/// The value without blanks around it.
std::string_view SansBlancs(std::string_view valeur);
