#include "dialogues.h"

#include <gtest/gtest.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/table.h>

#include <algorithm>

#include "commun/banc.h"
#include "elements/eltgeo.h"

std::vector<Gtk::Entry*> Champs(Gtk::Dialog& dialogue) {
    std::vector<Gtk::Entry*> champs, calque;
    Recolte(*PremierDe<Gtk::Table>(dialogue), champs);
    // A table gives its children from the last to the first.
    std::reverse(champs.begin(), champs.end());
    for (Gtk::Widget* ligne : dialogue.get_vbox()->get_children())
        if (!dynamic_cast<Gtk::Table*>(ligne)) Recolte(*ligne, calque);
    champs.insert(champs.end(), calque.begin(), calque.end());
    return champs;
}

namespace {

/// The title, then each label with what its field shows.
std::string Contenu(Gtk::Dialog& dialogue) {
    std::vector<Gtk::Label*> libelles;
    Recolte(*PremierDe<Gtk::Table>(dialogue), libelles);
    std::string contenu = dialogue.get_title();
    const auto champs = Champs(dialogue);
    std::size_t rang = 0;
    for (auto l = libelles.rbegin(); l != libelles.rend() && rang < champs.size(); ++l)
        // The label within a button names no field.
        if (dynamic_cast<Gtk::Table*>((*l)->get_parent()) && (*l)->get_text() != "Police")
            contenu += "|" + (*l)->get_text() + "=" + champs[rang++]->get_text();
    return contenu + "|" + champs.back()->get_text();
}

}  // namespace

std::string Repond(EltGeo& elt, const Saisies& saisies, int reponse,
                   const std::function<void(Gtk::Dialog&)>& prepare) {
    std::string contenu;
    RepondDialogue(reponse, [&](Gtk::Dialog& dialogue) {
        contenu = Contenu(dialogue);
        const auto champs = Champs(dialogue);
        EXPECT_EQ(dialogue.get_focus(), champs.front());
        int debut = 0, fin = 0;
        EXPECT_TRUE(champs.front()->get_selection_bounds(debut, fin));
        for (const auto& [rang, texte] : saisies)
            champs.at(rang)->set_text(texte);
        if (prepare) prepare(dialogue);
    });
    EXPECT_EQ(elt.Proprietes(), reponse == Gtk::RESPONSE_OK);
    return contenu;
}

void RepondBouton(Gtk::Dialog& dialogue, const Glib::ustring& libelle,
                  std::function<void(Gtk::Dialog&)> prepare) {
    std::vector<Gtk::Button*> boutons;
    Recolte(dialogue, boutons);
    for (Gtk::Button* bouton : boutons) {
        if (bouton->get_label() != libelle) continue;
        RepondDialogue(Gtk::RESPONSE_OK, std::move(prepare));
        return bouton->clicked();
    }
    FAIL() << "no button " << libelle;
}
