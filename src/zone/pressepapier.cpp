#include "zone/pressepapier.h"

#include <gtkmm/clipboard.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/machine.h"
#include "zone/vuezone.h"

namespace {

constexpr char Cible[] = "krVekTarget";

/// What starts nearer than this to the left edge, in pixels, is not copied as a picture: users
/// keep their selections clear of that strip.
constexpr double MargeImage = 130.0;

Glib::RefPtr<Gtk::Clipboard> PressePapierSysteme() {
    return Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD);
}

}  // namespace

PressePapier::PressePapier(Machine& outils, Gtk::Widget& zone) : Outils(outils), Zone(zone) {}

void PressePapier::Copie() {
    Offre(false);
}

void PressePapier::Coupe() {
    Offre(true);
}

void PressePapier::Offre(bool couper) {
    BddCourante.CopieZone(Outils.Vue.RectangleSelection, couper);
    // Taking the clipboard a second time clears the first offer after the buffer was filled anew:
    // the clearing must leave it alone.
    const std::vector<Gtk::TargetEntry> cibles = {Gtk::TargetEntry(Cible)};
    PressePapierSysteme()->set(cibles, sigc::mem_fun(*this, &PressePapier::Donne), [] {});
    PressePapierSysteme()->set_can_store(cibles);
    Outils.DessinChange();
}

void PressePapier::Donne(Gtk::SelectionData& donnees, guint) {
    if (donnees.get_target() != Cible || BddCourante.PressePapier.Elements.Nombre() == 0) return;
    donnees.set(Cible, BddCourante.PressePapier.SauveTexte());
}

void PressePapier::Colle() {
    Demande(ETAT_COLLER);
}

void PressePapier::ColleCommeBDD() {
    Demande(ETAT_COLLER_BDD);
}

void PressePapier::Demande(int etat) {
    PressePapierSysteme()->request_contents(
        Cible, sigc::bind(sigc::mem_fun(*this, &PressePapier::Recoit), etat));
}

void PressePapier::Recoit(const Gtk::SelectionData& donnees, int etat) {
    if (donnees.get_target() != Cible || donnees.get_length() <= 0) return;
    auto recu = std::make_shared<BDDGeoClipboard>();
    recu->ChargeTexte(donnees.get_data_as_string());
    if (recu->Elements.Nombre() == 0) return;
    if (etat == ETAT_COLLER) recu->TransformeTout(BddCourante.Transforme);
    DitSansGroupe(BddCourante.ImagesSansGroupe(*recu));
    Outils.EntreCollage(recu, etat);
}

void PressePapier::DitSansGroupe(int nombre) {
    if (nombre == 0) return;
    Dits.emit(nombre == 1 ? Glib::ustring("1 image collée ne montrera rien : son groupe n'est pas "
                                          "dans ce dessin.")
                          : Glib::ustring::compose("%1 images collées ne montreront rien : leurs "
                                                   "groupes ne sont pas dans ce dessin.",
                                                   nombre));
}

void PressePapier::ChangeSymetrieX() {
    BddCourante.Transforme.SymetrieX = !BddCourante.Transforme.SymetrieX;
    Colle();
}

void PressePapier::ChangeSymetrieY() {
    BddCourante.Transforme.SymetrieY = !BddCourante.Transforme.SymetrieY;
    Colle();
}

void PressePapier::CopieBitmap() {
    const auto fenetre = Zone.get_window();
    if (!fenetre) return;
    // The drawing alone: no band.
    Outils.Vue.Dessus.CacheTout();
    Outils.Redessine();
    fenetre->process_updates(false);
    PrendImage(fenetre);
    Outils.MontreBandes();
}

void PressePapier::PrendImage(const Glib::RefPtr<Gdk::Window>& fenetre) {
    const VueZone& vue = Outils.Vue;
    const EltRectangle::CoinsOrdonnes coins = vue.RectangleSelection.Coins();
    const PointVek a = EchelleCourante.VersEcran(coins.HautGauche);
    const PointVek b = EchelleCourante.VersEcran(coins.BasDroite);
    if (!(a.x > MargeImage)) return;
    const auto pixel = [](double v, int maximum) {
        return static_cast<int>(std::lround(std::clamp(v, 0.0, static_cast<double>(maximum))));
    };
    const int x = pixel(a.x, vue.Largeur()), y = pixel(a.y, vue.Hauteur());
    const int largeur = pixel(b.x, vue.Largeur()) - x, hauteur = pixel(b.y, vue.Hauteur()) - y;
    if (largeur < 1 || hauteur < 1) return;
    PressePapierSysteme()->set_image(Gdk::Pixbuf::create(
        Glib::RefPtr<Gdk::Drawable>(fenetre), Zone.get_colormap(), x, y, 0, 0, largeur, hauteur));
    PressePapierSysteme()->set_can_store();
}

void PressePapier::Remet() {
    PressePapierSysteme()->store();
}
