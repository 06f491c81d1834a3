#include "window/dessinwindow.h"

#include <glibmm/convert.h>
#include <glibmm/miscutils.h>
#include <glibmm/stringutils.h>
#include <gtkmm/icontheme.h>

#include <algorithm>

#include "dialogs/nombres.h"
#include "exchange/printformoperation.h"
#include "model/bddgeo.h"
#include "window/donnees.h"
#include "window/menus.h"
#include "zone/ligneetat.h"

namespace {

/// What is left of a margin of the status row, in pixels, where there is no room.
constexpr int MargeMin = 6;

/// A long prompt: margins shrink before one like it is cut.
constexpr char InviteLongue[] = "Nouvelle position, appuyer sur Ctrl pour faire une copie";

}  // namespace

DessinWindow::DessinWindow()
    : Secours(BddCourante, DossierSecours()),
      Frappe(Zone),
      Fenetre3D(BddCourante),
      Bord(0.0, 0.0, 1.0, 0.0),
      BordBas(0.0, 1.0, 1.0, 0.0),
      LabelX("XXXX"),
      LabelY("YYYY"),
      LabelAction("Action demandée"),
      LabelCalques("Calques"),
      LabelTravail("Travail"),
      LabelAffiche("Affiché"),
      MiseEnPage(Gtk::PageSetup::create()),
      ReglagesImpression(Gtk::PrintSettings::create()) {
    MiseEnPage->set_paper_size(Gtk::PaperSize("iso_a4"));
    set_border_width(5);
    // With a title bar and a panel it still fits a screen 600 pixels high.
    set_size_request(760, 520);
    set_default_size(800, 600);
    maximize();
    add(BoiteVerticale);
    BoiteVerticale.pack_start(BoiteMenu, Gtk::PACK_SHRINK);
    Zone.Souris.SignalPosition().connect(sigc::mem_fun(*this, &DessinWindow::AffichePosition));
    Zone.Outils.SignalEtat().connect(sigc::mem_fun(*this, &DessinWindow::AfficheInvite));
    Zone.Souris.SignalCible().connect(sigc::mem_fun(*this, &DessinWindow::AfficheClic));
    RangeEtat();
    BoiteVerticale.pack_end(BoiteEtat, Gtk::PACK_SHRINK);
    AfficheCalques();
    Bord.add(Messages);
    BordBas.add(Frappe);
    Frappe.SignalCommande().connect(sigc::mem_fun(*this, &DessinWindow::Choisit));
    Frappe.SignalAide().connect(sigc::mem_fun(*this, &DessinWindow::AideSur));
    // The widget that is put in last lies underneath.
    Cadre.attach(Bord, 0, 1, 0, 1);
    Cadre.attach(BordBas, 0, 1, 0, 1);
    Cadre.attach(Zone, 0, 1, 0, 1);
    BoiteVerticale.pack_start(Cadre, Gtk::PACK_EXPAND_WIDGET);
    Zone.set_size_request(-1, -1);
    modify_bg(Gtk::STATE_NORMAL, Gdk::Color("#F0F0D0"));

    Fenetre3D.SignalEdition().connect(sigc::mem_fun(Zone.Outils, &Machine::DessinChange));

    Gtk::IconTheme::get_default()->append_search_path(
        Glib::build_filename(DossierDonnees(), "icons"));
    ConstruitMenus();
    show_all_children(true);
    SurveilleTravail();
}

DessinWindow::~DessinWindow() {
    LaisseTravail();
}

void DessinWindow::AffichePosition(const PointVek& p) {
    LabelX.set_text(TexteNombre(p.x));
    LabelY.set_text(TexteNombre(p.y));
}

void DessinWindow::AfficheInvite(const LigneEtat& ligne) {
    LabelAction.set_text(ligne.Invite);
    AfficheClic();
}

void DessinWindow::AfficheClic() {
    const auto cible = Zone.Outils.ClicDeplace();
    if (!cible) return MontreClic(0);
    const Glib::ustring texte = "clic " + TexteNombre(cible->Point.x) + " ; " +
                                TexteNombre(cible->Point.y) + " (" + cible->Genre + ")";
    // It takes what the prompt leaves, and never makes the window wider.
    constexpr int jeu = 10, utile = 60;
    int voulue = 0, invite = 0, hauteur = 0;
    create_pango_layout(texte)->get_pixel_size(voulue, hauteur);
    create_pango_layout(LabelAction.get_text())->get_pixel_size(invite, hauteur);
    const int libre = CadreAction.get_allocation().get_width() - MargeAction - invite - jeu;
    LabelClic.set_text(texte);
    MontreClic(libre < utile ? 0 : std::min(voulue + jeu, libre));
}

void DessinWindow::MontreClic(int largeur) {
    const auto gauche = static_cast<guint>(largeur > 0 ? 0 : MargeAction);
    CadreAction.set_padding(0, 0, gauche, static_cast<guint>(MargeAction));
    LabelClic.set_size_request(largeur, -1);
    LabelClic.set_visible(largeur > 0);
}

