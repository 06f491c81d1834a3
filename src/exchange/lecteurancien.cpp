#include "exchange/lecteurancien.h"

#include <array>
#include <cmath>
#include <utility>

#include "elements/eltcoteang.h"
#include "elements/eltcotedia.h"
#include "elements/eltcotehori.h"
#include "elements/eltcoterayon.h"
#include "elements/eltcotevert.h"
#include "elements/eltpoint.h"
#include "elements/encodage.h"

namespace {

/// Number of sections behind a header line, 0 when it bears no version.
int NombreSections(std::string_view ligne) {
    for (const char* mot : {"VERSION1.0", "VERSION2.0", "VERSION2.1", "VERSION2.2"})
        if (ligne.find(mot) != std::string_view::npos) return 4;
    return ligne.find("VERSION2.3") != std::string_view::npos ? 5 : 0;
}

/// The format's limit of a line, in characters.
constexpr Glib::ustring::size_type LongueurLigne = 512;

/// Closes a section in the place of a record's marker.
constexpr int FinSection = -1;

constexpr char SectionsNonLues[] = "sections non lues";

}  // namespace

bool LecteurAncien::Lit(BDDGeoBase& cible) {
    Bilan_.Entier = LitSections(cible);
    return Bilan_.Entier;
}

bool LecteurAncien::LitSections(BDDGeoBase& cible) {
    // The fourth section never had records that could be read.
    static constexpr std::array<GenreSection, 5> genres = {
        &LecteurAncien::LitPoint, &LecteurAncien::LitSegment, &LecteurAncien::LitArc, nullptr,
        &LecteurAncien::LitAnnotation};
    const int nombre = NombreSections(Entree.Ligne());
    if (nombre == 0) {
        Bilan_.Fichier = BilanLecture::PasUnDessin;
        return false;
    }
    // The view of the former program says nothing to this one.
    PointVek origine;
    double echelle = 0.0;
    Entree >> origine >> echelle;
    for (int rang = 0; rang < nombre; ++rang)
        if (!LitSection(genres[static_cast<std::size_t>(rang)], cible)) return false;
    // The dimensions behind the sections that the version has.
    if (nombre < static_cast<int>(genres.size()) && Entree.ResteTexte())
        Bilan_.Laisse(SectionsNonLues);
    return true;
}

bool LecteurAncien::LitSection(GenreSection genre, BDDGeoBase& cible) {
    for (bool premier = true;; premier = false) {
        int marqueur = FinSection;
        Entree >> marqueur;
        if (Entree.Echec()) return false;
        if (marqueur == FinSection) return true;
        if (!genre) {
            if (premier) Bilan_.Laisse(SectionsNonLues);
            continue;
        }
        Element elt = (this->*genre)();
        if (Entree.Echec()) return false;
        if (!elt) continue;
        if (elt->EstValide()) {
            cible.AjouteFin(std::move(elt));
            ++Bilan_.Lus;
        } else {
            Laisse(*elt);
        }
    }
}

void LecteurAncien::Laisse(const EltGeo& elt) {
    switch (elt.Type) {
        case TypePoint:
            return Bilan_.Laisse("points");
        case TypeSegment:
            return Bilan_.Laisse("segments de longueur nulle");
        case TypeArc:
            return Bilan_.Laisse("arcs de rayon nul ou négatif");
        case TypeTxt:
            return Bilan_.Laisse("textes");
        default:
            return Bilan_.Laisse("cotes de mesure nulle");
    }
}

LecteurAncien::Element LecteurAncien::LitPoint() {
    auto point = std::make_unique<EltPoint>();
    point->Place(LitTete().Position);
    SauteEntiers(3);
    return point;
}

LecteurAncien::Element LecteurAncien::LitSegment() {
    return LitRecordSegment().Clone();
}

LecteurAncien::Element LecteurAncien::LitArc() {
    return LitRecordArc().Clone();
}

