#include "view3d/camera.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <cmath>

#include "elements/angles.h"

namespace {

/// Turns the plane of two axes by degrees, from the first to the second.
void TournePlan(double& a, double& b, double degres) {
    const double angle = EnRadians(degres), c = std::cos(angle), s = std::sin(angle);
    const double avant = a;
    a = avant * c - b * s;
    b = avant * s + b * c;
}

void AjouteAngle(double& angle, float pas) {
    angle = static_cast<float>(angle) + pas;
}

}  // namespace

void Camera::Projette(int largeur, int hauteur) const {
    glViewport(0, 0, largeur, hauteur);
    const float rapport = static_cast<float>(largeur) / static_cast<float>(hauteur);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(Champ, rapport, ZProche, ZLoin);
    glRotated(Alpha, 0.0, 0.0, 1.0);
    glRotated(Beta, 0.0, 1.0, 0.0);
    glRotated(Gamma, 1.0, 0.0, 0.0);
    glTranslatef(X, Y, Z);
}

void Camera::Place(const PointVek& translation, double alpha, double beta, double gamma) {
    X = static_cast<float>(translation.x);
    Y = static_cast<float>(translation.y);
    Z = static_cast<float>(translation.z);
    Alpha = alpha;
    Beta = beta;
    Gamma = gamma;
}

void Camera::Deplace(const PointVek& v) {
    const PointVek pas = VersMonde(v);
    X += static_cast<float>(pas.x);
    Y += static_cast<float>(pas.y);
    Z += static_cast<float>(pas.z);
}

void Camera::TourneAlpha(float pas) {
    AjouteAngle(Alpha, pas);
}

void Camera::TourneBeta(float pas) {
    AjouteAngle(Beta, pas);
}

void Camera::TourneGamma(float pas) {
    AjouteAngle(Gamma, pas);
}

void Camera::DeplaceLoin(double pas) {
    if (ZLoin + pas > ZProche) ZLoin += pas;
}

PointVek Camera::VersVue(const PointVek& v) const {
    PointVek vue = v;
    TournePlan(vue.y, vue.z, Gamma);
    TournePlan(vue.z, vue.x, Beta);
    TournePlan(vue.x, vue.y, Alpha);
    return vue;
}

PointVek Camera::VersMonde(const PointVek& v) const {
    PointVek monde = v;
    TournePlan(monde.x, monde.y, -Alpha);
    TournePlan(monde.z, monde.x, -Beta);
    TournePlan(monde.y, monde.z, -Gamma);
    return monde;
}

PointVek Camera::Recul() const {
    return VersVue({X, Y, Z});
}

double Camera::TaillePixel(int hauteur) const {
    return 2.0 * std::tan(EnRadians(Champ) / 2.0) / hauteur;
}
