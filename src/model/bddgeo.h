#pragma once

#include <sigc++/signal.h>

#include <string>
#include <string_view>
#include <vector>

#include "model/annulation.h"
#include "model/bddgeobase.h"
#include "model/bddgeoclipboard.h"
#include "model/tablerecherche.h"

class EltBDD;
class EltRectangle;

/// The drawing: elements with undo, the searches at a point, and the file.
///
/// Distances and positions are drawing units. Every change of an element or of its children goes
/// through here: what can be undone is a step of the history, and the searches work on a table of
/// the geometry.
class BDDGeo : public BDDGeoBase {
  public:
    EltGeo* AjouteDebut(std::unique_ptr<EltGeo> elt) override;
    EltGeo* AjouteFin(std::unique_ptr<EltGeo> elt) override;

    /// Also forgets the undo records and the file.
    void Vide() override;

    /// The same picture, from the elements alone that may show in it.
    void Dessine(Trace& trace) const override;

    /// Takes a new element in at the head, with an undo record. An element that is not valid is
    /// destroyed, and the answer is null.
    EltGeo* Ajoute(std::unique_ptr<EltGeo> elt);

    /// The same with a copy of a prototype.
    EltGeo* Ajoute(const EltGeo& prototype);

    /// The same, the copy becoming a child of parent, an element of the list. One step to undo.
    void AjouteFils(EltGeo& parent, const EltGeo& prototype);

    /// The same, the copy taking elements of the list as its children, in that order.
    void AjouteParent(const EltGeo& prototype, const std::vector<EltGeo*>& fils);

    /// Gives cible, an element of the list, the content of source, with an undo record. False, with
    /// nothing done, when source is not finite or less valid than cible was.
    bool Change(EltGeo& cible, const EltGeo& source);

    /// The same without one.
    bool ChangeSansRetour(EltGeo& cible, const EltGeo& source);

    /// The same with a source that was moved as a whole by v: all that cible holds, directly or
    /// not, moves along, once. One step to undo.
    bool ChangeEnsemble(EltGeo& cible, const EltGeo& source, const PointVek& v);

    /// Asks the user for the properties of an element of the list, with an undo record. False when
    /// he gives up, or when the element has left the drawing meanwhile.
    bool DemandeProprietes(EltGeo& elt);

    /// Undoes the newest step; false when there is none. `Modifie` stays as it is.
    bool Annule();

    /// The visible element nearest to p, when it is nearer than the pick distance; else null.
    EltGeo* Cherche(const PointVek& p);
    EltGeo* ChercheType(const PointVek& p, int type);

    /// The same, measured to the supports when support is true; remembered whatever its distance.
    EltGeo* ChercheProche(const PointVek& p, bool support);

    /// The same among all but the one that `ChercheProche` remembered.
    EltGeo* ChercheAutre(const PointVek& p, bool support);

    /// The visible elements of which something may lie within the pick distance of p, from the head
    /// on.
    std::vector<const EltGeo*> VisiblesPres(const PointVek& p) const;

    /// The visible element nearest in space to p, when it is nearer than 10 drawing units whatever
    /// the view; else null.
    EltGeo* Cherche3D(const PointVek& p) const;

    // Commands on the element at a point; false when there is none. An element that another holds
    // as a child is not removed.
    bool Efface(const PointVek& p);

    /// Asks the user for the element's properties. The drawing counts as modified whatever he
    /// answers, and what he changes cannot be undone, as users of the popup know it.
    bool ProprieteProche(const PointVek& p);
    bool Avant(const PointVek& p);
    bool Arriere(const PointVek& p);

    /// The group of that name nearest to the head, null when there is none; of the drawing itself,
    /// not of groups within groups.
    const EltBDD* ChercheBDD(const Glib::ustring& identificateur) const;

    /// Fills `PressePapier` with clones of the visible elements in the zone, groups left out, and
    /// when couper takes the elements away, but for those that another one holds.
    void CopieZone(const EltRectangle& zone, bool couper);

    /// Adds clones of what is to be pasted, brought to p, on that layer.
    void Coller(const BDDGeoClipboard& collage, const PointVek& p, int calque);

    /// Adds what is to be pasted as a group at p, without undo: the group stands for good, since
    /// images refer to it by name alone.
    void CollerCommeBDD(const BDDGeoClipboard& collage, const PointVek& p,
                        const Glib::ustring& identificateur);

