#include "planchers.h"

#include <charconv>
#include <cstdio>

std::vector<double> Nombres(const std::string& texte) {
    std::vector<double> nombres;
    const char* p = texte.data();
    const char* fin = p + texte.size();
    while (p != fin) {
        while (p != fin && (*p == ' ' || *p == '\n'))
            ++p;
        double valeur;
        const auto [suite, erreur] = std::from_chars(p, fin, valeur);
        if (erreur == std::errc()) nombres.push_back(valeur);
        p = suite;
        while (p != fin && *p != ' ' && *p != '\n')
            ++p;
    }
    return nombres;
}

void EcritNombres(const std::vector<double>& nombres, std::vector<char>& tampon) {
    char* p = tampon.data();
    for (const double valeur : nombres)
        p += std::snprintf(p, 16, "%g ", valeur);
}
