// Gestures: the pointer, which stands under the mouse at a depth of its own; the edits, which
// follow it; and what a click does.

#include <algorithm>
#include <cmath>

#include "dialogs/saisiedialog.h"
#include "elements/angles.h"
#include "elements/eltprofil.h"
#include "model/bddgeo.h"
#include "solids/elt3d.h"
#include "view3d/dessin3d.h"

namespace {

/// Turns the local Z axis of a solid that was turned by `alpha` alone toward v.
void PointeVers(Elt3d& solide, const PointVek& v) {
    Elt3d alphaSeul;
    alphaSeul.alpha = solide.alpha;
    const PointVek d = alphaSeul.VersLocal(v);
    solide.beta = EnDegres(std::atan2(d.x, d.z));
    solide.gamma = -EnDegres(std::atan2(d.y, std::hypot(d.x, d.z)));
}

}  // namespace

double Dessin3D::ProfondeurPointeur() const {
    const double distance = -(PointeurVue + Dc.Oeil.Recul()).z;
    // What is not a number is brought to the near plane.
    return std::isfinite(distance) ? std::clamp(distance, Dc.Oeil.ZProche, Dc.Oeil.ZLoin)
                                   : Dc.Oeil.ZProche;
}

void Dessin3D::MetProfondeur(double distance) {
    PointeurVue.z = -std::clamp(distance, Dc.Oeil.ZProche, Dc.Oeil.ZLoin) - Dc.Oeil.Recul().z;
}

double Dessin3D::EnTravers(double pixels) const {
    const double distance = ProfondeurPointeur();
    return std::clamp(pixels * Dc.Oeil.TaillePixel(get_height()) * distance, -Dc.Oeil.ZLoin,
                      Dc.Oeil.ZLoin);
}

void Dessin3D::SuitSouris() {
    if (!PixelSouris) return;
    const PointVek recul = Dc.Oeil.Recul();
    MetProfondeur(ProfondeurPointeur());
    PointeurVue.x = EnTravers(PixelSouris->x - get_width() / 2) - recul.x;
    PointeurVue.y = EnTravers(get_height() / 2 - PixelSouris->y) - recul.y;
    PointeurChange();
}

void Dessin3D::SuitSourisEnProfondeur(const PointVek& avant) {
    MetProfondeur(ProfondeurPointeur() - EnTravers(PixelSouris->y - avant.y));
    PointeurVue.x = EnTravers(PixelSouris->x - get_width() / 2) - Dc.Oeil.Recul().x;
    PointeurChange();
}

void Dessin3D::RejointSouris(const PointVek& pixel) {
    if (!pixel.EstFini() || (PixelSouris && Distance(*PixelSouris, pixel) == 0.0)) return;
    PixelSouris = pixel;
    SuitSouris();
}

bool Dessin3D::on_configure_event(GdkEventConfigure*) {
    SuitSouris();
    return false;
}

bool Dessin3D::on_motion_notify_event(GdkEventMotion* evenement) {
    const PointVek pixel(evenement->x, evenement->y);
    if (!pixel.EstFini()) return true;
    const PointVek avant = PixelSouris.value_or(pixel);
    PixelSouris = pixel;
    if (evenement->state & GDK_BUTTON3_MASK)
        SuitSourisEnProfondeur(avant);
    else
        SuitSouris();
    return true;
}

bool Dessin3D::on_scroll_event(GdkEventScroll* evenement) {
    const double distance = ProfondeurPointeur();
    double pas = distance / 50.0;
    if (evenement->state & (GDK_BUTTON2_MASK | GDK_BUTTON3_MASK)) pas /= 10.0;
    if (evenement->direction == GDK_SCROLL_UP)
        MetProfondeur(distance + pas);
    else if (evenement->direction == GDK_SCROLL_DOWN)
        MetProfondeur(distance - pas);
    else
        return false;
    PixelSouris = PointVek(evenement->x, evenement->y);
    SuitSouris();
    return true;
}

void Dessin3D::PointeurAuSol() {
    PointVek pointeur = Curseur.Position;
    pointeur.z = 0.0;
    PointeurVue = Dc.Oeil.VersVue(pointeur);
    PointeurChange();
}

void Dessin3D::PointeurChange() {
    Curseur.Place(Dc.Oeil.VersMonde(PointeurVue));
    ChercheAccroche();
    MajPointeur();
    queue_draw();
}

void Dessin3D::ChercheAccroche() {
    AccrocheTrouvee = false;
    if (!Accrochage) return;
    const EltGeo* trouve = Bdd.Cherche3D(Curseur.Position);
    if (!trouve || trouve == Selection) return;
    AccrocheTrouvee = true;
    MarqueAccroche.Place(trouve->PointProche3D(Curseur.Position));
}

