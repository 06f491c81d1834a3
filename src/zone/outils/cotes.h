#pragma once

#include "zone/machine.h"
#include "zone/outils/communs.h"

// Clicks and bands of the tools that fill a dimension, for the prototype named by Proto. A
// preview shows the value as it is at that moment, like the dimension that the last click places.

template <auto Proto>
bool PrendPoint1(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).SetPoint1(p);
    return true;
}

template <auto Proto>
Bande BandePoint2(Machine& outils, const PointVek& p) {
    auto& cote = outils.Protos.*Proto;
    cote.SetPoint2(p);
    cote.Texte = cote.TexteValeur();
    return BandeDe(cote);
}

template <auto Proto>
bool PrendPoint2(Machine& outils, const PointVek& p) {
    BandePoint2<Proto>(outils, p);
    return true;
}

template <auto Proto>
Bande BandeLigne(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).PlaceLigne(p);
    return BandeDe(outils.Protos.*Proto);
}

template <auto Proto>
bool PoseLigne(Machine& outils, const PointVek& p) {
    BandeLigne<Proto>(outils, p);
    outils.Ajoute(outils.Protos.*Proto);
    return true;
}
