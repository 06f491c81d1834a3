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
    int calque = Zone.Outils.Protos.Calque();
    IntDialog dialogue("Numéro du calque courant", &calque, UnNombre());
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    Zone.Outils.Protos.SetCalque(calque);
    AfficheCalques();
}

void DessinWindow::CalquesAfficher() {
    int calque = BddCourante.CalqueAffiche();
    IntDialog dialogue("Numéro du calque à afficher, -1 pour tout afficher !", &calque, UnNombre());
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    Zone.Outils.SetCalqueAffiche(calque);
    AfficheCalques();
}

void DessinWindow::GrillePas() {
    double pas = Zone.Vue.GrilleCourante.Pas;
    ReelDialog dialogue("Entrer le pas de la grille", &pas, PlusQue(1e-6, "Le pas"));
    if (dialogue.run() == Gtk::RESPONSE_OK) Zone.Vue.SetPasGrille(pas);
}

void DessinWindow::GrilleCouleur() {
    Gdk::Color couleur = Zone.Vue.GrilleCourante.Style.Couleur;
    if (DemandeCouleur(this, "Couleur de la Grille", couleur)) Zone.Vue.SetCouleurGrille(couleur);
}

void DessinWindow::CollerRotation() {
    TransformeColle& t = BddCourante.Transforme;
    // The angle comes back through single precision: the dialog shows round degrees.
    double degres = static_cast<float>(t.Angle) * 180.0f / 3.1415927f;
    const double avant = degres;
    ReelDialog dialogue("Entrer l'angle de la rotation (en degrés)", &degres);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    if (degres != avant) {
        t.Angle = EnRadians(degres);
        t.Cos = std::cos(t.Angle);
        t.Sin = std::sin(t.Angle);
    }
    Zone.Presse.Colle();
}

void DessinWindow::CollerK() {
    double& agrandissement = BddCourante.Transforme.Agrandissement;
    double facteur = agrandissement;
    // The title is that of the rotation, by which users know this dialog too.
    ReelDialog dialogue("Entrer l'angle de la rotation (en degrés)", &facteur);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    // Beyond these the former factor is pasted with: this is meant.
    if (facteur > 0.001 && facteur < 1000.0) agrandissement = facteur;
    Zone.Presse.Colle();
}

void DessinWindow::PrefTxt() {
    EltTxtDialog("Préférences Texte", &Zone.Outils.Protos.Txt).run();
}

void DessinWindow::PrefCote() {
    PrefCoteDialog dialogue(&Zone.Outils.Protos.Cote);
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    Zone.Outils.Protos.DiffuseCote();
    // Values are shown with the new decimals, in a drag's preview as well.
    Zone.Outils.DessinChange();
}

void DessinWindow::SurfacePref() {
    EltProfilSurface& surface = Zone.Outils.Protos.ProfilSurface;
    int lignes = surface.nbX, colonnes = surface.nbY;
    Int2Dialog dialogue("Nombre de lignes / Nombre de Colonnes", &lignes, &colonnes,
                        EntierAuMoins(3, "Chaque nombre"));
    if (dialogue.run() != Gtk::RESPONSE_OK) return;
    surface.SetNbX(lignes);
    surface.SetNbY(colonnes);
}

void DessinWindow::CouleurFond() {
    Gdk::Color couleur = Zone.Vue.Fond();
    if (DemandeCouleur(this, "Couleur du fond d'écran", couleur)) Zone.Vue.SetFond(couleur);
}

void DessinWindow::Couleur() {
    ::Trait trait = Zone.Outils.Protos.Trait();
    if (DemandeCouleur(this, "Couleur", trait.Couleur)) Zone.Outils.Protos.SetTrait(trait);
}

void DessinWindow::Trait() {
    ::Trait trait = Zone.Outils.Protos.Trait();
    TraitDialog dialogue("Style du trait courant", &trait);
    if (dialogue.run() == Gtk::RESPONSE_OK) Zone.Outils.Protos.SetTrait(trait);
}
