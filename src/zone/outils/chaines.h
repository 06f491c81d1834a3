#pragma once

#include <type_traits>

#include "model/bddgeo.h"
#include "zone/outils/communs.h"

// Clicks and bands of the tools that chain vertices, for the prototype named by Proto: a plain
// profile, or a solid made of one.

template <auto Proto>
bool PrendCentreProfil(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).Debut(p);
    return true;
}

template <auto Proto>
bool PrendSommet(Machine& outils, const PointVek& p) {
    (outils.Protos.*Proto).Ajoute(p);
    return true;
}

/// Follows the segment or arc nearest to p.
template <auto Proto>
bool SuitElement(Machine& outils, const PointVek& p) {
    const EltGeo* elt = BddCourante.Cherche(p);
    if (!elt || (elt->Type != TypeSegment && elt->Type != TypeArc)) return false;
    (outils.Protos.*Proto).AjouteElement(*elt);
    return true;
}

template <auto Proto>
Bande BandeChaine(Machine& outils, const PointVek& p) {
    auto& profil = outils.Protos.*Proto;
    profil.SetProvisoire(p);
    const auto copie = std::make_shared<std::decay_t<decltype(profil)>>(profil);
    return [copie](Trace& trace) { copie->DessineEnCours(trace); };
}

template <auto Proto>
void FinChaine(Machine& outils) {
    outils.Ajoute(outils.Protos.*Proto);
}

template <auto Proto>
void AttacheChaine(Machine& outils) {
    Attache(outils, outils.Protos.*Proto);
}
