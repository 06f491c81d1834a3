#pragma once

#include <gtkmm/window.h>

#include "view3d/dessin3d.h"

/// The window of the 3D view. One for the program: hidden, it keeps its view as it was.
class Window3D : public Gtk::Window {
  public:
    /// bdd: the drawing shown, to outlive the window.
    explicit Window3D(BDDGeo& bdd);

    /// Tells that an edit has changed the drawing.
    sigc::signal<void>& SignalEdition() { return Dessin.SignalEdition(); }

  protected:
    bool on_key_press_event(GdkEventKey* evenement) override;
    bool on_configure_event(GdkEventConfigure* evenement) override;
    bool on_expose_event(GdkEventExpose* evenement) override;
    bool on_delete_event(GdkEventAny* evenement) override;

  private:
    Dessin3D Dessin;
};
