// The area and the system clipboard.

#include <gtkmm/clipboard.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/tableetats.h"
#include "zone/zonedessin.h"

namespace {

constexpr char Cible[] = "krVekTarget";

/// What starts nearer than this to the left edge, in pixels, is not copied as a picture: that is
/// meant.
constexpr double MargeImage = 130.0;

Glib::RefPtr<Gtk::Clipboard> PressePapierSysteme() {
    return Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD);
}

}  // namespace

void ZoneDessin::CopieAction() {
    Copie(false);
}

void ZoneDessin::CoupeAction() {
    Copie(true);
}

void ZoneDessin::Copie(bool couper) {
    BddCourante.CopieZone(RectangleSelection, couper);
    // Taking the clipboard a second time clears the first offer after the buffer was filled anew:
    // the clearing must leave it alone.
    const std::vector<Gtk::TargetEntry> cibles = {Gtk::TargetEntry(Cible)};
    PressePapierSysteme()->set(cibles, sigc::mem_fun(*this, &ZoneDessin::DonneSelection), [] {});
    DessinChange();
}

void ZoneDessin::DonneSelection(Gtk::SelectionData& donnees, guint) {
    if (donnees.get_target() != Cible || BddCourante.PressePapier.Elements.Nombre() == 0) return;
    donnees.set(Cible, BddCourante.PressePapier.SauveTexte());
}

void ZoneDessin::CollerAction() {
    PressePapierSysteme()->request_contents(
        Cible, sigc::bind(sigc::mem_fun(*this, &ZoneDessin::RecoitSelection), ETAT_COLLER));
}

void ZoneDessin::CollerBDDAction() {
    PressePapierSysteme()->request_contents(
        Cible, sigc::bind(sigc::mem_fun(*this, &ZoneDessin::RecoitSelection), ETAT_COLLER_BDD));
}

void ZoneDessin::RecoitSelection(const Gtk::SelectionData& donnees, int etat) {
    if (donnees.get_target() != Cible || donnees.get_length() <= 0) return;
    auto recu = std::make_shared<BDDGeoClipboard>();
    recu->ChargeTexte(donnees.get_data_as_string());
    if (recu->Elements.Nombre() == 0) return;
    if (etat == ETAT_COLLER) recu->TransformeTout(BddCourante.Transforme);
    Collage = recu;
    MetEtat(etat);
}

void ZoneDessin::ChangeSymetrieX() {
    BddCourante.Transforme.SymetrieX = !BddCourante.Transforme.SymetrieX;
    CollerAction();
}

void ZoneDessin::ChangeSymetrieY() {
    BddCourante.Transforme.SymetrieY = !BddCourante.Transforme.SymetrieY;
    CollerAction();
}

void ZoneDessin::CopieBitmap() {
    const auto fenetre = get_window();
    if (!fenetre) return;
    // The drawing alone: no marker, preview or handle.
    for (const auto place : {Surimpression::Poignees, Surimpression::Apercu, Surimpression::Repere})
        Dessus.Montre(place, {});
    Redessine();
    fenetre->process_updates(false);
    PrendImage(fenetre);
    MontrePoignees();
    MontreApercu();
    MajRepere();
}

void ZoneDessin::PrendImage(const Glib::RefPtr<Gdk::Window>& fenetre) {
    const EltRectangle::CoinsOrdonnes coins = RectangleSelection.Coins();
    const PointVek a = EchelleCourante.VersEcran(coins.HautGauche);
    const PointVek b = EchelleCourante.VersEcran(coins.BasDroite);
    if (!(a.x > MargeImage)) return;
    const auto pixel = [](double v, int maximum) {
        return static_cast<int>(std::lround(std::clamp(v, 0.0, static_cast<double>(maximum))));
    };
    const int x = pixel(a.x, Largeur()), y = pixel(a.y, Hauteur());
    const int largeur = pixel(b.x, Largeur()) - x, hauteur = pixel(b.y, Hauteur()) - y;
    if (largeur < 1 || hauteur < 1) return;
    PressePapierSysteme()->set_image(Gdk::Pixbuf::create(
        Glib::RefPtr<Gdk::Drawable>(fenetre), get_colormap(), x, y, 0, 0, largeur, hauteur));
}
