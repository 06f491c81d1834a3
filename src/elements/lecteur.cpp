#include "elements/lecteur.h"

#include <charconv>
#include <cmath>
#include <type_traits>

namespace {

bool EstBlanc(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

}  // namespace

Lecteur::Lecteur(std::string_view texte)
    : Position(texte.data()), Borne(texte.data() + texte.size()) {}

void Lecteur::SauteBlancs() {
    while (Position != Borne && EstBlanc(*Position))
        ++Position;
    if (Position == Borne) AuBout = true;
}

template <class T>
Lecteur& Lecteur::Nombre(T& valeur) {
    if (EnEchec) return *this;
    SauteBlancs();
    const char* debut = Position;
    if (debut != Borne && *debut == '+') ++debut;
    T lue{};
    const auto [suite, erreur] = std::from_chars(debut, Borne, lue);
    bool bonne = erreur == std::errc();
    if constexpr (std::is_floating_point_v<T>) bonne = bonne && std::isfinite(lue);
    if (bonne) {
        valeur = lue;
        Position = suite;
        if (suite == Borne) AuBout = true;
    } else {
        EnEchec = true;
    }
    return *this;
}

Lecteur& Lecteur::operator>>(int& valeur) {
    return Nombre(valeur);
}

Lecteur& Lecteur::operator>>(double& valeur) {
    return Nombre(valeur);
}

Lecteur& Lecteur::operator>>(bool& valeur) {
    int lu = valeur ? 1 : 0;
    Nombre(lu);
    valeur = lu != 0;
    return *this;
}

std::string_view Lecteur::Mot() {
    if (EnEchec) return {};
    SauteBlancs();
    const char* debut = Position;
    while (Position != Borne && !EstBlanc(*Position))
        ++Position;
    if (Position == Borne) AuBout = true;
    if (Position == debut) EnEchec = true;
    return {debut, static_cast<std::size_t>(Position - debut)};
}

void Lecteur::RefuseVersion(std::string_view mot) {
    if (Refusee.empty()) Refusee = mot.empty() ? " " : std::string(mot);
}
