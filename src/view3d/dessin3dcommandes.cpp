// The commands of the view: its keys, and its two menus.

#include <gdk/gdkkeysyms.h>
#include <gtkmm/stock.h>

#include <algorithm>

#include "dialogs/commande.h"
#include "view3d/dessin3d.h"

namespace {

/// Degrees by which one key turns the camera.
constexpr float PasAngle = 5.0f;

/// Drawing units by which one key moves the far plane.
constexpr double PasLoin = 20.0;

/// Distance of the eye from the origin in the ready-made views, in drawing units.
constexpr double Recul = 300.0;

/// The step that an arrow asks for, in the axes of the view; none for another key.
std::optional<PointVek> PasDe(const GdkEventKey* evenement) {
    const double pas = evenement->state & GDK_CONTROL_MASK ? 10.0 : 1.0;
    const bool enProfondeur = evenement->state & GDK_SHIFT_MASK;
    const auto enHauteur = [&](double v) {
        return enProfondeur ? PointVek(0.0, 0.0, v) : PointVek(0.0, v, 0.0);
    };
    switch (evenement->keyval) {
        case GDK_Right:
        case GDK_KP_Right:
            return PointVek(pas, 0.0);
        case GDK_Left:
        case GDK_KP_Left:
            return PointVek(-pas, 0.0);
        case GDK_Up:
        case GDK_KP_Up:
            return enHauteur(pas);
        case GDK_Down:
        case GDK_KP_Down:
            return enHauteur(-pas);
        default:
            return {};
    }
}

}  // namespace

bool Dessin3D::ToucheEnfoncee(const GdkEventKey* evenement) {
    const unsigned touche = evenement->keyval;
    return ToucheCamera(evenement) || ToucheVue(touche) || ToucheLumiere(touche) ||
           ToucheOutil(touche);
}

bool Dessin3D::ToucheCamera(const GdkEventKey* evenement) {
    const unsigned touche = evenement->keyval;
    if (const auto pas = PasDe(evenement)) {
        Dc.Oeil.Deplace(*pas);
    } else if (touche == GDK_Page_Up || touche == GDK_Page_Down) {
        const float pas5 = touche == GDK_Page_Up ? PasAngle : -PasAngle;
        if (evenement->state & GDK_SHIFT_MASK)
            Dc.Oeil.TourneBeta(pas5);
        else if (evenement->state & GDK_CONTROL_MASK)
            Dc.Oeil.TourneGamma(pas5);
        else
            Dc.Oeil.TourneAlpha(pas5);
    } else if (touche == GDK_p || touche == GDK_P) {
        Dc.Oeil.DeplaceLoin(touche == GDK_p ? PasLoin : -PasLoin);
    } else {
        return false;
    }
    CameraChangee();
    return true;
}

bool Dessin3D::ToucheVue(unsigned touche) {
    switch (gdk_keyval_to_lower(touche)) {
        case GDK_f:
            VueFace();
            return true;
        case GDK_d:
            VueDerriere();
            return true;
        case GDK_g:
            VueGauche();
            return true;
        case GDK_h:
            VueDroite();
            return true;
        case GDK_e:
            VueDessus();
            return true;
        case GDK_r:
            VueDessous();
            return true;
        default:
            return false;
    }
}

bool Dessin3D::ToucheLumiere(unsigned touche) {
    constexpr double pas = 0.05;
    const auto change = [](double& valeur, double ecart) {
        valeur = std::clamp(valeur + ecart, 0.0, 1.0);
    };
    switch (touche) {
        case GDK_j:
        case GDK_J:
            // Down goes twice as fast as up: users know the key so.
            change(Intensites[0], touche == GDK_j ? pas : -2.0 * pas);
            RegleLumiere(0);
            break;
        case GDK_k:
        case GDK_K:
            change(Intensites[1], touche == GDK_k ? pas : -pas);
            RegleLumiere(1);
            break;
        case GDK_l:
        case GDK_L:
            change(Surface, touche == GDK_l ? pas : -pas);
            RegleSurface();
            break;
        default:
            return false;
    }
    queue_draw();
    return true;
}

bool Dessin3D::ToucheOutil(unsigned touche) {
    switch (touche) {
        case GDK_Escape:
            Abandonne();
            return true;
        case GDK_a:
        case GDK_A:
            BasculeAccrochage();
            return true;
        case GDK_z:
        case GDK_Z:
            PointeurAuSol();
            return true;
        case GDK_C:
            if (const auto fenetre = get_window()) fenetre->clear();
            return true;
        case GDK_B:
            queue_draw();
            return true;
        default:
            return false;
    }
}

