#include "elements/lecteur.h"

#include <glib.h>

#include <algorithm>
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
    if constexpr (std::is_floating_point_v<T>) {
        // A number too small to be told from 0 is read all the same.
        if (erreur == std::errc::result_out_of_range) {
            lue = g_ascii_strtod(std::string(debut, suite).c_str(), nullptr);
            bonne = true;
        }
        bonne = bonne && std::isfinite(lue);
    }
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

std::string_view Lecteur::Ligne() {
    if (EnEchec) return {};
    if (Position == Borne) {
        AuBout = EnEchec = true;
        return {};
    }
    const char* debut = Position;
    const char* fin = std::find(Position, Borne, '\n');
    Position = fin;
    if (fin == Borne)
        AuBout = true;
    else
        ++Position;
    if (fin != debut && fin[-1] == '\r') --fin;
    return {debut, static_cast<std::size_t>(fin - debut)};
}

char Lecteur::Caractere() {
    if (EnEchec) return 0;
    if (Position == Borne) {
        AuBout = true;
        return 0;
    }
    return *Position++;
}

bool Lecteur::ResteTexte() const {
    return !std::all_of(Position, Borne, EstBlanc);
}

void Lecteur::RefuseVersion(std::string_view mot) {
    if (!Refusee) Refusee = std::string(mot);
}
