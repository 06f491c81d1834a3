#pragma once

#include <cmath>
#include <vector>

#include "elements/eltgeo.h"

/// A compact image of a list of elements, made when it is first needed, through which a search
/// measures only the few elements that can win and a repaint visits only those that may show.
/// Whoever changes the list or an element's geometry calls `Perime`.
class TableRecherche {
  public:
    void Perime() { AJour = false; }

    /// Follows an insertion at the head of the list, at no cost that grows with the list.
    void AjouteDebut(EltGeo* elt) {
        if (!AJour) return;
        Lignes.push_back({elt->MinorantDistance(), elt});
        if (elt->Type == TypeBDD) Groupes.push_back(elt);
    }

    /// The admitted element of the smallest mesure(element), the one nearest to the head among
    /// equals, with that measure in distance; null when there is none. mesure answers at or above
    /// the element's `MinorantDistance`.
    template <class Mesure, class Admet>
    EltGeo* PlusProche(const Liste<EltGeo>& elements, const PointVek& p, const Mesure& mesure,
                       const Admet& admet, double& distance) {
        if (!AJour) Refait(elements);
        constexpr double garde = 1.0 - 1e-9;  // The bound may be off by rounding.
        EltGeo* trouve = nullptr;
        distance = HUGE_VAL;
        for (auto ligne = Lignes.rbegin(); ligne != Lignes.rend(); ++ligne) {
            if (!(ligne->Borne.Distance(p) * garde < distance) || !admet(*ligne->Elt)) continue;
            const double d = mesure(*ligne->Elt);
            if (!(d < distance)) continue;
            distance = d;
            trouve = ligne->Elt;
        }
        return trouve;
    }

    /// Calls action on the elements that may lie in the box (drawing units), from head to tail.
    template <class Action>
    void Parcourt(const Liste<EltGeo>& elements, const Boite& boite, const Action& action) {
        if (!AJour) Refait(elements);
        for (auto ligne = Lignes.rbegin(); ligne != Lignes.rend(); ++ligne)
            if (ligne->Borne.PeutToucher(boite)) action(*ligne->Elt);
    }

    /// The first group, from the head, for which choisi answers true; null when there is none.
    template <class Choisi>
    EltGeo* PremierGroupe(const Liste<EltGeo>& elements, const Choisi& choisi) {
        if (!AJour) Refait(elements);
        for (auto groupe = Groupes.rbegin(); groupe != Groupes.rend(); ++groupe)
            if (choisi(**groupe)) return *groupe;
        return nullptr;
    }

  private:
    struct Ligne {
        Minorant Borne;
        EltGeo* Elt;
    };

    void Refait(const Liste<EltGeo>& elements);

    // From tail to head, so that new elements come last.
    std::vector<Ligne> Lignes;
    std::vector<EltGeo*> Groupes;
    bool AJour = false;
};
