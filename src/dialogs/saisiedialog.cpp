#include "dialogs/saisiedialog.h"

#include <gtkmm/box.h>

#include <algorithm>

#include "dialogs/expression.h"

namespace {

Gtk::Window* Annoncee = nullptr;  ///< By `FenetreDesDialogues`; null for none.

/// The window that a new dialog belongs over: the active one; where the window manager tells of
/// none, the newest modal one, else the one announced or the oldest. Null when no window is shown.
Gtk::Window* FenetreParente() {
    Gtk::Window* modale = nullptr;
    Gtk::Window* autre = nullptr;
    // The oldest come first.
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels()) {
        if (!fenetre->is_visible() || fenetre->get_window_type() != Gtk::WINDOW_TOPLEVEL) continue;
        if (fenetre->property_is_active()) return fenetre;
        if (fenetre->get_modal()) modale = fenetre;
        if (!autre || fenetre == Annoncee) autre = fenetre;
    }
    return modale ? modale : autre;
}

}  // namespace

FenetreDesDialogues::FenetreDesDialogues(Gtk::Window* fenetre) : Avant(Annoncee) {
    Annoncee = fenetre;
}

FenetreDesDialogues::~FenetreDesDialogues() {
    Annoncee = Avant;
}

ChampSaisie::ChampSaisie(const Glib::ustring& texte, int longueurMax) {
    set_max_length(longueurMax);
    set_text(texte);
    select_region(0, -1);
    signal_changed().connect([this] { Modifie = true; });
}

std::optional<double> ChampSaisie::Nombre() const {
    return Modifie ? Evalue(get_text()).Valeur : std::nullopt;
}

SaisieDialog::SaisieDialog(const Glib::ustring& titre) : Gtk::Dialog(titre, true), Champs(1, 2) {
    if (Gtk::Window* parente = FenetreParente()) set_transient_for(*parente);
    set_border_width(6);
    get_vbox()->set_spacing(8);
    add_button("Valider", Gtk::RESPONSE_OK);
    add_button("Annuler", Gtk::RESPONSE_CANCEL);
    set_default_response(Gtk::RESPONSE_OK);
    // The title is the question: the title bar has to hold it beside its buttons.
    constexpr int boutons = 120;
    int largeur = 0, hauteur = 0;
    create_pango_layout(titre)->get_pixel_size(largeur, hauteur);
    set_default_size(largeur + boutons, -1);
    Remarque.set_line_wrap();
    Remarque.set_no_show_all();
    get_vbox()->pack_end(Remarque, Gtk::PACK_SHRINK);
    // Before whoever runs the dialog hears of the answer.
    signal_response().connect(sigc::mem_fun(*this, &SaisieDialog::Arrete), false);
}

void SaisieDialog::Branche(ChampSaisie& champ, const Examen& examen) {
    if (examen) Examines.emplace_back(&champ, examen);
    champ.signal_activate().connect([this] { response(Gtk::RESPONSE_OK); });
}

void SaisieDialog::BrancheQuestion(Gtk::Button& bouton, const sigc::slot<void>& question) {
    bouton.signal_clicked().connect([this, question] {
        question();
        set_focus(*get_widget_for_response(Gtk::RESPONSE_OK));
    });
}

void SaisieDialog::AjouteLigne(ChampSaisie& champ, const Examen& examen) {
    champ.set_width_chars(24);
    Branche(champ, examen);
    get_vbox()->pack_start(champ, Gtk::PACK_SHRINK);
    champ.show();
}

void SaisieDialog::AjouteChamp(const Glib::ustring& libelle, ChampSaisie& champ,
                               const Examen& examen) {
    Branche(champ, examen);
    AjouteChamp(libelle, static_cast<Gtk::Widget&>(champ));
}

void SaisieDialog::AjouteChamp(const Glib::ustring& libelle, Gtk::Widget& champ) {
    const guint rang = RangLibre();
    auto* texte = Gtk::manage(new Gtk::Label(libelle, Gtk::ALIGN_LEFT));
    Champs.attach(*texte, 0, 1, rang, rang + 1, Gtk::FILL);
    Champs.attach(champ, 1, 2, rang, rang + 1);
    texte->show();
    champ.show();
}

void SaisieDialog::AjouteBloc(Gtk::Widget& bloc) {
    const guint rang = RangLibre();
    Champs.attach(bloc, 0, 2, rang, rang + 1);
    bloc.show_all();
}

guint SaisieDialog::RangLibre() {
    if (!Champs.get_parent()) {
        Champs.set_spacings(6);
        get_vbox()->pack_start(Champs, Gtk::PACK_SHRINK);
        Champs.show();
    }
    return Rangs++;
}

Glib::ustring SaisieDialog::Refus() {
    for (const auto& [champ, examen] : Examines) {
        if (!champ->EstModifie()) continue;
        const Glib::ustring phrase = examen(champ->get_text());
        if (phrase.empty()) continue;
        champ->grab_focus();
        return phrase;
    }
    return {};
}

void SaisieDialog::Arrete(int reponse) {
    if (reponse != Gtk::RESPONSE_OK && reponse != Gtk::RESPONSE_APPLY) return;
    const Glib::ustring phrase = Refus();
    Remarque.set_text(phrase);
    Remarque.set_visible(!phrase.empty());
    if (!phrase.empty()) signal_response().emission_stop();
}

void SaisieDialog::on_response(int reponse) {
    if (reponse == Gtk::RESPONSE_OK) Prend();
    Gtk::Dialog::on_response(reponse);
}
