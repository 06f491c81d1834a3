// New, open, import, export, save, and the questions about work that is not saved.

#include <glibmm/convert.h>
#include <glibmm/fileutils.h>
#include <glibmm/main.h>
#include <gtkmm/label.h>
#include <gtkmm/main.h>
#include <gtkmm/messagedialog.h>
#include <gtkmm/recentaction.h>
#include <gtkmm/recentmanager.h>
#include <gtkmm/stock.h>

#include "dialogs/choixfichier.h"
#include "dialogs/raisons.h"
#include "exchange/dxf.h"
#include "exchange/importancien.h"
#include "model/bddgeo.h"
#include "window/dessinwindow.h"

namespace {

constexpr GenreFichier Lecture = {"Choisir le fichier à ouvrir", "Fichier Dessin", ".vek"};
constexpr GenreFichier LectureDxf = {"Choisir un fichier", "Fichier Dessin", ".dxf"};
constexpr GenreFichier EcritureDxf = {"Enregistrer au format dxf", "Fichier Dessin dxf", ".dxf"};
constexpr GenreFichier LectureVe9 = {"Choisir un fichier", "Fichier Dessin", ".ve9"};
constexpr GenreFichier LectureAncien = {"Choisir un fichier", "Ancien Fichier Dessin", ".vek"};
constexpr GenreFichier Ecriture = {"Choisir le nom du fichier à enregistrer", "Fichier Dessin",
                                   ".vek"};

/// Whether to save, as a question in which Enter says yes.
class QuestionEnregistrer : public Gtk::MessageDialog {
  public:
    explicit QuestionEnregistrer(Gtk::Window& parente)
        : Gtk::MessageDialog(parente, Texte(), false, Gtk::MESSAGE_QUESTION, Gtk::BUTTONS_OK_CANCEL,
                             true) {
        AjouteNon(*this);
        set_default_response(Gtk::RESPONSE_OK);
        // A long name goes on behind the edge of the line, not of the screen.
        std::vector<Gtk::Widget*> mots =
            dynamic_cast<Gtk::Container&>(*get_message_area()).get_children();
        for (Gtk::Widget* mot : mots)
            if (auto* libelle = dynamic_cast<Gtk::Label*>(mot))
                libelle->set_line_wrap_mode(Pango::WRAP_WORD_CHAR);
    }

  private:
    static Glib::ustring Texte() {
        if (!BddCourante.Nomme) return "Enregistrer votre travail ?";
        return "Enregistrer le fichier " + Glib::filename_display_name(BddCourante.NomFichier) +
               " ?";
    }
};

bool EstFichier(const std::string& nom) {
    return Glib::file_test(nom, Glib::FILE_TEST_IS_REGULAR);
}

/// The existing file that an entry of the recent files means; empty when there is none. Entries
/// that are a plain path behind the scheme are understood too.
std::string FichierRecent(const std::string& uri) {
    try {
        const std::string nom = Glib::filename_from_uri(uri);
        if (EstFichier(nom)) return nom;
    } catch (const Glib::ConvertError&) {
        // Not a proper address; it may still be the plain path.
    }
    const std::string schema = "file:///";
    if (uri.compare(0, schema.size(), schema) != 0) return {};
    const std::string chemin = uri.substr(schema.size());
    for (const std::string& nom : {chemin, "/" + chemin})
        if (EstFichier(nom)) return nom;
    return {};
}

/// Takes an entry that leads nowhere out of the list.
void OublieRecent(const Glib::ustring& uri) {
    try {
        Gtk::RecentManager::get_default()->remove_item(uri);
    } catch (const Gtk::RecentManagerError&) {
        // It is gone already.
    }
}

/// The toolkit writes its list of recent files a moment after it has taken an entry: lets it,
/// before the program ends.
void LaisseEcrireRecents() {
    bool fini = false;
    Glib::signal_timeout().connect_once([&fini] { fini = true; }, 400);
    while (!fini)
        Gtk::Main::iteration();
}

}  // namespace

void DessinWindow::New() {
    if (!PeutRemplacer(true)) return;
    const auto garde = Abandonne(true);
    if (!garde) return;
    Zone.Nouveau();
    MetTitre();
    DitLecture(*garde);
}

