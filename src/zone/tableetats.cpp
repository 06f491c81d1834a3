#include "zone/tableetats.h"

#include <stdexcept>
#include <string>
#include <vector>

// The families, one file each under outils/.
std::vector<LigneEtat> LignesEdition();
std::vector<LigneEtat> LignesSegments();
std::vector<LigneEtat> LignesCercles();
std::vector<LigneEtat> LignesArcs();
std::vector<LigneEtat> LignesTextes();
std::vector<LigneEtat> LignesCotesLineaires();
std::vector<LigneEtat> LignesCotesCirculaires();
std::vector<LigneEtat> LignesVue();
std::vector<LigneEtat> LignesSelectionCollage();
std::vector<LigneEtat> LignesRectanglesPrimitives();
std::vector<LigneEtat> LignesProfils();
std::vector<LigneEtat> LignesSurfaces();
std::vector<LigneEtat> LignesSoustractifs();
std::vector<LigneEtat> LignesTubes();

namespace {

[[noreturn]] void Refuse(const char* raison, int numero) {
    throw std::logic_error(std::string("tool states: ") + raison + " " + std::to_string(numero));
}

class TableEtats {
  public:
    TableEtats() : Rangs(NOMBRE_ETATS, nullptr) {
        for (const auto famille : {LignesEdition, LignesSegments, LignesCercles, LignesArcs,
                                   LignesTextes, LignesCotesLineaires, LignesCotesCirculaires,
                                   LignesVue, LignesSelectionCollage, LignesRectanglesPrimitives,
                                   LignesProfils, LignesSurfaces, LignesSoustractifs, LignesTubes})
            for (const LigneEtat& ligne : famille())
                Lignes.push_back(ligne);
        for (const LigneEtat& ligne : Lignes)
            Range(ligne);
        for (int etat = 0; etat < NOMBRE_ETATS; ++etat)
            (*this)[etat];
        for (const LigneEtat& ligne : Lignes)
            for (const int etat : {ligne.Premier, ligne.Suivant, ligne.SuivantFin})
                (*this)[etat];
    }

    const LigneEtat& operator[](int etat) const {
        const bool connu = etat >= 0 && etat < static_cast<int>(Rangs.size()) && Rangs[etat];
        if (!connu) Refuse("no row for", etat);
        return *Rangs[etat];
    }

  private:
    void Range(const LigneEtat& ligne) {
        if (ligne.Numero < 0) Refuse("no such state", ligne.Numero);
        const auto numero = static_cast<std::size_t>(ligne.Numero);
        if (numero >= Rangs.size()) Rangs.resize(numero + 1, nullptr);
        if (Rangs[numero]) Refuse("two rows for", ligne.Numero);
        Rangs[numero] = &ligne;
    }

    std::vector<LigneEtat> Lignes;
    std::vector<const LigneEtat*> Rangs;  ///< By their number; null where there is none.
};

}  // namespace

const LigneEtat& LigneDe(int etat) {
    static const TableEtats table;
    return table[etat];
}
