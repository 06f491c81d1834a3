#include "model/bilanlecture.h"

#include <glib.h>

#include <algorithm>

namespace {

constexpr char Inconnus[] = "éléments inconnus";

/// More kinds than any program writes: a file of nothing but names must not take memory out of
/// proportion to it.
constexpr std::size_t GenresMax = 200;

/// Whether it is valid text and no longer than a name.
bool EstGenre(std::string_view genre) {
    constexpr std::size_t longueurMax = 64;
    const auto lisible = [](char c) { return static_cast<unsigned char>(c) >= ' '; };
    return !genre.empty() && genre.size() <= longueurMax &&
           std::all_of(genre.begin(), genre.end(), lisible) &&
           g_utf8_validate(genre.data(), static_cast<gssize>(genre.size()), nullptr);
}

}  // namespace

BilanLecture BilanLecture::Refus(Etat etat) {
    BilanLecture bilan;
    bilan.Fichier = etat;
    bilan.Entier = false;
    return bilan;
}

void BilanLecture::Laisse(std::string_view genre, int nombre) {
    if (nombre <= 0) return;
    std::string cle(EstGenre(genre) ? genre : Inconnus);
    if (Laisses.size() >= GenresMax && Laisses.count(cle) == 0) cle = Inconnus;
    Laisses[cle] += nombre;
}
