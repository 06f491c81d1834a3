#pragma once

#include <glibmm/refptr.h>

#include <memory>

namespace Gdk {
class Window;
}
namespace Gtk {
class Widget;
}

/// The eight things that GL needs of the window system, for one widget: 8 bits for each of red,
/// green, blue and alpha, two buffers, 24 bits of depth or more, 8 of stencil.
///
/// They are called in the order in which they stand here; each but the last three answers false
/// when the window system cannot do it, and then the ones behind it are not called.
class PlateformeGL {
  public:
    PlateformeGL();

    /// Lets go of what is still held.
    ~PlateformeGL();
    PlateformeGL(const PlateformeGL&) = delete;
    PlateformeGL& operator=(const PlateformeGL&) = delete;

    /// Looks for the format on the toolkit's screen.
    bool ChoisitFormat();

    /// Gives the format to a widget that is not realised yet.
    bool PoseFormat(Gtk::Widget& widget);

    /// Takes the widget's window once there is one.
    bool LieFenetre(const Glib::RefPtr<Gdk::Window>& fenetre);

    bool CreeContexte();

    /// From here on the calls of GL draw in that window.
    bool RendCourant();

    /// Shows what is drawn.
    void Echange();

    void SupprimeContexte();

    /// Must come before the window is destroyed.
    void LibereFenetre();

  private:
    struct Natif;
    std::unique_ptr<Natif> Partie;
};
