#include "exchange/dxfpaires.h"

#include <glib.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>

#include "elements/encodage.h"

namespace {

constexpr std::size_t TailleMax = 512;
constexpr char Blancs[] = " \t\v\f";

/// The code of a pair that is none of the program's.
constexpr int CodeInconnu = -1;

/// The value from its first character that is neither a blank nor a plus.
std::string_view Debut(std::string_view valeur) {
    valeur.remove_prefix(std::min(valeur.find_first_not_of(Blancs), valeur.size()));
    if (!valeur.empty() && valeur.front() == '+') valeur.remove_prefix(1);
    return valeur;
}

/// The value cut to what the format holds.
std::string_view Coupe(std::string_view valeur) {
    if (valeur.size() <= TailleMax) return valeur;
    std::size_t taille = TailleMax;
    while (taille > TailleMax - 4 && (static_cast<unsigned char>(valeur[taille]) & 0xc0) == 0x80)
        --taille;
    return valeur.substr(0, taille);
}

/// The character that the escape at the beginning of the text names; 0 when there is none.
gunichar Echappement(std::string_view texte) {
    constexpr std::string_view marque = "\\U+";
    constexpr std::size_t chiffres = 4;
    if (texte.substr(0, marque.size()) != marque) return 0;
    const std::string_view code = texte.substr(marque.size(), chiffres);
    gunichar caractere = 0;
    const char* fin = code.data() + code.size();
    const auto [suite, erreur] = std::from_chars(code.data(), fin, caractere, 16);
    const bool entier = erreur == std::errc() && suite == fin && code.size() == chiffres;
    return entier && g_unichar_validate(caractere) ? caractere : 0;
}

std::int64_t EnEntierLong(std::string_view valeur) {
    std::string_view nombre = Debut(valeur);
    const bool hexadecimal = nombre.substr(0, 2) == "0x";
    if (hexadecimal) nombre.remove_prefix(2);
    std::int64_t lu = 0;
    const auto [suite, erreur] =
        std::from_chars(nombre.data(), nombre.data() + nombre.size(), lu, hexadecimal ? 16 : 10);
    if (erreur != std::errc::result_out_of_range) return lu;
    using Bornes = std::numeric_limits<std::int64_t>;
    return nombre.front() == '-' ? Bornes::min() : Bornes::max();
}

}  // namespace

std::string_view PairesDxf::Ligne() {
    const auto fin =
        std::find_if(Reste.begin(), Reste.end(), [](char c) { return c == '\n' || c == '\r'; });
    const auto taille = static_cast<std::size_t>(fin - Reste.begin());
    const std::string_view ligne = Reste.substr(0, taille);
    Reste.remove_prefix(taille);
    if (!Reste.empty()) Reste.remove_prefix(Reste.substr(0, 2) == "\r\n" ? 2 : 1);
    return ligne;
}

bool PairesDxf::Suivante() {
    while (!Reste.empty()) {
        const std::string_view code = Debut(Ligne());
        const auto [suite, erreur] = std::from_chars(code.data(), code.data() + code.size(), Code_);
        if (erreur == std::errc::invalid_argument) continue;
        if (erreur != std::errc()) Code_ = CodeInconnu;
        if (Reste.empty()) return false;
        Valeur_ = Coupe(Ligne());
        return true;
    }
    return false;
}

double EnReel(std::string_view valeur) {
    const std::string_view nombre = Debut(valeur);
    double lu = 0.0;
    const auto [suite, erreur] = std::from_chars(nombre.data(), nombre.data() + nombre.size(), lu);
    // Too large, or too small to be told from 0.
    if (erreur == std::errc::result_out_of_range)
        return g_ascii_strtod(std::string(nombre.data(), suite).c_str(), nullptr);
    return lu;
}

int EnEntier(std::string_view valeur) {
    using Bornes = std::numeric_limits<int>;
    return static_cast<int>(
        std::clamp<std::int64_t>(EnEntierLong(valeur), Bornes::min(), Bornes::max()));
}

int EnCouleur(std::string_view valeur) {
    return static_cast<int>(EnEntierLong(valeur) & 0xffffff);
}

Glib::ustring EnTexte(std::string_view valeur) {
    if (valeur.find('\\') == std::string_view::npos) return EnUtf8(valeur);
    const std::string texte = EnUtf8(valeur).raw();
    Glib::ustring decode;
    std::size_t depuis = 0;
    for (std::size_t i = texte.find('\\'); i != std::string::npos; i = texte.find('\\', i + 1)) {
        constexpr std::size_t longueur = 7;
        const gunichar caractere = Echappement(std::string_view(texte).substr(i));
        if (caractere == 0) continue;
        decode += Glib::ustring(texte.substr(depuis, i - depuis));
        decode += caractere;
        depuis = i + longueur;
    }
    return decode + Glib::ustring(texte.substr(depuis));
}

std::string_view SansBlancs(std::string_view valeur) {
    const std::size_t debut = valeur.find_first_not_of(Blancs);
    if (debut == std::string_view::npos) return {};
    return valeur.substr(debut, valeur.find_last_not_of(Blancs) + 1 - debut);
}
