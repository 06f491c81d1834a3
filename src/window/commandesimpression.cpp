// The page, its preview, printing and the PDF.

#include <glibmm/main.h>
#include <gtkmm/main.h>
#include <gtkmm/messagedialog.h>

#include "dialogs/choixfichier.h"
#include "exchange/miseenpagedialog.h"
#include "exchange/printformoperation.h"
#include "model/bddgeo.h"
#include "model/feuille.h"
#include "window/dessinwindow.h"

namespace {

constexpr GenreFichier EcriturePdf = {"Choisir le nom du fichier à enregistrer", "Fichier PDF",
                                      ".pdf"};

/// How long the data of a print may take to be sent when the program ends, in milliseconds.
constexpr unsigned AttenteImpression = 5000;

}  // namespace

void DessinWindow::PageSetup() {
    MiseEnPageDialog dialogue("Mise en Page", MiseEnPage,
                              sigc::mem_fun(Zone.Vue, &VueZone::Redessine));
    for (int reponse = Gtk::RESPONSE_APPLY; reponse == Gtk::RESPONSE_APPLY;)
        reponse = dialogue.run();
}

void DessinWindow::Preview() {
    PrendPapier(*MiseEnPage.operator->());
    FeuilleCourante.ApercuPage = !FeuilleCourante.ApercuPage;
    Zone.Vue.Redessine();
}

Glib::RefPtr<PrintFormOperation> DessinWindow::PrepareImpression(const Glib::ustring& travail) {
    const auto operation = PrintFormOperation::create();
    operation->set_job_name(travail);
    operation->set_track_print_status(true);
    operation->set_default_page_setup(MiseEnPage);
    // The settings of the last printing come before the page, which may have changed since.
    ReglagesImpression->set_orientation(MiseEnPage->get_orientation());
    ReglagesImpression->set_paper_size(MiseEnPage->get_paper_size());
    operation->set_print_settings(ReglagesImpression);
    return operation;
}

void DessinWindow::Imprime(Gtk::PrintOperationAction action) {
    const auto operation = PrepareImpression("Dessin");
    // A printing service that does not answer must not keep the program.
    operation->set_allow_async(true);
    const auto annonce = std::make_shared<bool>(false);
    Gtk::PrintOperation& faite = *operation.operator->();
    operation->signal_done().connect([this, &faite, annonce](Gtk::PrintOperationResult resultat) {
        // The dialog may have changed the sheet that is shown.
        Zone.Vue.Redessine();
        const bool perdue = faite.get_status() == Gtk::PRINT_STATUS_FINISHED_ABORTED;
        if (resultat == Gtk::PRINT_OPERATION_RESULT_APPLY && !perdue)
            ReglagesImpression = faite.get_print_settings();
        else if (resultat == Gtk::PRINT_OPERATION_RESULT_ERROR || perdue)
            AnnonceEchec(*annonce);
    });
    // The data are sent after the pages are done.
    operation->signal_status_changed().connect([this, &faite, annonce] {
        if (faite.get_status() == Gtk::PRINT_STATUS_FINISHED_ABORTED) AnnonceEchec(*annonce);
    });
    try {
        operation->run(action, *this);
        Impression = operation;
    } catch (const Glib::Error&) {
        AnnonceEchec(*annonce);
    }
}

void DessinWindow::AttendImpression() const {
    bool assez = false;
    const auto limite = Glib::signal_timeout().connect(
        [&assez] {
            assez = true;
            return false;
        },
        AttenteImpression);
    const auto enCours = [this] {
        const Gtk::PrintStatus etat =
            Impression ? Impression->get_status() : Gtk::PRINT_STATUS_INITIAL;
        return etat != Gtk::PRINT_STATUS_INITIAL && !Impression->is_finished();
    };
    while (!assez && enCours())
        Gtk::Main::iteration();
    sigc::connection(limite).disconnect();
}

void DessinWindow::AnnonceEchec(bool& annonce) {
    if (annonce) return;
    annonce = true;
    Gtk::MessageDialog(*this, "Error printing form", false, Gtk::MESSAGE_ERROR, Gtk::BUTTONS_OK)
        .run();
}

void DessinWindow::PrintDialog() {
    Imprime(Gtk::PRINT_OPERATION_ACTION_PRINT_DIALOG);
}

void DessinWindow::Print() {
    Imprime(Gtk::PRINT_OPERATION_ACTION_PRINT);
}

void DessinWindow::ExportPDF() {
    std::string nom;
    if (ChoisitEcriture(*this, EcriturePdf, BddCourante.NomFichier, nom) != Gtk::RESPONSE_OK)
        return;
    bool annonce = false;
    if (!EcritPdf(PrepareImpression("Dessin PDF"), nom)) AnnonceEchec(annonce);
}
