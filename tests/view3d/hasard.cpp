// A user who clicks, types and chooses at random in the 3D window while the drawing changes under
// it, the same at every run: nothing breaks, and what is left can be painted and saved.

#include <gdk/gdkkeysyms.h>
#include <glibmm/main.h>
#include <gtest/gtest.h>

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
        if (Des.Entier(100) < 85)
            Lieu.Agit(Des);
        else
            ChangeDessin();
        if (Des.Entier(4) == 0) Lieu.Image();
    }

  private:
    void ChangeDessin() {
        const PointVek p = Des.Point(80.0);
        const int choix = Des.Entier(6);
        if (choix < 2)
            BddCourante.Annule();
        else if (choix == 2)
            BddCourante.Efface(p);
        else
            Ajoute(p);
        if (BddCourante.Elements.Nombre() > 25) BddCourante.Vide();
    }

    void Ajoute(const PointVek& p) {
        const auto genre = static_cast<Forme::Genre>(Des.Entier(5));
        EltGeo* corps = Pose({genre, p, 20.0, 15.0, Des.Reel(-30.0, 30.0), 1 + Des.Entier(6)});
        for (int i = Des.Entier(4); i > 0; --i)
            Pose({static_cast<Forme::Genre>(Des.Entier(5)), p + Des.Point(15.0), 5.0, 4.0,
                  Des.Reel(-40.0, 40.0), 2},
                 Des.Entier(2) ? Role::Trou : Role::Poche, corps);
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
    Hasard Des{Graine(7)};
    sigc::connection Reponses;
};

}  // namespace

TEST(Hasard3D, RienNeCasse) {
    Banc3D banc;
    Utilisateur utilisateur(banc);
    for (int i = 0; i < 200; ++i)
        utilisateur.Agit();
    banc.Frappe(GDK_Escape);
    banc.Image();
    for (const EltGeo* elt : BddCourante.Elements)
        EXPECT_TRUE(elt->EstFini());
    const std::string texte = BddCourante.SauveTexte();
    BddCourante.ChargeTexte(texte);
    EXPECT_EQ(BddCourante.SauveTexte(), texte);
}
