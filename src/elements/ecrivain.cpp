#include "elements/ecrivain.h"

#include <charconv>
#include <cmath>

namespace {

constexpr std::size_t TailleNombre = 32;

constexpr int ChiffresFichier = 6;

/// Writes the number into the buffer and answers its end.
char* Chiffre(char (&chiffres)[TailleNombre], double valeur, int nombre = ChiffresFichier) {
    // No sign on a zero.
    const double fini = std::isfinite(valeur) ? valeur + 0.0 : 0.0;
    return std::to_chars(chiffres, chiffres + TailleNombre, fini, std::chars_format::general,
                         nombre)
        .ptr;
}

}  // namespace

Ecrivain& Ecrivain::operator<<(char c) {
    Tampon += c;
    return *this;
}

Ecrivain& Ecrivain::operator<<(std::string_view texte) {
    Tampon += texte;
    return *this;
}

Ecrivain& Ecrivain::operator<<(int valeur) {
    char chiffres[16];
    const auto fin = std::to_chars(chiffres, chiffres + sizeof chiffres, valeur).ptr;
    Tampon.append(chiffres, fin);
    return *this;
}

Ecrivain& Ecrivain::operator<<(bool valeur) {
    return *this << (valeur ? '1' : '0');
}

Ecrivain& Ecrivain::operator<<(double valeur) {
    char chiffres[TailleNombre];
    Tampon.append(chiffres, Chiffre(chiffres, valeur, Chiffres));
    return *this;
}

double CommeEcrit(double valeur) {
    char chiffres[TailleNombre];
    double lue = 0.0;
    std::from_chars(chiffres, Chiffre(chiffres, valeur), lue);
    return lue;
}

double EcartEcrit(double valeur) {
    if (valeur == 0.0 || !std::isfinite(valeur)) return 0.0;
    return 0.5 * std::pow(10.0, std::floor(std::log10(std::abs(valeur))) - (ChiffresFichier - 1));
}
