#pragma once

#include <memory>
#include <vector>

#include "elements/eltgeo.h"

class BDDGeo;

/// One step of a drawing's history. It knows how it is done and how it is undone, any number of
/// times in turn, and owns the elements that are out of the drawing meanwhile. Steps are undone
/// from the newest to the oldest; one whose element has left the drawing some other way does
/// nothing.
class Pas {
  public:
    virtual ~Pas() = default;
    virtual void Fait(BDDGeo& bdd) = 0;
    virtual void Defait(BDDGeo& bdd) = 0;
};

/// A new element enters at the head; done again, where it was undone.
class PasAjout : public Pas {
  public:
    explicit PasAjout(std::unique_ptr<EltGeo> elt);
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override;

    /// The element, the drawing's once the step is done.
    EltGeo* Element() const { return Cible; }

  private:
    std::unique_ptr<EltGeo> Sorti;
    EltGeo* const Cible;
    int Rang = 0;  ///< Where it enters.
};

/// Elements are pasted: the last of them comes to stand at the head; done again, where they were
/// undone.
class PasCollage : public Pas {
  public:
    explicit PasCollage(std::vector<std::unique_ptr<EltGeo>> elements);
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override;

  private:
    std::vector<std::unique_ptr<EltGeo>> Sortis;
    std::vector<EltGeo*> Cibles;  ///< The same, wherever they are.
    std::vector<int> Rangs;       ///< Where each enters, behind those before it.
};

/// An element is deleted, and lets go of its children. Undone it comes back at the tail and not at
/// its old place: users find it on top.
class PasRetrait : public Pas {
  public:
    explicit PasRetrait(EltGeo& elt) : Cible(&elt) {}
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override;

  private:
    std::unique_ptr<EltGeo> Sorti;
    EltGeo* const Cible;
};

/// Elements are cut; they keep their children for the day they come back, at the tail too.
class PasCoupe : public Pas {
  public:
    explicit PasCoupe(std::vector<EltGeo*> elements);
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override;

  private:
    const std::vector<EltGeo*> Cibles;
    std::vector<std::unique_ptr<EltGeo>> Sortis;  ///< Each at the rank of its pointer above.
};

/// An element of the drawing takes another content.
class PasChange : public Pas {
  public:
    /// For a change that has been made in place: avant is a clone of the element before it.
    PasChange(EltGeo& cible, std::unique_ptr<EltGeo> avant);
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override { Fait(bdd); }

  private:
    EltGeo* const Cible;
    std::unique_ptr<EltGeo> Autre;  ///< The content that is not in force.
};

/// An element of the drawing becomes a child of another one.
class PasLien : public Pas {
  public:
    PasLien(EltGeo& parent, EltGeo& fils) : Parent(&parent), Fils(&fils) {}
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override;

  private:
    EltGeo* const Parent;
    EltGeo* const Fils;
    bool Lie = true;  ///< The link is to be made: the parent may have lost the child on the way.
};

/// Several steps that are one to the user.
class PasEnsemble : public Pas {
  public:
    void Ajoute(std::unique_ptr<Pas> pas) { Tous.push_back(std::move(pas)); }
    void Fait(BDDGeo& bdd) override;
    void Defait(BDDGeo& bdd) override;

  private:
    std::vector<std::unique_ptr<Pas>> Tous;
};

/// What has been done to a drawing and can be undone, and what was undone and can be done again
/// until something else changes.
class Historique {
  public:
    explicit Historique(BDDGeo& bdd) : Bdd(bdd) {}

    /// Does the step, and remembers it.
    void Fait(std::unique_ptr<Pas> pas);

    /// Remembers a step that has been done.
    void Note(std::unique_ptr<Pas> pas);

    /// Undoes the newest step; false when there is none.
    bool Annule();

    /// Does again the step that was undone last; false when there is none.
    bool Refait();

    void Vide();

  private:
    using Pile = std::vector<std::unique_ptr<Pas>>;

    /// Brings the newest step of one pile to the other one by the operation; false without one.
    bool Passe(Pile& de, Pile& vers, void (Pas::*operation)(BDDGeo&));

    /// Forgets what was undone where the drawing has changed since: it may not fit any more.
    void OublieSiChange();

    BDDGeo& Bdd;
    Pile Faits;    ///< The newest last.
    Pile Defaits;  ///< The one undone last is last.

    /// The drawing's count of changes when a step was last undone or redone.
    unsigned long Vu = 0;
};
