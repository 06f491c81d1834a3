#pragma once

#include <glibmm/ustring.h>

#include <memory>
#include <string_view>

#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"
#include "elements/lecteur.h"
#include "model/bddgeobase.h"

/// Reads the text of the drawings that former generations of the program wrote, VERSION1.0 to
/// VERSION2.3: points, segments, arcs, and in the last version dimensions and texts. All elements
/// come in the style of a new one, on layer 0. The text must outlive the reader.
class LecteurAncien {
  public:
    explicit LecteurAncien(std::string_view texte) : Entree(texte) {}

    /// Appends the elements to the target. False when the text bears none of the versions, or ends
    /// or becomes unreadable before its last section does; the elements read until then stay.
    bool Lit(BDDGeoBase& cible);

    /// What that made of the text.
    const BilanLecture& Bilan() const { return Bilan_; }

  private:
    using Element = std::unique_ptr<EltGeo>;

    /// Reads a record of one kind. The element is worthless when the reader has failed.
    using GenreSection = Element (LecteurAncien::*)();

    /// What every record begins with.
    struct Tete {
        double Mesure;  ///< The height of a text; without use elsewhere.
        PointVek Position;
    };

    bool LitSections(BDDGeoBase& cible);

    /// Reads records up to the marker that ends the section; without a kind, the markers alone.
    bool LitSection(GenreSection genre, BDDGeoBase& cible);

    /// Counts an element that is not valid by its kind.
    void Laisse(const EltGeo& elt);

    Element LitPoint();
    Element LitSegment();
    Element LitArc();
    Element LitAnnotation();

    /// What the annotation of that number is, with its own measures; null when it is none.
    std::unique_ptr<EltTxt> LitContenu(int numero);
    template <class Cote>
    std::unique_ptr<EltTxt> LitCoteLineaire();
    template <class Cote>
    std::unique_ptr<EltTxt> LitCoteCirculaire();
    std::unique_ptr<EltTxt> LitCoteAng();
    std::unique_ptr<EltTxt> LitTexte();

    Tete LitTete();
    EltSegment LitRecordSegment();
    EltArc LitRecordArc();
    Glib::ustring LitLigne();
    void SauteEntiers(int nombre);

    Lecteur Entree;
    BilanLecture Bilan_;
};
