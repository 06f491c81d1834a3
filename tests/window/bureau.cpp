#include "bureau.h"

#include <gdk/gdkkeysyms.h>
#include <gtkmm/menubar.h>
#include <gtkmm/separatormenuitem.h>
#include <gtkmm/stock.h>

#include <algorithm>
#include <stdexcept>

#include "elements/eltcote.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/feuille.h"

namespace {

void Recolte(Gtk::MenuShell& menu, std::vector<Gtk::MenuItem*>& entrees) {
    for (Gtk::Widget* enfant : menu.get_children()) {
        auto* entree = dynamic_cast<Gtk::MenuItem*>(enfant);
        if (!entree || dynamic_cast<Gtk::SeparatorMenuItem*>(enfant)) continue;
        if (entree->has_submenu())
            Recolte(*entree->get_submenu(), entrees);
        else
            entrees.push_back(entree);
    }
}

void RecolteLibelles(Gtk::Widget& racine, std::vector<Gtk::Label*>& libelles) {
    if (auto* libelle = dynamic_cast<Gtk::Label*>(&racine)) libelles.push_back(libelle);
    if (auto* boite = dynamic_cast<Gtk::Container*>(&racine))
        for (Gtk::Widget* enfant : boite->get_children())
            RecolteLibelles(*enfant, libelles);
}

}  // namespace

std::string DossierProvisoire() {
    char modele[] = "/tmp/krvek-fichiers-XXXXXX";
    return g_mkdtemp(modele);
}

Bureau::Bureau() : Zone(*PremierDe<ZoneDessin>(Fenetre)), Souris(Zone) {
    BddCourante.Vide();
    BddCourante.SetCalqueAffiche(-1);
    // What another test may have set in the program stays behind it.
    BddCourante.AfficheBDD = true;
    BddCourante.Transforme = TransformeColle();
    NbDecimales = 2;
    FeuilleCourante.ApercuPage = FeuilleCourante.ImpressionNoir = false;
    FeuilleCourante.OrigineFeuille = FeuilleCourante.Papier = PointVek();
    FeuilleCourante.SetEchelle(1.0);
    EchelleCourante.ZoomInit();
    Fenetre.show();
    LaisseTourner();
}

Bureau::~Bureau() {
    BddCourante.Vide();
}

std::vector<Gtk::MenuItem*> Bureau::Entrees() {
    std::vector<Gtk::MenuItem*> entrees;
    Recolte(*PremierDe<Gtk::MenuBar>(Fenetre), entrees);
    return entrees;
}

void Bureau::Choisit(const std::string& action) {
    for (Gtk::MenuItem* entree : Entrees()) {
        if (NomAction(*entree) != action) continue;
        entree->activate();
        LaisseTourner();
        return;
    }
    throw std::runtime_error("no entry " + action);
}

void Bureau::Recoit(GdkEventType genre, unsigned touche, unsigned modificateurs) {
    GdkEvent evenement = {};
    evenement.type = genre;
    evenement.any.window = Fenetre.get_window()->gobj();
    GdkKeymapKey* codes = nullptr;
    int nombre = 0;
    if (genre != GDK_FOCUS_CHANGE) {
        evenement.key.keyval = touche;
        evenement.key.state = modificateurs;
        if (gdk_keymap_get_entries_for_keyval(nullptr, touche, &codes, &nombre) && nombre > 0)
            evenement.key.hardware_keycode = static_cast<guint16>(codes[0].keycode);
        g_free(codes);
    }
    gtk_widget_event(GTK_WIDGET(Fenetre.gobj()), &evenement);
    LaisseTourner();
}

void Bureau::Frappe(unsigned touche, unsigned modificateurs) {
    for (const GdkEventType genre : {GDK_KEY_PRESS, GDK_KEY_RELEASE})
        Recoit(genre, touche, modificateurs);
}

Gtk::Label& Bureau::LibelleCommencant(const std::string& debut) {
    std::vector<Gtk::Label*> libelles;
    RecolteLibelles(Fenetre, libelles);
    for (Gtk::Label* libelle : libelles)
        if (libelle->get_text().raw().compare(0, debut.size(), debut) == 0) return *libelle;
    throw std::runtime_error("no label " + debut);
}