LecteurAncien::Element LecteurAncien::LitAnnotation() {
    const Tete tete = LitTete();
    SauteEntiers(3);
    int numero = 0;
    double ignore = 0.0;
    Entree >> numero >> ignore;
    Entree.Ligne();
    const Glib::ustring texte = LitLigne(), police = LitLigne();
    bool sansElement = false;
    Entree >> sansElement;
    if (sansElement) {
        SauteEntiers(1);
        if (!Entree.Echec()) Bilan_.Laisse("cotes sans contenu");
        return nullptr;
    }
    auto elt = LitContenu(numero);
    if (!elt) {
        Bilan_.Laisse("cotes de genre inconnu");
        return nullptr;
    }
    elt->SetTexte(texte);
    elt->Police = police;
    elt->SetTaille(std::abs(tete.Mesure));
    // Last, since the measures bring the text to a place of their own. That of an angle stays on
    // its arc, where the next file puts it: the drawing looks the same when it is opened again.
    elt->Place(tete.Position);
    elt->Recalcule();
    return elt;
}

std::unique_ptr<EltTxt> LecteurAncien::LitContenu(int numero) {
    switch (numero) {
        case 1:
            return LitCoteLineaire<EltCote>();
        case 2:
            return LitCoteLineaire<EltCoteHori>();
        case 3:
            return LitCoteLineaire<EltCoteVert>();
        case 4:
            return LitCoteAng();
        case 5:
            return LitCoteCirculaire<EltCoteRayon>();
        case 6:
            return LitCoteCirculaire<EltCoteDia>();
        case 7:
            return LitTexte();
        default:
            return nullptr;
    }
}

template <class Cote>
std::unique_ptr<EltTxt> LecteurAncien::LitCoteLineaire() {
    const EltSegment segment = LitRecordSegment();
    auto cote = std::make_unique<Cote>();
    cote->SetPoint1(segment.Origine);
    cote->SetPoint2(segment.Extremite);
    return cote;
}

template <class Cote>
std::unique_ptr<EltTxt> LecteurAncien::LitCoteCirculaire() {
    auto cote = std::make_unique<Cote>();
    cote->DepuisArc(LitRecordArc());
    return cote;
}

std::unique_ptr<EltTxt> LecteurAncien::LitCoteAng() {
    const EltArc arc = LitRecordArc();
    auto cote = std::make_unique<EltCoteAng>();
    cote->Point1 = cote->Point2 = cote->Sommet = arc.Centre();
    cote->Extremite1 = arc.Debut();
    cote->Extremite2 = arc.Fin();
    cote->Recalcule();
    return cote;
}

std::unique_ptr<EltTxt> LecteurAncien::LitTexte() {
    int degres = 0;
    Entree >> degres;
    auto texte = std::make_unique<EltTxt>();
    texte->SetAngleDegres(degres);
    return texte;
}

LecteurAncien::Tete LecteurAncien::LitTete() {
    Tete tete = {};
    double ignore = 0.0;
    SauteEntiers(1);
    Entree >> tete.Mesure >> ignore >> tete.Position;
    return tete;
}

EltSegment LecteurAncien::LitRecordSegment() {
    LitTete();  // The middle follows from the ends.
    PointVek origine, extremite;
    Entree >> origine >> extremite;
    SauteEntiers(3);
    return {origine, extremite, 0};
}

EltArc LecteurAncien::LitRecordArc() {
    EltArc arc;
    arc.Place(LitTete().Position);
    PointVek debut, fin;
    double rayon = 0.0;
    Entree >> debut >> fin >> rayon;
    SauteEntiers(3);
    arc.DepuisPoints(debut, fin, rayon);
    return arc;
}

Glib::ustring LecteurAncien::LitLigne() {
    return {EnUtf8(Entree.Ligne()), 0, LongueurLigne};
}

void LecteurAncien::SauteEntiers(int nombre) {
    int ignore = 0;
    for (int i = 0; i < nombre; ++i)
        Entree >> ignore;
}
