// The variables of the header. The values stand as they are in the file, leading blanks included.

#include "exchange/dxfecrivain.h"
#include "exchange/dxffixe.h"

namespace {

/// A variable of the header, with one value for up to three groups. The codes are text, since one
/// of them is not aligned like the others.
struct Variable {
    const char* Nom;
    const char* Codes[3];
    const char* Valeur;
};

constexpr Variable Entete[] = {
    {"$ACADVER", {"  1"}, "AC1014"},
    {"$DIMTOL", {" 70"}, "0"},
    {"$DIMLIM", {" 70"}, "0"},
    {"$ANGDIR", {" 70"}, "    1"},
    {"$DIMALTTD", {" 70"}, "2"},
    {"$INSUNITS", {" 70"}, "    4"},
    {"$DIMTXSTY", {"  7"}, "_VISDIMTXTSTYLE"},
    {"$LUNITS", {" 70"}, "    2"},
    {"$DIMAUNIT", {" 70"}, "0"},
    {"$AUNITS", {" 70"}, "    3"},
    {"$DIMZIN", {" 70"}, "0"},
    {"$AUPREC", {" 70"}, "    0"},
    {"$DIMBLK", {"  1"}, ""},
    {"$DIMBLK1", {"  1"}, ""},
    {"$DIMBLK2", {"  1"}, ""},
    {"$DIMPOST", {"  1"}, ""},
    {"$DIMAPOST", {"  1"}, ""},
    {"$LTSCALE", {" 40"}, "   1"},
    {"$DIMASO", {" 70"}, "1"},
    {"$DIMSHO", {" 70"}, "1"},
    {"$AXISUNIT", {" 10", " 20"}, "   1.0"},
    {"$DIMALT", {" 70"}, "0"},
    {"$LIMMAX", {" 10", " 20"}, "   10.0"},
    {"$DIMALTD", {" 70"}, "2"},
    {"$LIMMIN", {" 10", " 20"}, "   -10.0"},
    {"$DIMALTF", {" 40"}, "25.4"},
    {"$VIEWSIZE", {" 40"}, "  1.0"},
    {"$DIMLFAC", {" 40"}, "1.0"},
    {"$DIMTFAC", {" 40"}, "1.0"},
    {"$DIMTIH", {" 70"}, "0"},
    {"$DIMTOH", {" 70"}, "0"},
    {"$DIMSE1", {" 70"}, "0"},
    {"$DIMSE2", {" 70"}, "0"},
    {"$DIMTAD", {" 70"}, "0"},
    {"$DIMTOFL", {" 70"}, "0"},
    {"$DIMTIX", {" 70"}, "0"},
    {"$DIMSOXD", {" 70"}, "0"},
    {"$DIMSAH", {" 70"}, "0"},
    {"$DIMSCALE", {" 40"}, "1.0"},
    {"$DIMTVP", {" 40"}, "0.0"},
    {"$DIMASZ", {" 40"}, "3.3"},
    {"$DIMSTYLE", {"  2"}, "STANDARD"},
    {"$DIMEXO", {" 40"}, "0.0625"},
    {"$DIMCLRD", {" 70"}, "0"},
    {"$DIMCLRE", {" 70"}, "0"},
    {"$DIMCLRT", {" 70"}, "0"},
    {"$DIMDLI", {" 40"}, "0.38"},
    {"$DIMGAP", {" 40"}, "0.09"},
    {"$DIMRND", {" 40"}, "0.0"},
    {"$DIMDLE", {" 40"}, "0.0"},
    {"$DIMTP", {" 40"}, "0.0"},
    {"$DIMTM", {" 40"}, "0.0"},
    {"$DIMJUST", {" 70"}, "0"},
    {"$DIMSD1", {" 70"}, "0"},
    {"$DIMSD2", {" 70"}, "0"},
    {"$DIMEXE", {" 40"}, "3.3"},
    {"$DIMTXT", {" 40"}, "3.3"},
    {"$DIMTOLJ", {" 70"}, "1"},
    {"$DIMCEN", {" 40"}, "0.09"},
    {"$DIMTZIN", {" 70"}, "0"},
    {"$DIMALTZ", {" 70"}, "0"},
    {"$DIMALTTZ", {" 70"}, "0"},
    {"$DIMUPT", {" 70"}, "0"},
    {"$DIMTSZ", {" 40"}, "0.0"},
    {"$DIMFIT", {" 70"}, "3"},
    {"$DIMUNIT", {" 70"}, "2"},
    {"$DIMDEC", {" 70"}, "2"},
    {"$DIMALTU", {" 70"}, "2"},
    {"$DIMTDEC", {" 70"}, "4"},
    {"$EXTMAX", {" 10", " 20", " 30"}, "   10.0"},
    {"$EXTMIN", {" 10", " 20", " 30"}, "   10.0"},
    {"$DIMLFAC", {" 40"}, "  1"},
    {"$COORD", {" 70"}, "  1"},
    {"$CLAYER", {" 8"}, "LAYER01"},
};

}  // namespace

void EcritVariables(EcrivainDxf& sortie) {
    for (const Variable& variable : Entete) {
        sortie.Groupe(9, variable.Nom);
        for (const char* code : variable.Codes)
            if (code) sortie.Groupe(code, variable.Valeur);
    }
}
