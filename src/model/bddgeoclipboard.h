#pragma once

#include "model/bddgeobase.h"

/// Elements on their way through the clipboard, relative to the corner of the zone that they come
/// from.
class BDDGeoClipboard : public BDDGeoBase {
  public:
    /// Paints the content as it would be placed at position.
    void DessineEn(Trace& trace, const PointVek& position) const;

    /// Turns, mirrors and scales every element.
    void TransformeTout(const TransformeColle& t);
};
