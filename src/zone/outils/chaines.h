#pragma once

#include <type_traits>

#include "model/bddgeo.h"
#include "zone/outils/communs.h"

// Clicks and previews of the tools that chain vertices, for the prototype named by Proto: a plain
// profile, or a solid made of one.

template <auto Proto>
bool PrendCentreProfil(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).Debut(p);
    return true;
}

template <auto Proto>
bool PrendSommet(ZoneDessin& zone, const PointVek& p) {
    (zone.Protos.*Proto).Ajoute(p);
    return true;
}

/// Follows the segment or arc nearest to p.
template <auto Proto>
bool SuitElement(ZoneDessin& zone, const PointVek& p) {
    const EltGeo* elt = BddCourante.Cherche(p);
    if (!elt || (elt->Type != TypeSegment && elt->Type != TypeArc)) return false;
    (zone.Protos.*Proto).AjouteElement(*elt);
    return true;
}

template <auto Proto>
Bande ApercuChaine(ZoneDessin& zone, const PointVek& p) {
    auto& profil = zone.Protos.*Proto;
    profil.SetProvisoire(p);
    const auto copie = std::make_shared<std::decay_t<decltype(profil)>>(profil);
    return [copie](Trace& trace) { copie->DessineEnCours(trace); };
}

template <auto Proto>
void FinChaine(ZoneDessin& zone) {
    zone.Ajoute(zone.Protos.*Proto);
}

template <auto Proto>
void AttacheChaine(ZoneDessin& zone) {
    Attache(zone, zone.Protos.*Proto);
}
