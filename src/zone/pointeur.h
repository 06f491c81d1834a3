#pragma once

#include <sigc++/signal.h>

#include <optional>

#include "elements/pointvek.h"
#include "zone/accrochage.h"

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

    /// Where a click at the pixel acts: snapped by the grid, or taken by the snap marker where
    /// avecRepere is true and it is shown.
    PointVek PositionClic(const PointVek& pixel, bool avecRepere) const;

    /// Toggles one of the snap options.
    void Bascule(bool OptionsAccrochage::*option);

    /// Tells the position whenever it is found anew.
    sigc::signal<void, const PointVek&>& SignalPosition() { return Positions; }

    OptionsAccrochage Options;

  private:
    VueZone& Vue;
    std::optional<PointVek> Pixel;   ///< None before the mouse came.
    PointVek Point;                  ///< The same in drawing units.
    std::optional<PointVek> Repere;  ///< The special point that a click would take, while shown.
    sigc::signal<void, const PointVek&> Positions;
};
