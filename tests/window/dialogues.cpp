#include "dialogues.h"

#include <glibmm/miscutils.h>
#include <gtest/gtest.h>
#include <gtkmm/button.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/colorselection.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/fontbutton.h>
#include <gtkmm/label.h>
#include <gtkmm/treeview.h>

#include <algorithm>
#include <map>

#include "commun/banc.h"
#include "commun/record.h"

std::vector<std::string> Decoupe(const std::string& texte, const std::string& marque) {
    std::vector<std::string> parts;
    std::size_t debut = 0, fin = 0;
    for (; (fin = texte.find(marque, debut)) != std::string::npos; debut = fin + marque.size())
        parts.push_back(texte.substr(debut, fin - debut));
    parts.push_back(texte.substr(debut));
    return parts;
}

std::string TexteDe(Gtk::Widget& champ) {
    if (auto* police = dynamic_cast<Gtk::FontButton*>(&champ)) return police->get_font_name();
    return dynamic_cast<Gtk::Entry&>(champ).get_text();
}

namespace {

using Ligne = std::vector<Gtk::Widget*>;

/// A widget with its place in the dialog.
struct Place {
    int Milieu, Gauche;
    Gtk::Widget* Objet;
};

void RecolteFeuilles(Gtk::Widget& racine, Gtk::Dialog& dialogue, std::vector<Place>& places) {
    if (!racine.get_mapped()) return;
    auto* boite = dynamic_cast<Gtk::Container*>(&racine);
    if (boite && !dynamic_cast<Gtk::Button*>(&racine) && !dynamic_cast<Gtk::TreeView*>(&racine)) {
        for (Gtk::Widget* enfant : boite->get_children())
            RecolteFeuilles(*enfant, dialogue, places);
        return;
    }
    Place place = {0, 0, &racine};
    racine.translate_coordinates(dialogue, 0, racine.get_height() / 2, place.Gauche, place.Milieu);
    places.push_back(place);
}

/// What stands on one height is one line.
std::vector<Ligne> Lignes(Gtk::Dialog& dialogue) {
    constexpr int ecart = 3;
    std::vector<Place> places;
    RecolteFeuilles(dialogue, dialogue, places);
    std::sort(places.begin(), places.end(),
              [](const Place& a, const Place& b) { return a.Milieu < b.Milieu; });
    std::vector<Ligne> lignes;
    for (auto debut = places.begin(); debut != places.end();) {
        const auto fin = std::find_if(debut, places.end(), [debut](const Place& place) {
            return place.Milieu > debut->Milieu + ecart;
        });
        std::sort(debut, fin, [](const Place& a, const Place& b) { return a.Gauche < b.Gauche; });
        lignes.emplace_back();
        for (; debut != fin; ++debut)
            lignes.back().push_back(debut->Objet);
    }
    return lignes;
}

/// The name of a label or a button, without blanks around it.
std::string NomDe(Gtk::Widget& objet) {
    std::string nom;
    if (auto* libelle = dynamic_cast<Gtk::Label*>(&objet)) nom = libelle->get_text();
    if (auto* bouton = dynamic_cast<Gtk::Button*>(&objet)) nom = bouton->get_label();
    nom.erase(0, nom.find_first_not_of(' '));
    return Remplace(nom, "\r?\n", " / ");
}

/// The words of the second column, without the date; the row that is chosen has a star.
std::string VueListe(Gtk::TreeView& liste) {
    std::string vue = "{";
    for (const Gtk::TreeRow& ligne : liste.get_model()->children()) {
        char* mots = nullptr;
        gtk_tree_model_get(liste.get_model()->gobj(), const_cast<GtkTreeIter*>(ligne.gobj()), 1,
                           &mots, -1);
        vue += std::string(liste.get_selection()->is_selected(ligne) ? "*" : " ") + mots;
        g_free(mots);
    }
    const char date[] = "[0-9]{2}/[0-9]{2}/[0-9]{4} à [0-9]{2}:[0-9]{2}:[0-9]{2}";
    return Remplace(Remplace(vue + '}', date, "(date)"), "\\n", " / ");
}

std::string Vue(Gtk::Widget& objet) {
    if (auto* coche = dynamic_cast<Gtk::CheckButton*>(&objet))
        return (coche->get_active() ? "+" : "-") + NomDe(objet);
    if (auto* police = dynamic_cast<Gtk::FontButton*>(&objet))
        return '<' + TexteDe(objet) + (police->get_show_size() ? " sized" : "") +
               (police->get_use_font() ? ">" : " plain>");
    if (auto* liste = dynamic_cast<Gtk::TreeView*>(&objet)) return VueListe(*liste);
    if (dynamic_cast<Gtk::Button*>(&objet))
        return (objet.is_sensitive() ? "<" : "<!") + NomDe(objet) + '>';
    if (dynamic_cast<Gtk::Entry*>(&objet)) return '[' + TexteDe(objet) + ']';
    return NomDe(objet);
}

void Clique(Gtk::Dialog& dialogue, const std::string& nom) {
    std::vector<Gtk::Button*> boutons;
    Recolte(dialogue, boutons);
    for (Gtk::Button* bouton : boutons)
        if (NomDe(*bouton) == nom) return bouton->clicked();
    ADD_FAILURE() << "no button " << nom;
}

void Tape(Gtk::Dialog& dialogue, const std::string& nom, const std::string& texte) {
    for (const auto& [libelle, champ] : Champs(dialogue)) {
        if (libelle != nom) continue;
        if (auto* police = dynamic_cast<Gtk::FontButton*>(champ))
            police->set_font_name(texte);
        else
            dynamic_cast<Gtk::Entry&>(*champ).set_text(Glib::strcompress(texte));
        return;
    }
    ADD_FAILURE() << "no field " << nom;
}

void JoueUn(Gtk::Dialog& dialogue, const std::string& geste) {
    const std::size_t egal = geste.find('='), point = geste.find('.');
    if (auto* palette = dynamic_cast<Gtk::ColorSelectionDialog*>(&dialogue)) {
        palette->get_color_selection()->set_current_color(Gdk::Color(geste));
        EXPECT_TRUE(palette->activate_default()) << "Enter answers";
    } else if (egal < point) {
        Tape(dialogue, geste.substr(0, egal), geste.substr(egal + 1));
    } else if (point != std::string::npos) {
        const bool renonce = geste[point - 1] == '!';
        RepondDialogue(renonce ? Gtk::RESPONSE_CANCEL : Gtk::RESPONSE_OK, [&](Gtk::Dialog& autre) {
            EXPECT_EQ(autre.get_transient_for(), &dialogue);
            JoueUn(autre, geste.substr(point + 1));
        });
        Clique(dialogue, geste.substr(0, point - renonce));
        EXPECT_EQ(dialogue.get_focus(), dialogue.get_widget_for_response(Gtk::RESPONSE_OK));
    } else {
        Clique(dialogue, geste);
    }
}

}  // namespace

