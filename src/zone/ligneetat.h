#pragma once

#include <gdkmm/cursor.h>

#include "elements/pointvek.h"
#include "zone/bandes.h"
#include "zone/etats.h"

class Machine;

/// One row of the tool machine: everything that it does in one state. A row is written as a chain
/// that starts with its number, the first state of its tool's ring and its prompt; what is not
/// named does nothing.
class LigneEtat {
  public:
    LigneEtat(int numero, int premier, const char* invite)
        : Numero(numero), Premier(premier), Invite(invite) {}

    /// What a click at p (drawing units, snapped) does. True goes on to the state suivant, false
    /// keeps the state.
    using ActionClic = bool (*)(Machine& outils, const PointVek& p);
    LigneEtat& AuClic(ActionClic clic, int suivant) {
        Clic = clic;
        Suivant = suivant;
        return *this;
    }

    /// Brings the prototype to the pointer at p (drawing units, not snapped) and answers the band
    /// that shows it; empty when there is nothing to show.
    using ActionBande = Bande (*)(Machine& outils, const PointVek& p);
    LigneEtat& Montre(ActionBande bande) {
        BandeVers = bande;
        return *this;
    }

    /// What is asked before the tool is entered; false leaves the former tool in force.
    using ActionEntree = bool (*)(Machine& outils);
    LigneEtat& Demande(ActionEntree entree) {
        Entree = entree;
        return *this;
    }

    /// What the End key does in an open ring, before the state goes to suivant.
    using ActionFin = void (*)(Machine& outils);
    LigneEtat& ALaFin(ActionFin fin, int suivant) {
        Fin = fin;
        SuivantFin = suivant;
        return *this;
    }

    LigneEtat& Pointe(Gdk::CursorType curseur) {
        Curseur = curseur;
        return *this;
    }

    /// The click keeps its own position where a snap marker is shown.
    LigneEtat& SansRepere() {
        IgnoreRepere = true;
        return *this;
    }

    /// The current element shows its handles.
    LigneEtat& AvecPoignees() {
        MontrePoignees = true;
        return *this;
    }

    int Numero;
    int Premier;
    const char* Invite;
    ActionClic Clic = nullptr;
    int Suivant = ETAT_REPOS;
    ActionBande BandeVers = nullptr;
    ActionEntree Entree = nullptr;
    ActionFin Fin = nullptr;
    int SuivantFin = ETAT_REPOS;
    Gdk::CursorType Curseur = Gdk::CROSS;
    bool IgnoreRepere = false;
    bool MontrePoignees = false;
};
