// Edits: what follows the pointer, and what a click does.

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
    (Selection ? PopupElement : PopupOutil)->popup(1, instant);
}

void Dessin3D::Pose(bool memorise) {
    auto avant = Selection->Clone();
    const auto essai = Selection->Clone();
    if (!Applique(*essai) || !essai->EstFini() || (avant->EstValide() && !essai->EstValide())) {
        Abandonne();
        return;
    }
    Applique(*Selection);
    if (memorise)
        Bdd.Memorise(*Selection, std::move(avant));
    else
        Bdd.NoteChangement();
    FinEdition();
}

void Dessin3D::Entre(Edit edit) {
    if (Selection) EditCourant = edit;
}

void Dessin3D::Prop() {
    EltGeo* const elt = Selection;
    if (!elt) return;
    auto avant = elt->Clone();
    const FenetreDesDialogues fenetre(dynamic_cast<Gtk::Window*>(get_toplevel()));
    const bool change = elt->Proprietes();
    // The dialog ran a loop of its own, and the element may have gone.
    if (Selection != elt) return;
    if (!change) {
        Abandonne();
        return;
    }
    Bdd.Memorise(*elt, std::move(avant));
    FinEdition();
}

void Dessin3D::MetAxe(double alpha, double beta, double gamma) {
    const Elt3d* present = Selection ? Selection->GetElt3d() : nullptr;
    if (!present) {
        Abandonne();
        return;
    }
    auto avant = Selection->Clone();
    Elt3d solide(*present);
    solide.alpha = alpha;
    solide.beta = beta;
    solide.gamma = gamma;
    Selection->ChangeElt3d(solide);
    Bdd.Memorise(*Selection, std::move(avant));
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