void DessinWindow::RangeEtat() {
    for (Gtk::Label* coordonnee : {&LabelX, &LabelY}) {
        // One width whatever the number, or the row would dance under the pointer.
        coordonnee->set_width_chars(13);
        coordonnee->set_ellipsize(Pango::ELLIPSIZE_END);
        coordonnee->set_alignment(Gtk::ALIGN_LEFT);
        BoiteEtat.pack_start(*coordonnee, Gtk::PACK_SHRINK, MargeMin);
    }
    LabelClic.set_ellipsize(Pango::ELLIPSIZE_END);
    LabelClic.set_alignment(Gtk::ALIGN_LEFT);
    LabelClic.set_no_show_all(true);
    for (Gtk::Label* calque : {&LabelTravail, &LabelAffiche, &LabelCalques})
        BoiteEtat.pack_end(*calque, Gtk::PACK_SHRINK, MargeMin);
    LabelAction.set_ellipsize(Pango::ELLIPSIZE_END);
    LabelAction.set_alignment(Gtk::ALIGN_RIGHT);
    BoiteAction.pack_start(LabelClic, Gtk::PACK_SHRINK);
    BoiteAction.pack_end(LabelAction, Gtk::PACK_EXPAND_WIDGET);
    CadreAction.set(0.0, 0.0, 1.0, 1.0);
    CadreAction.add(BoiteAction);
    MargeAction = MargeMin;
    MontreClic(0);
    BoiteEtat.pack_end(CadreAction, Gtk::PACK_EXPAND_WIDGET);
    for (Gtk::Label* libelle :
         {&LabelX, &LabelY, &LabelClic, &LabelAction, &LabelTravail, &LabelAffiche, &LabelCalques})
        EcritEnSombre(*libelle);
}

int DessinWindow::MargeVoulue(const Gtk::Widget* libelle) const {
    if (libelle == &CadreAction) return 200;
    return libelle == &LabelX || libelle == &LabelY ? 100 : 20;
}

void DessinWindow::AjusteMarges(int largeur) {
    int invite = 0, hauteur = 0;
    LabelAction.create_pango_layout(InviteLongue)->get_pixel_size(invite, hauteur);
    int libre = largeur - invite, voulues = 0;
    for (const Gtk::Box_Helpers::Child& enfant : BoiteEtat.children()) {
        const Gtk::Widget* libelle = enfant.get_widget();
        if (libelle != &CadreAction) libre -= libelle->size_request().width;
        libre -= 2 * MargeMin;
        voulues += 2 * (MargeVoulue(libelle) - MargeMin);
    }
    const double part = std::clamp(static_cast<double>(libre) / voulues, 0.0, 1.0);
    for (Gtk::Box_Helpers::Child& enfant : BoiteEtat.children()) {
        const int voulue = MargeVoulue(enfant.get_widget());
        const int marge = MargeMin + static_cast<int>(part * (voulue - MargeMin));
        if (enfant.get_widget() == &CadreAction)
            MargeAction = marge;
        else
            enfant.set_options(enfant.get_expand(), enfant.get_fill(),
                               static_cast<unsigned>(marge));
    }
    MontreClic(0);
}

void DessinWindow::AfficheCalques() {
    LabelTravail.set_text("Travail sur " + Glib::Ascii::dtostr(Zone.Outils.Protos.Calque()));
    LabelAffiche.set_text("Affiché " + Glib::Ascii::dtostr(BddCourante.CalqueAffiche()));
}

void DessinWindow::OuvreFichier(const std::string& nom) {
    BddCourante.Ouvre(nom);
    DitLecture();
}

void DessinWindow::MetTitre() {
    set_title("KR VEK 1.3           " + Glib::filename_display_name(BddCourante.NomFichier));
}

bool DessinWindow::on_delete_event(GdkEventAny*) {
    if (!ConfirmeFermeture()) return true;
    AttendImpression();
    return false;
}

bool DessinWindow::on_configure_event(GdkEventConfigure* evenement) {
    // Before the new layout, which a change made within it would miss.
    AjusteMarges(evenement->width - 2 * static_cast<int>(get_border_width()));
    return Gtk::Window::on_configure_event(evenement);
}

bool DessinWindow::on_key_press_event(GdkEventKey* evenement) {
    if (Frappe.Touche(evenement)) return true;
    // The accelerators of the menus come first.
    const bool prise = Gtk::Window::on_key_press_event(evenement);
    return Zone.ToucheEnfoncee(evenement) || prise;
}

bool DessinWindow::on_key_release_event(GdkEventKey* evenement) {
    Gtk::Window::on_key_release_event(evenement);
    if (!Frappe.EstOuverte()) Zone.ToucheRelachee();
    return true;
}

bool DessinWindow::on_focus_out_event(GdkEventFocus* evenement) {
    Zone.ToucheRelachee();
    return Gtk::Window::on_focus_out_event(evenement);
}

void DessinWindow::BoiteAOutil() {
    BarreOutils->set_visible(!BarreOutils->is_visible());
}

void DessinWindow::Etat() {
    BoiteEtat.set_visible(!BoiteEtat.is_visible());
}

void DessinWindow::Vue3D() {
    Fenetre3D.set_visible(!Fenetre3D.is_visible());
}
