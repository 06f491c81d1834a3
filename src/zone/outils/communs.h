#pragma once

#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

// Clicks and previews that several families share. Proto names the prototype that a tool fills, as
// in `&Prototypes::Arc`.

/// Takes the element nearest to p as the tool's first one.
bool PrendElement(ZoneDessin& zone, const PointVek& p);

/// Adds a copy of the prototype to the drawing as a child of the tool's first element.
void Attache(ZoneDessin& zone, const EltGeo& prototype);

// A circle, or what is drawn like one: its centre, then a point.

template <auto Proto>
bool PrendCentre(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetCentreDefaut(p);
    return true;
}

template <auto Proto>
Bande ApercuRond(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetRayonPoint(p);
    return BandeDe(zone.Protos.*Proto);
}

template <auto Proto>
bool FinRond(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetRayonPoint(p);
    zone.Ajoute(zone.Protos.*Proto);
    return true;
}

template <auto Proto>
bool AttacheRond(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetRayonPoint(p);
    Attache(zone, zone.Protos.*Proto);
    return true;
}

// A rectangle, or what is drawn like one: two opposite corners.

template <auto Proto>
bool PrendCoin(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetPoints(p, p);
    return true;
}

template <auto Proto>
Bande ApercuCoins(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetExtremite(p);
    return BandeDe(zone.Protos.*Proto);
}

template <auto Proto>
bool FinCoins(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetExtremite(p);
    (zone.Protos.*Proto).Ordonne();
    zone.Ajoute(zone.Protos.*Proto);
    return true;
}

template <auto Proto>
bool AttacheCoins(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetExtremite(p);
    (zone.Protos.*Proto).Ordonne();
    Attache(zone, zone.Protos.*Proto);
    return true;
}
