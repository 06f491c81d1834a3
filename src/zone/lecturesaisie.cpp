#include "zone/lecturesaisie.h"

#include <cctype>
#include <cmath>
#include <optional>
#include <utility>

#include "dialogs/expression.h"
#include "elements/angles.h"

namespace {

bool EstBlanc(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

bool EstLettre(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || static_cast<signed char>(c) < 0;
}

std::string SansBords(const std::string& texte) {
    std::size_t debut = 0, fin = texte.size();
    while (debut < fin && EstBlanc(texte[debut]))
        ++debut;
    while (fin > debut && EstBlanc(texte[fin - 1]))
        --fin;
    return texte.substr(debut, fin - debut);
}

/// Whether it begins with a name that is neither a function nor pi.
bool EstMot(const std::string& texte) {
    std::size_t fin = 0;
    while (fin < texte.size() && (EstLettre(texte[fin]) || texte[fin] == '_'))
        ++fin;
    if (fin == 0) return false;
    if (texte.compare(0, fin, "pi") == 0) return false;
    while (fin < texte.size() && EstBlanc(texte[fin]))
        ++fin;
    return fin == texte.size() || texte[fin] != '(';
}

bool EstOperation(char c) {
    return c == '+' || c == '-' || c == '*' || c == '/' || c == '^';
}

/// Where blanks part two numbers: outside parentheses, with no operation on either side. A sign
/// right before its number is the number's.
std::size_t Coupure(const std::string& texte) {
    int niveau = 0;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        niveau += (texte[i] == '(') - (texte[i] == ')');
        if (!EstBlanc(texte[i]) || niveau != 0) continue;
        std::size_t suite = i;
        while (EstBlanc(texte[suite]))
            ++suite;
        const char avant = texte[i - 1], apres = texte[suite];
        const bool signe = (apres == '-' || apres == '+') && suite + 1 < texte.size() &&
                           !EstBlanc(texte[suite + 1]);
        if (!EstOperation(avant) && avant != '(' && (signe || !EstOperation(apres)) && apres != ')')
            return i;
        i = suite - 1;
    }
    return std::string::npos;
}

Saisie EnFaute(const Glib::ustring& remarque) {
    Saisie saisie;
    saisie.Sorte = Saisie::Faute;
    saisie.Remarque = remarque;
    return saisie;
}

/// The two numbers of a point.
struct Paire {
    std::string Premier, Second;
    char Signe;  ///< What stands between them.
};

std::optional<Paire> EnDeux(const std::string& texte) {
    std::size_t place = texte.find_first_of(";<");
    if (place == std::string::npos) place = Coupure(texte);
    if (place == std::string::npos) return std::nullopt;
    return Paire{SansBords(texte.substr(0, place)), SansBords(texte.substr(place + 1)),
                 texte[place]};
}

Saisie LitPaire(const Paire& paire, const PointVek& depart) {
    const Glib::ustring signe = "« " + Glib::ustring(1, paire.Signe) + " »";
    if (paire.Second.empty())
        return EnFaute(paire.Signe == '<' ? "Il manque l'angle après " + signe + "."
                                          : "Il manque le second nombre après " + signe + ".");
    if (paire.Premier.empty()) return EnFaute("Il manque le premier nombre devant " + signe + ".");
    if (paire.Second.find_first_of(";<") != std::string::npos)
        return EnFaute("Un point a deux nombres.");
    const Evaluation a = Evalue(paire.Premier), b = Evalue(paire.Second);
    if (!a.Valeur) return EnFaute(a.Faute);
    if (!b.Valeur) return EnFaute(b.Faute);
    Saisie saisie;
    saisie.Sorte = Saisie::Point;
    if (paire.Signe != '<') {
        saisie.Lieu = depart + PointVek(*a.Valeur, *b.Valeur);
    } else {
        // Whole quarters of a turn are exact.
        const double cosinus = *Evalue("cos(" + paire.Second + ")").Valeur;
        const double sinus = *Evalue("sin(" + paire.Second + ")").Valeur;
        saisie.Lieu = depart + PointVek(cosinus, sinus) * *a.Valeur;
    }
    if (!saisie.Lieu.EstFini()) return EnFaute("Ce nombre est trop grand.");
    return saisie;
}

}  // namespace

Saisie LitSaisie(const std::string& texte, const PointVek& reference) {
    std::string ligne = SansBords(texte);
    if (ligne.empty()) return {};
    if (EstMot(ligne)) {
        Saisie mot;
        mot.Sorte = Saisie::Mot;
        return mot;
    }
    const bool relatif = ligne.front() == '@';
    if (relatif) ligne = SansBords(ligne.substr(1));
    if (ligne.empty()) return EnFaute("Il manque le point après « @ ».");
    if (const auto paire = EnDeux(ligne)) return LitPaire(*paire, relatif ? reference : PointVek());
    const Evaluation seul = Evalue(ligne);
    if (!seul.Valeur) return EnFaute(seul.Faute);
    if (relatif) return EnFaute("Il manque « ; » et le second nombre.");
    Saisie longueur;
    longueur.Sorte = Saisie::Longueur;
    longueur.Valeur = *seul.Valeur;
    return longueur;
}

Saisie PointVers(double longueur, const PointVek& reference, const PointVek& p) {
    const PointVek vers = Unitaire(PointVek(p.x - reference.x, p.y - reference.y));
    if (Norme(vers) == 0.0) return EnFaute("La souris est sur le point de référence.");
    Saisie saisie;
    saisie.Sorte = Saisie::Point;
    saisie.Lieu = reference + vers * longueur;
    return saisie.Lieu.EstFini() ? saisie : EnFaute("Ce nombre est trop grand.");
}
