#pragma once

#include <gtkmm/drawingarea.h>

#include <optional>
#include <string>
#include <vector>

#include "dialogs/commande.h"
#include "zone/machine.h"
#include "zone/pointeur.h"
#include "zone/pressepapier.h"
#include "zone/vuezone.h"

class BDDGeo;

/// The drawing area: it shows the drawing through the view, and turns clicks, motions and keys into
/// tools. It wires its rooms together: what shows, the mouse, the tools, the clipboard.
class ZoneDessin : public Gtk::DrawingArea {
  public:
    ZoneDessin();
    ~ZoneDessin() override;

    // Keys come through the window, each once.

    bool ToucheEnfoncee(const GdkEventKey* evenement);
    void ToucheRelachee();

    // File commands.

    void OuvreZone(const std::string& nom);

    /// Replaces the drawing by what the importer reads from the file.
    void Importe(void (*importeur)(BDDGeo&, std::string), const std::string& nom);
    void Nouveau();

    // Commands of the menus.

    void AnnuleAction();
    void RefaitAction();

    /// Gives the style in force to what the zone selection holds.
    void ZoneTrait();
    void ZoomPlusAction();
    void ZoomMoinsAction();
    void ZoomInitAction();
    void ToutVoir();
    void VuePrecedente();

    /// The menu of the right button and of the menu key.
    static const std::vector<Commande<ZoneDessin>>& CommandesPopup();

    /// Toggles one of the settings beyond the told preferences, and keeps them all.
    void BasculeReglage(bool& reglage);

    bool MoletteProgressive = false;  ///< The wheel zooms by a quarter, about the pointer.

    VueZone Vue;
    Pointeur Souris;
    Machine Outils;
    PressePapier Presse;

  protected:
    bool on_expose_event(GdkEventExpose* evenement) override;
    bool on_configure_event(GdkEventConfigure* evenement) override;
    bool on_button_press_event(GdkEventButton* evenement) override;
    bool on_motion_notify_event(GdkEventMotion* evenement) override;
    bool on_scroll_event(GdkEventScroll* evenement) override;
    void on_grab_notify(bool reprise) override;

  private:
    void SupPopup();
    void PropPopup();
    void AvantPopup();
    void ArrierePopup();

    /// The sheet follows the pointer, which is at that pixel.
    void GlisseFeuille(const PointVek& pixel);

    /// What a step of the wheel alone does.
    void ZoomeMolette(bool plus);

    MenuContextuel Popup;
    std::optional<PointVek> FeuilleTenue;  ///< The point of the drawing that button 2 holds.
    bool FeuilleGlisse = false;            ///< It has moved since.
};
