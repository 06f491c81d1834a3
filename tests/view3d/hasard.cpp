// A user who clicks, types and chooses at random in the 3D window while the drawing changes under
// it, the same at every run: nothing breaks, and what is left can be painted and saved.

#include <gdk/gdkkeysyms.h>
#include <glibmm/main.h>
#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>

#include "commun/hasard.h"
#include "model/bddgeo.h"
#include "scene.h"

namespace {

class Utilisateur {
  public:
    explicit Utilisateur(Banc3D& banc) : Lieu(banc) {
        Reponses = Glib::signal_timeout().connect([this] { return Repond(); }, 1);
    }

    ~Utilisateur() { Reponses.disconnect(); }

    void Agit() {
        const int choix = Des.Entier(100);
        if (choix < 35)
            Lieu.Bouge(Des.Reel(-20.0, 620.0), Des.Reel(-20.0, 620.0),
                       Des.Entier(4) ? 0 : GDK_BUTTON3_MASK);
        else if (choix < 60)
            Clique();
        else if (choix < 70)
            Lieu.Roule(Des.Entier(2) ? GDK_SCROLL_UP : GDK_SCROLL_DOWN);
        else if (choix < 85)
            Tape();
        else
            ChangeDessin();
        if (Des.Entier(4) == 0) Lieu.Image();
    }

  private:
    void Clique() {
        static const char* const actions[] = {
            "Prop",      "Deplace",    "Alpha",      "Beta",      "Gamma",   "Direction",
            "AxeX",      "AxeY",       "AxeZ",       "Deforme",   "Texture", "Accrochage",
            "VueFace",   "VueGauche",  "VueDessous", "VueDroite", "Lum0",    "Lum1",
            "VueDessus", "VisuCentre", "VueDerriere"};
        // An element is found near its own height.
        if (Des.Entier(2)) Lieu.Frappe(GDK_z);
        Lieu.Clique(Des.Reel(0.0, 600.0), Des.Reel(0.0, 600.0));
        try {
            Lieu.Choisit(actions[Des.Entier(static_cast<int>(std::size(actions)))]);
        } catch (const std::runtime_error&) {
            // The other menu is open, or none.
            Lieu.MenuOuvert("Prop");
            Lieu.MenuOuvert("Lum0");
        }
    }

    void Tape() {
        static const unsigned touches[] = {
            GDK_Up, GDK_Down, GDK_Left, GDK_Right, GDK_Page_Up, GDK_Page_Down, GDK_Escape,
            GDK_f,  GDK_d,    GDK_g,    GDK_h,     GDK_e,       GDK_r,         GDK_a,
            GDK_z,  GDK_j,    GDK_J,    GDK_k,     GDK_K,       GDK_l,         GDK_L,
            GDK_p,  GDK_P,    GDK_C,    GDK_B};
        static const unsigned etats[] = {0, GDK_SHIFT_MASK, GDK_CONTROL_MASK,
                                         GDK_SHIFT_MASK | GDK_CONTROL_MASK};
        Lieu.Frappe(touches[Des.Entier(static_cast<int>(std::size(touches)))],
                    etats[Des.Entier(4)]);
    }

    void ChangeDessin() {
        const PointVek p = Des.Point(80.0);
        switch (Des.Entier(6)) {
            case 0:
            case 1:
                BddCourante.Annule();
                break;
            case 2:
                BddCourante.Efface(p);
                break;
            case 3:
                if (Des.Entier(20) == 0) BddCourante.Vide();
                break;
            default:
                Ajoute(p);
        }
        if (BddCourante.Elements.Nombre() > 25) BddCourante.Vide();
    }

    void Ajoute(const PointVek& p) {
        const auto genre = static_cast<Forme::Genre>(Des.Entier(3));
        const Forme corps{genre, p, 20.0, 15.0, Des.Reel(-30.0, 30.0), 1 + Des.Entier(6)};
        Solide solide{corps, {}};
        for (int i = Des.Entier(4); i > 0; --i)
            solide.Enleves.push_back({{Des.Entier(2) ? Forme::Pave : Forme::Cylindre,
                                       p + Des.Point(15.0), 5.0, 4.0, Des.Reel(-40.0, 40.0), 2},
                                      Des.Entier(2) == 0});
        Lieu.Ajoute(solide);
    }

    /// Answers whatever dialog is open.
    bool Repond() {
        for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
            if (auto* dialogue = dynamic_cast<Gtk::Dialog*>(fenetre))
                if (dialogue->get_mapped())
                    dialogue->response(Des.Entier(2) ? Gtk::RESPONSE_OK : Gtk::RESPONSE_CANCEL);
        return true;
    }

    Banc3D& Lieu;
    Hasard Des{7};
    sigc::connection Reponses;
};

}  // namespace

TEST(Hasard3D, RienNeCasse) {
    Banc3D banc;
    Utilisateur utilisateur(banc);
    for (int i = 0; i < 400; ++i)
        utilisateur.Agit();
    banc.Frappe(GDK_Escape);
    banc.Frappe(GDK_f);
    banc.Image();
    for (const EltGeo* elt : BddCourante.Elements)
        EXPECT_TRUE(elt->EstFini());
    const std::string texte = BddCourante.SauveTexte();
    BddCourante.ChargeTexte(texte);
    EXPECT_EQ(BddCourante.SauveTexte(), texte);
}
