#include "commun/banc.h"

#include <gdk/gdk.h>
#include <glibmm/main.h>
#include <gtkmm/entry.h>
#include <gtkmm/label.h>
#include <gtkmm/main.h>
#include <gtkmm/menu.h>

#include "commun/evenements.h"
#include "model/bddgeo.h"
#include "model/echelle.h"

void LaisseTourner() {
    // What the display answers may lead to another question.
    for (int tour = 0; tour < 4; ++tour) {
        gdk_display_sync(gdk_display_get_default());
        while (Gtk::Main::events_pending())
            Gtk::Main::iteration(false);
    }
    gdk_display_sync(gdk_display_get_default());
}

void RepondDialogue(int reponse, std::function<void(Gtk::Dialog&)> prepare) {
    Glib::signal_timeout().connect(
        [reponse, prepare] {
            // The newest window comes last.
            Gtk::Dialog* dialogue = nullptr;
            for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
                if (auto* autre = dynamic_cast<Gtk::Dialog*>(fenetre))
                    if (autre->get_mapped()) dialogue = autre;
            if (!dialogue) return true;
            if (prepare) prepare(*dialogue);
            dialogue->response(reponse);
            return false;
        },
        5);
}

void RepondSaisie(const std::string& texte, int reponse) {
    RepondDialogue(reponse, [texte](Gtk::Dialog& dialogue) {
        if (auto* saisie = PremierDe<Gtk::Entry>(dialogue)) saisie->set_text(texte);
    });
}

std::string RefusDe(Gtk::Dialog& dialogue) {
    dialogue.response(Gtk::RESPONSE_OK);
    for (Gtk::Widget* enfant : dialogue.get_vbox()->get_children())
        if (auto* libelle = dynamic_cast<Gtk::Label*>(enfant))
            if (libelle->get_visible()) return libelle->get_text();
    return {};
}

void RefuseSaisie(const std::string& texte, std::string& phrase) {
    RepondDialogue(Gtk::RESPONSE_CANCEL, [texte, &phrase](Gtk::Dialog& dialogue) {
        PremierDe<Gtk::Entry>(dialogue)->set_text(texte);
        phrase = RefusDe(dialogue);
    });
}

Capture::Capture(const Glib::RefPtr<Gdk::Window>& fenetre) {
    int largeur = 0, hauteur = 0;
    fenetre->get_size(largeur, hauteur);
    Image = Gdk::Pixbuf::create(Glib::RefPtr<Gdk::Drawable>(fenetre), 0, 0, largeur, hauteur);
}

unsigned Capture::Pixel(int x, int y) const {
    const guint8* p =
        Image->get_pixels() + y * Image->get_rowstride() + x * Image->get_n_channels();
    return static_cast<unsigned>(p[0]) << 16 | static_cast<unsigned>(p[1]) << 8 | p[2];
}

int Capture::Ecart(const Capture& autre) const {
    int ecart = 0;
    for (int y = 0; y < Image->get_height(); ++y)
        for (int x = 0; x < Image->get_width(); ++x)
            ecart += Pixel(x, y) != autre.Pixel(x, y);
    return ecart;
}

int Capture::EcartSur(const Capture& fond, const Capture& autre) const {
    int ecart = 0;
    for (int y = 0; y < Image->get_height(); ++y)
        for (int x = 0; x < Image->get_width(); ++x)
            ecart += fond.Pixel(x, y) == 0xffffff && Pixel(x, y) != autre.Pixel(x, y);
    return ecart;
}

void Capture::Garde(const std::string& nom) const {
    g_mkdir_with_parents(KRVEK_IMAGES, 0777);
    Image->save(std::string(KRVEK_IMAGES) + "/" + nom + ".png", "png");
}

std::string NomAction(Gtk::MenuItem& entree) {
    GtkAction* action = gtk_activatable_get_related_action(GTK_ACTIVATABLE(entree.gobj()));
    return action ? gtk_action_get_name(action) : "";
}

void Main::Bouge(double x, double y) {
    EnvoieMouvement(Zone, x, y);
}

void Main::Presse(double x, double y, int bouton, GdkEventType type) {
    EnvoieBouton(Zone, x, y, bouton, type);
}

std::vector<Gtk::MenuItem*> Main::MenuDroit(double x, double y) {
    Presse(x, y, 3);
    return FermeMenu();
}

std::vector<Gtk::MenuItem*> Main::FermeMenu() {
    LaisseTourner();
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
        auto* menu = fenetre->get_visible() ? PremierDe<Gtk::Menu>(*fenetre) : nullptr;
        if (!menu) continue;
        std::vector<Gtk::MenuItem*> entrees;
        Recolte(*menu, entrees);
        menu->popdown();
        return entrees;
    }
    return {};
}

void Main::Tourne(double x, double y, GdkScrollDirection sens) {
    EnvoieMolette(Zone, x, y, sens);
}

void Main::Touche(unsigned touche, unsigned modificateurs) {
    GdkEventKey evenement = {};
    evenement.type = GDK_KEY_PRESS;
    evenement.keyval = touche;
    evenement.state = modificateurs;
    Zone.ToucheEnfoncee(&evenement);
}

void Main::BougeA(const PointVek& p) {
    const PointVek pixel = EchelleCourante.VersEcran(p);
    Bouge(pixel.x, pixel.y);
}

void Main::ClicA(const PointVek& p) {
    const PointVek pixel = EchelleCourante.VersEcran(p);
    Presse(pixel.x, pixel.y);
}

Banc::Banc() : Souris(Zone) {
    BddCourante.Vide();
    BddCourante.SetCalqueAffiche(-1);
    EchelleCourante.ZoomInit();
    Zone.set_size_request(600, 400);
    Fenetre.set_resizable(false);
    Fenetre.add(Zone);
    Fenetre.show_all();
    LaisseTourner();
}

Banc::~Banc() {
    BddCourante.Vide();
}

Capture Banc::Image() {
    LaisseTourner();
    return Capture(Zone.get_window());
}
