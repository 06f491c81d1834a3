#include "exchange/printformoperation.h"

#include <glib/gstdio.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <gtkmm/label.h>
#include <gtkmm/table.h>

#include "dialogs/nombres.h"
#include "dialogs/saisiedialog.h"
#include "model/feuille.h"
#include "model/fichier.h"

namespace {

constexpr double MmParPouce = 25.4;

/// A file of the temporary folder that goes with this object.
struct FichierPassager {
    FichierPassager() {
        const int descripteur = Glib::file_open_tmp(Nom, "krvek");
        g_close(descripteur, nullptr);
    }
    ~FichierPassager() { g_unlink(Nom.c_str()); }
    FichierPassager(const FichierPassager&) = delete;
    FichierPassager& operator=(const FichierPassager&) = delete;

    std::string Nom;
};

/// Makes the page upright with the sides that it has as it lies: else the toolkit writes a sheet
/// that is seen from the side.
void Redresse(PrintFormOperation& operation) {
    const auto page = operation.get_default_page_setup();
    if (!page) return;
    const double largeur = page->get_paper_width(Gtk::UNIT_MM);
    const double hauteur = page->get_paper_height(Gtk::UNIT_MM);
    const auto droite = Gtk::PageSetup::create();
    droite->set_paper_size(Gtk::PaperSize("custom", "custom", largeur, hauteur, Gtk::UNIT_MM));
    operation.set_default_page_setup(droite);
    // The settings would come before the page.
    if (const auto reglages = operation.get_print_settings()) {
        const auto droits = reglages->copy();
        droits->set_orientation(Gtk::PAGE_ORIENTATION_PORTRAIT);
        droits->set_paper_size(droite->get_paper_size());
        operation.set_print_settings(droits);
    }
}

/// A PDF that the disk had no room for lacks its end.
bool EstEntier(const std::string& pdf) {
    return pdf.find("%%EOF", pdf.size() < 16 ? 0 : pdf.size() - 16) != std::string::npos;
}

}  // namespace

Glib::RefPtr<PrintFormOperation> PrintFormOperation::create() {
    return Glib::RefPtr<PrintFormOperation>(new PrintFormOperation);
}

PrintFormOperation::PrintFormOperation() {
    // The corner of the sheet is that of the paper.
    set_use_full_page(true);
    set_custom_tab_label("Dessin");
}

void PrintFormOperation::on_begin_print(const Glib::RefPtr<Gtk::PrintContext>&) {
    // One page, always: what is larger than the sheet is cut off.
    set_n_pages(1);
}

void PrintFormOperation::on_draw_page(const Glib::RefPtr<Gtk::PrintContext>& contexte, int) {
    const auto cairo = contexte->get_cairo_context();
    const double x = contexte->get_dpi_x(), y = contexte->get_dpi_y();
    cairo->scale(1.0, y / x);
    FeuilleCourante.Imprime(cairo, contexte->get_width(), contexte->get_height() * x / y,
                            x / MmParPouce);
}

Gtk::Widget* PrintFormOperation::on_create_custom_widget() {
    auto* onglet = Gtk::manage(new Gtk::Table(3, 2));
    onglet->set_border_width(12);
    onglet->set_spacings(6);
    guint rang = 0;
    const auto ajoute = [&](const char* libelle, double valeur) {
        auto* champ = Gtk::manage(new ChampSaisie(TexteComplet(valeur)));
        auto* texte = Gtk::manage(new Gtk::Label(libelle, Gtk::ALIGN_LEFT));
        onglet->attach(*texte, 0, 1, rang, rang + 1, Gtk::FILL, Gtk::SHRINK);
        onglet->attach(*champ, 1, 2, rang, rang + 1, Gtk::SHRINK, Gtk::SHRINK);
        ++rang;
        return champ;
    };
    Echelle = ajoute("Echelle: ", FeuilleCourante.EchellePapier());
    OrigineX = ajoute("Origine Feuille X: ", FeuilleCourante.OrigineFeuille.x);
    OrigineY = ajoute("Origine Feuille Y: ", FeuilleCourante.OrigineFeuille.y);
    onglet->show_all();
    return onglet;
}

void PrintFormOperation::on_custom_widget_apply(Gtk::Widget*) {
    if (const auto echelle = Echelle->Nombre()) FeuilleCourante.SetEchelle(*echelle);
    if (const auto x = OrigineX->Nombre()) FeuilleCourante.OrigineFeuille.x = *x;
    if (const auto y = OrigineY->Nombre()) FeuilleCourante.OrigineFeuille.y = *y;
}

bool EcritPdf(const Glib::RefPtr<PrintFormOperation>& operation, const std::string& nom) {
    try {
        const FichierPassager passager;
        Redresse(*operation.operator->());
        operation->set_export_filename(passager.Nom);
        const auto resultat = operation->run(Gtk::PRINT_OPERATION_ACTION_EXPORT);
        std::string pdf;
        return resultat == Gtk::PRINT_OPERATION_RESULT_APPLY && LitFichier(passager.Nom, pdf) &&
               EstEntier(pdf) && EcritFichier(nom, pdf);
    } catch (const Glib::Error&) {
        return false;
    }
}
