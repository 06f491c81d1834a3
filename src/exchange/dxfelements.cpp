// From elements to entities.

#include "exchange/dxfelements.h"

#include <cmath>
#include <cstdio>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltcote.h"
#include "elements/eltpoint.h"
#include "elements/eltprofil.h"
#include "elements/eltsegment.h"
#include "exchange/dxfecrivain.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"

namespace {

constexpr char Calque[] = "LAYER01";

/// An opening that is no less is a full turn.
constexpr double TourEntier = DeuxPi - 1e-6;

/// In base 255, as files have it.
std::string Couleur(const Gdk::Color& couleur) {
    const double valeur =
        ((couleur.get_red_p() * 255 + couleur.get_green_p()) * 255 + couleur.get_blue_p()) * 255;
    char chiffres[16];
    std::snprintf(chiffres, sizeof chiffres, "0x%lx", std::lround(valeur));
    return chiffres;
}

const char* TypeDeLigne(int style) {
    switch (style) {
        case Tirets:
            return "DASH";
        case Axe:
            return "DASHDOT";
        case Pointille:
            return "DOT";
        default:
            return "CONTINUOUS";
    }
}

/// The name of the entity, and what all entities begin with.
void EcritCommun(EcrivainDxf& sortie, const char* nom, const EltGeo& elt) {
    sortie.Groupe(0, nom);
    sortie.Classe("AcDbEntity");
    sortie.NouveauHandle();
    sortie.Groupe(8, Calque);
    sortie.Groupe(420, Couleur(elt.Style.Couleur));
    sortie.Groupe(6, TypeDeLigne(elt.Style.StyleLigne));
}

void EcritSegment(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& segment = static_cast<const EltSegment&>(elt);
    EcritCommun(sortie, "LINE", elt);
    sortie.Classe("AcDbLine");
    sortie.Point(10, segment.Origine);
    sortie.Point(11, segment.Extremite);
}

void EcritPoint(EcrivainDxf& sortie, const EltGeo& elt) {
    EcritCommun(sortie, "POINT", elt);
    sortie.Classe("AcDbPoint");
    sortie.Point(10, elt.Centre());
}

void EcritArc(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& arc = static_cast<const EltArc&>(elt);
    const bool ouvert = arc.Ouverture < TourEntier;
    EcritCommun(sortie, ouvert ? "ARC" : "CIRCLE", elt);
    sortie.Classe("AcDbCircle");
    sortie.Point(10, arc.Centre());
    sortie.Groupe(40, arc.Rayon);
    if (!ouvert) return;
    // In radians: files are so.
    sortie.Groupe(50, arc.AngleDebut);
    sortie.Groupe(51, arc.AngleDebut + arc.Ouverture);
}

void EcritProfil(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& profil = static_cast<const EltProfil&>(elt);
    EcritCommun(sortie, "LWPOLYLINE", elt);
    sortie.Classe("AcDbPolyline");
    sortie.Groupe(70, profil.Ferme);
    sortie.Groupe(90, static_cast<int>(profil.Sommets.size()));
    for (const SommetProfil& sommet : profil.Sommets)
        sortie.Point(10, sommet + profil.Centre());
}

void EcritTxt(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& txt = static_cast<const EltTxt&>(elt);
    EcritCommun(sortie, "TEXT", elt);
    sortie.Classe("AcDbMText");
    sortie.Point(10, txt.Centre());
    sortie.Groupe(40, txt.Taille);
    sortie.Groupe(1, txt.Texte);
    sortie.Groupe(50, EnDegres(txt.Angle));
    sortie.Groupe(7, txt.Police);
}

void EcritCote(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& cote = static_cast<const EltCote&>(elt);
    EcritCommun(sortie, "DIMENSION", elt);
    sortie.Classe("AcDbDimension");
    sortie.Groupe(2, sortie.NomCote());
    sortie.Point(10, cote.Centre());
    sortie.Point(11, cote.Centre() + (cote.Point2 - cote.Point1) / 2.0);
    sortie.Groupe(1, cote.Texte);
    sortie.Groupe(70, "    32");
    sortie.Groupe(71, "1");
    sortie.Groupe(3, "STANDARD");
    sortie.Classe("AcDbAlignedDimension");
    for (const int code : {12, 22, 32})
        sortie.Groupe(code, "0.0");
    sortie.PointPlan(13, cote.Point1);
    sortie.PointPlan(14, cote.Point2);
    sortie.Groupe(50, EnDegres(cote.Angle));
}

void EcritGroupe(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& groupe = static_cast<const EltBDD&>(elt);
    EcritCommun(sortie, "BLOCK", elt);
    sortie.Classe("AcDbBlockBegin");
    sortie.Groupe(2, groupe.Identificateur);
    sortie.Groupe(3, groupe.Identificateur);
    sortie.Groupe(70, "0");
    sortie.Point(10, groupe.Centre());
    EcritEntites(sortie, groupe.Contenu.Elements);
    sortie.Groupe(0, "ENDBLK");
    sortie.Groupe(8, Calque);
    sortie.NouveauHandle();
    sortie.Classe("AcDbBlockEnd");
}

void EcritImage(EcrivainDxf& sortie, const EltGeo& elt) {
    const auto& image = static_cast<const EltImage&>(elt);
    EcritCommun(sortie, "INSERT", elt);
    sortie.Classe("AcDbBlockReference");
    sortie.Groupe(2, image.Identificateur);
    for (const int code : {41, 42, 43})
        sortie.Groupe(code, image.Agrandissement);
    // In radians: files are so.
    sortie.Groupe(50, image.Angle);
    sortie.Point(10, image.Centre());
}

/// What is written for a type of element.
struct Redaction {
    int Type;
    void (*Ecrit)(EcrivainDxf& sortie, const EltGeo& elt);
};

constexpr Redaction Redactions[] = {
    {TypeSegment, EcritSegment}, {TypePoint, EcritPoint},   {TypeArc, EcritArc},
    {TypeProfil, EcritProfil},   {TypeTxt, EcritTxt},       {TypeCote, EcritCote},
    {TypeCoteVert, EcritCote},   {TypeCoteHori, EcritCote}, {TypeBDD, EcritGroupe},
    {TypeImage, EcritImage},
};

}  // namespace

bool EstCoteLineaire(const EltGeo& elt) {
    return elt.Type == TypeCote || elt.Type == TypeCoteVert || elt.Type == TypeCoteHori;
}

void EcritEntite(EcrivainDxf& sortie, const EltGeo& elt) {
    for (const Redaction& redaction : Redactions)
        if (redaction.Type == elt.Type) redaction.Ecrit(sortie, elt);
}

void EcritEntites(EcrivainDxf& sortie, const Liste<EltGeo>& elements) {
    for (const EltGeo* elt : elements) {
        if (elt->Type != TypeBDD) EcritEntite(sortie, *elt);
        sortie.SauteHandle();
    }
}
