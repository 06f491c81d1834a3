#pragma once

#include <gdkmm/cursor.h>

#include "zone/bande.h"
#include "zone/etats.h"

class ZoneDessin;

/// One row of the tool machine: everything that it does in one state.
struct LigneEtat {
    int Numero;
    int Premier;  ///< First state of the tool's ring.
    const char* Invite;

    /// What a click at p (drawing units, snapped) does; true goes on to `Suivant`. Null: a click
    /// does nothing.
    bool (*Clic)(ZoneDessin& zone, const PointVek& p) = nullptr;
    int Suivant = ETAT_REPOS;

    /// Brings the prototype to the pointer at p (drawing units, not snapped) and answers what to
    /// preview. Null: the state has no band.
    Bande (*Apercu)(ZoneDessin& zone, const PointVek& p) = nullptr;

    /// What is asked before the tool is entered; false leaves the former tool in force.
    bool (*Entree)(ZoneDessin& zone) = nullptr;

    /// What the End key does in an open ring; then `SuivantFin`.
    void (*Fin)(ZoneDessin& zone) = nullptr;
    int SuivantFin = ETAT_REPOS;

    Gdk::CursorType Curseur = Gdk::CROSS;
    bool IgnoreRepere = false;    ///< The click keeps its own position where a marker is shown.
    bool MontrePoignees = false;  ///< The current element shows its handles.
};
