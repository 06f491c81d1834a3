#pragma once

#include <deque>
#include <optional>

#include "elements/pointvek.h"

/// The views that were left, the newest last, for coming back to them.
class VuesPrecedentes {
  public:
    static constexpr int Maximum = 20;

    /// The view in force may be another one than when this was last called. A slide that goes on
    /// with the one before it, as suite says or by a few pixels, leaves no view of its own.
    void Note(bool suite = false);

    /// Brings the view before back; false when there is none.
    bool Revient();

  private:
    struct Vue {
        PointVek Origine;
        double Facteur;
    };

    std::deque<Vue> Quittees;
    std::optional<Vue> Presente;
    bool Glisse = false;  ///< The last change was a slide by a few pixels.
};
