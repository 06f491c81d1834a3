#include "dialogs/expression.h"

#include <muParser.h>

#include <algorithm>
#include <cmath>

#include "elements/angles.h"

namespace {

/// Exact where a draughtsman knows it to be: cos(90) is 0.
template <double (*Fonction)(double)>
double EnDegresDe(double degres) {
    const double valeur = Fonction(EnRadians(degres));
    return std::abs(valeur) < 1e-15 ? 0.0 : valeur;
}

template <double (*Fonction)(double)>
double VersDegres(double valeur) {
    return EnDegres(Fonction(valeur));
}

mu::Parser Calculatrice() {
    mu::Parser calcul;
    calcul.ClearFun();
    calcul.ClearConst();
    calcul.ClearOprt();
    // The comma is a decimal sign: no function takes several values.
    calcul.SetArgSep('|');
    calcul.DefineConst("pi", Pi);
    calcul.DefineFun("sin", EnDegresDe<std::sin>);
    calcul.DefineFun("cos", EnDegresDe<std::cos>);
    calcul.DefineFun("tan", EnDegresDe<std::tan>);
    calcul.DefineFun("asin", VersDegres<std::asin>);
    calcul.DefineFun("acos", VersDegres<std::acos>);
    calcul.DefineFun("atan", VersDegres<std::atan>);
    calcul.DefineFun("sqrt", static_cast<double (*)(double)>(std::sqrt));
    calcul.DefineFun("abs", static_cast<double (*)(double)>(std::abs));
    calcul.DefineFun("exp", static_cast<double (*)(double)>(std::exp));
    calcul.DefineFun("ln", static_cast<double (*)(double)>(std::log));
    calcul.DefineFun("log", static_cast<double (*)(double)>(std::log10));
    return calcul;
}

Glib::ustring Phrase(const mu::Parser::exception_type& faute) {
    const Glib::ustring mot = "« " + faute.GetToken() + " »";
    switch (faute.GetCode()) {
        case mu::ecUNASSIGNABLE_TOKEN:
            if (g_ascii_isdigit(faute.GetToken().front())) return "Ce nombre est trop grand.";
            return mot + " n'est pas un nombre.";
        case mu::ecINVALID_CHARACTERS_FOUND:
        case mu::ecINVALID_NAME:
            return mot + " n'est pas un nombre.";
        case mu::ecEMPTY_EXPRESSION:
            return "Il manque un nombre.";
        case mu::ecUNEXPECTED_EOF:
            return "Il manque quelque chose à la fin.";
        case mu::ecMISSING_PARENS:
            return "Il manque une parenthèse fermante.";
        case mu::ecUNEXPECTED_PARENS:
            return "Une parenthèse est de trop.";
        case mu::ecUNEXPECTED_VAL:
        case mu::ecUNEXPECTED_FUN:
        case mu::ecUNEXPECTED_VAR:
            return "Il manque une opération devant " + mot + ".";
        case mu::ecUNEXPECTED_OPERATOR:
            return "Il manque un nombre devant " + mot + ".";
        default:
            return "Cette expression ne peut pas être lue.";
    }
}

}  // namespace

Evaluation Evalue(const std::string& texte) {
    static mu::Parser calcul = Calculatrice();
    std::string expression = texte;
    std::replace(expression.begin(), expression.end(), ',', '.');
    try {
        calcul.SetExpr(expression);
        const double valeur = calcul.Eval();
        if (std::isnan(valeur)) return {std::nullopt, "Ce calcul n'a pas de résultat."};
        if (std::isinf(valeur)) return {std::nullopt, "Ce nombre est trop grand."};
        return {valeur, {}};
    } catch (const mu::Parser::exception_type& faute) {
        return {std::nullopt, Phrase(faute)};
    }
}
