#pragma once

#include "elements/eltarc.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltpoint.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"

/// One scratch element of each class: a tool fills it click after click, previews it, and a copy of
/// it goes into the drawing. Each keeps the style and layer given last.
struct Prototypes {
    EltPoint Point;
    EltDroite Droite;
    EltSegment Segment;
    EltArc Arc;
    EltDisque Disque;
    EltTxt Txt;
    EltRectangle Rectangle;

    void DiffuseTrait(const Trait& trait);
    void SetCalque(int calque);

  private:
    template <class Action>
    void Chacun(const Action& action);
};
