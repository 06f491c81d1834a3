#include "elements/pointvek.h"

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/vue.h"

PointVek& PointVek::operator+=(const PointVek& v) {
    x += v.x;
    y += v.y;
    z += v.z;
    return *this;
}

void PointVek::Tourne(double sinus, double cosinus) {
    const double tourne = x * cosinus - y * sinus;
    y = x * sinus + y * cosinus;
    x = tourne;
}

void PointVek::Tourne(double angle) {
    Tourne(std::sin(angle), std::cos(angle));
}

void PointVek::InverseX() {
    x = -x;
}

void PointVek::InverseY() {
    y = -y;
}

void PointVek::Transforme(const TransformeColle& t) {
    Tourne(t.Sin, t.Cos);
    if (t.SymetrieX) InverseY();
    if (t.SymetrieY) InverseX();
    *this = *this * t.Agrandissement;
}

bool PointVek::EstFini() const {
    return std::isfinite(x) && std::isfinite(y) && std::isfinite(z);
}

Ecrivain& operator<<(Ecrivain& sortie, const PointVek& p) {
    return sortie << p.x << ' ' << p.y << ' ' << p.z;
}

Lecteur& operator>>(Lecteur& entree, PointVek& p) {
    return entree >> p.x >> p.y >> p.z;
}

PointVek CommeEcrit(const PointVek& p) {
    return {CommeEcrit(p.x), CommeEcrit(p.y), CommeEcrit(p.z)};
}

PointVek operator-(const PointVek& a, const PointVek& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

PointVek operator+(const PointVek& a, const PointVek& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

PointVek operator-(const PointVek& a) {
    return {-a.x, -a.y, -a.z};
}

PointVek operator*(const PointVek& a, double k) {
    return {a.x * k, a.y * k, a.z * k};
}

PointVek operator/(const PointVek& a, double k) {
    return {a.x / k, a.y / k, a.z / k};
}

double Scalaire(const PointVek& a, const PointVek& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

PointVek Normale(const PointVek& a) {
    return {-a.y, a.x, 0.0};
}

double Norme(const PointVek& a) {
    return std::sqrt(Scalaire(a, a));
}

PointVek Unitaire(const PointVek& a) {
    return a / std::max(Norme(a), 1e-6);
}

double Distance(const PointVek& a, const PointVek& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return std::sqrt(dx * dx + dy * dy);
}

double Distance3D(const PointVek& a, const PointVek& b) {
    return Norme(a - b);
}

double Angle(const PointVek& a) {
    if (a.x == 0.0) return a.y > 0.0 ? Pi / 2.0 : -Pi / 2.0;
    const double angle = std::atan2(a.y, a.x);
    return angle < -vue::Epsilon() ? angle + DeuxPi : angle;
}

PointVek Projection(const PointVek& p, const PointVek& a, const PointVek& b) {
    const PointVek d = b - a;
    const double carre = d.x * d.x + d.y * d.y;
    if (carre < vue::Epsilon()) return (a + b) / 2.0;
    return a + d * (Scalaire(p - a, d) / carre);
}

PointVek PointPolaire(const PointVek& centre, double rayon, double angle) {
    return centre + PointVek(std::cos(angle), std::sin(angle)) * rayon;
}
