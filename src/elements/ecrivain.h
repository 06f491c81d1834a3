#pragma once

#include <string>
#include <string_view>
#include <utility>

/// The value that a reader finds where this one was written.
double CommeEcrit(double valeur);

/// How far that can be from any value of this size: half a unit of the last digit that is written.
double EcartEcrit(double valeur);

/// Builds the text of a file: numbers with a decimal point whatever the locale, doubles in the
/// shorter of fixed and exponent form, with at most 6 significant digits in files.
class Ecrivain {
  public:
    /// chiffres: significant digits of doubles; 17 tell any two apart.
    explicit Ecrivain(int chiffres = 6) : Chiffres(chiffres) {}

    Ecrivain& operator<<(char c);
    Ecrivain& operator<<(std::string_view texte);
    Ecrivain& operator<<(const char* texte) { return *this << std::string_view(texte); }
    Ecrivain& operator<<(int valeur);
    Ecrivain& operator<<(bool valeur);

    /// What is not finite is written as 0, so that every file written can be read.
    Ecrivain& operator<<(double valeur);

    const std::string& Texte() const { return Tampon; }

    /// The same, taken out.
    std::string Prend() { return std::move(Tampon); }

  private:
    std::string Tampon;
    const int Chiffres;
};
