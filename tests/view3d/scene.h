#pragma once

#include <string>
#include <vector>

#include "commun/banc.h"
#include "rayons.h"
#include "view3d/window3d.h"

/// The real 3D window on the drawing, with hands for mouse and keys.
class Banc3D {
  public:
    Banc3D();
    ~Banc3D();

    /// Adds the solid with its holes to the drawing; answers the body.
    EltGeo* Ajoute(const Solide& solide);

    // Pixels of the area, from its upper left corner.
    void Bouge(double x, double y, unsigned etat = 0);
    void Clique(double x, double y);
    void Roule(GdkScrollDirection sens, unsigned etat = 0);
    void Frappe(unsigned touche, unsigned etat = 0);

    /// Chooses an action of the menu that is open.
    void Choisit(const std::string& action);

    /// Whether the last click opened a menu with that action; closes it.
    bool MenuOuvert(const std::string& action);

    /// Brings the view to these angles in degrees, at 300 units from the origin.
    Vue Regarde(int alpha, int beta, int gamma);

    Capture Image();

    Window3D Fenetre;
    Dessin3D& Zone;
    int Editions = 0;  ///< How often an edit was told.

  private:
    Gtk::MenuItem* Entree(const std::string& action);
};

/// Which of red (1), green (2) and blue (4) show in a colour, whatever the light; 0 for the
/// background, 7 for what is grey.
int Teinte(unsigned couleur);

/// How the picture agrees with what the rays meet, among the pixels where one of them shows
/// something. A picture that does not agree is kept under the name.
struct Accord {
    Accord(const std::vector<Solide>& scene, const Vue& vue, const Capture& image,
           const std::string& nom);

    double Part;          ///< Of the pixels, those that agree.
    double LoinDesBords;  ///< Those that agree with no ray of their neighbours either.
};

/// Degrees, as `Banc3D::Regarde` takes them.
struct Angles {
    int Alpha, Beta, Gamma;
};

/// Expects every view of what stands in the drawing to agree with the rays on the scene.
void VerifieVues(Banc3D& banc, const std::vector<Solide>& scene, const std::vector<Angles>& vues,
                 const std::string& nom);