PointVek Dessin3D::Cible() const {
    return Accrochage && AccrocheTrouvee ? MarqueAccroche.Position : Curseur.Position;
}

bool Dessin3D::Applique(EltGeo& elt) const {
    switch (EditCourant) {
        case Deplacement:
            elt.Deplace(Cible() - Debut);
            return true;
        case TourneAlpha:
        case TourneBeta:
        case TourneGamma:
        case Direction:
            return Oriente(elt);
        case PoseSommet: {
            // The handle is one for the program, and the 2D side may hold another at this moment.
            const int poignee = PoigneeCourante, sommet = SommetCourant;
            elt.DebutDeforme3D(PointSommet);
            elt.Deforme3D(Cible() - DebutDeforme);
            PoigneeCourante = poignee;
            SommetCourant = sommet;
            return true;
        }
        default:
            return false;
    }
}

bool Dessin3D::Oriente(EltGeo& elt) const {
    const Elt3d* present = elt.GetElt3d();
    if (!present) return false;
    Elt3d solide(*present);
    const PointVek v = Curseur.Position - Debut;
    const double angle = EnDegres(std::atan2(v.y, v.x));
    if (EditCourant == TourneAlpha)
        solide.alpha = angle;
    else if (EditCourant == TourneBeta)
        solide.beta = angle;
    else if (EditCourant == TourneGamma)
        solide.gamma = angle;
    else
        PointeVers(solide, Cible() - elt.Centre());
    elt.ChangeElt3d(solide);
    return true;
}

void Dessin3D::MajPointeur() {
    if (EditCourant == PlaceLumiere0 && Dc.Actif()) Dc.PositionLumiere(0, Curseur.Position);
    if (EditCourant == PlaceLumiere1 && Dc.Actif()) Dc.PositionLumiere(1, Curseur.Position);
    // A vertex shows where it went only once it is dropped.
    if (!Selection || EditCourant == PoseSommet) return;
    Clone = Selection->Clone();
    Applique(*Clone);
}

bool Dessin3D::on_button_press_event(GdkEventButton* evenement) {
    if (!Dc.Actif() || evenement->type != GDK_BUTTON_PRESS || evenement->button != 1) return false;
    RejointSouris({evenement->x, evenement->y});
    switch (EditCourant) {
        case Repos:
            Choisit(evenement->time);
            break;
        case Deplacement:
        case PoseSommet:
            Pose(false);
            break;
        case PrendSommet:
            PointSommet = Cible();
            DebutDeforme = Selection->PointProche3D(Curseur.Position);
            EditCourant = PoseSommet;
            break;
        case PlaceLumiere0:
        case PlaceLumiere1:
            EditCourant = Repos;
            break;
        default:
            Pose(true);
    }
    queue_draw();
    return true;
}

void Dessin3D::Choisit(guint32 instant) {
    Selection = Bdd.Cherche3D(Curseur.Position);
    Clone = Selection ? Selection->Clone() : nullptr;
    Debut = Cible();
    (Selection ? PopupElement : PopupOutil).Ouvre(1, instant);
}

void Dessin3D::Pose(bool memorise) {
    const auto pose = Selection->Clone();
    const auto change = memorise ? &BDDGeo::Change : &BDDGeo::ChangeSansRetour;
    if (Applique(*pose) && (Bdd.*change)(*Selection, *pose))
        FinEdition();
    else
        Abandonne();
}

void Dessin3D::Entre(Edit edit) {
    if (Selection) EditCourant = edit;
}

void Dessin3D::Prop() {
    EltGeo* const elt = Selection;
    if (!elt) return;
    const FenetreDesDialogues fenetre(dynamic_cast<Gtk::Window*>(get_toplevel()));
    const bool change = Bdd.DemandeProprietes(*elt);
    if (Selection != elt) return;
    change ? FinEdition() : Abandonne();
}

void Dessin3D::MetAxe(double alpha, double beta, double gamma) {
    const Elt3d* present = Selection ? Selection->GetElt3d() : nullptr;
    if (!present) {
        Abandonne();
        return;
    }
    Elt3d solide(*present);
    solide.alpha = alpha;
    solide.beta = beta;
    solide.gamma = gamma;
    const auto tourne = Selection->Clone();
    tourne->ChangeElt3d(solide);
    Bdd.Change(*Selection, *tourne);
    FinEdition();
}

void Dessin3D::FinEdition() {
    Abandonne();
    Edition.emit();
}

void Dessin3D::Abandonne() {
    EditCourant = Repos;
    Selection = nullptr;
    Clone.reset();
    queue_draw();
}

void Dessin3D::LaisseElement(EltGeo* elt) {
    AccrocheTrouvee = false;
    if (!Selection) return;
    if (!elt || elt == Selection || Selection->Fils.Contient(elt)) Abandonne();
}
