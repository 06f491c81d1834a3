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

void ExigeEtat(int etat) {
    if (etat < 0 || etat >= NOMBRE_ETATS) Refuse("no such state", etat);
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
            if (!Rangs[etat]) Refuse("no row for", etat);
    }

    const LigneEtat& operator[](int etat) const { return *Rangs.at(etat); }

  private:
    void Range(const LigneEtat& ligne) {
        for (const int etat : {ligne.Numero, ligne.Premier, ligne.Suivant, ligne.SuivantFin})
            ExigeEtat(etat);
        if (Rangs[ligne.Numero]) Refuse("two rows for", ligne.Numero);
        Rangs[ligne.Numero] = &ligne;
    }

    std::vector<LigneEtat> Lignes;
    std::vector<const LigneEtat*> Rangs;
};

}  // namespace

const LigneEtat& LigneDe(int etat) {
    static const TableEtats table;
    return table[etat];
}
