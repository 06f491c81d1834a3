#pragma once

#include "solids/chaine.h"
#include "solids/corps.h"
#include "solids/couvercle.h"
#include "solids/elt3d.h"

/// By how much the shades of its faces differ, so that the edges show without lines.
constexpr double EcartTeinte = 0.005;

/// The faces of an extruded profile. Made within the `RepereLocal` of the solid. Each face shows
/// its outside when dehors is true; else it is one of a hollow, seen from within. A profile drawn
/// either way round, and upward or downward, gives the same body.
class CorpsElevation {
  public:
    /// profil, solide: two bases of one solid, which live as long as this. facettes: steps of an
    /// arc.
    CorpsElevation(const EltProfil& profil, const Elt3d& solide, int facettes);

    // The faces of a hollow are never smooth ones, which leave parts of the outline out.

    /// The face at the vertices themselves.
    void Bas(bool dehors) const { Couvercle(0.0, dehors, Solide.gourault && dehors); }

    /// The face at the height of the solid.
    void Haut(bool dehors) const { Couvercle(Montee.Hauteur, !dehors, Solide.gourault && dehors); }

    /// The side, one link after the other in two shades, white when couleur is false; what closes
    /// the profile is straight.
    void Cote(bool couleur, bool dehors) const;

  private:
    /// The rectangle of the vertices.
    struct Cadre {
        explicit Cadre(const EltProfil& profil);

        double XMin = 1e6;
        double YMin = 1e6;
        double Largeur = 0.0;
        double Hauteur = 0.0;
    };

    /// A face at z of the upward axes, whose normal looks down when bas is true.
    void Couvercle(double z, bool bas, bool lisse) const;
    std::vector<CoinCouvercle> CoinsPlats(double z, double normale) const;
    std::vector<CoinCouvercle> CoinsLisses(double z, double normale) const;
    void Coordonnees(const Cadre& cadre, double x, double y, CoinCouvercle& coin) const;

    /// One piece of the side, with the texture up to (s, t).
    void Pan(const Troncon& troncon, double s, double t, bool dehors) const;
    void PanArrondi(const Troncon& troncon, double s, double t, bool dehors) const;
    void Coin(const PointVek& p, double z, double s, double t) const;

    /// Its z in the axes that the body goes upward in.
    double Altitude(const PointVek& p) const { return Solide.h < 0.0 ? -p.z : p.z; }

    const EltProfil& Profil;
    const Elt3d& Solide;
    const Elevation Montee;
    const bool Gauche;  ///< The surface lies on the left of the way.
    const int Facettes;
};
