// A user who clicks, types, pastes and answers at random, the same at every run: nothing breaks,
// nothing stays on the screen that should not, and the drawing survives a save.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>
#include <gtkmm/clipboard.h>
#include <gtkmm/entry.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/main.h>

#include <random>
#include <set>

#include "bureau.h"
#include "commun/mutation.h"
#include "commun/record.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/etats.h"
#include "zone/tableetats.h"

namespace {

class Utilisateur {
  public:
    explicit Utilisateur(Bureau& bureau) : Lieu(bureau) {
        for (Gtk::MenuItem* entree : bureau.Entrees()) {
            // The help starts a browser, leaving ends the test, and the toolkit's own dialog on a
            // printer does not bear just any text in its fields.
            static const std::set<std::string> interdites = {"", "Aide", "PrintDialog", "Quit",
                                                             "Vue3D"};
            if (entree->is_sensitive() && !interdites.count(NomAction(*entree)))
                Entrees.push_back(entree);
        }
        Reponses = Glib::signal_timeout().connect([this] { return Repond(); }, 1);
    }

    ~Utilisateur() { Reponses.disconnect(); }

    void Agit() {
        const int x = Entre(-20, Lieu.Zone.Largeur() + 20);
        const int y = Entre(-20, Lieu.Zone.Hauteur() + 20);
        const int choix = Entre(0, 99);
        if (choix < 40)
            Lieu.Souris.Bouge(x, y);
        else if (choix < 72)
            Lieu.Souris.Presse(x, y);
        else if (choix < 78)
            Lieu.Souris.Tourne(x, y, Entre(0, 1) ? GDK_SCROLL_UP : GDK_SCROLL_DOWN);
        else if (choix < 86)
            Tape();
        else if (choix < 87)
            Lieu.Zone.queue_draw_area(x, y, Entre(1, 300), Entre(1, 300));
        else if (choix < 88)
            ChoisitAuMenuDroit(x, y);
        else if (choix < 92)
            Lieu.Zone.Entre(LigneDe(Entre(0, NOMBRE_ETATS - 1)).Premier);
        else
            Entrees[Rang(Entrees.size())]->activate();
        if (Entre(0, 99) == 0) OffreUnDessin();
        if (Entre(0, 3) == 0) LaisseTourner();
        // A view that has been zoomed out of all proportion shows nothing more.
        if (EchelleCourante.Facteur > 1e4 || EchelleCourante.Facteur < 1e-4)
            Lieu.Zone.ZoomInitAction();
    }

  private:
    int Entre(int mini, int maxi) { return std::uniform_int_distribution<int>(mini, maxi)(Des); }

    std::size_t Rang(std::size_t nombre) {
        return static_cast<std::size_t>(Entre(0, static_cast<int>(nombre) - 1));
    }

    void Tape() {
        static const unsigned touches[] = {
            GDK_Up, GDK_Down, GDK_Left,      GDK_Right,   GDK_z,   GDK_End, GDK_Escape, GDK_Delete,
            GDK_a,  GDK_s,    GDK_Control_L, GDK_Shift_L, GDK_Tab, GDK_g,   GDK_o,      GDK_l};
        const unsigned touche = touches[Entre(0, 15)];
        if (touche == GDK_Control_L || touche == GDK_Shift_L)
            Lieu.Souris.Touche(touche);
        else
            Lieu.Frappe(touche);
    }

    void ChoisitAuMenuDroit(int x, int y) {
        const auto entrees = Lieu.Souris.MenuDroit(x, y);
        if (!entrees.empty()) entrees[Rang(entrees.size())]->activate();
    }

    /// What another program puts on the clipboard: a drawing, mostly a broken one.
    void OffreUnDessin() {
        auto texte = std::make_shared<std::string>(Entre(0, 3) ? Mute(Feuille, Fautes) : Feuille);
        const std::vector<Gtk::TargetEntry> cibles = {Gtk::TargetEntry("krVekTarget")};
        Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD)
            ->set(
                cibles,
                [texte](Gtk::SelectionData& donnees, guint) { donnees.set("krVekTarget", *texte); },
                [] {});
    }

    bool Repond() {
        for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
            auto* dialogue = dynamic_cast<Gtk::Dialog*>(fenetre);
            if (!dialogue || !dialogue->get_mapped()) continue;
            static const char* const saisies[] = {"", "12", "-7", "0", "1e400", "3,5", "abc"};
            std::vector<Gtk::Entry*> champs;
            Recolte(*dialogue, champs);
            if (!dynamic_cast<Gtk::FileChooserDialog*>(dialogue))
                for (Gtk::Entry* champ : champs)
                    if (Entre(0, 2) == 0) champ->set_text(saisies[Entre(0, 6)]);
            const bool accepte =
                Entre(0, 1) == 1 && !dynamic_cast<Gtk::FileChooserDialog*>(dialogue);
            dialogue->response(accepte ? Gtk::RESPONSE_OK : Gtk::RESPONSE_CANCEL);
        }
        return true;
    }

    Bureau& Lieu;
    std::mt19937 Des{20121010};
    Hasard Fautes{7};
    const std::string Feuille = Contenu(KRVEK_ESSAIS "/model/data/feuille.vek");
    std::vector<Gtk::MenuItem*> Entrees;
    sigc::connection Reponses;
};

}  // namespace

TEST(Hasard, PlusieursMilliersDeGestes) {
    Bureau bureau;
    {
        Utilisateur utilisateur(bureau);
        int plus = 0;
        for (int i = 0; i < 6000; ++i) {
            utilisateur.Agit();
            plus = std::max(plus, BddCourante.Elements.Nombre());
        }
        EXPECT_GT(plus, 10) << "the user drew next to nothing";
        LaisseTourner();
    }
    bureau.Zone.RazEtat();
    LaisseTourner();
    const Capture apres(bureau.Zone.get_window());
    bureau.Zone.Redessine();
    LaisseTourner();
    const Capture neuve(bureau.Zone.get_window());
    EXPECT_EQ(apres.Ecart(neuve), 0);

    BDDGeo relue;
    const std::string texte = BddCourante.SauveTexte();
    relue.ChargeTexte(texte);
    EXPECT_EQ(relue.SauveTexte(), texte);
}
