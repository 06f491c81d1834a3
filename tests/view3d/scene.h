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
    Banc3D();
    ~Banc3D();

    /// Adds the solid with its envelopes and holes to the drawing; answers the body.
    EltGeo* Ajoute(const Solide& solide);

    /// Gives its envelopes and holes to another body; answers it.
    static EltGeo* Garnit(EltGeo* corps, const Solide& solide);

    /// Brings the view to these angles in degrees, at 300 units from the origin.
    Vue Regarde(int alpha, int beta, int gamma);

    int Editions = 0;  ///< How often an edit was told.
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

/// Makes an image file of rows of hues; its name.
std::string ImageDeTeintes(const std::string& nom, int largeur, const std::vector<int>& teintes);

/// Degrees, as `Banc3D::Regarde` takes them.
struct Angles {
    int Alpha, Beta, Gamma;
};

/// Expects every view of what stands in the drawing to agree with the rays on the scene.
void VerifieVues(Banc3D& banc, const std::vector<Solide>& scene, const std::vector<Angles>& vues,
                 const std::string& nom);
