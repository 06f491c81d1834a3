#include "zone/zonedessin.h"

#include <clocale>

#include "dialogs/reeldialog.h"
#include "elements/traceecran.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/feuille.h"
#include "zone/tableetats.h"

ZoneDessin::ZoneDessin() : CouleurFond("#FFFFFF") {
    set_size_request(400, 400);
    std::setlocale(LC_NUMERIC, "C");
    // Button releases play no part: every gesture is made of clicks.
    add_events(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK | Gdk::SCROLL_MASK);
    ::Trait bleu;
    bleu.Couleur = Gdk::Color("blue");
    bleu.Epaisseur = 3;
    RectangleSelection.ChangeTrait(bleu);
    BddCourante.SignalRetrait().connect(sigc::mem_fun(*this, &ZoneDessin::LaisseElement));
    ConstruitPopup();
    ChargePreferences();
    SetFond(CouleurFond);
    show();
}

ZoneDessin::~ZoneDessin() {
    SauvePreferences();
}

void ZoneDessin::MetLabels(Gtk::Label* x, Gtk::Label* y, Gtk::Label* action) {
    LabelX = x;
    LabelY = y;
    LabelAction = action;
}

int ZoneDessin::Largeur() const {
    return get_allocation().get_width();
}

int ZoneDessin::Hauteur() const {
    return get_allocation().get_height();
}

void ZoneDessin::Redessine() {
    Dessus.AttendRepeinte();
    if (const auto fenetre = get_window())
        fenetre->invalidate_rect(Gdk::Rectangle(0, 0, Largeur(), Hauteur()), false);
}

bool ZoneDessin::on_configure_event(GdkEventConfigure* evenement) {
    Dessus.MetFenetre(get_window());
    EchelleCourante.SetCentre(evenement->width, evenement->height);
    VueChangee();
    return true;
}

bool ZoneDessin::on_expose_event(GdkEventExpose* evenement) {
    const auto fenetre = get_window();
    int largeur = 0, hauteur = 0;
    fenetre->get_size(largeur, hauteur);
    EchelleCourante.SetCentre(largeur, hauteur);
    const GdkRectangle& zone = evenement->area;
    TraceEcran trace(fenetre, largeur, hauteur,
                     Gdk::Rectangle(zone.x, zone.y, zone.width, zone.height));
    FeuilleCourante.DessineApercu(trace);
    if (SelectionVisible) RectangleSelection.Dessine(trace);
    GrilleCourante.Dessine(trace, largeur, hauteur);
    BddCourante.Dessine(trace);
    Dessus.Expose(zone.x <= 0 && zone.y <= 0 && zone.x + zone.width >= largeur &&
                  zone.y + zone.height >= hauteur);
    return true;
}

void ZoneDessin::VueChangee() {
    Redessine();
    CacheRepere();
    if (PixelSouris) SuitPointeur(*PixelSouris);
    if (Dessus.Visible(Surimpression::Apercu)) MontreApercu();
}

void ZoneDessin::ZoomPlusAction() {
    EchelleCourante.ZoomPlus();
    VueChangee();
}

void ZoneDessin::ZoomMoinsAction() {
    EchelleCourante.ZoomMoins();
    VueChangee();
}

void ZoneDessin::ZoomInitAction() {
    EchelleCourante.ZoomInit();
    VueChangee();
}

void ZoneDessin::ChangeGrille() {
    GrilleCourante.Bascule();
    Redessine();
}

void ZoneDessin::GrillePlus() {
    GrilleCourante.Plus();
    Redessine();
}

void ZoneDessin::GrilleMoins() {
    GrilleCourante.Moins();
    Redessine();
}

void ZoneDessin::SetPasGrille(double pas) {
    GrilleCourante.SetPas(pas);
    Redessine();
}

void ZoneDessin::SetCouleurGrille(const Gdk::Color& couleur) {
    GrilleCourante.Style.Couleur = couleur;
    GrilleCourante.Style.CouleurFond = couleur;
    Redessine();
}

void ZoneDessin::ChangeAfficheBDD() {
    BddCourante.AfficheBDD = !BddCourante.AfficheBDD;
    Redessine();
}

void ZoneDessin::Bascule(bool OptionsAccrochage::*option) {
    Options.*option = !(Options.*option);
    CacheRepere();
}

void ZoneDessin::SetFond(const Gdk::Color& couleur) {
    // What lies over the picture was painted against the former background.
    Redessine();
    CouleurFond = couleur;
    Dessus.MetFond(couleur);
    modify_bg(Gtk::STATE_NORMAL, couleur);
}

void ZoneDessin::SetTrait(const ::Trait& trait) {
    TraitCourant = trait;
    Protos.DiffuseTrait(TraitCourant);
}

void ZoneDessin::SetCalque(int calque) {
    CalqueCourant = calque;
    Protos.SetCalque(calque);
}

void ZoneDessin::SetCalqueAffiche(int calque) {
    BddCourante.SetCalqueAffiche(calque);
    for (EltGeo* elt : {EltCourant, EltCopie})
        if (elt && !BddCourante.EstVisible(*elt)) LaisseElement(elt);
    CacheRepere();
    DessinChange();
}

void ZoneDessin::OuvreZone(const std::string& nom) {
    BddCourante.Ouvre(nom);
    RazEtat();
    CacheRepere();
    Redessine();
}

void ZoneDessin::Importe(void (*importeur)(BDDGeo&, std::string), const std::string& nom) {
    importeur(BddCourante, nom);
    RazEtat();
    CacheRepere();
    Redessine();
}

void ZoneDessin::Nouveau() {
    RazEtat();
    BddCourante.Vide();
    CacheRepere();
    Redessine();
}

void ZoneDessin::AnnuleAction() {
    BddCourante.Annule();
    LaisseDeplacement();
    DessinChange();
}

void ZoneDessin::DessinChange() {
    Redessine();
    MontrePoignees();
    MajRepere();
}

void ZoneDessin::AnnuleSelection() {
    SelectionVisible = false;
    Redessine();
}

void ZoneDessin::ZoneTrait() {
    BddCourante.ChangeTraitZone(RectangleSelection, TraitCourant);
    DessinChange();
}

bool ZoneDessin::DemandeRayon() {
    ReelDialog dialogue("Rayon ?", &Rayon);
    return dialogue.run() == Gtk::RESPONSE_OK;
}
