// The tables. The values stand as they are in the file, leading blanks included.

#include <vector>

#include "exchange/dxfecrivain.h"
#include "exchange/dxffixe.h"

namespace {

/// Groups one behind the other that have the same value.
struct Groupes {
    const char* Valeur;
    std::vector<int> Codes;
};

/// One entry of a table. Without a handle it takes a new one.
struct Entree {
    const char* Handle;
    const char* Nom;
    std::vector<Groupes> Contenu = {};
};

/// A table. Its count need not be that of its entries. Without a handle it takes a new one.
struct Table {
    const char* Nom;
    const char* Handle;
    const char* Compte;
    const char* Classe = nullptr;  ///< That of the entries.
    std::vector<Entree> Entrees = {};
    int CodeHandle = 5;                   ///< Of the entries.
    std::vector<Groupes> Reacteurs = {};  ///< Behind their handles.
};

const std::vector<Table>& Tables() {
    static const std::vector<Table> tables = {
        {"VPORT",
         "5",
         "1",
         "AcDbViewportTableRecord",
         {{"6",
           "*ACTIVE",
           {{"0.0", {10, 20}},
            {"1.0", {11, 21}},
            {"105.0", {12}},
            {"148.5", {22}},
            {"0.0", {13, 23}},
            {"0.5", {14, 24, 15, 25}},
            {"0.0", {16, 26}},
            {"1.0", {36}},
            {"0.0", {17, 27, 37}},
            {"297.0", {40}},
            {"0.707071", {41}},
            {"50.0", {42}},
            {"0.0", {43, 44, 50, 51}},
            {"0", {71}},
            {"100", {72}},
            {"1", {73, 74}},
            {"0", {75, 76, 77, 78}}}}}},
        {"LTYPE",
         nullptr,
         "4",
         "AcDbLinetypeTableRecord",
         {{nullptr,
           "CONTINUOUS",
           {{"0", {70}}, {"Solid line", {3}}, {"65", {72}}, {"0", {73}}, {"0.0", {40}}}},
          {nullptr,
           "DASH",
           {{"0", {70}},
            {"Dash line", {3}},
            {"65", {72}},
            {"2", {73}},
            {"0.5", {40}},
            {"0.25", {49}},
            {"-0.25", {49}}}},
          {nullptr,
           "DOT",
           {{"0", {70}},
            {"Dot line", {3}},
            {"65", {72}},
            {"2", {73}},
            {"0.5", {40}},
            {"0.01", {49}},
            {"-0.49", {49}}}},
          {nullptr,
           "DASHDOT",
           {{"0", {70}},
            {"Dashdot line", {3}},
            {"65", {72}},
            {"4", {73}},
            {"1.1", {40}},
            {"0.5", {49}},
            {"-0.25", {49}},
            {"0.1", {49}},
            {"-0.25", {49}}}}}},
        {"LAYER",
         nullptr,
         "     3",
         "AcDbLayerTableRecord",
         {{"8", "LAYER02", {{"    1", {70}}, {"     7", {62}}, {"CONTINUOUS", {6}}}}}},
        {"VIEW", "9", "0"},
        {"UCS", "10", "0"},
        {"APPID", "11", "1", "AcDbRegAppTableRecord", {{"12", "ACAD"}}},
        {"STYLE",
         "13",
         "2",
         "AcDbTextStyleTableRecord",
         {{"14",
           "STANDARD",
           {{"0", {70}},
            {"0.0", {40}},
            {"1.0", {41}},
            {"0.0", {50}},
            {"0", {71}},
            {"0.2", {42}},
            {"txt.shx", {3}},
            {"", {4}}}},
          {"3C",
           "_VISDIMTXTSTYLE",
           {{"0", {70}},
            {"0.0", {40}},
            {"1.0", {41}},
            {"0.0", {50}},
            {"0", {71}},
            {"0.2", {42}},
            {"arial.ttf", {3}},
            {"", {4}},
            {"ACAD", {1001}},
            {"Arial", {1000}},
            {"       34", {1071}}}}}},
        {"DIMSTYLE",
         "A",
         "1",
         "AcDbDimStyleTableRecord",
         {{"1D",
           "STANDARD",
           {{"0", {70}},
            {" ", {3, 4}},
            {"16", {5}},
            {"", {6, 7}},
            {"1.0", {40}},
            {"3.3", {41}},
            {"0.0625", {42}},
            {"0.38", {43}},
            {"3.3", {44}},
            {"0.0", {45, 46, 47, 48}},
            {"0", {71, 72}},
            {"1", {73, 74}},
            {"0", {75, 76}},
            {"1", {77}},
            {"0", {78}},
            {"3.3", {140}},
            {"0.09", {141}},
            {"0.0", {142}},
            {"25.4", {143}},
            {"1.0", {144}},
            {"0.0", {145}},
            {"1.0", {146}},
            {"0.09", {147}},
            {"0", {170}},
            {"2", {171}},
            {"0", {172, 173, 174, 175, 176, 177, 178}},
            {"2", {270}},
            {"4", {271}},
            {"0", {272}},
            {"2", {273, 274}},
            {"0", {275, 280, 281, 282}},
            {"1", {283}},
            {"0", {284, 285, 286}},
            {"3", {287}},
            {"0", {288}},
            {"3C", {340}}}}},
         105,
         {{"{ACAD_REACTORS", {102}}, {"42", {330}}, {"}", {102}}}},
        {"BLOCK_RECORD",
         "17",
         "1",
         "AcDbBlockTableRecord",
         {{"18", "*PAPER_SPACE"}, {"19", "*MODEL_SPACE"}}},
    };
    return tables;
}

void EcritHandle(EcrivainDxf& sortie, int code, const char* handle) {
    if (handle)
        sortie.Groupe(code, handle);
    else
        sortie.NouveauHandle(code);
}

void EcritGroupes(EcrivainDxf& sortie, const std::vector<Groupes>& suite) {
    for (const Groupes& groupes : suite)
        for (const int code : groupes.Codes)
            sortie.Groupe(code, groupes.Valeur);
}

void EcritEntree(EcrivainDxf& sortie, const Table& table, const Entree& entree) {
    sortie.Groupe(0, table.Nom);
    EcritHandle(sortie, table.CodeHandle, entree.Handle);
    EcritGroupes(sortie, table.Reacteurs);
    sortie.Classe("AcDbSymbolTableRecord");
    sortie.Classe(table.Classe);
    sortie.Groupe(2, entree.Nom);
    EcritGroupes(sortie, entree.Contenu);
}

}  // namespace

void EcritTables(EcrivainDxf& sortie, int nombreCotes) {
    for (const Table& table : Tables()) {
        sortie.Groupe(0, "TABLE");
        sortie.Groupe(2, table.Nom);
        EcritHandle(sortie, 5, table.Handle);
        sortie.Classe("AcDbSymbolTable");
        sortie.Groupe(70, table.Compte);
        for (const Entree& entree : table.Entrees)
            EcritEntree(sortie, table, entree);
        for (int i = 0; i < nombreCotes && &table == &Tables().back(); ++i)
            EcritEntree(sortie, table, {nullptr, sortie.NomCote().c_str()});
        sortie.Groupe(0, "ENDTAB");
    }
}
