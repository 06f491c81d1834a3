#pragma once

#include <vector>

class BDDGeo;
class DC3D;
class EltGeo;
class EltImage3d;

/// What one repaint shows of a drawing, held within what can be painted while a person waits.
class SceneBornee {
  public:
    /// dc: whose lights tell how finely bodies have to be made.
    SceneBornee(const BDDGeo& bdd, const DC3D& dc);

    /// The elements that have something to show; the drawing's.
    const std::vector<const EltGeo*>& Elements() const { return Montres; }

    /// The most pieces that a solid may be made of. Where the scene is too much as a whole it is
    /// less than what a single one may have, so that the costly ones are made coarser.
    double PiecesMax() const { return Maximum; }

  private:
    void Ajoute(const EltGeo& elt, const DC3D& dc);

    /// Counts what an image shows. False when it is more than is left.
    bool CompteImage(const EltImage3d& image, const DC3D& dc);
    void Compte(const EltGeo& elt, bool anneaux);
    double PiecesSous(double maximum) const;

    std::vector<const EltGeo*> Montres;
    std::vector<double> Pieces;  ///< Of each solid, those shown through images and children too.
    int ResteImages;             ///< Elements that may still be shown through images.
    double Maximum;
};

/// Whether the light may vary along straight walls and over flat caps of the solid or its children.
bool LumiereVarie(const EltGeo& solide, const DC3D& dc);
