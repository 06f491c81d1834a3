#include "zone/vuezone.h"

#include "elements/traceecran.h"
#include "elements/traceetendue.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/feuille.h"

VueZone::VueZone(Gtk::Widget& zone) : Zone(zone) {
    Trait bleu;
    bleu.Couleur = Gdk::Color("blue");
    bleu.Epaisseur = 3;
    RectangleSelection.ChangeTrait(bleu);
    SetFond(Gdk::Color("#FFFFFF"));
}

void VueZone::Reconfigure(int largeur, int hauteur) {
    Dessus.MetFenetre(Zone.get_window());
    EchelleCourante.SetCentre(largeur, hauteur);
}

void VueZone::Expose(const GdkRectangle& decouvert) {
    const auto fenetre = Zone.get_window();
    int largeur = 0, hauteur = 0;
    fenetre->get_size(largeur, hauteur);
    EchelleCourante.SetCentre(largeur, hauteur);
    const Gdk::Rectangle zone(decouvert.x, decouvert.y, decouvert.width, decouvert.height);
    TraceEcran trace(fenetre, largeur, hauteur, zone);
    FeuilleCourante.DessineApercu(trace);
    if (SelectionVisible) RectangleSelection.Dessine(trace);
    GrilleCourante.Dessine(trace, largeur, hauteur);
    BddCourante.Dessine(trace);
    Dessus.Expose(decouvert.x <= 0 && decouvert.y <= 0 &&
                  decouvert.x + decouvert.width >= largeur &&
                  decouvert.y + decouvert.height >= hauteur);
}

void VueZone::Redessine() {
    Dessus.AttendRepeinte();
    if (const auto fenetre = Zone.get_window())
        fenetre->invalidate_rect(Gdk::Rectangle(0, 0, Largeur(), Hauteur()), false);
}

void VueZone::CadreTout() {
    // Texts and arrows have sizes of their own: what they take is known at the scale they come to.
    for (int tour = 0; tour < 2; ++tour) {
        TraceEtendue trace(false);
        FeuilleCourante.DessineApercu(trace);
        BddCourante.Dessine(trace);
        if (!trace.Etendue()) return EchelleCourante.ZoomInit();
        const Boite& boite = *trace.Etendue();
        EchelleCourante.MontreTout(EchelleCourante.VersDessin({boite.Gauche, boite.Haut}),
                                   EchelleCourante.VersDessin({boite.Droite, boite.Bas}), Largeur(),
                                   Hauteur());
    }
}

int VueZone::Largeur() const {
    return Zone.get_allocation().get_width();
}

int VueZone::Hauteur() const {
    return Zone.get_allocation().get_height();
}

void VueZone::SetFond(const Gdk::Color& couleur) {
    // What lies over the picture was painted against the former background.
    Redessine();
    CouleurFond = couleur;
    Dessus.MetFond(couleur);
    Zone.modify_bg(Gtk::STATE_NORMAL, couleur);
}

void VueZone::ChangeGrille() {
    GrilleCourante.Bascule();
    Redessine();
}

void VueZone::GrillePlus() {
    GrilleCourante.Plus();
    Redessine();
}

void VueZone::GrilleMoins() {
    GrilleCourante.Moins();
    Redessine();
}

void VueZone::SetPasGrille(double pas) {
    GrilleCourante.SetPas(pas);
    Redessine();
}

void VueZone::SetCouleurGrille(const Gdk::Color& couleur) {
    GrilleCourante.Style.Couleur = couleur;
    GrilleCourante.Style.CouleurFond = couleur;
    Redessine();
}

void VueZone::ChangeAfficheBDD() {
    BddCourante.AfficheBDD = !BddCourante.AfficheBDD;
    Redessine();
}

void VueZone::Selectionne(const EltRectangle& rectangle) {
    RectangleSelection.Copie(rectangle);
    SelectionVisible = true;
    Redessine();
}

void VueZone::AnnuleSelection() {
    SelectionVisible = false;
    Redessine();
}
