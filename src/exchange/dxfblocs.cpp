// The blocks of the model and of the paper.

#include "exchange/dxfecrivain.h"
#include "exchange/dxffixe.h"

namespace {

struct BlocFixe {
    const char* Nom;
    const char* HandleDebut;
    const char* HandleFin;
    bool Papier;
};

constexpr BlocFixe Blocs[] = {{"*MODEL_SPACE", "1", "2", false}, {"*PAPER_SPACE", "3", "4", true}};

void EcritCommun(EcrivainDxf& sortie, const char* nom, const char* handle, bool papier) {
    sortie.Groupe(0, nom);
    sortie.Groupe(5, handle);
    sortie.Classe("AcDbEntity");
    if (papier) sortie.Groupe(67, "1");
    sortie.Groupe(8, "0");
}

}  // namespace

void EcritBlocsFixes(EcrivainDxf& sortie) {
    for (const BlocFixe& bloc : Blocs) {
        EcritCommun(sortie, "BLOCK", bloc.HandleDebut, bloc.Papier);
        sortie.Classe("AcDbBlockBegin");
        sortie.Groupe(2, bloc.Nom);
        sortie.Groupe(70, "0");
        for (const int code : {10, 20, 30})
            sortie.Groupe(code, "0.0");
        sortie.Groupe(3, bloc.Nom);
        sortie.Groupe(1, "");
        EcritCommun(sortie, "ENDBLK", bloc.HandleFin, bloc.Papier);
        sortie.Classe("AcDbBlockEnd");
    }
}
