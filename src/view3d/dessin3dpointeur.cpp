// The pointer: it stands under the mouse, at a depth of its own.

#include <algorithm>
#include <cmath>

#include "model/bddgeo.h"
#include "view3d/dessin3d.h"

double Dessin3D::ProfondeurPointeur() const {
    const double distance = -(PointeurVue + Dc.Oeil.Recul()).z;
    // What is not a number is brought to the near plane.
    return std::isfinite(distance) ? std::clamp(distance, Dc.Oeil.ZProche, Dc.Oeil.ZLoin)
                                   : Dc.Oeil.ZProche;
}

void Dessin3D::MetProfondeur(double distance) {
    PointeurVue.z = -std::clamp(distance, Dc.Oeil.ZProche, Dc.Oeil.ZLoin) - Dc.Oeil.Recul().z;
}

double Dessin3D::EnTravers(double pixels) const {
    const double distance = ProfondeurPointeur();
    return std::clamp(pixels * Dc.Oeil.TaillePixel(get_height()) * distance, -Dc.Oeil.ZLoin,
                      Dc.Oeil.ZLoin);
}

void Dessin3D::SuitSouris() {
    if (!PixelSouris) return;
    const PointVek recul = Dc.Oeil.Recul();
    MetProfondeur(ProfondeurPointeur());
    PointeurVue.x = EnTravers(PixelSouris->x - get_width() / 2) - recul.x;
    PointeurVue.y = EnTravers(get_height() / 2 - PixelSouris->y) - recul.y;
    PointeurChange();
}

void Dessin3D::SuitSourisEnProfondeur(const PointVek& avant) {
    MetProfondeur(ProfondeurPointeur() - EnTravers(PixelSouris->y - avant.y));
    PointeurVue.x = EnTravers(PixelSouris->x - get_width() / 2) - Dc.Oeil.Recul().x;
    PointeurChange();
}

void Dessin3D::RejointSouris(const PointVek& pixel) {
    if (!pixel.EstFini() || (PixelSouris && Distance(*PixelSouris, pixel) == 0.0)) return;
    PixelSouris = pixel;
    SuitSouris();
}

bool Dessin3D::on_configure_event(GdkEventConfigure*) {
    SuitSouris();
    return false;
}

bool Dessin3D::on_motion_notify_event(GdkEventMotion* evenement) {
    const PointVek pixel(evenement->x, evenement->y);
    if (!pixel.EstFini()) return true;
    const PointVek avant = PixelSouris.value_or(pixel);
    PixelSouris = pixel;
    if (evenement->state & GDK_BUTTON3_MASK)
        SuitSourisEnProfondeur(avant);
    else
        SuitSouris();
    return true;
}

bool Dessin3D::on_scroll_event(GdkEventScroll* evenement) {
    const double distance = ProfondeurPointeur();
    double pas = distance / 50.0;
    if (evenement->state & (GDK_BUTTON2_MASK | GDK_BUTTON3_MASK)) pas /= 10.0;
    if (evenement->direction == GDK_SCROLL_UP)
        MetProfondeur(distance + pas);
    else if (evenement->direction == GDK_SCROLL_DOWN)
        MetProfondeur(distance - pas);
    else
        return false;
    PixelSouris = PointVek(evenement->x, evenement->y);
    SuitSouris();
    return true;
}

void Dessin3D::PointeurAuSol() {
    PointVek pointeur = Curseur.Position;
    pointeur.z = 0.0;
    PointeurVue = Dc.Oeil.VersVue(pointeur);
    PointeurChange();
}

void Dessin3D::PointeurChange() {
    Curseur.Place(Dc.Oeil.VersMonde(PointeurVue));
    ChercheAccroche();
    MajPointeur();
    queue_draw();
}

void Dessin3D::ChercheAccroche() {
    AccrocheTrouvee = false;
    if (!Accrochage) return;
    const EltGeo* trouve = Bdd.Cherche3D(Curseur.Position);
    if (!trouve || trouve == Selection) return;
    AccrocheTrouvee = true;
    MarqueAccroche.Place(trouve->PointProche3D(Curseur.Position));
}

PointVek Dessin3D::Cible() const {
    return Accrochage && AccrocheTrouvee ? MarqueAccroche.Position : Curseur.Position;
}
