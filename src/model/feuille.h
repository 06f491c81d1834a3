#pragma once

#include <cairomm/context.h>

#include <string>

#include "model/eltbdd.h"

class Trace;

/// The sheet that the drawing is printed on. One for the program.
class Feuille {
  public:
    /// Reads the title block, an ordinary drawing in millimetres from its sheet's corner; none for
    /// an empty name or a file that cannot be read.
    void ChargeCartouche(const std::string& nom);
    const std::string& NomCartouche() const { return NomCartouche_; }

    /// Takes what can be worked with: above a millionth, and below a thousand million.
    void SetEchelle(double echelle);

    /// Shows the frame of the paper and the title block where they would come to lie.
    void DessineApercu(Trace& trace) const;

    /// Paints the sheet: the title block, then the drawing. The context has largeur by hauteur
    /// units, parMm of them a millimetre.
    void Imprime(const Cairo::RefPtr<Cairo::Context>& contexte, double largeur, double hauteur,
                 double parMm) const;

    double EchellePapier() const { return EchellePapier_; }

    PointVek OrigineFeuille;      ///< The sheet's upper left corner in the drawing.
    PointVek Papier;              ///< Its width and height in millimetres.
    bool ApercuPage = false;      ///< The sheet is shown with the drawing.
    bool ImpressionNoir = false;  ///< All ink is black.

  private:
    void DessineCartouche(Trace& trace) const;

    double EchellePapier_ = 1.0;  ///< Millimetres of paper a drawing unit.
    EltBDD Cartouche;
    std::string NomCartouche_;  ///< In the encoding of file names.
};

extern Feuille FeuilleCourante;
