#pragma once

#include <sigc++/signal.h>
#include <sigc++/trackable.h>

#include <memory>
#include <optional>

#include "model/bddgeoclipboard.h"
#include "zone/etats.h"
#include "zone/prototypes.h"

class LigneEtat;
class Pointeur;
class VueZone;
struct PointAccroche;

/// The engine of the tools: what a tool does state by state stands in the rows under `outils/`;
/// this class walks them, and holds what they work with.
class Machine : public sigc::trackable {
  public:
    /// Both outlive the machine.
    Machine(VueZone& vue, Pointeur& pointeur);

    /// Enters a tool by its first state, after what it asks.
    void Entre(int etat);

    /// No tool is in force.
    void RazEtat();
    int EtatCourant() const { return Etat; }
    const LigneEtat& Ligne() const;

    /// Does what a click at p, in drawing units and snapped, does in the present state.
    void Clique(const PointVek& p);

    /// Where a click would act though the pointer is elsewhere; none where it acts at the pointer,
    /// or does nothing.
    std::optional<PointAccroche> ClicDeplace() const;

    /// The band goes to that point instead of the pointer, until it is given back with none.
    void Impose(const std::optional<PointVek>& p);

    /// Ends an open ring; nothing elsewhere.
    void Finit();

    /// Shows what the tool would do with the pointer where it is.
    void MontreBande();
    void MontrePoignees();

    /// Shows all bands anew, after they were hidden.
    void MontreBandes();

    /// Tells the row of the state when it is entered, and after each click.
    sigc::signal<void, const LigneEtat&>& SignalEtat() { return Etats; }

    // What changes around the tool.

    /// Repaints after something in the drawing was changed or taken away.
    void DessinChange();

    /// The same where what a drag holds may be among it: the drag is given up.
    void DessinRepris();

    /// The drawing is another one, or the tool is to be left with all that it shows.
    void Recommence();

    /// Repaints after a change of the view: the pointer's position follows from its pixel. suite
    /// tells that the change goes on with the one before it.
    void VueChangee(bool suite = false);

    /// Displays one layer, or all with -1; what is hidden by it is let go.
    void SetCalqueAffiche(int calque);

    /// Enters a state of pasting with what it places.
    void EntreCollage(std::shared_ptr<BDDGeoClipboard> collage, int etat);

    // What the rows of the tools work with.

    /// Asks for a repaint of the whole area.
    void Redessine();

    /// Adds a copy of the prototype to the drawing.
    void Ajoute(const EltGeo& prototype);

    /// Takes what a pick found as the tool's first element; false when it found nothing.
    bool Prend(EltGeo* trouve);

    /// The same as the second one; false too when it is the first one again.
    bool PrendSecond(EltGeo* trouve);

    /// Asks for `Rayon`; false when the user gives up.
    bool DemandeRayon();

    VueZone& Vue;
    Prototypes Protos;
    EltGeo* EltCourant = nullptr;  ///< Found by the last pick; the drawing's.
    EltGeo* EltSecond = nullptr;   ///< The second element of a tool; the drawing's.
    PointVek PointDepart;          ///< Reference point of a drag, or first point of an arc.
    PointVek PointPrecedent;       ///< Second point of an arc.
    std::shared_ptr<BDDGeoClipboard> Collage;  ///< What waits to be pasted; null before any.
    double Rayon = 10.0;                       ///< Radius asked for last.
    unsigned Touche = 0;                       ///< Key held, 0 after any release.

  private:
    void MetEtat(int etat);

    /// Lets go of an element that leaves the drawing, of all with null.
    void LaisseElement(EltGeo* elt);

    /// The element has another content now: it is no longer where its drag began.
    void ElementRepris(const EltGeo* elt);

    /// Gives up the drag of an element.
    void LaisseDeplacement();

    Pointeur& Souris;
    std::optional<PointVek> Impose_;  ///< Where the band goes to in the pointer's place.
    int Etat = ETAT_REPOS;
    sigc::signal<void, const LigneEtat&> Etats;
};
