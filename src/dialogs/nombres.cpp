#include "dialogs/nombres.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

Glib::ustring TexteComplet(double valeur) {
    char texte[32];
    return std::string(texte, std::to_chars(texte, texte + sizeof texte, valeur + 0.0).ptr);
}

Glib::ustring TexteNombre(double valeur) {
    // A double this large has no decimals left to round, and would be a long row of digits.
    constexpr double limite = 1e15;
    // Sixteen digits before the point at most, three behind it.
    char texte[32];
    std::to_chars_result fin = {};
    if (std::abs(valeur) < limite) {
        // The sum turns -0 into 0.
        const double arrondi = std::round(valeur * 1000.0) / 1000.0 + 0.0;
        fin = std::to_chars(texte, texte + sizeof texte, arrondi, std::chars_format::fixed);
    } else {
        fin = std::to_chars(texte, texte + sizeof texte, valeur, std::chars_format::scientific);
    }
    return std::string(texte, fin.ptr);
}

int EnEntier(double valeur) {
    constexpr double mini = std::numeric_limits<int>::min();
    constexpr double maxi = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(valeur), mini, maxi));
}
