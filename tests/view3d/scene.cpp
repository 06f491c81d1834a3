#include "scene.h"

#include <gtest/gtest.h>

#include <gdk/gdkkeysyms.h>
#include <gtkmm/menu.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "model/bddgeo.h"
#include "solids/eltpercage.h"
#include "solids/eltrainure.h"
#include "solids/eltsphere.h"

namespace {

void Habille(EltGeo& elt, const Forme& forme) {
    const auto part = [&](int bit) { return forme.Couleur & bit ? 1.0 : 0.0; };
    elt.Style.Couleur.set_rgb_p(part(1), part(2), part(4));
    Elt3d& solide = *elt.GetElt3d();
    solide.alpha = forme.Alpha;
    solide.beta = forme.Beta;
    solide.gamma = forme.Gamma;
    solide.h = forme.H;
}

template <class Elt>
EltGeo* AjoutePave(Elt&& elt, const Forme& forme) {
    elt.Origine = {-forme.A, forme.B};
    elt.Extremite = {forme.A, -forme.B};
    elt.Position = {};
    elt.Deplace(forme.Position);
    Habille(elt, forme);
    return BddCourante.Ajoute(elt);
}

template <class Elt>
EltGeo* AjouteCylindre(Elt&& elt, const Forme& forme) {
    elt.Place(forme.Position);
    elt.Rayon = elt.rayonHaut = forme.A;
    Habille(elt, forme);
    return BddCourante.Ajoute(elt);
}

EltGeo* AjouteForme(const Forme& forme) {
    if (forme.Quoi == Forme::Pave) return AjoutePave(EltPave(), forme);
    if (forme.Quoi == Forme::Cylindre) return AjouteCylindre(EltCylindre(), forme);
    EltSphere boule;
    boule.Place(forme.Position);
    boule.Rayon = forme.A;
    Habille(boule, forme);
    return BddCourante.Ajoute(boule);
}

EltGeo* AjouteCreux(const Creux& creux) {
    if (creux.Place.Quoi == Forme::Pave) {
        EltRainure rainure;
        rainure.debouchant = creux.Debouchant;
        return AjoutePave(rainure, creux.Place);
    }
    EltPercage percage;
    percage.debouchant = creux.Debouchant;
    return AjouteCylindre(percage, creux.Place);
}

}  // namespace

Banc3D::Banc3D() : Fenetre(BddCourante), Zone(*PremierDe<Dessin3D>(Fenetre)) {
    BddCourante.Vide();
    BddCourante.SetCalqueAffiche(-1);
    Fenetre.set_resizable(false);
    Fenetre.SignalEdition().connect([this] { ++Editions; });
    Fenetre.show();
    LaisseTourner();
    Frappe(GDK_f);
}

Banc3D::~Banc3D() {
    BddCourante.Vide();
}

EltGeo* Banc3D::Ajoute(const Solide& solide) {
    EltGeo* corps = AjouteForme(solide.Corps);
    for (const Creux& creux : solide.Enleves)
        corps->AjouteFils(AjouteCreux(creux));
    return corps;
}

void Banc3D::Bouge(double x, double y, unsigned etat) {
    GdkEvent evenement = {};
    evenement.motion.type = GDK_MOTION_NOTIFY;
    evenement.motion.window = Zone.get_window()->gobj();
    evenement.motion.x = x;
    evenement.motion.y = y;
    evenement.motion.state = etat;
    gtk_widget_event(GTK_WIDGET(Zone.gobj()), &evenement);
}

void Banc3D::Clique(double x, double y) {
    GdkEvent evenement = {};
    evenement.button.type = GDK_BUTTON_PRESS;
    evenement.button.window = Zone.get_window()->gobj();
    evenement.button.x = x;
    evenement.button.y = y;
    evenement.button.button = 1;
    gtk_widget_event(GTK_WIDGET(Zone.gobj()), &evenement);
    LaisseTourner();
}

void Banc3D::Roule(GdkScrollDirection sens, unsigned etat) {
    GdkEvent evenement = {};
    evenement.scroll.type = GDK_SCROLL;
    evenement.scroll.window = Zone.get_window()->gobj();
    evenement.scroll.x = 300.0;
    evenement.scroll.y = 300.0;
    evenement.scroll.state = etat;
    evenement.scroll.direction = sens;
    gtk_widget_event(GTK_WIDGET(Zone.gobj()), &evenement);
}

