#pragma once

#include <glibmm/error.h>
#include <glibmm/refptr.h>
#include <glibmm/ustring.h>

#include <memory>
#include <vector>

#include "solids/grain.h"
#include "view3d/camera.h"

class CorpsCompiles;
class GestionTextures;
class PlateformeGL;
struct Etendue;
namespace Gdk {
class Window;
}
namespace Gtk {
class Widget;
}

/// GL cannot be had on this screen.
class DC3DException : public Glib::Error {
  public:
    Glib::ustring what() const override { return "DC3D"; }
};

/// A rectangle of the picture in pixels, from its lower left corner.
struct ZonePixels {
    int X = 0;
    int Y = 0;
    int Largeur = 0;
    int Hauteur = 0;

    bool EstVide() const { return Largeur <= 0 || Hauteur <= 0; }

    /// The smallest rectangle around both.
    ZonePixels Reunie(const ZonePixels& autre) const;
};

/// The context of the 3D picture: GL on the widget's window, camera, lights, textures, and the
/// state sets that the passes switch between. It knows no solid; solids select their textures and
/// learn how finely they are made through it. The one header of this floor that lower ones may
/// include.
///
/// The state sets are named operations: each issues a fixed list of GL calls and leaves everything
/// else as it was.
class DC3D {
  public:
    DC3D();
    ~DC3D();
    DC3D(const DC3D&) = delete;
    DC3D& operator=(const DC3D&) = delete;

    /// Selects the texture of that file for what is drawn next; white for an empty name. With the
    /// textures off the one bound last stays.
    void ActiveTexture(const Glib::ustring& nom);

    /// What was drawn with it is done; there is nothing to do.
    void FinTexture() {}

    /// How finely the bodies drawn next are made.
    const Grain& GrainCorps() const { return Finesse; }
    void MetGrainCorps(const Grain& grain) { Finesse = grain; }

    // Set-up.

    /// Gives a widget the format that GL needs, before it is realised.
    void PrepareFormat(Gtk::Widget& widget);

    /// Makes the context on the widget's window, and makes it current for good. Throws a
    /// `DC3DException`; nothing but the destructor may be called then.
    void Init(const Glib::RefPtr<Gdk::Window>& fenetre);

    /// Lets go of the window and all that lives with the context.
    void Ferme();

    /// Whether GL can be called.
    bool Actif() const { return Textures != nullptr; }

    /// Draws solids with their textures, or with whichever is bound.
    void BasculeTextures();

    // Lights and material.

    /// Intensities of the surrounding light, and of the surface's ambient, diffuse and specular
    /// colours, 0 to 1.
    void Materiau(float entourage, float ambiante, float diffuse, float speculaire);

    /// Light 0 or 1.
    void Lumiere(int indice, float ambiante, float diffuse);

    /// Light 0 shines from the direction of the point, light 1 from the point itself.
    void PositionLumiere(int indice, const PointVek& p);
    void AllumeLumiere(int indice, bool allumee);
    bool LumiereAllumee(int indice) const { return Allumees[indice]; }

    // The image.

    /// Clears the picture at the present size of the window; the scene follows.
    void DebutImage();

    /// Shows the picture.
    void Fin();

    /// Where the box appears; the whole picture when a part of it is beside or behind the eye.
    ZonePixels ZoneDe(const Etendue& boite) const;

    /// Confines clearing, drawing and the copy of the depth to a part of the picture.
    void Limite(const ZonePixels& zone);
    void FinLimite();

    // State sets and steps of the passes.

    /// The scene's state.
    void EtatNormal();

    /// Points and wires: no light, no texture, both sides.
    void EtatFil();
    void FinEtatFil();

    /// Saves the depth of the scene; the depth buffer then collects the farthest near side.
    void DebutEnveloppe();

    /// Far sides are counted in the stencil.
    void EtatCompte();

    /// One more layer belongs to what is inside.
    void CompteUn() { ++CompteStencil; }

    /// What is not inside all layers goes to the far plane.
    void EffaceHorsCompte();

    /// Mouths are marked in the stencil, where they do not lie behind the body.
    void EtatMarqueCreux();
    void EtatCreux();

    // For a hollow that another one runs into, in this order: near sides in front of the present
    // depth are counted up, far sides down; then far sides are written where one more was entered
    // than left. What lies in a mouth, a near wall or an open end is inside, what lies in a far
    // wall or a bottom is not.

    void EtatEntreeFonds();
    void EtatEntreeParoi();
    void EtatSortieParoi();
    void EtatSortieOuverte();
    void EtatApprofondit();

    // Then, in this order: the far caps that still stand are marked; when they are not all to be
    // opened, those that the far side of the solid is not behind; the marked ones go to the far
    // plane.

    void EtatFondRestant(bool aOuvrir);
    void EtatDosDuSolide();
    void OuvreMarques();

    /// What is drawn next writes its own depth, or that of the far plane.
    void EtatFondVisible();
    void EtatFondOuvert();

    /// The depth becomes the smaller of the saved one and the solid's.
    void FusionneProfondeur();

    /// Only what stands in the depth buffer paints.
    void EtatCouleurEgale();
    void EtatFinPercage();

    /// The bodies of solids compiled for this context.
    CorpsCompiles& Corps() { return *Compiles; }

    Camera Oeil;

  private:
    /// Sends the pixels whose stencil compares so with the value to the far plane.
    void EcritLointain(unsigned comparaison, int valeur);
    void LitProfondeur();
    void EcritProfondeur();

    std::unique_ptr<PlateformeGL> Plateforme;
    bool FormatPret = false;  ///< The widget has a format that GL can draw with.
    Glib::RefPtr<Gdk::Window> Fenetre;
    std::unique_ptr<GestionTextures> Textures;  ///< There is one as long as the context works.
    std::unique_ptr<CorpsCompiles> Compiles;
    Grain Finesse;
    bool TexturesActives = true;
    bool Allumees[2] = {true, false};
    int CompteStencil = 0;           ///< The stencil value that counts as inside.
    std::vector<float> Profondeurs;  ///< The scene's depth within `Zone`.
    ZonePixels Zone;                 ///< What drawing is confined to.
    int Largeur = 0;                 ///< Of the picture in pixels.
    int Hauteur = 0;
};
