#include "dialogs/commande.h"

#include <gtkmm/recentaction.h>
#include <gtkmm/recentfilter.h>
#include <gtkmm/stock.h>
#include <gtkmm/stockitem.h>
#include <gtkmm/toggleaction.h>

#include <algorithm>
#include <cstring>
#include <tuple>
#include <utility>

namespace {

Glib::RefPtr<Gtk::Action> CreeBascule(const Enseigne& e, bool active) {
    if (e.Image.empty()) return Gtk::ToggleAction::create(e.Nom, e.Libelle, e.Bulle, active);
    return Gtk::ToggleAction::create_with_icon_name(e.Nom, e.Image, e.Libelle, e.Bulle, active);
}

/// The submenu of the drawings opened last.
Glib::RefPtr<Gtk::Action> CreeRecents(const Enseigne& e) {
    const auto action = Gtk::RecentAction::create(e.Nom, e.Libelle);
    Gtk::RecentFilter filtre;
    filtre.add_pattern("*.vek");
    action->add_filter(filtre);
    action->set_sort_type(Gtk::RECENT_SORT_MRU);
    return action;
}

}  // namespace

std::string Enseigne::Mot() const {
    std::string mot = MotDonne.empty() ? Libelle : MotDonne;
    mot.erase(std::remove(mot.begin(), mot.end(), '_'), mot.end());
    return mot;
}

std::string Enseigne::Touches() const {
    static const std::pair<const char*, const char*> noms[] = {
        {"<control>", "Ctrl+"}, {"Home", "Début"}, {"BackSpace", "Retour arrière"}};
    std::string touches = Touche;
    for (const auto& [nom, mot] : noms)
        if (touches.compare(0, std::strlen(nom), nom) == 0)
            touches.replace(0, std::strlen(nom), mot);
    if (Raccourci.empty()) return touches;
    return touches.empty() ? Raccourci : touches + " ou " + Raccourci;
}

std::string Enseigne::BulleBarre() const {
    if (!Bulle.empty()) return Bulle;
    std::string touches = Touches();
    Gtk::StockItem stock;
    if (Touche.empty() && Gtk::Stock::lookup(Gtk::StockID(Image), stock) && stock.get_keyval()) {
        const std::string barre =
            Gtk::AccelGroup::get_label(stock.get_keyval(), stock.get_modifier());
        touches = touches.empty() ? barre : barre + " ou " + touches;
    }
    return touches.empty() ? Mot() : Mot() + " (" + touches + ")";
}

Glib::RefPtr<Gtk::Action> CreeAction(const Enseigne& e, bool active) {
    switch (e.Forme) {
        case Enseigne::Stock:
            return Gtk::Action::create(e.Nom, Gtk::StockID(e.Image));
        case Enseigne::Icone:
            return Gtk::Action::create_with_icon_name(e.Nom, e.Image, e.Libelle, e.Bulle);
        case Enseigne::Bascule:
            return CreeBascule(e, active);
        case Enseigne::Recents:
            return CreeRecents(e);
        default:
            return Gtk::Action::create(e.Nom, e.Libelle, e.Bulle);
    }
}

void RelieAction(const Glib::RefPtr<Gtk::Action>& action, const sigc::slot<void>& effet) {
    if (const auto recents = Glib::RefPtr<Gtk::RecentAction>::cast_dynamic(action))
        recents->signal_item_activated().connect(effet);
    else
        action->signal_activate().connect(effet);
}

std::string DefinitionUI(const std::string& contenu) {
    return "\n<ui>\n" + contenu + "</ui>\n";
}

std::string DefinitionBarre(const char* nom, std::vector<const Enseigne*> outils) {
    std::sort(outils.begin(), outils.end(), [](const Enseigne* a, const Enseigne* b) {
        return std::tie(a->GroupeBarre, a->RangBarre) < std::tie(b->GroupeBarre, b->RangBarre);
    });
    std::string texte = std::string("  <toolbar name='") + nom + "'>\n";
    int groupe = outils.empty() ? 0 : outils.front()->GroupeBarre;
    for (const Enseigne* outil : outils) {
        if (outil->GroupeBarre != groupe) texte += "    <separator/>\n";
        groupe = outil->GroupeBarre;
        texte += "    <toolitem action='" + outil->Nom + "'/>\n";
    }
    return texte + "  </toolbar>\n";
}

void MenuContextuel::Ouvre(guint bouton, guint32 instant) {
    dynamic_cast<Gtk::Menu&>(*Gestionnaire->get_widget("/Popup")).popup(bouton, instant);
}
