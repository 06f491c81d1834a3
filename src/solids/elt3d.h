#pragma once

#include <glibmm/ustring.h>

#include "elements/pointvek.h"

class Ecrivain;
class Lecteur;
struct Grain;

/// What a solid has besides its plane shape: height, orientation, texture, finish. It knows nothing
/// of elements: `EltGeo::GetElt3d` leads to it.
class Elt3d {
  public:
    Elt3d() = default;
    Elt3d(const Elt3d&) = default;
    Elt3d& operator=(const Elt3d&) = delete;
    virtual ~Elt3d() = default;

    /// Takes every field.
    void Copie(const Elt3d& source);

    /// Takes height, angles, texture and its wrapping.
    void CopieForme(const Elt3d& source);

    /// Takes what the dialogs of all solids change: the same and the finish.
    void CopieCommun(const Elt3d& source);

    /// Takes which faces bear the texture.
    void CopieFaces(const Elt3d& source);

    void Sauve(Ecrivain& sortie) const;

    /// Older records end early: what they lack takes a default.
    void Charge(Lecteur& entree);

    bool EstFini() const;

    /// Turns the axes of the present GL matrix.
    void AppliqueRotation() const;

    /// The top of the solid's axis relative to its position.
    PointVek PointAxe() const;

    /// A vector of the world in the solid's own axes, and back.
    PointVek VersLocal(const PointVek& v) const;
    PointVek VersMonde(const PointVek& v) const;

    void AppliqueBrillance() const;

    /// Whether highlights show on it.
    bool Brille() const;

    /// Of how many pieces the body is made at that many steps, with or without rings.
    virtual double Pieces(double facettes, bool anneaux) const;

    /// `facetisation` within what has a use.
    int FacettesBornees() const;

    /// The steps of round surfaces: the same, lowered to what the grain allows.
    int Facettes(const Grain& grain) const;

    double alpha = 0.0;     ///< Degrees, about the local Z axis.
    double beta = 0.0;      ///< Degrees, about Y.
    double gamma = 0.0;     ///< Degrees, about X.
    double h = 10.0;        ///< Height along the local Z axis, in drawing units; may be negative.
    Glib::ustring texture;  ///< File name of an image; empty for none.
    double echelleTexture = 1.0;
    double brillance = 0.0;  ///< Shininess exponent.
    bool gourault = false;   ///< Smooth shading of what is made of flat pieces.
    int facetisation = 50;   ///< Steps of round surfaces.
    bool dessus = true;      ///< The texture is on the top face.
    bool dessous = true;     ///< On the bottom face.
    bool pourtour = true;    ///< On the side.
    bool repetition = true;  ///< It repeats, and does not end at its edge.
};