void Banc3D::Frappe(unsigned touche, unsigned etat) {
    GdkEvent evenement = {};
    evenement.key.type = GDK_KEY_PRESS;
    evenement.key.window = Fenetre.get_window()->gobj();
    evenement.key.keyval = touche;
    evenement.key.state = etat;
    gtk_widget_event(GTK_WIDGET(Fenetre.gobj()), &evenement);
}

Gtk::MenuItem* Banc3D::Entree(const std::string& action) {
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

void Banc3D::Choisit(const std::string& action) {
    Gtk::MenuItem* entree = Entree(action);
    if (!entree) throw std::runtime_error("no entry " + action);
    Ferme(*entree);
    entree->activate();
    LaisseTourner();
}

bool Banc3D::MenuOuvert(const std::string& action) {
    Gtk::MenuItem* entree = Entree(action);
    if (entree) Ferme(*entree);
    return entree;
}

Vue Banc3D::Regarde(int alpha, int beta, int gamma) {
    Frappe(GDK_f);
    const auto tourne = [&](int degres, unsigned etat) {
        for (int i = 0; i < std::abs(degres) / 5; ++i)
            Frappe(degres > 0 ? GDK_Page_Up : GDK_Page_Down, etat);
    };
    // Forward and back again through the axes of the turned view.
    for (int i = 0; i < 30; ++i)
        Frappe(GDK_Up, GDK_CONTROL_MASK | GDK_SHIFT_MASK);
    tourne(alpha, 0);
    tourne(beta, GDK_SHIFT_MASK);
    tourne(gamma, GDK_CONTROL_MASK);
    for (int i = 0; i < 30; ++i)
        Frappe(GDK_Down, GDK_CONTROL_MASK | GDK_SHIFT_MASK);
    Vue vue{{}, 1.0 * alpha, 1.0 * beta, 1.0 * gamma};
    vue.Translation = TranslationRecul(vue, 300.0);
    return vue;
}

Capture Banc3D::Image() {
    Zone.queue_draw();
    LaisseTourner();
    return Capture(Zone.get_window());
}

int Teinte(unsigned couleur) {
    const unsigned r = couleur >> 16, v = couleur >> 8 & 0xff, b = couleur & 0xff;
    const unsigned fort = std::max({r, v, b});
    if (fort < 40) return 0;
    return (r > fort / 2) | (v > fort / 2) << 1 | (b > fort / 2) << 2;
}

Accord::Accord(const std::vector<Solide>& scene, const Vue& vue, const Capture& image,
               const std::string& nom) {
    const int cote = image.Image->get_width();
    std::vector<int> rayons(static_cast<std::size_t>(cote * cote));
    const auto rayon = [&](int x, int y) -> int& {
        return rayons[static_cast<std::size_t>(y * cote + x)];
    };
    for (int y = 0; y < cote; ++y)
        for (int x = 0; x < cote; ++x)
            rayon(x, y) = Lance(scene, vue, x, cote - 1 - y, cote).Couleur;
    const auto voisin = [&](int x, int y, int teinte) {
        for (int v = std::max(y - 1, 0); v <= std::min(y + 1, cote - 1); ++v)
            for (int u = std::max(x - 1, 0); u <= std::min(x + 1, cote - 1); ++u)
                if (rayon(u, v) == teinte) return true;
        return false;
    };
    int montres = 0, faux = 0, loin = 0;
    for (int y = 0; y < cote; ++y)
        for (int x = 0; x < cote; ++x) {
            const int teinte = Teinte(image.Pixel(x, y));
            montres += teinte != 0 || rayon(x, y) != 0;
            faux += teinte != rayon(x, y);
            loin += !voisin(x, y, teinte);
        }
    Part = 1.0 - static_cast<double>(faux) / std::max(montres, 1);
    LoinDesBords = static_cast<double>(loin) / std::max(montres, 1);
    if (Part < 0.995 || LoinDesBords > 0.0005) image.Garde(nom);
}

void VerifieVues(Banc3D& banc, const std::vector<Solide>& scene, const std::vector<Angles>& vues,
                 const std::string& nom) {
    for (const Angles& angles : vues) {
        const Vue vue = banc.Regarde(angles.Alpha, angles.Beta, angles.Gamma);
        const std::string titre = nom + '_' + std::to_string(angles.Alpha) + '_' +
                                  std::to_string(angles.Beta) + '_' + std::to_string(angles.Gamma);
        const Accord accord(scene, vue, banc.Image(), titre);
        EXPECT_GE(accord.Part, 0.995) << titre;
        EXPECT_LE(accord.LoinDesBords, 0.0005) << titre;
    }
}
