// A user who clicks, types, pastes, opens files and answers at random, in the drawing's window and
// in that of the 3D view at once, the same at every run: nothing breaks, nothing stays on the
// screen that should not, and the drawing survives a save.

#include <GL/gl.h>
#include <gdk/gdkkeysyms.h>
#include <glibmm/fileutils.h>
#include <gtest/gtest.h>
#include <gtkmm/clipboard.h>
#include <gtkmm/entry.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/main.h>

#include <random>
#include <set>

#include "bureau.h"
#include "commun/main3d.h"
#include "commun/mutation.h"
#include "commun/record.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/eltbdd.h"
#include "solids/eltpave.h"
#include "zone/etats.h"
#include "zone/tableetats.h"

namespace {

class Utilisateur {
  public:
    Utilisateur(Bureau& bureau, Main3D& vue) : Lieu(bureau), Vue(vue) {
        for (Gtk::MenuItem* entree : bureau.Entrees()) {
            // The help starts a browser, leaving ends the test, the toolkit's own dialog on a
            // printer does not bear just any text in its fields, and its chooser of files takes its
            // time.
            static const std::set<std::string> interdites = {
                "",    "Aide", "PrintDialog", "Quit",      "Open",     "SaveAs",
                "Dxf", "Ve9",  "Vek",         "ExportPDF", "ExportDxf"};
            if (entree->is_sensitive() && !interdites.count(NomAction(*entree)))
                Entrees.push_back(entree);
        }
        Reponses = Glib::signal_timeout().connect([this] { return Repond(); }, 1);
    }

    ~Utilisateur() { Reponses.disconnect(); }

    void Agit() {
        if (Entre(0, 19) == 0) return AgitEnVue();
        const int x = Entre(-20, Lieu.Zone.Vue.Largeur() + 20);
        const int y = Entre(-20, Lieu.Zone.Vue.Hauteur() + 20);
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
            Lieu.Zone.Outils.Entre(LigneDe(Entre(0, NOMBRE_ETATS - 1)).Premier);
        else
            Entrees[Rang(Entrees.size())]->activate();
        if (Entre(0, 99) == 0) OffreUnDessin();
        if (Entre(0, 199) == 0) OuvreUnDessin();
        if (Entre(0, 3) == 0) LaisseTourner();
        // A view that has been zoomed out of all proportion shows nothing more.
        if (EchelleCourante.Facteur > 1e4 || EchelleCourante.Facteur < 1e-4)
            Lieu.Zone.ZoomInitAction();
    }

  private:
    void AgitEnVue() {
        // What is fine or full takes the view its time.
        if (BddCourante.Elements.Nombre() > 60) Lieu.Zone.Nouveau();
        for (EltGeo* elt : BddCourante.Elements)
            if (auto* solide = dynamic_cast<Elt3d*>(elt)) solide->facetisation %= 16;
        if (!Vue.Fenetre.get_visible()) {
            if (Entre(0, 4) == 0) Lieu.Choisit("Vue3D");
        } else if (Entre(0, 199) == 0) {
            Vue.Frappe(GDK_End);
        } else {
            Vue.Agit(Des3D);
            if (Entre(0, 5) == 0) Vue.Image();
        }
    }

    int Entre(int mini, int maxi) { return std::uniform_int_distribution<int>(mini, maxi)(Des); }

    std::size_t Rang(std::size_t nombre) {
        return static_cast<std::size_t>(Entre(0, static_cast<int>(nombre) - 1));
    }

    void Tape() {
        static const unsigned touches[] = {
            GDK_Up, GDK_Down, GDK_Left,      GDK_Right,   GDK_z,   GDK_End, GDK_Escape, GDK_Delete,
            GDK_a,  GDK_s,    GDK_Control_L, GDK_Shift_L, GDK_Tab, GDK_g,   GDK_o,      GDK_l};
        const unsigned touche = touches[Entre(0, 15)];
        const bool tenue = touche == GDK_Control_L || touche == GDK_Shift_L;
        tenue ? Lieu.Souris.Touche(touche) : Lieu.Frappe(touche);
    }

    void ChoisitAuMenuDroit(int x, int y) {
        const auto entrees = Lieu.Souris.MenuDroit(x, y);
        if (!entrees.empty()) entrees[Rang(entrees.size())]->activate();
    }

