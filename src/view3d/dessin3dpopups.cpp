// The two popup menus.

#include <gtkmm/stock.h>

#include "view3d/dessin3d.h"

namespace {

constexpr char MenuElement[] =
    "<ui>"
    "  <popup name='PopupMenu'>"
    "    <menuitem action='Prop'/>"
    "    <menuitem action='Deplace'/>"
    "    <menuitem action='Alpha'/>"
    "    <menuitem action='Beta'/>"
    "    <menuitem action='Gamma'/>"
    "    <menuitem action='Direction'/>"
    "    <menu action='Axe'>"
    "      <menuitem action='AxeX'/>"
    "      <menuitem action='AxeY'/>"
    "      <menuitem action='AxeZ'/>"
    "    </menu>"
    "    <menuitem action='Deforme'/>"
    "  </popup>"
    "</ui>";

constexpr char MenuOutil[] =
    "<ui>"
    "  <popup name='PopupMenuOutil'>"
    "    <menuitem action='Accrochage'/>"
    "    <menuitem action='VisuCentre'/>"
    "    <separator/>"
    "    <menuitem action='VueFace'/>"
    "    <menuitem action='VueDerriere'/>"
    "    <menuitem action='VueGauche'/>"
    "    <menuitem action='VueDroite'/>"
    "    <menuitem action='VueDessus'/>"
    "    <menuitem action='VueDessous'/>"
    "    <separator/>"
    "    <menuitem action='Texture'/>"
    "    <menuitem action='Lum0'/>"
    "    <menuitem action='Lum1'/>"
    "  </popup>"
    "</ui>";

using Effet = sigc::slot<void>;

void AjouteAction(const Glib::RefPtr<Gtk::ActionGroup>& actions, const char* nom,
                  const char* touche, const Effet& effet) {
    actions->add(Gtk::Action::create(nom, nom), Gtk::AccelKey(touche), effet);
}

Gtk::Menu* Construit(Glib::RefPtr<Gtk::UIManager>& ui,
                     const Glib::RefPtr<Gtk::ActionGroup>& actions, const char* menu,
                     const char* chemin) {
    ui = Gtk::UIManager::create();
    ui->insert_action_group(actions);
    ui->add_ui_from_string(menu);
    return dynamic_cast<Gtk::Menu*>(ui->get_widget(chemin));
}

}  // namespace

void Dessin3D::ConstruitPopups() {
    ConstruitPopupElement();
    ConstruitPopupOutil();
}

void Dessin3D::ConstruitPopupElement() {
    const auto entre = [this](Edit edit) {
        return sigc::bind(sigc::mem_fun(*this, &Dessin3D::Entre), edit);
    };
    const auto axe = [this](double alpha, double beta, double gamma) {
        return sigc::bind(sigc::mem_fun(*this, &Dessin3D::MetAxe), alpha, beta, gamma);
    };
    // Several share an accelerator, of which the first wins: that is meant.
    ActionsElement = Gtk::ActionGroup::create("Element3D");
    ActionsElement->add(Gtk::Action::create("Prop", Gtk::Stock::PROPERTIES), Gtk::AccelKey("p"),
                        sigc::mem_fun(*this, &Dessin3D::Prop));
    AjouteAction(ActionsElement, "Deplace", "D", entre(Deplacement));
    AjouteAction(ActionsElement, "Alpha", "a", entre(TourneAlpha));
    AjouteAction(ActionsElement, "Beta", "b", entre(TourneBeta));
    AjouteAction(ActionsElement, "Gamma", "g", entre(TourneGamma));
    AjouteAction(ActionsElement, "Direction", "d", entre(Direction));
    ActionsElement->add(Gtk::Action::create("Axe", "_Axe"));
    AjouteAction(ActionsElement, "AxeX", "a", axe(0.0, 90.0, 0.0));
    AjouteAction(ActionsElement, "AxeY", "a", axe(0.0, -180.0, -90.0));
    AjouteAction(ActionsElement, "AxeZ", "a", axe(0.0, 0.0, 0.0));
    AjouteAction(ActionsElement, "Deforme", "D", entre(PrendSommet));
    PopupElement = Construit(UiElement, ActionsElement, MenuElement, "/PopupMenu");
}

void Dessin3D::ConstruitPopupOutil() {
    const auto effet = [this](void (Dessin3D::*operation)()) {
        return sigc::mem_fun(*this, operation);
    };
    const auto lumiere = [this](int indice) {
        return sigc::bind(sigc::mem_fun(*this, &Dessin3D::BasculeLumiere), indice);
    };
    ActionsOutil = Gtk::ActionGroup::create("Outil3D");
    AjouteAction(ActionsOutil, "Accrochage", "A", effet(&Dessin3D::BasculeAccrochage));
    AjouteAction(ActionsOutil, "VisuCentre", "C", effet(&Dessin3D::BasculeVisuCentre));
    AjouteAction(ActionsOutil, "VueFace", "F", effet(&Dessin3D::VueFace));
    AjouteAction(ActionsOutil, "VueDerriere", "D", effet(&Dessin3D::VueDerriere));
    AjouteAction(ActionsOutil, "VueGauche", "G", effet(&Dessin3D::VueGauche));
    AjouteAction(ActionsOutil, "VueDroite", "H", effet(&Dessin3D::VueDroite));
    AjouteAction(ActionsOutil, "VueDessus", "E", effet(&Dessin3D::VueDessus));
    AjouteAction(ActionsOutil, "VueDessous", "R", effet(&Dessin3D::VueDessous));
    AjouteAction(ActionsOutil, "Texture", "T", effet(&Dessin3D::BasculeTextures));
    AjouteAction(ActionsOutil, "Lum0", "L", lumiere(0));
    AjouteAction(ActionsOutil, "Lum1", "l", lumiere(1));
    PopupOutil = Construit(UiOutil, ActionsOutil, MenuOutil, "/PopupMenuOutil");
}

void Dessin3D::BasculeAccrochage() {
    Accrochage = !Accrochage;
    ChercheAccroche();
    queue_draw();
}

void Dessin3D::BasculeVisuCentre() {
    VisuCentre = !VisuCentre;
    queue_draw();
}

void Dessin3D::BasculeTextures() {
    Dc.BasculeTextures();
    queue_draw();
}

void Dessin3D::BasculeLumiere(int indice) {
    if (!Dc.Actif()) return;
    const bool allume = !Dc.LumiereAllumee(indice);
    Dc.AllumeLumiere(indice, allume);
    if (allume) EditCourant = indice == 0 ? PlaceLumiere0 : PlaceLumiere1;
    queue_draw();
}
