#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "elements/eltgeo.h"
#include "model/bilanlecture.h"

/// An ordered list of elements, which it owns: the head is painted first and lies underneath.
class BDDGeoBase {
  public:
    BDDGeoBase() = default;
    virtual ~BDDGeoBase() = default;
    BDDGeoBase(const BDDGeoBase&) = delete;
    BDDGeoBase& operator=(const BDDGeoBase&) = delete;

    /// Both answer the element, now the list's.
    virtual EltGeo* AjouteDebut(std::unique_ptr<EltGeo> elt);
    virtual EltGeo* AjouteFin(std::unique_ptr<EltGeo> elt);

    /// Destroys all elements.
    virtual void Vide();

    /// Paints the visible elements from head to tail.
    virtual void Dessine(Trace& trace) const;

    /// Reads a drawing's text and appends its elements. What could be read before a fault stays.
    BilanLecture Charge(Lecteur& entree);

    /// Replaces the content by that of the text.
    void ChargeTexte(std::string_view texte);

    /// Writes the drawing's text.
    void Ecrit(Ecrivain& sortie) const;

    /// The same; the drawing is not modified any more.
    void Sauve(Ecrivain& sortie);
    std::string SauveTexte();

    /// Whether the element's layer is displayed.
    bool EstVisible(const EltGeo& elt) const;

    int CalqueAffiche() const { return CalqueAffiche_; }

    /// The only layer to display, -1 for all.
    void SetCalqueAffiche(int calque) { CalqueAffiche_ = calque; }

    Liste<EltGeo> Elements{true};
    bool Modifie = false;    ///< The content differs from its file.
    bool AfficheBDD = true;  ///< Whether groups are painted.

  protected:
    void DessineElement(Trace& trace, const EltGeo& elt) const;

    /// Reads a drawing's text behind what is there; says so to the user, once, when a version in it
    /// is not one that can be read.
    BilanLecture LitTexte(std::string_view texte);

  private:
    /// Links from parent to child, by their ranks in the list.
    using LiensFils = std::vector<std::pair<int, int>>;

    /// False when the table ends before its end mark.
    bool ChargeFils(Lecteur& entree, LiensFils& liens, BilanLecture& bilan) const;
    /// How many links could not be made, since they close a loop.
    int RelieFils(const LiensFils& liens);
    void SauveFils(Ecrivain& sortie) const;

    int CalqueAffiche_ = -1;
};
