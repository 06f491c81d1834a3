// The DXF text of a drawing, from section to section.

#include <algorithm>

#include "elements/eltcote.h"
#include "exchange/dxf.h"
#include "exchange/dxfecrivain.h"
#include "exchange/dxfelements.h"
#include "exchange/dxffixe.h"
#include "model/bddgeobase.h"
#include "model/fichier.h"

namespace {

void DebutSection(EcrivainDxf& sortie, const char* nom) {
    sortie.Groupe(0, "SECTION");
    sortie.Groupe(2, nom);
}

void FinSection(EcrivainDxf& sortie) {
    sortie.Groupe(0, "ENDSEC");
}

int NombreCotesLineaires(const BDDGeoBase& bdd) {
    return static_cast<int>(std::count_if(bdd.Elements.begin(), bdd.Elements.end(),
                                          [](const EltGeo* elt) { return EstCoteLineaire(*elt); }));
}

void EcritBlocs(EcrivainDxf& sortie, const BDDGeoBase& bdd) {
    EcritBlocsFixes(sortie);
    sortie.RecommenceCotes();
    for (const EltGeo* elt : bdd.Elements)
        if (EstCoteLineaire(*elt)) EcritBlocCote(sortie, static_cast<const EltCote&>(*elt));
    for (const EltGeo* elt : bdd.Elements) {
        if (elt->Type == TypeBDD) EcritEntite(sortie, *elt);
        sortie.SauteHandle();
    }
}

}  // namespace

std::string EcritDxf(const BDDGeoBase& bdd) {
    EcrivainDxf sortie;
    DebutSection(sortie, "HEADER");
    EcritVariables(sortie);
    FinSection(sortie);
    DebutSection(sortie, "CLASSES");
    FinSection(sortie);
    DebutSection(sortie, "TABLES");
    EcritTables(sortie, NombreCotesLineaires(bdd));
    FinSection(sortie);
    DebutSection(sortie, "BLOCKS");
    EcritBlocs(sortie, bdd);
    FinSection(sortie);
    DebutSection(sortie, "ENTITIES");
    EcritEntites(sortie, bdd.Elements);
    FinSection(sortie);
    DebutSection(sortie, "OBJECTS");
    FinSection(sortie);
    sortie.Groupe(0, "EOF");
    return sortie.Prend();
}

void ExporteDxf(const BDDGeoBase& bdd, const std::string& nom) {
    EcritFichier(nom, EcritDxf(bdd));
}
