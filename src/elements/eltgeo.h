#pragma once

#include <glibmm/ustring.h>

#include <memory>

#include "elements/liste.h"
#include "elements/minorant.h"
#include "elements/pointvek.h"
#include "elements/trait.h"
#include "elements/types.h"

class DC3D;
class Elt3d;
class Trace;

/// Number of the grabbed handle while an element is deformed: 0 none, 1 the whole element, the
/// others as each class says. One for the program, since one element is deformed at a time.
extern int PoigneeCourante;

/// Base of everything that a drawing holds. Lengths and positions are drawing units. An element
/// belongs to the container that holds it; `Fils` only refers to other elements of the same
/// container.
class EltGeo {
  public:
    explicit EltGeo(int type = TypeGeo);
    EltGeo(const PointVek& position, int calque);

    /// The copy refers to the same children without being counted as their parent.
    EltGeo(const EltGeo& source);
    EltGeo& operator=(const EltGeo&) = delete;
    virtual ~EltGeo() = default;

    virtual std::unique_ptr<EltGeo> Clone() const;

    /// Takes over everything from a source of the same class but the type and the number of
    /// parents. The children's own counts are the caller's matter (`VideFils`, `ReferenceFils`).
    virtual void Copie(const EltGeo& source);

    /// Paints the element on screen, style included; base: a cross.
    virtual void Dessine(Trace& trace) const;

    /// Paints the grab handles of the picked element; base: one square at the position.
    virtual void DessinePoignees(Trace& trace) const;

    Glib::ustring Nom() const;

    virtual void Place(const PointVek& p);
    virtual void Deplace(const PointVek& v);
    virtual void Transforme(const TransformeColle& t);

    /// Takes the style; a class without surface takes no fill and no hatch.
    virtual void ChangeTrait(const Trait& trait);

    /// Chooses the handle that p grabs.
    virtual void DebutDeforme(const PointVek& p);

    /// Moves the grabbed handle by v.
    virtual void Deforme(const PointVek& v);

    /// Writes the element's record, type code first.
    virtual void Sauve(Ecrivain& sortie) const;

    /// Reads the record behind its type code. After a failure of the reader the fields that were
    /// not reached keep their values.
    virtual void Charge(Lecteur& entree);

    virtual double Distance(const PointVek& p) const;

    /// Distance to what carries the element: the endless line, the full circle.
    virtual double DistanceSupport(const PointVek& p) const;

    /// At or below `Distance` and `DistanceSupport` for every point.
    virtual Minorant MinorantDistance() const;

    /// Computes the derived fields from the defining ones.
    virtual void Recalcule() {}

    PointVek Centre() const { return Position; }

    /// The special point (end, middle, corner) nearest to p.
    virtual PointVek PointProche(const PointVek& p) const;

    /// Asks the user for what defines the element, and takes it on; false when he gives up. Defined
    /// beside its dialog.
    virtual bool Proprietes();

    /// A vector along the element; null when the element is too small to be kept.
    virtual PointVek Direction() const;

    /// False when a coordinate or a measure is not finite.
    virtual bool EstFini() const;

    /// False for what must not enter a drawing: what is not finite, or smaller than `Epsilon`.
    virtual bool EstValide() const;

    // What the 3D view needs. Points are those of the world, in drawing units.

    /// The body alone, in white when couleur is false; base: nothing.
    virtual void Dessine3D(DC3D&, bool /*couleur*/) const {}

    /// The body alone, kept for the next picture. Defined by the 3D view.
    void DessineCorps3D(DC3D& dc, bool couleur) const;

    /// The body less its subtractive children. Defined by the 3D view.
    void Dessine3DCSG(DC3D& dc) const;

    /// One white point at the position. Defined by the 3D view.
    void DessinePoint3D() const;

    /// The wire that marks the element as selected; base: nothing.
    virtual void DessineFilaire(DC3D&) const {}

    /// Null for what is no solid.
    virtual Elt3d* GetElt3d() { return nullptr; }
    const Elt3d* GetElt3d() const { return const_cast<EltGeo*>(this)->GetElt3d(); }

    /// Takes what a dialog has edited, and no more than its class has a use for.
    virtual void ChangeElt3d(const Elt3d&) {}

    virtual double Distance3D(const PointVek& p) const;
    virtual PointVek PointProche3D(const PointVek& p) const;
    virtual void DebutDeforme3D(const PointVek& p);
    virtual void Deforme3D(const PointVek& v);

    void AjouteFils(EltGeo* fils);

    /// Lowers the child's count even when it was not in the list, as `ReferenceFils` raises it
    /// without touching the list.
    void RetireFils(EltGeo* fils);
    void VideFils();

    /// Counts this element as a parent of each of its children, as an added clone must.
    void ReferenceFils();

    PointVek Position;
    Liste<EltGeo> Fils{false};
    int NbParents = 0;  ///< How many elements of the drawing hold this one as a child.
    int Type;
    Trait Style;
    int Calque = 0;

  protected:
    /// Writes the record common to all elements with that position.
    void SauveCommun(Ecrivain& sortie, const PointVek& position) const;

    /// Marks a place in pixels by two lines of bras pixels to each side.
    void DessineCroix(Trace& trace, const PointVek& p, double bras) const;

    void CopieFils(const EltGeo& source);
};
