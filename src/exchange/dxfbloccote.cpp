// The block that shows a linear dimension.

#include "elements/eltcote.h"
#include "exchange/dxfecrivain.h"
#include "exchange/dxfelements.h"

namespace {

/// Length of an arrow, and half its width, in drawing units whatever the scale.
constexpr double LongueurFleche = 3.0;

/// The name of an entity, and what those of such a block begin with.
void EcritCommun(EcrivainDxf& sortie, const char* nom, const char* calque) {
    sortie.Groupe(0, nom);
    sortie.NouveauHandle();
    sortie.Classe("AcDbEntity");
    sortie.Groupe(8, calque);
}

void EcritLigneDAttache(EcrivainDxf& sortie, const PointVek& a, const PointVek& b) {
    EcritCommun(sortie, "LWPOLYLINE", "COTES");
    sortie.Groupe(6, "CONTINUOUS");
    sortie.Classe("AcDbPolyline");
    sortie.Groupe(90, "        2");
    sortie.Groupe(70, "     1");
    sortie.PointXY(10, a);
    sortie.PointXY(10, b);
}

void EcritLigneDeCote(EcrivainDxf& sortie, const PointVek& a, const PointVek& b) {
    EcritCommun(sortie, "LINE", "COTES");
    sortie.Groupe(6, "CONTINUOUS");
    sortie.Classe("AcDbLine");
    sortie.PointPlan(10, a);
    sortie.PointPlan(11, b);
}

void EcritPoint(EcrivainDxf& sortie, const PointVek& p) {
    EcritCommun(sortie, "POINT", "DEFPOINTS");
    sortie.Classe("AcDbPoint");
    sortie.PointPlan(10, p);
}

void EcritTexte(EcrivainDxf& sortie, const EltCote& cote) {
    EcritCommun(sortie, "MTEXT", "LAYER01");
    sortie.Classe("AcDbMText");
    sortie.PointPlan(10, cote.Centre());
    sortie.Groupe(40, cote.Taille);
    sortie.Groupe(41, cote.Taille);
    sortie.Groupe(71, "     5");
    sortie.Groupe(72, "     1");
    sortie.Groupe(1, cote.Texte);
    sortie.Groupe(7, "_VISDIMTXTSTYLE");
}

/// A full arrow with its tip at pointe, its body toward direction.
void EcritFleche(EcrivainDxf& sortie, const PointVek& pointe, const PointVek& direction) {
    const PointVek v = Unitaire({direction.x, direction.y}) * LongueurFleche;
    EcritCommun(sortie, "SOLID", "0");
    sortie.Classe("AcDbTrace");
    sortie.PointPlan(10, pointe);
    sortie.PointPlan(11, pointe + v + Normale(v));
    sortie.PointPlan(12, pointe + v - Normale(v));
    sortie.PointPlan(13, pointe);
}

void EcritDebut(EcrivainDxf& sortie) {
    const std::string nom = sortie.NomCote();
    sortie.Groupe(0, "BLOCK");
    sortie.Groupe(5, "22");
    sortie.Classe("AcDbEntity");
    sortie.Groupe(8, "LAYER01");
    sortie.Classe("AcDbBlockBegin");
    sortie.Groupe(2, nom);
    sortie.Groupe(70, "    66");
    for (const int code : {10, 20, 30})
        sortie.Groupe(code, "0.0");
    sortie.Groupe(3, nom);
    sortie.Groupe(1, "");
}

void EcritFin(EcrivainDxf& sortie) {
    sortie.Groupe(0, "ENDBLK");
    sortie.Groupe(5, "26");
    sortie.Classe("AcDbEntity");
    sortie.Groupe(8, "LAYER01");
    sortie.Classe("AcDbBlockEnd");
}

}  // namespace

void EcritBlocCote(EcrivainDxf& sortie, const EltCote& cote) {
    const PointVek p = cote.Centre(), d = (cote.Point2 - cote.Point1) / 2.0;
    EcritDebut(sortie);
    EcritLigneDAttache(sortie, cote.Point1, p - d);
    EcritLigneDAttache(sortie, cote.Point2, p + d);
    EcritLigneDeCote(sortie, p - d, p + d);
    for (const PointVek& reference : {cote.Point1, cote.Point2, p})
        EcritPoint(sortie, reference);
    EcritTexte(sortie, cote);
    EcritFleche(sortie, p + d, -d);
    EcritFleche(sortie, p - d, d);
    EcritFin(sortie);
}
