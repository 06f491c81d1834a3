#pragma once

#include <string>
#include <vector>

#include "commun/main3d.h"
#include "model/bddgeo.h"
#include "rayons.h"

/// The 3D window of a bench, there before the hands that hold it.
struct FenetreDeBanc3D {
    Window3D Fenetre3D{BddCourante};
};

/// The real 3D window on the drawing, with hands for mouse and keys.
class Banc3D : private FenetreDeBanc3D, public Main3D {
  public:
    /// cote: of its square picture, in pixels.
    explicit Banc3D(int cote = 600);
    ~Banc3D();

    /// Brings the view to these angles in degrees, at 300 units from the origin.
    Vue Regarde(int alpha, int beta, int gamma);

    int Editions = 0;  ///< How often an edit was told.
};

/// What a body is there for.
enum class Role { Corps, Trou, Poche, Enveloppe };

/// Adds a body to the drawing, as a child of porteur where there is one.
EltGeo* Pose(const Forme& forme, Role role = Role::Corps, EltGeo* porteur = nullptr);

/// The same with an element that a file would hold so.
EltGeo* PoseRecord(const std::string& record, EltGeo* porteur = nullptr);

/// Which of red (1), green (2) and blue (4) show in a colour, whatever the light; 0 for the
/// background, 7 for what is grey.
int Teinte(unsigned couleur);

/// Expects the picture to be what the rays meet, but for some pixels at the edges. One that is not
/// is kept under the name.
void ExigeRayons(const std::vector<Solide>& scene, const Vue& vue, const Capture& image,
                 const std::string& nom);

/// Makes an image file of rows of hues; its name.
std::string ImageDeTeintes(const std::string& nom, int largeur, const std::vector<int>& teintes);
