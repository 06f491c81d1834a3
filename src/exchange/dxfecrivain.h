#pragma once

#include <glibmm/ustring.h>

#include <string>

#include "elements/ecrivain.h"
#include "elements/pointvek.h"

/// Builds a DXF text out of groups, each a line with the code and a line with the value, and gives
/// the numbers that run through it.
class EcrivainDxf {
  public:
    /// The code is right-aligned to three characters.
    template <class T>
    void Groupe(int code, const T& valeur) {
        Code(code);
        Sortie << valeur << '\n';
    }

    /// A text from outside: what would end the line becomes a blank.
    void Groupe(int code, const Glib::ustring& texte);

    /// A code in a form of its own.
    void Groupe(const char* code, const char* valeur);

    /// Three groups, for x, y and z, ten apart.
    void Point(int code, const PointVek& p);

    /// The same with a fixed z.
    void PointPlan(int code, const PointVek& p);

    /// The x and y alone.
    void PointXY(int code, const PointVek& p);

    /// The marker that opens the groups of one class of the format.
    void Classe(const char* nom) { Groupe(100, nom); }

    void NouveauHandle(int code = 5) { Groupe(code, ++Handle); }

    /// Leaves a number out, as it is done after each element.
    void SauteHandle() { ++Handle; }

    /// Name of the next dimension. The count goes on from the blocks to the entities, so that no
    /// entity names the block that was written for it: files are so.
    std::string NomCote() { return "*D" + std::to_string(NumCote++); }
    void RecommenceCotes() { NumCote = 0; }

    /// The text, taken out.
    std::string Prend() { return Sortie.Prend(); }

  private:
    void Code(int code);

    Ecrivain Sortie;
    int Handle = 100;  ///< The last one given.
    int NumCote = 0;
};
