#include "elements/trait.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"

namespace {

const Gdk::Color& Blanc() {
    static const Gdk::Color blanc("#ffffff");
    return blanc;
}

void EcritCouleur(Ecrivain& sortie, const Gdk::Color& couleur) {
    static const char chiffres[] = "0123456789abcdef";
    char texte[13] = {'#'};
    int rang = 1;
    for (const unsigned composante : {couleur.get_red(), couleur.get_green(), couleur.get_blue()})
        for (int decalage = 12; decalage >= 0; decalage -= 4)
            texte[rang++] = chiffres[(composante >> decalage) & 0xf];
    sortie << std::string_view(texte, sizeof texte);
}

/// Reads one of the three groups of four hexadecimal digits that this program writes.
bool LitComposante(std::string_view mot, int rang, unsigned short& valeur) {
    const char* debut = mot.data() + 1 + 4 * rang;
    const auto [suite, erreur] = std::from_chars(debut, debut + 4, valeur, 16);
    return erreur == std::errc() && suite == debut + 4;
}

void LitCouleur(Lecteur& entree, Gdk::Color& couleur) {
    const std::string_view mot = entree.Mot();
    if (entree.Echec()) return;
    unsigned short rouge = 0, vert = 0, bleu = 0;
    if (mot.size() == 13 && mot[0] == '#' && LitComposante(mot, 0, rouge) &&
        LitComposante(mot, 1, vert) && LitComposante(mot, 2, bleu))
        couleur.set_rgb(rouge, vert, bleu);
    else
        couleur.set(std::string(mot));
}

}  // namespace

Trait::Trait() : CouleurFond(Blanc()) {}

void Trait::SetPasHachure(double pas) {
    PasHachure = std::max(pas, 2.0);
}

void Trait::SetAngleHachureDegres(double degres) {
    AngleHachure = std::abs(degres) < 1.0 ? 0.0 : EnRadians(std::clamp(degres, -90.0, 90.0));
}

double Trait::AngleHachureDegres() const {
    return DegresEntiers(AngleHachure);
}

Ecrivain& operator<<(Ecrivain& sortie, const Trait& trait) {
    sortie << trait.Epaisseur << ' ' << trait.StyleLigne << '\n';
    EcritCouleur(sortie, trait.Couleur);
    sortie << '\n';
    EcritCouleur(sortie, trait.CouleurFond);
    // The last 0 is a field that the format reserves.
    return sortie << "\n " << trait.Remplissage << ' ' << trait.Contour << ' ' << trait.Hachure
                  << ' ' << trait.AngleHachure << ' ' << trait.PasHachure << ' ' << 0 << ' ';
}

Lecteur& operator>>(Lecteur& entree, Trait& trait) {
    entree >> trait.Epaisseur >> trait.StyleLigne;
    if (trait.StyleLigne < Continu || trait.StyleLigne > Pointille) trait.StyleLigne = Continu;
    LitCouleur(entree, trait.Couleur);
    LitCouleur(entree, trait.CouleurFond);
    int reserve = 0;
    entree >> trait.Remplissage >> trait.Contour >> trait.Hachure >> trait.AngleHachure >>
        trait.PasHachure >> reserve;
    if (trait.Hachure != 1) trait.Hachure = 0;
    return entree;
}
