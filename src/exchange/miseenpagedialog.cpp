#include "exchange/miseenpagedialog.h"

#include <glibmm/convert.h>

#include <algorithm>

#include "dialogs/choixfichier.h"
#include "dialogs/nombres.h"
#include "model/feuille.h"

namespace {

const char* const NomsPapiers[] = {"iso_a3",    "iso_a4",       "iso_a5",  "iso_b5",
                                   "na_letter", "na_executive", "na_legal"};

constexpr int LongueurChemin = 4096;

}  // namespace

void PrendPapier(const Gtk::PageSetup& page) {
    FeuilleCourante.Papier = {page.get_paper_width(Gtk::UNIT_MM),
                              page.get_paper_height(Gtk::UNIT_MM)};
}

MiseEnPageDialog::MiseEnPageDialog(const Glib::ustring& titre,
                                   const Glib::RefPtr<Gtk::PageSetup>& page,
                                   sigc::slot<void> applique)
    : SaisieDialog(titre),
      Page(page),
      Applique(std::move(applique)),
      Portrait("Portrait"),
      Paysage("Paysage"),
      Echelle(TexteComplet(FeuilleCourante.EchellePapier())),
      OrigineX(TexteComplet(FeuilleCourante.OrigineFeuille.x)),
      OrigineY(TexteComplet(FeuilleCourante.OrigineFeuille.y)),
      Cartouche(Glib::filename_display_name(FeuilleCourante.NomCartouche()), LongueurChemin),
      BoutonParcours("Parcours"),
      Noir("N/B") {
    RangePage();
    AjouteChamp("Echelle:", Echelle, Entre(1e-6, 1e9, "L'échelle"));
    AjouteChamp("Origine Feuille X:", OrigineX, UnNombre());
    AjouteChamp("Origine Feuille Y:", OrigineY, UnNombre());
    RangeCartouche();
    Noir.set_active(FeuilleCourante.ImpressionNoir);
    get_vbox()->pack_start(Noir, Gtk::PACK_SHRINK);
    Noir.show();
    Gtk::Button* appliquer = add_button("Appliquer", Gtk::RESPONSE_APPLY);
    get_action_area()->reorder_child(*appliquer, 0);
    Echelle.grab_focus();
}

void MiseEnPageDialog::RangePage() {
    Gtk::RadioButton::Group groupe = Portrait.get_group();
    Paysage.set_group(groupe);
    const Gtk::PageOrientation sens = Page->get_orientation();
    const bool couche =
        sens == Gtk::PAGE_ORIENTATION_LANDSCAPE || sens == Gtk::PAGE_ORIENTATION_REVERSE_LANDSCAPE;
    (couche ? Paysage : Portrait).set_active();
    auto* ligne = Gtk::manage(new Gtk::HBox(false, 12));
    ligne->pack_start(Portrait, Gtk::PACK_SHRINK);
    ligne->pack_start(Paysage, Gtk::PACK_SHRINK);
    ligne->pack_end(Papier, Gtk::PACK_SHRINK);
    get_vbox()->pack_start(*ligne, Gtk::PACK_SHRINK);
    ligne->show_all();

    Papiers.assign(std::begin(NomsPapiers), std::end(NomsPapiers));
    const Gtk::PaperSize present = Page->get_paper_size();
    if (std::find(Papiers.begin(), Papiers.end(), present.get_name()) == Papiers.end())
        Papiers.push_back(present.get_name());
    for (const Glib::ustring& nom : Papiers) {
        Papier.append_text(Gtk::PaperSize(nom).get_display_name());
        if (nom == present.get_name()) Papier.set_active(Papier.get_model()->children().size() - 1);
    }
}

void MiseEnPageDialog::RangeCartouche() {
    auto* ligne = Gtk::manage(new Gtk::HBox(false, 6));
    Branche(Cartouche);
    Cartouche.set_width_chars(36);
    ligne->pack_start(Cartouche);
    ligne->pack_start(BoutonParcours, Gtk::PACK_SHRINK);
    ligne->show_all();
    AjouteChamp("Cartouche :", *ligne);
    BrancheQuestion(BoutonParcours, sigc::mem_fun(*this, &MiseEnPageDialog::Parcourt));
}

void MiseEnPageDialog::Parcourt() {
    constexpr GenreFichier genre = {"Choisir le fichier du cartouche", "Fichier Dessin", ".vek"};
    const std::string nom = ChoisitLecture(*this, genre, FichierCartouche());
    if (!nom.empty()) Cartouche.set_text(Glib::filename_display_name(nom));
}

std::string MiseEnPageDialog::FichierCartouche() const {
    if (!Cartouche.EstModifie()) return FeuilleCourante.NomCartouche();
    try {
        return Glib::filename_from_utf8(Cartouche.get_text());
    } catch (const Glib::ConvertError&) {
        return Cartouche.get_text();
    }
}

void MiseEnPageDialog::Prend() {
    Page->set_orientation(Paysage.get_active() ? Gtk::PAGE_ORIENTATION_LANDSCAPE
                                               : Gtk::PAGE_ORIENTATION_PORTRAIT);
    const int rang = Papier.get_active_row_number();
    if (rang >= 0) Page->set_paper_size(Gtk::PaperSize(Papiers[static_cast<std::size_t>(rang)]));
    FeuilleCourante.ImpressionNoir = Noir.get_active();
    if (const auto echelle = Echelle.Nombre()) FeuilleCourante.SetEchelle(*echelle);
    if (const auto x = OrigineX.Nombre()) FeuilleCourante.OrigineFeuille.x = *x;
    if (const auto y = OrigineY.Nombre()) FeuilleCourante.OrigineFeuille.y = *y;
    PrendPapier(*Page.operator->());
    FeuilleCourante.ChargeCartouche(FichierCartouche());
    Applique();
}

void MiseEnPageDialog::on_response(int reponse) {
    // The base closes on any answer.
    if (reponse == Gtk::RESPONSE_APPLY)
        Prend();
    else
        SaisieDialog::on_response(reponse);
}