void Dessin3D::VueFace() {
    MetVue({0.0, 0.0, -Recul}, 0.0, 0.0);
}

void Dessin3D::VueDerriere() {
    MetVue({0.0, 0.0, Recul}, 0.0, 180.0);
}

void Dessin3D::VueGauche() {
    MetVue({0.0, -Recul, 0.0}, 0.0, 90.0);
}

void Dessin3D::VueDroite() {
    MetVue({0.0, Recul, 0.0}, 0.0, -90.0);
}

void Dessin3D::VueDessus() {
    MetVue({Recul, 0.0, 0.0}, 90.0, 0.0);
}

void Dessin3D::VueDessous() {
    MetVue({-Recul, 0.0, 0.0}, -90.0, 0.0);
}

void Dessin3D::MetVue(const PointVek& translation, double beta, double gamma) {
    Dc.Oeil.Place(translation, 0.0, beta, gamma);
    CameraChangee();
}

void Dessin3D::CameraChangee() {
    SuitSouris();
    queue_draw();
}

const std::vector<Commande<Dessin3D>>& Dessin3D::CommandesElement() {
    using Ligne = Commande<Dessin3D>;
    const auto entre = [](const char* nom, const char* touche, Edit edit) {
        return Ligne(Ligne::Simple, nom, nom, [edit](Dessin3D& vue) { vue.Entre(edit); })
            .AvecTouche(touche);
    };
    const auto axe = [](const char* nom, double alpha, double beta, double gamma) {
        return Ligne(Ligne::Simple, nom, nom,
                     [=](Dessin3D& vue) { vue.MetAxe(alpha, beta, gamma); })
            .AvecTouche("a");
    };
    // Several share an accelerator, of which the first wins: only the open menu would read them.
    static const std::vector<Ligne> table = {
        Ligne(Ligne::Stock, "Prop", "", &Dessin3D::Prop)
            .AvecImage(Gtk::Stock::PROPERTIES.id)
            .AvecTouche("p"),
        entre("Deplace", "D", Deplacement),
        entre("Alpha", "a", TourneAlpha),
        entre("Beta", "b", TourneBeta),
        entre("Gamma", "g", TourneGamma),
        entre("Direction", "d", Direction),
        Ligne(Ligne::Menu, "Axe", "_Axe")
            .Contient({axe("AxeX", 0.0, 90.0, 0.0), axe("AxeY", 0.0, -180.0, -90.0),
                       axe("AxeZ", 0.0, 0.0, 0.0)}),
        entre("Deforme", "D", PrendSommet),
    };
    return table;
}

const std::vector<Commande<Dessin3D>>& Dessin3D::CommandesOutil() {
    using Ligne = Commande<Dessin3D>;
    const auto ligne = [](const char* nom, const char* touche, const Ligne::Effet& effet) {
        return Ligne(Ligne::Simple, nom, nom, effet).AvecTouche(touche);
    };
    const auto lumiere = [&](const char* nom, const char* touche, int indice) {
        return ligne(nom, touche, [indice](Dessin3D& vue) { vue.BasculeLumiere(indice); });
    };
    static const std::vector<Ligne> table = {
        ligne("Accrochage", "A", &Dessin3D::BasculeAccrochage),
        ligne("VisuCentre", "C", &Dessin3D::BasculeVisuCentre),
        Ligne::Trait(),
        ligne("VueFace", "F", &Dessin3D::VueFace),
        ligne("VueDerriere", "D", &Dessin3D::VueDerriere),
        ligne("VueGauche", "G", &Dessin3D::VueGauche),
        ligne("VueDroite", "H", &Dessin3D::VueDroite),
        ligne("VueDessus", "E", &Dessin3D::VueDessus),
        ligne("VueDessous", "R", &Dessin3D::VueDessous),
        Ligne::Trait(),
        ligne("Texture", "T", &Dessin3D::BasculeTextures),
        lumiere("Lum0", "L", 0),
        lumiere("Lum1", "l", 1),
    };
    return table;
}

void Dessin3D::BasculeAccrochage() {
    Accrochage = !Accrochage;
    ChercheAccroche();
    queue_draw();
}

void Dessin3D::BasculeVisuCentre() {
    VisuCentre = !VisuCentre;
    queue_draw();
}

void Dessin3D::BasculeTextures() {
    Dc.BasculeTextures();
    queue_draw();
}

void Dessin3D::BasculeLumiere(int indice) {
    if (!Dc.Actif()) return;
    const bool allume = !Dc.LumiereAllumee(indice);
    Dc.AllumeLumiere(indice, allume);
    if (allume) EditCourant = indice == 0 ? PlaceLumiere0 : PlaceLumiere1;
    queue_draw();
}