namespace {

/// What a chooser of files offers: its folder, the names that it lists, the name it begins with.
std::string VueChoix(Gtk::FileChooserDialog& dialogue) {
    Gtk::FileChooser& choix = dialogue;
    std::string vue = choix.get_filter()->get_name() + ":";
    for (const char* nom : {"a.vek", "a.dxf", "a.ve9", "a.pdf", "vek"}) {
        const GtkFileFilterInfo fiche = {GTK_FILE_FILTER_DISPLAY_NAME, nullptr, nullptr, nom,
                                         nullptr};
        if (gtk_file_filter_filter(choix.get_filter()->gobj(), &fiche))
            vue += std::string(" ") + nom;
    }
    vue += " | " + choix.get_current_folder();
    if (choix.get_action() == Gtk::FILE_CHOOSER_ACTION_SAVE)
        vue += " [" + PremierDe<Gtk::Entry>(dialogue)->get_text() + "]";
    const auto* valider = dialogue.get_widget_for_response(Gtk::RESPONSE_OK);
    const bool parEntree = gtk_window_get_default_widget(dialogue.Gtk::Window::gobj()) ==
                           const_cast<GtkWidget*>(valider->gobj());
    return vue + (parEntree ? " *" : "");
}

}  // namespace

std::string Ecran(Gtk::Dialog& dialogue) {
    int largeur = 0, hauteur = 0;
    dialogue.create_pango_layout(dialogue.get_title())->get_pixel_size(largeur, hauteur);
    EXPECT_GE(dialogue.get_width(), largeur + 120) << "room for the title and its buttons";
    std::string ecran = dialogue.get_title();
    if (auto* choix = dynamic_cast<Gtk::FileChooserDialog*>(&dialogue))
        return ecran + " | " + VueChoix(*choix);
    // What else the toolkit's palette shows is its own.
    if (auto* palette = dynamic_cast<Gtk::ColorSelectionDialog*>(&dialogue))
        return ecran + " | " + palette->get_color_selection()->get_previous_color().to_string() +
               ' ' + palette->get_color_selection()->get_current_color().to_string();
    for (const Ligne& ligne : Lignes(dialogue)) {
        ecran += " |";
        for (Gtk::Widget* objet : ligne)
            ecran += ' ' + Vue(*objet) + (dialogue.get_focus() == objet ? "*" : "");
    }
    return ecran;
}

std::vector<std::pair<std::string, Gtk::Widget*>> Champs(Gtk::Dialog& dialogue) {
    std::vector<std::pair<std::string, Gtk::Widget*>> champs;
    for (const Ligne& ligne : Lignes(dialogue)) {
        std::string nom;
        for (Gtk::Widget* objet : ligne) {
            if (dynamic_cast<Gtk::Label*>(objet)) nom = NomDe(*objet);
            if (!dynamic_cast<Gtk::Entry*>(objet) && !dynamic_cast<Gtk::FontButton*>(objet))
                continue;
            for (const auto& champ : champs)
                if (champ.first == nom) nom += '\'';
            champs.emplace_back(nom, objet);
        }
    }
    return champs;
}

void Joue(Gtk::Dialog& dialogue, const std::string& gestes) {
    for (const std::string& geste : Decoupe(gestes, ", "))
        if (!geste.empty()) JoueUn(dialogue, geste);
}

void Soumet(Gtk::Dialog& dialogue, const std::string& gestes, Reponse& reponse) {
    reponse.Vu = Ecran(dialogue);
    std::map<Gtk::Widget*, std::string> avant;
    for (const auto& [nom, champ] : Champs(dialogue))
        avant[champ] = TexteDe(*champ);
    Joue(dialogue, gestes);
    for (const auto& [nom, champ] : Champs(dialogue))
        if ((", " + gestes).find(", " + nom + '=') == std::string::npos &&
            TexteDe(*champ) != avant[champ])
            reponse.Suivi += ' ' + nom + " [" + TexteDe(*champ) + ']';
    reponse.Refus = RefusDe(dialogue);
    if (reponse.Refus.empty()) return;
    for (const auto& [nom, champ] : Champs(dialogue))
        if (champ == dialogue.get_focus()) reponse.Refus += " (" + nom + ')';
    dialogue.response(Gtk::RESPONSE_CANCEL);
}

void RepondGestes(const std::string& gestes, Reponse& reponse) {
    RepondDialogue(Gtk::RESPONSE_OK, [gestes, &reponse](Gtk::Dialog& dialogue) {
        Soumet(dialogue, gestes, reponse);
    });
}
