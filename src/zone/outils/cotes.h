#pragma once

#include "zone/outils/communs.h"
#include "zone/zonedessin.h"

// Clicks and previews of the tools that fill a dimension, for the prototype named by Proto. A
// preview shows the value as it is at that moment, like the dimension that the last click places.

template <auto Proto>
bool PrendPoint1(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).SetPoint1(p);
    return true;
}

template <auto Proto>
Bande ApercuPoint2(ZoneDessin& zone, const PointVek& p) {
    auto& cote = zone.Protos.*Proto;
    cote.SetPoint2(p);
    cote.Texte = cote.TexteValeur();
    return BandeDe(cote);
}

template <auto Proto>
bool PrendPoint2(ZoneDessin& zone, const PointVek& p) {
    ApercuPoint2<Proto>(zone, p);
    return true;
}

template <auto Proto>
Bande ApercuLigne(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).PlaceLigne(p);
    return BandeDe(zone.Protos.*Proto);
}

template <auto Proto>
bool PoseLigne(ZoneDessin& zone, const PointVek& p) {
    ApercuLigne<Proto>(zone, p);
    zone.Ajoute(zone.Protos.*Proto);
    return true;
}
