#include "zone/bandeau.h"

#include <gtkmm/buttonbox.h>

namespace {

/// Keys go to the drawing.
void RetireFocus(Gtk::Widget& bouton) {
    bouton.set_can_focus(false);
}

}  // namespace

Bandeau::Bandeau() {
    Libelle.set_line_wrap(true);
    Libelle.set_line_wrap_mode(Pango::WRAP_WORD_CHAR);
    // The toolkit's bar is light whatever the theme.
    Libelle.modify_fg(Gtk::STATE_NORMAL, Gdk::Color("#000000"));
    Libelle.set_alignment(Gtk::ALIGN_LEFT);
    auto* contenu = dynamic_cast<Gtk::Container*>(Barre.get_content_area());
    contenu->add(Libelle);
    Barre.set_message_type(Gtk::MESSAGE_INFO);
    Barre.signal_response().connect(sigc::mem_fun(*this, &Bandeau::Repond));
    add(Barre);
    add_events(Gdk::BUTTON_PRESS_MASK);
    show_all_children();
    set_no_show_all(true);
}

void Bandeau::Dit(const Glib::ustring& texte, std::vector<Issue> issues) {
    Issues = std::move(issues);
    Commandes = EnCommande ? -1 : 0;  // The one that has it said is not a further one.
    Libelle.set_text(texte);
    auto& boutons = dynamic_cast<Gtk::Container&>(*Barre.get_action_area());
    for (Gtk::Widget* bouton : boutons.get_children())
        boutons.remove(*bouton);
    int rang = 0;
    for (const Issue& issue : Issues)
        Barre.add_button(issue.Libelle, rang++);
    boutons.foreach (sigc::ptr_fun(&RetireFocus));
    show();
    // Over the drawing, whichever of the two was shown last.
    if (const auto fenetre = get_window()) fenetre->raise();
}

Glib::ustring Bandeau::Texte() const {
    return get_visible() ? Libelle.get_text() : Glib::ustring();
}

void Bandeau::CompteCommande() {
    EnCommande = false;
    if (get_visible() && ++Commandes >= CommandesMax) Cache();
}

void Bandeau::on_size_request(Gtk::Requisition* demande) {
    Gtk::EventBox::on_size_request(demande);
    // It follows the width of the drawing area, and never keeps the window from becoming narrower.
    demande->width = 1;
}

void Bandeau::on_size_allocate(Gtk::Allocation& place) {
    Gtk::EventBox::on_size_allocate(place);
    // The words take what the buttons leave, on as many lines as they need.
    constexpr int marges = 40;
    const int largeur =
        place.get_width() - Barre.get_action_area()->get_allocation().get_width() - marges;
    int demandee = 0, hauteur = 0;
    Libelle.get_size_request(demandee, hauteur);
    if (largeur > 0 && largeur != demandee) Libelle.set_size_request(largeur, -1);
}

bool Bandeau::on_button_press_event(GdkEventButton*) {
    Cache();
    return true;
}

void Bandeau::Repond(int reponse) {
    if (reponse < 0 || reponse >= static_cast<int>(Issues.size())) return;
    // What is said stays until the way out has been gone to its end.
    const sigc::slot<void> effet = Issues[static_cast<std::size_t>(reponse)].Effet;
    effet();
}

void Bandeau::Cache() {
    hide();
    Issues.clear();
}
