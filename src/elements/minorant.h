#pragma once

#include <algorithm>
#include <cmath>

#include "elements/boite.h"
#include "elements/pointvek.h"

/// A cheap lower bound of the distances (plain and to the support) from a point to an element. The
/// containers keep one for each element in a compact table, so that a search measures only the few
/// elements that can win, and a repaint visits only those that may show.
class Minorant {
  public:
    /// Bounds nothing: the element is always measured.
    static Minorant Nul() { return {Aucun, 0.0, 0.0, 0.0, 0.0}; }

    /// Distance to the endless line through a and b, to a where they are one point.
    static Minorant Droite(const PointVek& a, const PointVek& b) {
        const double dx = b.x - a.x, dy = b.y - a.y;
        const double longueur = std::sqrt(dx * dx + dy * dy);
        if (!(longueur > 0.0)) return Cercle(a, 0.0);
        return {Ligne, a.x, a.y, dx / longueur, dy / longueur};
    }

    /// The smaller of the distances to the circle and to its centre.
    static Minorant Cercle(const PointVek& centre, double rayon) {
        return {Rond, centre.x, centre.y, rayon, 0.0};
    }

    /// Distance to the point; what is painted reaches at most portee from it.
    static Minorant Point(const PointVek& p, double portee) {
        return {Pointu, p.x, p.y, 0.0, portee};
    }

    /// Distance to the box with opposite corners a and b, 0 inside.
    static Minorant Rectangle(const PointVek& a, const PointVek& b) {
        return {Cadre, std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                std::max(a.y, b.y)};
    }

    double Distance(const PointVek& p) const {
        switch (Genre) {
            case Ligne:
                return std::abs((p.x - A) * D - (p.y - B) * C);
            case Rond: {
                const double d = Longueur(p.x - A, p.y - B);
                return std::min(d, std::abs(d - C));
            }
            case Pointu:
                return Longueur(p.x - A, p.y - B);
            case Cadre:
                return Longueur(std::max({A - p.x, 0.0, p.x - C}),
                                std::max({B - p.y, 0.0, p.y - D}));
            default:
                return 0.0;
        }
    }

    /// False only when nothing of the element lies in the box (drawing units).
    bool PeutToucher(const Boite& boite) const {
        switch (Genre) {
            case Ligne: {
                const PointVek centre = boite.Centre();
                const double portee = (boite.Droite - boite.Gauche) / 2.0 * std::abs(D) +
                                      (boite.Bas - boite.Haut) / 2.0 * std::abs(C);
                return !(Distance(centre) > portee);
            }
            case Rond:
                return boite.Touche({A - C, B - C, A + C, B + C});
            case Pointu:
                return boite.Touche({A - D, B - D, A + D, B + D});
            case Cadre:
                return boite.Touche({A, B, C, D});
            default:
                return true;
        }
    }

  private:
    enum Forme { Aucun, Ligne, Rond, Pointu, Cadre };

    Minorant(Forme genre, double a, double b, double c, double d)
        : Genre(genre), A(a), B(b), C(c), D(d) {}

    static double Longueur(double dx, double dy) { return std::sqrt(dx * dx + dy * dy); }

    Forme Genre;
    double A, B, C, D;
};
