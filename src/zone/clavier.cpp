// Keys and the popup menu of the right button.

#include <gdk/gdkkeysyms.h>
#include <gtkmm/stock.h>

#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/tableetats.h"
#include "zone/zonedessin.h"

bool ZoneDessin::ToucheEnfoncee(const GdkEventKey* evenement) {
    Touche = evenement->keyval;
    switch (Touche) {
        case GDK_Up:
            EchelleCourante.Haut();
            break;
        case GDK_Down:
            EchelleCourante.Bas();
            break;
        case GDK_Left:
            EchelleCourante.Gauche();
            break;
        case GDK_Right:
            EchelleCourante.Droite();
            break;
        case GDK_Z:
        case GDK_z:
            // With Control it is the key that every hand knows for undoing.
            if (evenement->state & GDK_CONTROL_MASK) {
                AnnuleAction();
                return true;
            }
            EchelleCourante.Origine = PointSouris;
            break;
        case GDK_Escape:
            RazEtat();
            Redessine();
            return true;
        case GDK_End:
            FinProfil();
            return true;
        case GDK_Delete:
            SupPopup();
            return true;
        default:
            return false;
    }
    VueChangee();
    return true;
}

void ZoneDessin::ToucheRelachee() {
    // Any release counts, whichever key it is: that is meant.
    Touche = 0;
}

void ZoneDessin::ConstruitPopup() {
    // Four equal accelerators, of which the first wins: that is meant.
    const Gtk::AccelKey touche("S");
    ActionsPopup = Gtk::ActionGroup::create();
    ActionsPopup->add(Gtk::Action::create("Sup", "Sup", "Supprimer"), touche,
                      sigc::mem_fun(*this, &ZoneDessin::SupPopup));
    ActionsPopup->add(Gtk::Action::create("Prop", Gtk::Stock::PROPERTIES), touche,
                      sigc::mem_fun(*this, &ZoneDessin::PropPopup));
    ActionsPopup->add(Gtk::Action::create("Avant", "Avant", "Avant"), touche,
                      sigc::mem_fun(*this, &ZoneDessin::AvantPopup));
    ActionsPopup->add(Gtk::Action::create("Arriere", "Arriere", "Arrière"), touche,
                      sigc::mem_fun(*this, &ZoneDessin::ArrierePopup));
    GestionnairePopup = Gtk::UIManager::create();
    GestionnairePopup->insert_action_group(ActionsPopup);
    GestionnairePopup->add_ui_from_string(
        "<ui>"
        "  <popup name='PopupMenu'>"
        "    <menuitem action='Sup'/>"
        "    <menuitem action='Prop'/>"
        "    <menuitem action='Avant'/>"
        "    <menuitem action='Arriere'/>"
        "  </popup>"
        "</ui>");
    MenuPopup = dynamic_cast<Gtk::Menu*>(GestionnairePopup->get_widget("/PopupMenu"));
}

void ZoneDessin::SupPopup() {
    BddCourante.Efface(PointSouris);
    DessinChange();
}

void ZoneDessin::PropPopup() {
    BddCourante.ProprieteProche(PointSouris);
    LaisseDeplacement();
    // The layer typed may be a hidden one.
    SetCalqueAffiche(BddCourante.CalqueAffiche());
}

void ZoneDessin::AvantPopup() {
    BddCourante.Avant(PointSouris);
    DessinChange();
}

void ZoneDessin::ArrierePopup() {
    BddCourante.Arriere(PointSouris);
    DessinChange();
}
