#pragma once

#include "elements/eltgeo.h"
#include "elements/vue.h"

/// The view: the mapping between drawing units (y upward) and pixels of the area (y downward), with
/// the tolerances that follow from its scale. One for the program, never in a drawing's list. Its
/// operations repaint nothing.
class Echelle : public EltGeo {
  public:
    Echelle();

    void Sauve(Ecrivain& sortie) const override;

    /// A scale that cannot be worked with leaves the present one.
    void Charge(Lecteur& entree) override;

    /// Takes the middle of an area of largeur by hauteur pixels, by whole halves.
    void SetCentre(int largeur, int hauteur);

    PointVek VersEcran(const PointVek& p) const;

    /// Nothing is turned or enlarged: pixels and drawing correspond by `VersDessin`.
    bool EstPlane() const { return Rotation == 0.0 && Agrandissement == 1.0; }

    /// Pixels, as doubles, to drawing units.
    PointVek VersDessin(const PointVek& pixel) const;

    void ZoomPlus();
    void ZoomMoins();
    void ZoomInit();
    void ZoomPlusEn(const PointVek& p);
    void ZoomMoinsEn(const PointVek& p);

    /// Shows the rectangle a b: its larger side takes the width of the area (pixels), whose height
    /// plays no part: the zoom that users are used to. A null rectangle only recentres.
    void ZoomRectangle(const PointVek& a, const PointVek& b, int largeur);

    /// Scales by rapport; p stays where it is on the screen.
    void ZoomAutour(const PointVek& p, double rapport);

    /// Shows the rectangle a b whole in an area of largeur by hauteur pixels, with a margin of 5 %
    /// on each side. One without extent comes to the middle at the present scale.
    void MontreTout(const PointVek& a, const PointVek& b, int largeur, int hauteur);

    /// Shows origine in the middle at facteur pixels a unit, where these can be worked with.
    void Montre(const PointVek& origine, double facteur);

    // Pans by ten pixels.
    void Haut();
    void Bas();
    void Droite();
    void Gauche();

    PointVek Origine;             ///< Drawing point shown at the centre of the area.
    double Facteur = 1.0;         ///< S: pixels per drawing unit.
    double Rotation = 0.0;        ///< Radians; not 0 only while the content of an image is painted.
    double Agrandissement = 1.0;  ///< The matching factor.
    double Epsilon;
    double Proche10;

  private:
    friend class VuePage;

    /// Takes the scale where it is one that can be worked with.
    void SetFacteur(double facteur);

    PointVek Centre_;  ///< Centre of the area, in pixels.
};

extern Echelle EchelleCourante;

/// While it lives, drawing units go to the units of a page (y downward) in place of pixels: origine
/// is at its upper left corner, and facteur units of the page make one of the drawing.
class VuePage {
  public:
    VuePage(const PointVek& origine, double facteur);
    ~VuePage();
    VuePage(const VuePage&) = delete;
    VuePage& operator=(const VuePage&) = delete;

  private:
    const PointVek Origine;
    const PointVek Centre;
    const double Facteur;
};
