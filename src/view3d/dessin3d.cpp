// Construction and painting.

#include "view3d/dessin3d.h"

#include <glibmm/main.h>
#include <gtkmm/messagedialog.h>

#include "model/bddgeo.h"
#include "view3d/scenebornee.h"

Dessin3D::Dessin3D(BDDGeo& bdd) : Bdd(bdd) {
    set_size_request(600, 600);
    set_double_buffered(false);
    set_app_paintable(false);
    add_events(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK | Gdk::SCROLL_MASK |
               Gdk::KEY_PRESS_MASK);
    Bdd.SignalRetrait().connect(sigc::mem_fun(*this, &Dessin3D::LaisseElement));
    PopupElement.Construit("Element3D", CommandesElement(), *this);
    PopupOutil.Construit("Outil3D", CommandesOutil(), *this);
    Dc.PrepareFormat(*this);
}

void Dessin3D::on_realize() {
    Gtk::DrawingArea::on_realize();
    try {
        Dc.Init(get_window());
        RegleSurface();
        RegleLumiere(0);
        RegleLumiere(1);
        // The ball is the only pointer of the view.
        get_window()->set_cursor(Gdk::Cursor(Gdk::BLANK_CURSOR));
    } catch (const DC3DException& erreur) {
        // The window is about to be shown: the dialog waits until it is.
        Glib::signal_idle().connect_once(sigc::mem_fun(*this, &Dessin3D::DitSansGL));
    }
}

void Dessin3D::on_unrealize() {
    Dc.Ferme();
    Gtk::DrawingArea::on_unrealize();
}

void Dessin3D::DitSansGL() {
    if (SansGLDit) return;
    SansGLDit = true;
    Gtk::MessageDialog(DC3DException().what()).run();
}

void Dessin3D::RegleSurface() {
    const auto surface = static_cast<float>(Surface);
    if (Dc.Actif()) Dc.Materiau(0.0f, surface * 0.125f, surface * 0.5f, surface);
}

void Dessin3D::RegleLumiere(int indice) {
    const auto intensite = static_cast<float>(Intensites[indice]);
    if (Dc.Actif()) Dc.Lumiere(indice, intensite * 0.5f, intensite);
}

bool Dessin3D::on_expose_event(GdkEventExpose*) {
    if (Dc.Actif()) DessineScene();
    return true;
}

void Dessin3D::DessineScene() {
    Dc.DebutImage();
    DessineElements();
    DessineMarques();
    Dc.EtatFinPercage();
    Dc.Fin();
}

void Dessin3D::DessineElements() {
    if (VisuCentre) {
        Dc.EtatFil();
        for (const EltGeo* elt : Bdd.Elements)
            elt->DessinePoint3D();
        Dc.FinEtatFil();
    }
    const SceneBornee scene(Bdd, Dc);
    Dc.MetGrainCorps({true, scene.PiecesMax()});
    for (const EltGeo* elt : scene.Elements())
        elt->Dessine3DCSG(Dc);
}

void Dessin3D::DessineMarques() {
    Dc.MetGrainCorps({});
    Curseur.Dessine3D(Dc, true);
    Dc.EtatFil();
    if (Accrochage && AccrocheTrouvee) MarqueAccroche.DessineFilaire(Dc);
    if (Clone) Clone->DessineFilaire(Dc);
    Dc.FinEtatFil();
}
