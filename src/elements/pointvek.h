#pragma once

class Ecrivain;
class Lecteur;

/// Paste transform: a point is turned about the drawing's origin, then mirrored, then scaled.
struct TransformeColle {
    double Agrandissement = 1.0;
    double Angle = 0.0;  ///< Radians, for the dialog; the transform reads `Cos` and `Sin`.
    double Cos = 1.0;
    double Sin = 0.0;
    bool SymetrieX = false;  ///< Negates y.
    bool SymetrieY = false;  ///< Negates x.
};

/// A position, vector or displacement in drawing units, y upward.
struct PointVek {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    PointVek() = default;
    PointVek(double abscisse, double ordonnee, double cote = 0.0)
        : x(abscisse), y(ordonnee), z(cote) {}

    PointVek& operator+=(const PointVek& v);

    void Tourne(double sinus, double cosinus);
    void Tourne(double angle);
    void InverseX();
    void InverseY();

    /// Turns, mirrors, then scales, in that order.
    void Transforme(const TransformeColle& t);

    bool EstFini() const;
};

/// x, y, z separated by blanks, with no end of line.
Ecrivain& operator<<(Ecrivain& sortie, const PointVek& p);
Lecteur& operator>>(Lecteur& entree, PointVek& p);

/// The point that a reader finds where this one was written.
PointVek CommeEcrit(const PointVek& p);

PointVek operator-(const PointVek& a, const PointVek& b);
PointVek operator+(const PointVek& a, const PointVek& b);
PointVek operator-(const PointVek& a);
PointVek operator*(const PointVek& a, double k);
PointVek operator/(const PointVek& a, double k);

double Scalaire(const PointVek& a, const PointVek& b);

/// The left normal of a in the plane.
PointVek Normale(const PointVek& a);

double Norme(const PointVek& a);

/// a over its length; a null vector gives a null vector.
PointVek Unitaire(const PointVek& a);

/// Distance in the plane; z is ignored.
double Distance(const PointVek& a, const PointVek& b);
double Distance3D(const PointVek& a, const PointVek& b);

/// Direction of a in radians, in [-Epsilon, 2 pi); a vector straight down, and the null vector,
/// answer -pi/2: callers see it only through its sine and cosine or normalise it themselves.
double Angle(const PointVek& a);

/// Foot of p on the line through a and b; the middle of a and b where they are one point.
PointVek Projection(const PointVek& p, const PointVek& a, const PointVek& b);

/// The point at distance rayon from centre in the direction angle (radians).
PointVek PointPolaire(const PointVek& centre, double rayon, double angle);
