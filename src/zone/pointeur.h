#pragma once

#include <sigc++/signal.h>

#include <optional>
#include <vector>

#include "elements/pointvek.h"
#include "zone/pointsspeciaux.h"

class VueZone;

/// Where the mouse is in the drawing area, and what a click there would take.
class Pointeur {
  public:
    /// vue: the picture that the snap marker shows over, to outlive this.
    explicit Pointeur(VueZone& vue) : Vue(vue) {}

    /// The mouse is at that pixel of the area.
    void Suit(const PointVek& pixel);

    /// The view has changed: the position follows from the pixel, and the marker is gone until the
    /// mouse moves.
    void SuitVue();

    /// The position in drawing units, not snapped.
    const PointVek& Position() const { return Point; }

    /// Moves the snap marker to what the pointer is near to.
    void MajRepere();
    void CacheRepere();

    /// Brings the marker to the next of several special points near to the pointer, or with -1 to
    /// the one before.
    void PasseRepere(int pas);

    /// Where a click at the pixel acts, and what it is there: snapped by the grid, or taken by the
    /// snap marker where avecRepere is true and it is shown.
    PointAccroche PositionClic(const PointVek& pixel, bool avecRepere) const;

    /// The same where the pointer is; none before it came.
    std::optional<PointAccroche> Cible(bool avecRepere) const;

    /// Shows a mark at the reference point, or hides it.
    void MontreReference(bool montre);

    /// Toggles one of the snap options.
    void Bascule(bool OptionsAccrochage::*option);

    /// Tells the position whenever it is found anew.
    sigc::signal<void, const PointVek&>& SignalPosition() { return Positions; }

    /// Tells that a click may act elsewhere than it did.
    sigc::signal<void>& SignalCible() { return Cibles; }

    OptionsAccrochage Options;
    OptionsSpeciales Speciales;
    PointVek Reference;  ///< The point that was given last, in drawing units.

  private:
    VueZone& Vue;
    void MontreRepere();

    std::optional<PointVek> Pixel;      ///< None before the mouse came.
    PointVek Point;                     ///< The same in drawing units.
    std::vector<PointAccroche> Points;  ///< Those that a click may take, while the marker is shown.
    std::size_t Rang = 0;               ///< Of them the one that is marked.
    std::optional<PointVek> Choisi;     ///< The one that was passed on to, while the mouse rests.
    sigc::signal<void, const PointVek&> Positions;
    sigc::signal<void> Cibles;
};
