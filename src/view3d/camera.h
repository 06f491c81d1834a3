#pragma once

#include "elements/pointvek.h"

/// Where the scene is seen from. Lengths are drawing units, angles degrees. A point of the world is
/// first moved by the translation, then turned about X by `Gamma`, about Y by `Beta`, about Z by
/// `Alpha`; the eye stands at the origin of what results and looks along -z.
class Camera {
  public:
    /// Sets the projection matrix of GL for a picture of that size in pixels.
    void Projette(int largeur, int hauteur) const;

    /// Sets translation and angles at once.
    void Place(const PointVek& translation, double alpha, double beta, double gamma);

    /// Moves the scene by v, given in the axes of the view.
    void Deplace(const PointVek& v);

    void TourneAlpha(float pas);
    void TourneBeta(float pas);
    void TourneGamma(float pas);

    /// Brings the far plane nearer or farther; it stays behind the near one.
    void DeplaceLoin(double pas);

    /// A vector of the world in the axes of the view, and back.
    PointVek VersVue(const PointVek& v) const;
    PointVek VersMonde(const PointVek& v) const;

    /// The translation in the axes of the view: the eye sees the point p at `VersVue(p)` plus this.
    PointVek Recul() const;

    /// Size of a pixel at unit distance from the eye, in a picture of that height in pixels.
    double TaillePixel(int hauteur) const;

    double ZProche = 0.1;
    double ZLoin = 1000.0;

  private:
    double Alpha = 0.0;
    double Beta = 0.0;
    double Gamma = 0.0;
    double Champ = 45.0;  ///< Field of view from bottom to top.
    float X = 0.0f;
    float Y = 0.0f;
    float Z = 0.0f;
};
