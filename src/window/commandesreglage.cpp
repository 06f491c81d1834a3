// The layers, and the settings that a dialog asks for.

#include <cmath>

#include "dialogs/demandecouleur.h"
#include "dialogs/elttxtdialog.h"
#include "dialogs/int2dialog.h"
#include "dialogs/intdialog.h"
#include "dialogs/prefcotedialog.h"
#include "dialogs/reeldialog.h"
#include "dialogs/traitdialog.h"
#include "elements/angles.h"
#include "model/bddgeo.h"
#include "window/dessinwindow.h"

void DessinWindow::CalqueCourant() {
    int calque = Zone.Calque();
    IntDialog dialogue("Numéro du calque courant", &calque);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    Zone.SetCalque(calque);
    AfficheCalques();
}

void DessinWindow::CalquesAfficher() {
    int calque = BddCourante.CalqueAffiche();
    IntDialog dialogue("Numéro du calque à afficher, -1 pour tout afficher !", &calque);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    Zone.SetCalqueAffiche(calque);
    AfficheCalques();
}

void DessinWindow::GrillePas() {
    double pas = Zone.PasGrille();
    ReelDialog dialogue("Entrer le pas de la grille", &pas);
    if (dialogue.run() == Gtk::RESPONSE_OK) Zone.SetPasGrille(pas);
}

void DessinWindow::GrilleCouleur() {
    Gdk::Color couleur = Zone.GrilleDuMoment().Style.Couleur;
    if (DemandeCouleur(this, "Couleur de la Grille", couleur)) Zone.SetCouleurGrille(couleur);
}

void DessinWindow::CollerRotation() {
    TransformeColle& t = BddCourante.Transforme;
    // The angle comes back through single precision: that is meant.
    double degres = static_cast<float>(t.Angle) * 180.0f / 3.1415927f;
    const double avant = degres;
    ReelDialog dialogue("Entrer l'angle de la rotation (en degrés)", &degres);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    if (degres != avant) {
        t.Angle = EnRadians(degres);
        t.Cos = std::cos(t.Angle);
        t.Sin = std::sin(t.Angle);
    }
    Zone.CollerAction();
}

void DessinWindow::CollerK() {
    double facteur = BddCourante.Transforme.Agrandissement;
    // The title is that of the rotation: that is meant.
    ReelDialog dialogue("Entrer l'angle de la rotation (en degrés)", &facteur);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    if (facteur > 0.001 && facteur < 1000.0) BddCourante.Transforme.Agrandissement = facteur;
    Zone.CollerAction();
}

void DessinWindow::PrefTxt() {
    EltTxtDialog("Préférences Texte", &Zone.Protos.Txt).run();
}

void DessinWindow::PrefCote() {
    PrefCoteDialog dialogue(&Zone.Protos.Cote);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    Zone.Protos.DiffuseCote();
    // Values are shown with the new decimals, in a drag's preview as well.
    Zone.DessinChange();
}

void DessinWindow::SurfacePref() {
    EltProfilSurface& surface = Zone.Protos.ProfilSurface;
    int lignes = surface.nbX, colonnes = surface.nbY;
    Int2Dialog dialogue("Nombre de lignes / Nombre de Colonnes", &lignes, &colonnes);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    surface.SetNbX(lignes);
    surface.SetNbY(colonnes);
}

void DessinWindow::CouleurFond() {
    Gdk::Color couleur = Zone.Fond();
    if (DemandeCouleur(this, "Couleur du fond d'écran", couleur)) Zone.SetFond(couleur);
}

void DessinWindow::Couleur() {
    ::Trait trait = Zone.Trait();
    if (DemandeCouleur(this, "Couleur", trait.Couleur)) Zone.SetTrait(trait);
}

void DessinWindow::Trait() {
    ::Trait trait = Zone.Trait();
    TraitDialog dialogue("Style du trait courant", &trait);
    if (dialogue.run() == Gtk::RESPONSE_OK) Zone.SetTrait(trait);
}
