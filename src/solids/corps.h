#pragma once

#include <GL/gl.h>
#include <GL/glu.h>

#include "elements/trait.h"
#include "solids/elt3d.h"

class DC3D;

// What the bodies of solids share. All of it acts on the present GL context.

/// While it lives, the axes are those of a solid at position.
class RepereLocal {
  public:
    RepereLocal(const PointVek& position, const Elt3d& solide);
    ~RepereLocal();
    RepereLocal(const RepereLocal&) = delete;
    RepereLocal& operator=(const RepereLocal&) = delete;
};

/// How a body of height h is drawn: upward for `Hauteur`, which is never negative. For a negative h
/// the axes are mirrored, and the sense of what is drawn in them with it, so that the outside stays
/// the outside. Made within a `RepereLocal`, whose end takes it back.
class Elevation {
  public:
    explicit Elevation(double h);

    /// Sets which faces are front ones: `GL_CW` or `GL_CCW`.
    void Sens(GLenum sens) const;

    const double Hauteur;

  private:
    const bool Renversee;
};

/// A quadric that is filled, smooth and textured.
class Quadrique {
  public:
    /// orientation: `GLU_OUTSIDE` or `GLU_INSIDE`.
    explicit Quadrique(GLenum orientation);
    ~Quadrique();
    Quadrique(const Quadrique&) = delete;
    Quadrique& operator=(const Quadrique&) = delete;

    // A measure that GLU has no use for, such as a negative radius, draws nothing.

    /// Without rings in one piece from end to end; a cone has them always, since its facets narrow.
    void Cylindre(double bas, double haut, double hauteur, int facettes, bool anneaux) const;
    void Disque(double rayon, int facettes, bool anneaux) const;
    void Sphere(double rayon, int facettes) const;

  private:
    GLUquadric* Forme;
};

/// The element's colour, its shade raised by ecart; white when couleur is false.
void ColoreCorps(const Trait& trait, bool couleur, double ecart = 0.0);

/// Textures repeat, or end at their edge.
void Enroule(bool repetition);

/// Selects the solid's texture for what follows, wrapped as it says; white when porte is false.
void Habille(DC3D& dc, const Elt3d& solide, bool porte);

/// The normal of the triangle a b c, negated when sens is false; not of unit length. False when the
/// triangle is degenerate: the normal is set all the same.
bool PoseNormale(const PointVek& a, const PointVek& b, const PointVek& c, bool sens = true);

/// The white wire box from (-a, -b, bas) to (a, b, haut): what marks a solid as selected.
void DessineCage(double a, double b, double bas, double haut);
