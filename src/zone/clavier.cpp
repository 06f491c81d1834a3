// The keys of the drawing area, and its popup menu.

#include <gdk/gdkkeysyms.h>
#include <gtkmm/stock.h>

#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/zonedessin.h"

bool ZoneDessin::ToucheEnfoncee(const GdkEventKey* evenement) {
    Outils.Touche = evenement->keyval;
    switch (Outils.Touche) {
        case GDK_Up:
        case GDK_KP_Up:
            EchelleCourante.Haut();
            break;
        case GDK_Down:
        case GDK_KP_Down:
            EchelleCourante.Bas();
            break;
        case GDK_Left:
        case GDK_KP_Left:
            EchelleCourante.Gauche();
            break;
        case GDK_Right:
        case GDK_KP_Right:
            EchelleCourante.Droite();
            break;
        case GDK_Z:
        case GDK_z:
            // With Control it is the key that every hand knows for undoing, and with Shift besides
            // for doing again.
            if (evenement->state & GDK_CONTROL_MASK) {
                if (evenement->state & GDK_SHIFT_MASK)
                    RefaitAction();
                else
                    AnnuleAction();
                return true;
            }
            EchelleCourante.Origine = Souris.Position();
            break;
        case GDK_Escape:
            Outils.RazEtat();
            Outils.Redessine();
            return true;
        case GDK_End:
        case GDK_KP_End:
            Outils.Finit();
            return true;
        case GDK_Delete:
        case GDK_KP_Delete:
            SupPopup();
            return true;
        case GDK_KP_Home:
            // The key of the menu, on the other block.
            ToutVoir();
            return true;
        case GDK_Page_Up:
        case GDK_KP_Page_Up:
            Souris.PasseRepere(-1);
            return true;
        case GDK_Page_Down:
        case GDK_KP_Page_Down:
            Souris.PasseRepere(1);
            return true;
        case GDK_F10:
            // Alone it is the menu bar's.
            if (!(evenement->state & GDK_SHIFT_MASK)) return false;
            [[fallthrough]];
        case GDK_Menu:
            Popup.Ouvre(0, evenement->time);
            return true;
        default:
            return false;
    }
    Outils.VueChangee();
    return true;
}

void ZoneDessin::ToucheRelachee() {
    // Any release counts, whichever key it is: one key is remembered, and not which are down.
    Outils.Touche = 0;
}

void ZoneDessin::on_grab_notify(bool reprise) {
    // A menu or a dialog takes the keys, and the release of the one that is held as well.
    ToucheRelachee();
    Gtk::DrawingArea::on_grab_notify(reprise);
}

const std::vector<Commande<ZoneDessin>>& ZoneDessin::CommandesPopup() {
    using Ligne = Commande<ZoneDessin>;
    // Four equal accelerators, of which the first wins: only the open menu would read them.
    static const std::vector<Ligne> table = {
        Ligne(Ligne::Simple, "Sup", "Sup", &ZoneDessin::SupPopup)
            .AvecBulle("Supprimer")
            .AvecTouche("S"),
        Ligne(Ligne::Stock, "Prop", "", &ZoneDessin::PropPopup)
            .AvecImage(Gtk::Stock::PROPERTIES.id)
            .AvecTouche("S"),
        Ligne(Ligne::Simple, "Avant", "Avant", &ZoneDessin::AvantPopup)
            .AvecBulle("Avant")
            .AvecTouche("S"),
        Ligne(Ligne::Simple, "Arriere", "Arriere", &ZoneDessin::ArrierePopup)
            .AvecBulle("Arrière")
            .AvecTouche("S"),
    };
    return table;
}

void ZoneDessin::SupPopup() {
    BddCourante.Efface(Souris.Position());
    Outils.DessinChange();
}

void ZoneDessin::PropPopup() {
    if (BddCourante.ProprieteProche(Souris.Position())) Outils.DessinRepris();
    // The layer typed may be a hidden one.
    Outils.SetCalqueAffiche(BddCourante.CalqueAffiche());
}

void ZoneDessin::AvantPopup() {
    BddCourante.Avant(Souris.Position());
    Outils.DessinChange();
}

void ZoneDessin::ArrierePopup() {
    BddCourante.Arriere(Souris.Position());
    Outils.DessinChange();
}
