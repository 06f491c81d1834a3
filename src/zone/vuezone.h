#pragma once

#include <gdkmm/color.h>
#include <gtkmm/widget.h>

#include "elements/eltrectangle.h"
#include "model/grille.h"
#include "model/vuesprecedentes.h"
#include "zone/bandes.h"

/// What the drawing area shows, from the background up: the sheet, the zone selection, the grid,
/// the drawing, and the bands over it.
class VueZone {
  public:
    /// The area painted on, to outlive this.
    explicit VueZone(Gtk::Widget& zone);

    /// The window of the area exists, or has another size.
    void Reconfigure(int largeur, int hauteur);

    /// Paints what an exposure has uncovered.
    void Expose(const GdkRectangle& decouvert);

    /// Asks for a repaint of the whole area.
    void Redessine();

    /// Size of the area in pixels.
    int Largeur() const;
    int Hauteur() const;

    void SetFond(const Gdk::Color& couleur);
    const Gdk::Color& Fond() const { return CouleurFond; }

    /// The view takes in all that shows, the page too while it is shown; without any of it the
    /// first view.
    void CadreTout();

    // The grid.

    void ChangeGrille();
    void GrillePlus();
    void GrilleMoins();
    void SetPasGrille(double pas);
    void SetCouleurGrille(const Gdk::Color& couleur);

    /// Shows or hides the groups.
    void ChangeAfficheBDD();

    // The zone selection.

    /// Shows the selection, which the rectangle has become.
    void Selectionne(const EltRectangle& rectangle);
    void AnnuleSelection();

    Grille GrilleCourante;
    EltRectangle RectangleSelection;  ///< In a style of its own.
    bool SelectionVisible = false;
    Bandes Dessus;
    VuesPrecedentes Precedentes;

  private:
    Gtk::Widget& Zone;
    Gdk::Color CouleurFond;
};
