#pragma once

#include "zone/ligneetat.h"
#include "zone/machine.h"

// Clicks and bands that several families share. Proto names the prototype that a tool fills, as
// in `&Prototypes::Arc`.

/// Takes the element nearest to p as the tool's first one.
bool PrendElement(Machine& outils, const PointVek& p);

/// Adds a copy of the prototype to the drawing as a child of the tool's first element.
void Attache(Machine& outils, const EltGeo& prototype);

// A circle, or what is drawn like one: its centre, then a point.

template <auto Proto>
bool PrendCentre(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetCentreDefaut(p);
    return true;
}

template <auto Proto>
Bande BandeRond(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetRayonPoint(p);
    return BandeDe(outils.Protos.*Proto);
}

template <auto Proto>
bool FinRond(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetRayonPoint(p);
    outils.Ajoute(outils.Protos.*Proto);
    return true;
}

template <auto Proto>
bool AttacheRond(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetRayonPoint(p);
    Attache(outils, outils.Protos.*Proto);
    return true;
}

// A rectangle, or what is drawn like one: two opposite corners.

template <auto Proto>
bool PrendCoin(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetPoints(p, p);
    return true;
}

template <auto Proto>
Bande BandeCoins(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetExtremite(p);
    return BandeDe(outils.Protos.*Proto);
}

template <auto Proto>
bool FinCoins(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetExtremite(p);
    (outils.Protos.*Proto).Ordonne();
    outils.Ajoute(outils.Protos.*Proto);
    return true;
}

template <auto Proto>
bool AttacheCoins(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetExtremite(p);
    (outils.Protos.*Proto).Ordonne();
    Attache(outils, outils.Protos.*Proto);
    return true;
}
