#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "elements/pointvek.h"
#include "exchange/dxfpaires.h"

class EltGeo;

/// An entity as it was read, what it does not say being at its default. Its texts are parts of the
/// text that is read.
struct EntiteDxf {
    /// Reads the entity that begins at the present pair, of code 0, up to the next such pair. False
    /// when the text has come to its end.
    bool Lit(PairesDxf& paires);

    /// The point of that index where the entity gives it, else the other one.
    const PointVek& Point(std::size_t rang, const PointVek& sinon) const {
        return Donne[rang] ? Points[rang] : sinon;
    }

    /// The number of a group from 40 to 59, as it stands in the text, where the entity gives it.
    double Reel(int code, double sinon = 0.0) const;

    std::string_view Genre;          ///< Name of the entity, group 0.
    std::string_view Texte;          ///< Group 1.
    std::string_view Nom;            ///< Of a block, group 2.
    std::string_view TypeLigne;      ///< Group 6.
    std::string_view Style;          ///< Of a text, group 7.
    std::array<PointVek, 7> Points;  ///< Groups 10, 20, 30 to 16, 26, 36.
    std::array<bool, 7> Donne = {};  ///< Whether the entity gives the point.
    std::vector<PointVek> Sommets;   ///< Each 10, 20 behind the first; at height 0.
    int Couleur = -1;                ///< Index, group 62.
    int Drapeaux = 0;                ///< Group 70.
    int NbSommets = 0;               ///< Group 90.
    int CouleurVraie = 0;            ///< 0xrrggbb, group 420.

  private:
    static constexpr int PremierReel = 40;

    void Range(int code, std::string_view valeur);
    void RangeX(std::size_t rang, double x);
    void RangeY(std::size_t rang, double y);
    void RangeZ(std::size_t rang, double z);

    std::array<std::string_view, 20> Reels;  ///< Groups 40 to 59, as they stand in the text.
    bool DonneY = false;                     ///< Whether the first point has its y.
    PointVek Travail;                        ///< The vertex that is being read.
    bool EnSommets = false;
};

/// Gives the element the colour and the line style of its entity.
void AppliqueStyle(EltGeo& elt, const EntiteDxf& entite);
