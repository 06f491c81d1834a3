#include "exchange/importancien.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "exchange/lecteurancien.h"
#include "model/bddgeo.h"
#include "model/fichier.h"

namespace {

/// The text in a .ve9 file: from its version on, without the bytes 0 and 255 strewn into it. Each
/// byte comes through once; what a former reader repeated of the last ones, behind the end of the
/// text, could only add elements that nobody drew.
std::string TexteVe9(const std::string& octets) {
    const std::size_t debut = octets.find("VERSION2.3");
    if (debut == std::string::npos) return {};
    std::string texte;
    std::copy_if(octets.begin() + static_cast<std::ptrdiff_t>(debut), octets.end(),
                 std::back_inserter(texte), [](char c) { return c != '\0' && c != '\xff'; });
    return texte;
}

void Remplace(BDDGeo& bdd, std::string nom, std::string texte, BilanLecture::Etat etat) {
    // Some systems end a line with a return alone.
    if (texte.find('\n') == std::string::npos) std::replace(texte.begin(), texte.end(), '\r', '\n');
    bdd.Vide();
    bdd.NomFichier = std::move(nom);
    LecteurAncien lecteur(texte);
    lecteur.Lit(bdd);
    bdd.Lecture = etat == BilanLecture::Lu ? lecteur.Bilan() : BilanLecture::Refus(etat);
    // No file of the present format holds it.
    bdd.Modifie = bdd.Elements.Nombre() > 0;
}

}  // namespace

void ImporteVek(BDDGeo& bdd, std::string nom) {
    std::string texte;
    const BilanLecture::Etat etat = LitFichierOuDit(nom, texte);
    Remplace(bdd, std::move(nom), std::move(texte), etat);
}

void ImporteVe9(BDDGeo& bdd, std::string nom) {
    std::string octets;
    const BilanLecture::Etat etat = LitFichierOuDit(nom, octets);
    Remplace(bdd, std::move(nom), TexteVe9(octets), etat);
}
