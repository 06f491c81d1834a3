#pragma once

#include <gtkmm/actiongroup.h>
#include <gtkmm/drawingarea.h>
#include <gtkmm/label.h>
#include <gtkmm/menu.h>
#include <gtkmm/selectiondata.h>
#include <gtkmm/uimanager.h>

#include <memory>
#include <optional>
#include <string>

#include "elements/trait.h"
#include "model/bddgeoclipboard.h"
#include "model/grille.h"
#include "zone/accrochage.h"
#include "zone/prototypes.h"
#include "zone/surimpression.h"

class BDDGeo;
struct LigneEtat;

/// The drawing area: it shows the drawing through the view, and turns clicks, motions and keys into
/// tools. What a tool does state by state stands in the rows under `outils/`; this class is the
/// engine that all rows share, and holds what they work with.
class ZoneDessin : public Gtk::DrawingArea {
  public:
    ZoneDessin();
    ~ZoneDessin() override;

    /// The labels that follow the pointer and the tool; not owned, to outlive the area.
    void MetLabels(Gtk::Label* x, Gtk::Label* y, Gtk::Label* action);

    // Tools.

    /// Enters a tool by its first state, after what it asks.
    void Entre(int etat);

    /// No tool is in force.
    void RazEtat();
    int EtatCourant() const { return Etat; }

    /// Shows the prompt and the cursor of the state.
    void AfficheEtat();

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
    void AnnuleSelection();
    void ZoneTrait();
    void CopieAction();
    void CoupeAction();
    void CollerAction();
    void CollerBDDAction();
    void ChangeSymetrieX();
    void ChangeSymetrieY();

    /// Puts what the selection shows on the clipboard as a picture.
    void CopieBitmap();
    void ZoomPlusAction();
    void ZoomMoinsAction();
    void ZoomInitAction();
    void ChangeGrille();
    void GrillePlus();
    void GrilleMoins();
    void SetPasGrille(double pas);
    double PasGrille() const { return GrilleCourante.Pas; }
    void SetCouleurGrille(const Gdk::Color& couleur);
    const Grille& GrilleDuMoment() const { return GrilleCourante; }
    void ChangeAfficheBDD();

    /// Toggles one of the snap options.
    void Bascule(bool OptionsAccrochage::*option);
    const OptionsAccrochage& Accrochage() const { return Options; }

    void SetFond(const Gdk::Color& couleur);
    const Gdk::Color& Fond() const { return CouleurFond; }
    void SetTrait(const ::Trait& trait);
    const ::Trait& Trait() const { return TraitCourant; }
    void SetCalque(int calque);

    /// Displays one layer, or all with -1; what is hidden by it is let go.
    void SetCalqueAffiche(int calque);
    int Calque() const { return CalqueCourant; }

    /// Asks for a repaint of the whole area.
    void Redessine();

    // What the rows of the tools work with.

    /// Adds a copy of the prototype to the drawing.
    void Ajoute(const EltGeo& prototype);

    /// Takes what a pick found as the tool's first element; false when it found nothing.
    bool Prend(EltGeo* trouve);

    /// The same as the second one; false too when it is the first one again.
    bool PrendSecond(EltGeo* trouve);

    /// Asks for `Rayon`; false when the user gives up.
    bool DemandeRayon();

    /// Repaints after something in the drawing was changed or taken away.
    void DessinChange();

    /// Repaints after a change of the view: the pointer's position follows from its pixel.
    void VueChangee();

    /// Size of the area in pixels.
    int Largeur() const;
    int Hauteur() const;

    Prototypes Protos;
    EltRectangle RectangleSelection;  ///< The zone selection, in a style of its own.
    bool SelectionVisible = false;
    EltGeo* EltCourant = nullptr;  ///< Found by the last pick; the drawing's.
    EltGeo* EltCopie = nullptr;    ///< The second element of a tool; the drawing's.
    PointVek PointDepart;          ///< Reference point of a drag, or first point of an arc.
    PointVek PointPrecedent;       ///< Second point of an arc.
    std::shared_ptr<BDDGeoClipboard> Collage;  ///< What waits to be pasted; null before any.
    double Rayon = 10.0;                       ///< Radius asked for last.
    unsigned Touche = 0;                       ///< Key held, 0 after any release.

  protected:
    bool on_expose_event(GdkEventExpose* evenement) override;
    bool on_configure_event(GdkEventConfigure* evenement) override;
    bool on_button_press_event(GdkEventButton* evenement) override;
    bool on_motion_notify_event(GdkEventMotion* evenement) override;
    bool on_scroll_event(GdkEventScroll* evenement) override;

  private:
    void MetEtat(int etat);

    /// Notes where the pointer is, in pixels and drawing units, and shows it.
    void SuitPointeur(const PointVek& pixel);
    void MontreApercu();
    void MontrePoignees();

    /// Moves the snap marker to what the pointer is near to.
    void MajRepere();
    void CacheRepere();

    /// Where a click at the pixel acts: snapped by the grid, or taken by the snap marker.
    PointVek PositionClic(const PointVek& pixel) const;
    void Clique(const PointVek& p);

    /// Lets go of an element that leaves the drawing, of all with null.
    void LaisseElement(EltGeo* elt);

    /// Gives up a drag whose element has changed under it.
    void LaisseDeplacement();
    void FinProfil();

    void Copie(bool couper);
    void DonneSelection(Gtk::SelectionData& donnees, guint info);
    void PrendImage(const Glib::RefPtr<Gdk::Window>& fenetre);

    /// The answer of the clipboard, for the state that pastes it.
    void RecoitSelection(const Gtk::SelectionData& donnees, int etat);

    void ChargePreferences();
    void SauvePreferences() const;

    void ConstruitPopup();
    void SupPopup();
    void PropPopup();
    void AvantPopup();
    void ArrierePopup();

    int Etat = 0;
    std::optional<PointVek> PixelSouris;  ///< Last pixel of the pointer; none before it came.
    PointVek PointSouris;                 ///< The same in drawing units.
    Surimpression Dessus;
    std::optional<PointVek> Repere;  ///< The special point that a click would take, while shown.
    OptionsAccrochage Options;
    Grille GrilleCourante;
    ::Trait TraitCourant;
    int CalqueCourant = 0;
    Gdk::Color CouleurFond;

    Gtk::Label* LabelX = nullptr;
    Gtk::Label* LabelY = nullptr;
    Gtk::Label* LabelAction = nullptr;
    Glib::RefPtr<Gtk::UIManager> GestionnairePopup;
    Glib::RefPtr<Gtk::ActionGroup> ActionsPopup;
    Gtk::Menu* MenuPopup = nullptr;
};
