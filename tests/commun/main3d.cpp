#include "commun/main3d.h"

#include <gdk/gdkkeysyms.h>
#include <gtkmm/menu.h>

#include <iterator>
#include <stdexcept>

#include "commun/evenements.h"
#include "model/bddgeo.h"

Main3D::Main3D(Window3D& fenetre) : Fenetre(fenetre), Zone(*PremierDe<Dessin3D>(fenetre)) {}

void Main3D::Bouge(double x, double y, unsigned etat) {
    EnvoieMouvement(Zone, x, y, etat);
}

void Main3D::Clique(double x, double y) {
    EnvoieBouton(Zone, x, y);
    LaisseTourner();
}

void Main3D::Roule(GdkScrollDirection sens, unsigned etat) {
    EnvoieMolette(Zone, 300.0, 300.0, sens, etat);
}

void Main3D::Frappe(unsigned touche, unsigned etat) {
    GdkEvent evenement = {};
    evenement.key.type = GDK_KEY_PRESS;
    evenement.key.window = Fenetre.get_window()->gobj();
    evenement.key.keyval = touche;
    evenement.key.state = etat;
    gtk_widget_event(GTK_WIDGET(Fenetre.gobj()), &evenement);
}

Gtk::MenuItem* Main3D::Entree(const std::string& action) {
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
        auto* menu = fenetre->get_visible() ? PremierDe<Gtk::Menu>(*fenetre) : nullptr;
        if (!menu) continue;
        std::vector<Gtk::MenuItem*> entrees;
        Recolte(*menu, entrees);
        for (std::size_t i = 0; i < entrees.size(); ++i) {
            if (Gtk::Menu* sous = entrees[i]->get_submenu()) Recolte(*sous, entrees);
            GtkAction* liee =
                gtk_activatable_get_related_action(GTK_ACTIVATABLE(entrees[i]->gobj()));
            if (liee && gtk_action_get_name(liee) == action) return entrees[i];
        }
    }
    return nullptr;
}

namespace {

void Ferme(Gtk::MenuItem& entree) {
    Gtk::Widget* menu = entree.get_parent();
    while (auto* element =
               dynamic_cast<Gtk::MenuItem*>(static_cast<Gtk::Menu*>(menu)->get_attach_widget()))
        menu = element->get_parent();
    static_cast<Gtk::Menu*>(menu)->popdown();
    LaisseTourner();
}

}  // namespace

void Main3D::Choisit(const std::string& action) {
    Gtk::MenuItem* entree = Entree(action);
    if (!entree) throw std::runtime_error("no entry " + action);
    Ferme(*entree);
    entree->activate();
    LaisseTourner();
}

bool Main3D::MenuOuvert(const std::string& action) {
    Gtk::MenuItem* entree = Entree(action);
    if (entree) Ferme(*entree);
    return entree;
}

void Main3D::Agit(Hasard& des) {
    const int choix = des.Entier(100);
    if (choix < 40)
        Bouge(des.Reel(-20.0, 620.0), des.Reel(-20.0, 620.0), des.Entier(4) ? 0 : GDK_BUTTON3_MASK);
    else if (choix < 70)
        ChoisitAuHasard(des);
    else if (choix < 82)
        Roule(des.Entier(2) ? GDK_SCROLL_UP : GDK_SCROLL_DOWN);
    else
        TapeAuHasard(des);
}

void Main3D::ViseAuHasard(Hasard& des) {
    const int nombre = BddCourante.Elements.Nombre();
    if (nombre == 0) return;
    const PointVek p = (*std::next(BddCourante.Elements.begin(), des.Entier(nombre)))->Position;
    // Pixels a unit at z = 0, from the front. The second move is at that depth.
    constexpr double echelle = 2.414;
    Frappe(GDK_f);
    for (int i = 0; i < 2; ++i) {
        Bouge(300.0 + p.x * echelle, 300.0 - p.y * echelle);
        Frappe(GDK_z);
    }
}

void Main3D::ChoisitAuHasard(Hasard& des) {
    static const char* const edits[] = {"Prop",      "Deplace", "Alpha", "Beta", "Gamma",
                                        "Direction", "AxeX",    "AxeY",  "AxeZ", "Deforme"};
    static const char* const outils[] = {"Texture",    "Accrochage", "VueFace",   "VueDerriere",
                                         "VueGauche",  "VueDroite",  "VueDessus", "VueDessous",
                                         "VisuCentre", "Lum0",       "Lum1"};
    const std::string edit = edits[des.Entier(static_cast<int>(std::size(edits)))];
    const std::string outil = outils[des.Entier(static_cast<int>(std::size(outils)))];
    if (des.Entier(3)) ViseAuHasard(des);
    Clique(des.Reel(0.0, 600.0), des.Reel(0.0, 600.0));
    // One menu or the other; none when the click ended an edit.
    if (Entree(edit))
        Choisit(edit);
    else if (Entree(outil))
        Choisit(outil);
}

void Main3D::TapeAuHasard(Hasard& des) {
    static const unsigned touches[] = {
        GDK_Up, GDK_Down, GDK_Left, GDK_Right, GDK_Page_Up, GDK_Page_Down, GDK_Escape, GDK_f, GDK_d,
        GDK_g,  GDK_h,    GDK_e,    GDK_r,     GDK_a,       GDK_z,         GDK_j,      GDK_J, GDK_k,
        GDK_K,  GDK_l,    GDK_L,    GDK_p,     GDK_P,       GDK_C,         GDK_B};
    static const unsigned etats[] = {0, GDK_SHIFT_MASK, GDK_CONTROL_MASK,
                                     GDK_SHIFT_MASK | GDK_CONTROL_MASK};
    Frappe(touches[des.Entier(static_cast<int>(std::size(touches)))], etats[des.Entier(4)]);
}

Capture Main3D::Image() {
    Zone.queue_draw();
    LaisseTourner();
    return Capture(Zone.get_window());
}