    /// What another program puts on the clipboard: a drawing, mostly a broken one.
    void OffreUnDessin() {
        const std::string texte = Entre(0, 3) ? Mute(Feuille, Fautes) : Feuille;
        const std::vector<Gtk::TargetEntry> cibles = {Gtk::TargetEntry("krVekTarget")};
        const auto donne = [texte](Gtk::SelectionData& donnees, guint) {
            donnees.set("krVekTarget", texte);
        };
        Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD)->set(cibles, donne, [] {});
    }

    /// As `Open` does after its question; every fourth file has faults.
    void OuvreUnDessin() {
        const std::string texte = Solides[Entre(0, 1)];
        const std::string nom = std::string(g_get_home_dir()) + "/hasard.vek";
        Glib::file_set_contents(nom, Entre(0, 3) ? texte : Mute(texte, Fautes));
        Lieu.Zone.OuvreZone(nom);
    }

    bool Repond() {
        for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
            auto* dialogue = dynamic_cast<Gtk::Dialog*>(fenetre);
            if (!dialogue || !dialogue->get_mapped()) continue;
            static const char* const saisies[] = {"", "12", "-7", "0", "1e400", "3,5", "abc"};
            std::vector<Gtk::Entry*> champs;
            Recolte(*dialogue, champs);
            const bool choix = dynamic_cast<Gtk::FileChooserDialog*>(dialogue);
            for (Gtk::Entry* champ : champs)
                if (!choix && Entre(0, 2) == 0) champ->set_text(saisies[Entre(0, 6)]);
            dialogue->response(!choix && Entre(0, 1) ? Gtk::RESPONSE_OK : Gtk::RESPONSE_CANCEL);
        }
        return true;
    }

    Bureau& Lieu;
    Main3D& Vue;
    std::mt19937 Des{Graine(20121010)};
    Hasard Des3D{Graine(11)};
    Hasard Fautes{Graine(7)};
    const std::string Feuille = Contenu(KRVEK_ESSAIS "/model/data/feuille.vek");
    const std::string Solides[2] = {Contenu(KRVEK_ESSAIS "/solids/data/solides.vek"),
                                    Contenu(KRVEK_ESSAIS "/solids/data/profils.vek")};
    std::vector<Gtk::MenuItem*> Entrees;
    sigc::connection Reponses;
};

/// The 3D window of the program.
Window3D& Fenetre3D() {
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
        if (auto* trouvee = dynamic_cast<Window3D*>(fenetre)) return *trouvee;
    throw std::runtime_error("no 3D window");
}

/// What an element holds is held by the same list.
void VerifieFils(const BDDGeoBase& bdd) {
    const std::set<const EltGeo*> elements(bdd.Elements.begin(), bdd.Elements.end());
    for (const EltGeo* elt : bdd.Elements) {
        for (const EltGeo* fils : elt->Fils)
            EXPECT_TRUE(elements.count(fils));
        if (const auto* groupe = dynamic_cast<const EltBDD*>(elt)) VerifieFils(groupe->Contenu);
    }
}

}  // namespace

TEST(Hasard, PlusieursMilliersDeGestes) {
    Bureau bureau;
    bureau.Fenetre.Secours.Intervalle = 0.0;
    bureau.Choisit("Vue3D");
    Main3D vue(Fenetre3D());
    vue.Fenetre.move(680, 420);
    {
        Utilisateur utilisateur(bureau, vue);
        int plus = 0;
        for (int i = 0; i < 2000; ++i) {
            utilisateur.Agit();
            plus = std::max(plus, BddCourante.Elements.Nombre());
        }
        EXPECT_GT(plus, 10) << "the user drew next to nothing";
        LaisseTourner();
    }
    bureau.Zone.Outils.RazEtat();
    VerifieFils(BddCourante);
    vue.Fenetre.hide();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    LaisseTourner();
    const Capture apres(bureau.Zone.get_window());
    bureau.Zone.Vue.Redessine();
    LaisseTourner();
    const Capture neuve(bureau.Zone.get_window());
    EXPECT_EQ(apres.Ecart(neuve), 0);

    BDDGeo relue;
    const std::string texte = BddCourante.SauveTexte();
    relue.ChargeTexte(texte);
    EXPECT_EQ(relue.SauveTexte(), texte);
}