    /// How many images of what is to be pasted would show nothing: the drawing has no group of the
    /// name that they bear.
    int ImagesSansGroupe(const BDDGeoClipboard& collage) const;

    /// Gives the style to all visible elements in the rectangle, without undo and without marking
    /// the drawing as modified: to users a style is a setting of the view.
    void ChangeTraitZone(const EltRectangle& zone, const Trait& trait);

    /// Replaces the drawing by a file's. What cannot be read leaves an empty or partly read drawing
    /// that bears the file's name all the same.
    void Ouvre(std::string nom);

    /// Writes the drawing to its file. False when it did not reach the disk; errno says why.
    bool Enregistre();
    bool EnregistreSous(std::string nom);

    /// Replaces the drawing by the text of a copy of one that was not saved; nom is the file that
    /// it was to go to, empty for none. It is to be saved, under a name that will be asked for.
    void Recupere(std::string_view texte, std::string nom);

    /// Whether the next writing to the drawing's file keeps the former one beside it: not all of it
    /// was read, or something else has written it since.
    bool GarderaOriginal() const;

    /// Whether the drawing differs from what has reached the disk: `Modifie` does not tell what an
    /// undo, a cut or a change of styles did, nor that a file could not be written.
    bool AEnregistrer() const { return Modifie || NbChangements != NbEcrits; }

    /// A count that moves with every change of what a file would hold.
    unsigned long Changements() const { return NbChangements; }

    /// Tells of every such change, after it.
    sigc::signal<void>& SignalChangement() { return SignauxChangement; }

    /// Tells that an element is about to leave the drawing, or with null that all are: whoever
    /// holds one lets go of it.
    sigc::signal<void, EltGeo*>& SignalRetrait() { return Retrait; }

    /// Tells that a step of the history has given an element another content.
    sigc::signal<void, const EltGeo*>& SignalReprise() { return Reprise; }

    // What the steps of the history are made of: nothing is remembered.

    /// Something that a file would hold has changed.
    void NoteChangement();

    /// Takes an element in behind the first rang ones.
    void Insere(std::unique_ptr<EltGeo> elt, int rang);

    /// Takes an element out of the list and out of every child list; the caller owns it then. It
    /// lets go of its own children, which it keeps in its list where garde is true. Null when the
    /// list has no such element.
    std::unique_ptr<EltGeo> Detache(EltGeo* elt, bool garde);

    /// The same for many in one walk, given in the order of the list or in the opposite one: each
    /// at its rank in the argument.
    std::vector<std::unique_ptr<EltGeo>> Detache(const std::vector<EltGeo*>& elements, bool garde);

    /// Gives cible, an element of the list, the content of source.
    void Remplace(EltGeo& cible, const EltGeo& source);

    Historique Histoire{*this};
    BilanLecture Lecture;          ///< Of the file that the drawing came from.
    BDDGeoClipboard PressePapier;  ///< What is offered to the system clipboard.
    TransformeColle Transforme;    ///< What every paste undergoes.

    std::string NomFichier;  ///< In the encoding of file names.
    bool Nomme = false;      ///< `NomFichier` names a file of the present format.

    /// A file that holds more than what was read of it: before the drawing is written over it, it
    /// is kept under another name. Empty for none.
    std::string Original;

    /// Where the last writing put what the file held before; empty for nowhere.
    std::string OriginalGarde;

  private:
    /// The drawing's file holds that now.
    void NoteFichier(std::string_view contenu);

    template <class Admet>
    EltGeo* ChercheSelon(const PointVek& p, bool support, const Admet& admet, double& distance);

    /// Unlinks the element, which has left the list, from its parents and children.
    void Delie(EltGeo& elt, bool garde);

    /// Unlinks the element at p, for a change of its place in the stack.
    std::unique_ptr<EltGeo> Decroche(const PointVek& p);

    EltGeo* DernierTrouve = nullptr;
    mutable TableRecherche Table;
    sigc::signal<void, EltGeo*> Retrait;
    unsigned long NbChangements = 0;
    std::string EtatFichier;  ///< Of the drawing's file when it was last read or written.
    std::string EtatGarde;    ///< Of the file when a copy of it was last kept.
    /// Of the file's content when it was last read or written.
    std::size_t EmpreinteFichier = 0;
    unsigned long NbEcrits = 0;  ///< That count when the file was last known to hold the drawing.
    sigc::signal<void> SignauxChangement;
    sigc::signal<void, const EltGeo*> Reprise;
};

/// The drawing of the program.
extern BDDGeo BddCourante;
