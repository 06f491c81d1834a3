#pragma once

#include <gtkmm/drawingarea.h>

#include <memory>
#include <optional>
#include <vector>

#include "dialogs/commande.h"
#include "view3d/dc3d.h"
#include "view3d/eltsphereaccroche.h"

class BDDGeo;

/// The area of the 3D view. It shows the present state of the drawing at each repaint, with a ball
/// as its pointer, and edits solids: a click on one opens a menu of edits, a click beside all a
/// menu of the view. Where GL cannot be had it stays empty, and says so once.
///
/// Positions are drawing units, of the world where nothing else is said.
class Dessin3D : public Gtk::DrawingArea {
  public:
    /// bdd: the drawing shown, to outlive the area.
    explicit Dessin3D(BDDGeo& bdd);

    /// Keys come through the window.
    bool ToucheEnfoncee(const GdkEventKey* evenement);

    /// Tells that an edit has changed the drawing.
    sigc::signal<void>& SignalEdition() { return Edition; }

    /// The menu of an element, and that of the view.
    static const std::vector<Commande<Dessin3D>>& CommandesElement();
    static const std::vector<Commande<Dessin3D>>& CommandesOutil();

  protected:
    void on_realize() override;
    void on_unrealize() override;
    bool on_expose_event(GdkEventExpose* evenement) override;
    bool on_configure_event(GdkEventConfigure* evenement) override;
    bool on_motion_notify_event(GdkEventMotion* evenement) override;
    bool on_scroll_event(GdkEventScroll* evenement) override;
    bool on_button_press_event(GdkEventButton* evenement) override;

  private:
    /// What a click does, and what follows the pointer.
    enum Edit {
        Repos,
        Deplacement,
        TourneAlpha,
        TourneBeta,
        TourneGamma,
        Direction,
        PlaceLumiere0,
        PlaceLumiere1,
        PrendSommet,
        PoseSommet
    };

    // Painting.

    void DessineScene();
    void DessineElements();
    void DessineMarques();
    void RegleSurface();
    void RegleLumiere(int indice);
    void DitSansGL();

    // Camera and keys.

    /// Keys that move or turn the camera; false for any other.
    bool ToucheCamera(const GdkEventKey* evenement);
    bool ToucheVue(unsigned touche);
    bool ToucheLumiere(unsigned touche);
    bool ToucheOutil(unsigned touche);
    void VueFace();
    void VueDerriere();
    void VueGauche();
    void VueDroite();
    void VueDessus();
    void VueDessous();
    void MetVue(const PointVek& translation, double beta, double gamma);

    /// The pointer comes under the mouse again, and the area is repainted.
    void CameraChangee();

    // Pointer.

    /// Puts the pointer under the mouse at its present depth.
    void SuitSouris();

    /// The same where the window has come under the mouse without any motion.
    void RejointSouris(const PointVek& pixel);

    /// The mouse has come from the pixel avant with the third button held: down brings the pointer
    /// nearer, and it keeps its height.
    void SuitSourisEnProfondeur(const PointVek& avant);

    /// Length of a number of pixels at the pointer's depth.
    double EnTravers(double pixels) const;

    /// The pointer's distance from the eye along the view, within what is shown.
    double ProfondeurPointeur() const;
    void MetProfondeur(double distance);

    /// The pointer comes to where `PointeurVue` says; the marker and the edit follow.
    void PointeurChange();
    void ChercheAccroche();
    void MajPointeur();

    /// Brings the pointer to z = 0 in the world.
    void PointeurAuSol();

    /// What a click takes: the marker where it shows, else the pointer.
    PointVek Cible() const;

    // Edits.

    void Entre(Edit edit);
    void Prop();
    void MetAxe(double alpha, double beta, double gamma);
    void BasculeAccrochage();
    void BasculeVisuCentre();
    void BasculeTextures();
    void BasculeLumiere(int indice);

    /// Does to elt what the edit under way does with the pointer where it is; preview and click
    /// alike. False when there is nothing to do.
    bool Applique(EltGeo& elt) const;
    bool Oriente(EltGeo& elt) const;

    /// What a click does when no edit is under way.
    void Choisit(guint32 instant);

    /// Does the edit to the selected element itself, with an undo record when memorise is true.
    void Pose(bool memorise);

    /// Ends the edit after the drawing was changed.
    void FinEdition();

    /// Ends the edit with nothing changed.
    void Abandonne();

    /// Lets go of an element that leaves the drawing, of all with null.
    void LaisseElement(EltGeo* elt);

    BDDGeo& Bdd;
    DC3D Dc;
    bool SansGLDit = false;             ///< The user knows that there is no GL.
    double Surface = 0.1;               ///< Intensity of the material, 0 to 1.
    double Intensites[2] = {0.5, 0.5};  ///< Of the lights, 0 to 1.

    EltSphereAccroche Curseur{1.0, "#a0a0a0"};  ///< The pointer.
    PointVek PointeurVue;                       ///< Its place in the axes of the view.
    std::optional<PointVek> PixelSouris;        ///< The mouse in the area; none before it came.
    EltSphereAccroche MarqueAccroche{5.0, "#101010"};
    bool Accrochage = false;
    bool AccrocheTrouvee = false;  ///< The marker stands on a snap point now.
    bool VisuCentre = true;        ///< Positions of elements show as points.

    Edit EditCourant = Repos;
    EltGeo* Selection = nullptr;    ///< The element under edit; the drawing's.
    std::unique_ptr<EltGeo> Clone;  ///< Its copy, which follows the pointer.
    PointVek Debut;                 ///< Where the edit began.
    PointVek PointSommet;           ///< What chose the vertex that is being moved.
    PointVek DebutDeforme;          ///< That vertex.
    sigc::signal<void> Edition;

    MenuContextuel PopupElement;
    MenuContextuel PopupOutil;
};
