#pragma once

#include "elements/eltarc.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"

/// One scratch element of each class: a tool fills it click after click, previews it, and a copy of
/// it goes into the drawing. Each keeps the style and layer given last.
struct Prototypes {
    EltDroite Droite;
    EltSegment Segment;
    EltArc Arc;
    EltDisque Disque;
    EltRectangle Rectangle;

    void DiffuseTrait(const Trait& trait);
    void SetCalque(int calque);

  private:
    template <class Action>
    void Chacun(const Action& action);
};
