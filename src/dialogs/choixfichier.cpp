#include "dialogs/choixfichier.h"

#include <glibmm/convert.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtkmm/button.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/filefilter.h>
#include <gtkmm/label.h>
#include <gtkmm/messagedialog.h>
#include <gtkmm/stock.h>

#include <vector>

namespace {

class ChoixFichier : public Gtk::FileChooserDialog {
  public:
    ChoixFichier(Gtk::Window& parente, const GenreFichier& genre, const std::string& voisin,
                 Gtk::FileChooserAction action)
        : Gtk::FileChooserDialog(parente, genre.Titre, action) {
        add_button(Gtk::Stock::CANCEL, Gtk::RESPONSE_CANCEL);
        add_button(action == Gtk::FILE_CHOOSER_ACTION_OPEN ? Gtk::Stock::OPEN : Gtk::Stock::SAVE,
                   Gtk::RESPONSE_OK);
        set_default_response(Gtk::RESPONSE_OK);
        Filtre.set_name(genre.Filtre);
        Filtre.add_pattern(std::string("*") + genre.Extension);
        add_filter(Filtre);
        // Without a folder the chooser would begin with a list of files used last, and take no
        // plain name.
        set_current_folder(voisin.empty() ? Glib::get_current_dir()
                                          : Glib::path_get_dirname(voisin));
    }

  private:
    Gtk::FileFilter Filtre;
};

/// Whether the extension stands anywhere in the file's own name.
bool EstComplet(const std::string& nom, const char* extension) {
    return Glib::path_get_basename(nom).find(extension) != std::string::npos;
}

bool AccepteRemplacement(Gtk::Window& parente, const std::string& nom) {
    Gtk::MessageDialog question(
        parente,
        "Le fichier " + Glib::filename_display_basename(nom) + " existe déjà. Le remplacer ?",
        false, Gtk::MESSAGE_QUESTION, Gtk::BUTTONS_OK_CANCEL, true);
    return question.run() == Gtk::RESPONSE_OK;
}

/// The labels below a widget, itself included.
void RecolteLibelles(Gtk::Widget& racine, std::vector<Gtk::Label*>& libelles) {
    if (auto* libelle = dynamic_cast<Gtk::Label*>(&racine)) libelles.push_back(libelle);
    if (auto* boite = dynamic_cast<Gtk::Container*>(&racine))
        for (Gtk::Widget* enfant : boite->get_children())
            RecolteLibelles(*enfant, libelles);
}

}  // namespace

void AjouteNon(Gtk::Dialog& question) {
    Gtk::Button* non = question.add_button(Gtk::Stock::NO, Gtk::RESPONSE_NO);
    std::vector<Gtk::Label*> siens, libelles;
    RecolteLibelles(*non, siens);
    RecolteLibelles(question, libelles);
    for (Gtk::Label* libelle : libelles)
        if (libelle != siens.front() &&
            libelle->get_mnemonic_keyval() == siens.front()->get_mnemonic_keyval())
            libelle->set_text(libelle->get_text());
}

std::string ChoisitLecture(Gtk::Window& parente, const GenreFichier& genre,
                           const std::string& voisin) {
    ChoixFichier choix(parente, genre, voisin, Gtk::FILE_CHOOSER_ACTION_OPEN);
    if (choix.run() != Gtk::RESPONSE_OK) return {};
    return choix.get_filename();
}

int ChoisitEcriture(Gtk::Window& parente, const GenreFichier& genre, const std::string& voisin,
                    std::string& nom, bool refus, const std::string& propose) {
    ChoixFichier choix(parente, genre, voisin, Gtk::FILE_CHOOSER_ACTION_SAVE);
    choix.set_do_overwrite_confirmation(true);
    // The chooser asks about the name as it was typed, which may not be the one to write.
    choix.signal_confirm_overwrite().connect([&choix, &genre] {
        return EstComplet(choix.get_filename(), genre.Extension)
                   ? Gtk::FILE_CHOOSER_CONFIRMATION_CONFIRM
                   : Gtk::FILE_CHOOSER_CONFIRMATION_ACCEPT_FILENAME;
    });
    if (refus) AjouteNon(choix);
    if (!propose.empty()) choix.set_current_name(Glib::filename_display_name(propose));
    for (;;) {
        const int reponse = choix.run();
        if (reponse != Gtk::RESPONSE_OK) return reponse;
        nom = choix.get_filename();
        if (nom.empty()) continue;
        if (EstComplet(nom, genre.Extension)) return reponse;
        nom += genre.Extension;
        if (!Glib::file_test(nom, Glib::FILE_TEST_EXISTS) || AccepteRemplacement(choix, nom))
            return reponse;
    }
}
