#pragma once

#include <gdkmm/window.h>

#include <array>

#include "zone/bande.h"

/// What lies over the picture of a window: the handles of the picked element, the preview of the
/// tool, the snap marker. Each is painted with the exclusive-or function straight on the window,
/// and this class knows what it painted: it can take it away again to the pixel.
class Surimpression {
  public:
    enum Place { Poignees, Apercu, Repere, NombrePlaces };

    /// Changes what one place shows, at once on the window unless it is to be repainted whole.
    void Montre(Place place, Bande bande);

    bool Visible(Place place) const { return static_cast<bool>(Bandes[place]); }

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
    std::array<Bande, NombrePlaces> Bandes;
    bool RepeinteAttendue = true;
};
