#include "window/recuperationdialog.h"

#include <glibmm/convert.h>
#include <glibmm/markup.h>
#include <glibmm/miscutils.h>
#include <gtkmm/label.h>
#include <gtkmm/messagedialog.h>

#include "elements/encodage.h"
#include "window/vignette.h"

namespace {

constexpr int LargeurImage = 160, HauteurImage = 110;
constexpr int ReponseJette = 1;

Glib::ustring DateLisible(std::time_t date) {
    char texte[64] = "";
    std::tm jour = {};
    if (localtime_r(&date, &jour)) std::strftime(texte, sizeof texte, "%d/%m/%Y à %H:%M:%S", &jour);
    return texte;
}

Glib::ustring Description(const CopieSecours& copie) {
    const auto lisible = [](const std::string& nom) {
        return Glib::Markup::escape_text(Glib::filename_display_name(nom));
    };
    Glib::ustring texte;
    if (copie.Nom.empty())
        texte = "<b>(sans nom)</b>";
    else
        texte = "<b>" + lisible(Glib::path_get_basename(copie.Nom)) + "</b>\n" +
                lisible(Glib::path_get_dirname(copie.Nom));
    texte += "\n" + DateLisible(copie.Date);
    if (copie.Elements >= 0)
        texte += Glib::ustring::compose(copie.Elements > 1 ? "\n%1 éléments" : "\n%1 élément",
                                        copie.Elements);
    if (!copie.Raison.empty())
        texte += "\n<i>" + Glib::Markup::escape_text(EnUtf8(copie.Raison)) + "</i>";
    return texte;
}

}  // namespace

RecuperationDialog::RecuperationDialog(Gtk::Window& parente, std::vector<CopieSecours> copies)
    : Gtk::Dialog("Récupération", parente, true), Copies(std::move(copies)) {
    set_default_size(520, 420);
    Lignes = Gtk::ListStore::create(Champs);
    for (std::size_t rang = 0; rang < Copies.size(); ++rang)
        Ajoute(rang);
    Liste.set_model(Lignes);
    Liste.set_headers_visible(false);
    Liste.append_column("", Champs.Image);
    auto* mots = Gtk::manage(new Gtk::CellRendererText());
    const int colonne = Liste.append_column("", *mots);
    Liste.get_column(colonne - 1)->add_attribute(mots->property_markup(), Champs.Texte);
    Liste.signal_row_activated().connect(
        [this](const Gtk::TreePath&, Gtk::TreeViewColumn*) { response(Gtk::RESPONSE_OK); });
    if (!Copies.empty()) Liste.set_cursor(Gtk::TreePath("0"));
    Cadre.set_policy(Gtk::POLICY_NEVER, Gtk::POLICY_AUTOMATIC);
    Cadre.set_shadow_type(Gtk::SHADOW_IN);
    Cadre.add(Liste);
    auto* consigne = Gtk::manage(new Gtk::Label(
        Copies.empty() ? "Aucune copie n'est gardée."
                       : "Ces dessins n'étaient pas enregistrés. Lequel reprendre ?"));
    consigne->set_alignment(Gtk::ALIGN_LEFT);
    consigne->set_padding(6, 6);
    get_vbox()->pack_start(*consigne, Gtk::PACK_SHRINK);
    get_vbox()->pack_start(Cadre, Gtk::PACK_EXPAND_WIDGET);
    add_button("_Jeter", ReponseJette);
    add_button(Copies.empty() ? "_Fermer" : "_Plus tard", Gtk::RESPONSE_CANCEL);
    add_button("_Récupérer", Gtk::RESPONSE_OK);
    set_default_response(Copies.empty() ? Gtk::RESPONSE_CANCEL : Gtk::RESPONSE_OK);
    set_response_sensitive(ReponseJette, !Copies.empty());
    set_response_sensitive(Gtk::RESPONSE_OK, !Copies.empty());
    show_all_children();
}

void RecuperationDialog::Ajoute(std::size_t rang) {
    const CopieSecours& copie = Copies[rang];
    Gtk::TreeRow ligne = *Lignes->append();
    const bool longue = copie.Taille > VignetteMax;
    ligne[Champs.Image] =
        Vignette(longue ? "" : Recuperation::Texte(copie), LargeurImage, HauteurImage);
    ligne[Champs.Texte] = Description(copie);
    ligne[Champs.Rang] = rang;
}

void RecuperationDialog::JetteChoisie() {
    const auto choisie = Liste.get_selection()->get_selected();
    if (!choisie) return;
    Gtk::MessageDialog question(*this, "Jeter cette copie pour de bon ?", false,
                                Gtk::MESSAGE_QUESTION, Gtk::BUTTONS_OK_CANCEL, true);
    if (question.run() != Gtk::RESPONSE_OK) return;
    Recuperation::Jette(Copies[(*choisie)[Champs.Rang]]);
    Lignes->erase(choisie);
    const bool reste = !Lignes->children().empty();
    set_response_sensitive(ReponseJette, reste);
    set_response_sensitive(Gtk::RESPONSE_OK, reste);
    if (reste) Liste.set_cursor(Gtk::TreePath("0"));
}

std::optional<CopieSecours> RecuperationDialog::Demande() {
    for (;;) {
        const int reponse = run();
        const auto choisie = Liste.get_selection()->get_selected();
        if (reponse == Gtk::RESPONSE_OK && choisie) return Copies[(*choisie)[Champs.Rang]];
        if (reponse != ReponseJette) return {};
        JetteChoisie();
        if (Lignes->children().empty()) return {};
    }
}
