#pragma once

#include <gtkmm/printoperation.h>

class ChampSaisie;

/// Prints the sheet on one page, or writes it as a PDF: the title block and the drawing as
/// `FeuilleCourante` says. The print dialog has a tab on that sheet.
class PrintFormOperation : public Gtk::PrintOperation {
  public:
    static Glib::RefPtr<PrintFormOperation> create();

  protected:
    PrintFormOperation();

    void on_begin_print(const Glib::RefPtr<Gtk::PrintContext>& contexte) override;
    void on_draw_page(const Glib::RefPtr<Gtk::PrintContext>& contexte, int page) override;
    Gtk::Widget* on_create_custom_widget() override;
    void on_custom_widget_apply(Gtk::Widget* onglet) override;

  private:
    // The print dialog's, while it is open.
    ChampSaisie* Echelle = nullptr;
    ChampSaisie* OrigineX = nullptr;
    ChampSaisie* OrigineY = nullptr;
};

/// Writes the sheet as a PDF of that page. The former file stays whole when it cannot be written:
/// false then, or when the toolkit fails.
bool EcritPdf(const Glib::RefPtr<PrintFormOperation>& operation, const std::string& nom);
