#pragma once

#include <gdkmm/window.h>

#include <array>
#include <functional>

class EltGeo;
class Trace;

/// What the pointer shows over the picture, painted so that painting it a second time erases it. It
/// holds all that it needs: it paints the same whatever changes around it. Empty: nothing.
using Bande = std::function<void(Trace&)>;

/// A band that paints the element as it is now.
Bande BandeDe(const EltGeo& elt);

/// The bands over the picture of a window: the handles of the picked element, what the tool would
/// do, the snap marker. Each is painted with the exclusive-or function straight on the window, and
/// this class knows what it painted: it can take it away again to the pixel.
class Bandes {
  public:
    enum Place { Poignees, Outil, Reference, Repere, NombrePlaces };

    /// Changes what one place shows, at once on the window unless it is to be repainted whole.
    void Montre(Place place, Bande bande);

    /// Shows nothing any more.
    void CacheTout();

    bool Visible(Place place) const { return static_cast<bool>(Montrees[place]); }

    /// The whole window will be repainted: until then nothing needs to be painted or erased.
    void AttendRepeinte() { RepeinteAttendue = true; }

    /// Paints all places over what an exposure has just painted; entiere when it covers the window.
    void Expose(bool entiere);

    /// The window to paint on, null when there is none, and its background.
    void MetFenetre(const Glib::RefPtr<Gdk::Window>& fenetre) { Fenetre = fenetre; }
    void MetFond(const Gdk::Color& fond) { Fond = fond; }

  private:
    void Peint(const Bande& bande) const;

    Glib::RefPtr<Gdk::Window> Fenetre;
    Gdk::Color Fond;
    std::array<Bande, NombrePlaces> Montrees;
    bool RepeinteAttendue = true;
};