void DessinWindow::Open() {
    if (!PeutRemplacer(true)) return;
    const std::string nom = ChoisitLecture(*this, Lecture, BddCourante.NomFichier);
    if (nom.empty()) return;
    const auto garde = Abandonne(true);
    if (!garde) return;
    Zone.OuvreZone(nom);
    MetTitre();
    DitLecture(*garde);
}

void DessinWindow::RecentFiles() {
    const auto recents =
        Glib::RefPtr<Gtk::RecentAction>::cast_dynamic(Actions->get_action("RecentFiles"));
    const Glib::ustring uri = recents->get_current_uri();
    const std::string nom = FichierRecent(uri);
    if (nom.empty()) {
        OublieRecent(uri);
        Messages.Dit("Ce dessin n'est plus là.");
        return;
    }
    if (!PeutRemplacer(false)) return;
    const auto garde = Abandonne(false);
    if (!garde) return;
    Zone.OuvreZone(nom);
    MetTitre();
    DitLecture(*garde);
}

void DessinWindow::Save() {
    if (!BddCourante.AEnregistrer()) {
        MetTitre();
    } else if (BddCourante.Nomme) {
        const bool autre = BddCourante.Original.empty() && BddCourante.GarderaOriginal();
        ApresEcriture(BddCourante.Enregistre(), autre);
    } else {
        SaveAs();
        MetTitre();
    }
}

void DessinWindow::SaveAs() {
    std::string nom;
    if (ChoisitEcriture(*this, Ecriture, BddCourante.NomFichier, nom, false, NomPropose) !=
        Gtk::RESPONSE_OK)
        return;
    ApresEcriture(BddCourante.EnregistreSous(nom));
}

void DessinWindow::Importe(const GenreFichier& genre, void (*importeur)(BDDGeo&, std::string),
                           bool demande) {
    if (!PeutRemplacer(demande)) return;
    const std::string nom = ChoisitLecture(*this, genre, BddCourante.NomFichier);
    if (nom.empty()) return;
    const auto garde = Abandonne(demande);
    if (!garde) return;
    Zone.Importe(importeur, nom);
    DitLecture(*garde);
}

void DessinWindow::Dxf() {
    Importe(LectureDxf, ImporteDxf, true);
}

void DessinWindow::Ve9() {
    Importe(LectureVe9, ImporteVe9, true);
}

void DessinWindow::Vek() {
    Importe(LectureAncien, ImporteVek, false);
}

void DessinWindow::ExportDxf() {
    std::string nom;
    if (ChoisitEcriture(*this, EcritureDxf, BddCourante.NomFichier, nom) == Gtk::RESPONSE_OK)
        ExporteDxf(BddCourante, nom);
}

bool DessinWindow::DemandeEnregistrement() {
    QuestionEnregistrer question(*this);
    const int reponse = question.run();
    if (reponse == Gtk::RESPONSE_NO) return true;
    if (reponse != Gtk::RESPONSE_OK) return false;
    question.hide();
    if (BddCourante.Nomme)
        Save();
    else
        SaveAs();
    return !BddCourante.AEnregistrer();
}

bool DessinWindow::ConfirmeFermeture() {
    // A chain in hand is drawn, too.
    Zone.Outils.Finit();
    if (!BddCourante.AEnregistrer()) return true;
    std::string nom = BddCourante.NomFichier;
    const int reponse = BddCourante.Nomme ? QuestionEnregistrer(*this).run()
                                          : ChoisitEcriture(*this, Ecriture, BddCourante.NomFichier,
                                                            nom, true, NomPropose);
    if (reponse == Gtk::RESPONSE_OK) {
        if (!ApresEcriture(BddCourante.EnregistreSous(nom))) return false;
        LaisseEcrireRecents();
        return true;
    }
    if (reponse != Gtk::RESPONSE_NO) return false;
    Secours.Garde("Fermé sans être enregistré");
    return true;
}

void DessinWindow::Quit() {
    if (!ConfirmeFermeture()) return;
    AttendImpression();
    hide();
}
