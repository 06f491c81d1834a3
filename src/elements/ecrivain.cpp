#include "elements/ecrivain.h"

#include <charconv>
#include <cmath>

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
    char chiffres[32];
    const double fini = std::isfinite(valeur) ? valeur : 0.0;
    const auto fin =
        std::to_chars(chiffres, chiffres + sizeof chiffres, fini, std::chars_format::general, 6)
            .ptr;
    Tampon.append(chiffres, fin);
    return *this;
}
