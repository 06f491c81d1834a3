#pragma once

#include "elements/eltgeo.h"

class TraceEcran;

/// The grid: a field of marks below the elements, to which clicks snap while it is shown.
/// `Position` is its origin, the colour of its style its colour.
class Grille : public EltGeo {
  public:
    Grille();

    /// Steps of 1e-6 drawing units and below are refused.
    void SetPas(double pas);
    void Plus();
    void Moins();

    /// Shows or hides; answers the new state.
    bool Bascule();

    /// Brings p to the nearest node; leaves it alone while the grid is hidden.
    void Aligne(PointVek& p) const;

    /// Paints an area of largeur by hauteur pixels.
    void Dessine(TraceEcran& trace, int largeur, int hauteur) const;

    void Sauve(Ecrivain& sortie) const override;

    /// A step that cannot be worked with and a mark that does not exist are mended.
    void Charge(Lecteur& entree) override;

    double Pas = 10.0;
    bool Affichee = false;
    int Forme = 1;  ///< 1 a pixel, 2 a plus of five pixels, 3 and 4 crosses.

  private:
    using EltGeo::Dessine;
    void DessineNoeud(TraceEcran& trace, const PointVek& p) const;
};
