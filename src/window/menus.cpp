// The menus and the tool bar.

#include <gtkmm/menubar.h>
#include <gtkmm/toolbar.h>

#include "window/complements.h"
#include "window/dessinwindow.h"
#include "window/menus.h"
#include "window/tablecommandes.h"

namespace {

/// Keys go to the drawing: no button of the tool bar takes the focus, or Return and Space would
/// fire it.
void RetireFocus(Gtk::Widget& outil) {
    outil.set_can_focus(false);
    if (auto* boite = dynamic_cast<Gtk::Container*>(&outil))
        boite->foreach (sigc::ptr_fun(&RetireFocus));
}

/// The toolkit gives its own items no tooltip, and a picture alone does not say what it does.
void MetBulles(Gtk::UIManager& gestionnaire) {
    ParcourtCommandes(TableCommandes(), [&](const Enseigne& commande, const std::vector<int>&) {
        if (commande.GroupeBarre == 0) return;
        auto* outil =
            dynamic_cast<Gtk::ToolItem*>(gestionnaire.get_widget("/ToolBar/" + commande.Nom));
        outil->set_tooltip_text(commande.BulleBarre());
    });
}

/// Under the pointer the theme paints the entry, background and words.
void EcritEntreeEnSombre(Gtk::Widget& entree) {
    EcritEnSombre(*dynamic_cast<Gtk::Bin&>(entree).get_child());
}

}  // namespace

void EcritEnSombre(Gtk::Widget& libelle) {
    libelle.modify_fg(Gtk::STATE_NORMAL, Gdk::Color("#000000"));
    libelle.modify_fg(Gtk::STATE_INSENSITIVE, Gdk::Color("#8C8C78"));
}

std::string DefinitionMenus() {
    std::vector<const Enseigne*> outils;
    ParcourtCommandes(TableCommandes(), [&](const Enseigne& commande, const std::vector<int>&) {
        if (commande.GroupeBarre > 0) outils.push_back(&commande);
    });
    return DefinitionUI(DefinitionMenu("menubar", "MenuBar", TableCommandes()) +
                        DefinitionBarre("ToolBar", outils));
}

void DessinWindow::ConstruitMenus() {
    set_title("KR VEK 1.0");
    Actions = CreeActions("", TableCommandes(), *this);
    GestionnaireUI = Gtk::UIManager::create();
    GestionnaireUI->insert_action_group(Actions, 0);
    add_accel_group(GestionnaireUI->get_accel_group());
    GestionnaireUI->add_ui_from_string(DefinitionMenus());
    AjouteComplements();
    GestionnaireUI->signal_pre_activate().connect(
        sigc::hide(sigc::mem_fun(Messages, &Bandeau::CommenceCommande)));
    GestionnaireUI->signal_post_activate().connect([this](const Glib::RefPtr<Gtk::Action>& action) {
        // Opening a menu is no command.
        if (action->get_name().compare(0, 4, "Menu") != 0) Messages.CompteCommande();
    });

    auto* menu = dynamic_cast<Gtk::MenuBar*>(GestionnaireUI->get_widget("/MenuBar"));
    menu->modify_bg(Gtk::STATE_NORMAL, Gdk::Color("#FFFFEA"));
    menu->foreach (sigc::ptr_fun(&EcritEntreeEnSombre));
    BoiteMenu.pack_start(*menu, Gtk::PACK_SHRINK);

    auto* outils = dynamic_cast<Gtk::Toolbar*>(GestionnaireUI->get_widget("/ToolBar"));
    BarreOutils = outils;
    outils->set_toolbar_style(Gtk::TOOLBAR_ICONS);
    outils->modify_bg(Gtk::STATE_NORMAL, Gdk::Color("#F0F0D0"));
    RetireFocus(*outils);
    MetBulles(*GestionnaireUI.operator->());
    BoiteMenu.pack_start(*outils, Gtk::PACK_SHRINK);
}

void DessinWindow::Choisit(const std::string& action) {
    for (const Glib::RefPtr<Gtk::ActionGroup>& groupe : GestionnaireUI->get_action_groups())
        if (const auto trouvee = groupe->get_action(action)) return trouvee->activate();
}

void DessinWindow::AjouteComplements() {
    if (TableComplements().empty()) return;
    GestionnaireUI->insert_action_group(CreeActions("Complements", TableComplements(), *this), 1);
    GestionnaireUI->add_ui_from_string(
        DefinitionUI(DefinitionMenu("menubar", "MenuBar", TableComplements())));
}
