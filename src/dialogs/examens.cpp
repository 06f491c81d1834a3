#include "dialogs/examens.h"

#include "dialogs/expression.h"
#include "dialogs/nombres.h"

namespace {

/// Takes the finite numbers that admet takes.
template <class Admet>
Examen Nombre(const Admet& admet, const Glib::ustring& phrase) {
    return [admet, phrase](const Glib::ustring& texte) -> Glib::ustring {
        const Evaluation nombre = Evalue(texte);
        if (!nombre.Valeur) return nombre.Faute;
        return admet(*nombre.Valeur) ? "" : phrase;
    };
}

}  // namespace

Examen UnNombre() {
    return Nombre([](double) { return true; }, "");
}

Examen PlusQue(double mini, const Glib::ustring& quoi) {
    return Nombre([mini](double x) { return x > mini; },
                  quoi + " doit dépasser " + TexteNombre(mini) + ".");
}

Examen AuMoins(double mini, const Glib::ustring& quoi) {
    return Nombre([mini](double x) { return x >= mini; },
                  quoi + " doit valoir " + TexteNombre(mini) + " au moins.");
}

Examen Entre(double mini, double maxi, const Glib::ustring& quoi) {
    return Nombre([mini, maxi](double x) { return x > mini && x < maxi; },
                  quoi + " doit dépasser " + TexteNombre(mini) + " et rester sous " +
                      TexteNombre(maxi) + ".");
}

Examen NonNul(const Glib::ustring& quoi) {
    return Nombre([](double x) { return x != 0.0; }, quoi + " ne peut pas valoir 0.");
}

Examen UnEntier(int mini, int maxi, const Glib::ustring& quoi) {
    return Nombre([mini, maxi](double x) { return EnEntier(x) >= mini && EnEntier(x) <= maxi; },
                  quoi + " doit aller de " + TexteNombre(mini) + " à " + TexteNombre(maxi) + ".");
}

Examen EntierAuMoins(int mini, const Glib::ustring& quoi) {
    return Nombre([mini](double x) { return EnEntier(x) >= mini; },
                  quoi + " doit valoir " + TexteNombre(mini) + " au moins.");
}
