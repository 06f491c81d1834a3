// From entities to elements. All come in on layer 0.

#include "exchange/dxfcreation.h"

#include <cmath>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltpoint.h"
#include "elements/eltprofil.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"
#include "exchange/dxfentite.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"

namespace {

using Element = std::unique_ptr<EltGeo>;

std::unique_ptr<EltProfil> CreeProfil(const EntiteDxf& entite, bool ferme) {
    auto profil = std::make_unique<EltProfil>();
    profil->Ferme = ferme;
    profil->Debut(entite.Points[0]);
    return profil;
}

bool EstFermee(const EntiteDxf& polyligne) {
    return polyligne.Drapeaux & 1;
}

Element CreeLwPolyligne(const EntiteDxf& entite) {
    if (!entite.Donne[0]) return nullptr;
    auto profil = CreeProfil(entite, EstFermee(entite));
    profil->Ajoute(entite.Points[0]);
    // A count that is none leaves all the vertices that were read.
    const std::size_t voulus =
        entite.NbSommets > 0 ? static_cast<std::size_t>(entite.NbSommets) : SIZE_MAX;
    for (const PointVek& sommet : entite.Sommets) {
        if (profil->Sommets.size() >= voulus) break;
        profil->Ajoute(sommet);
    }
    return profil;
}

Element CreeSegment(const EntiteDxf& entite) {
    if (!entite.Donne[1]) return nullptr;
    return std::make_unique<EltSegment>(entite.Points[0], entite.Points[1], 0);
}

Element CreePoint(const EntiteDxf& entite) {
    auto point = std::make_unique<EltPoint>();
    point->Place(entite.Points[0]);
    return point;
}

/// A missing corner repeats the one before it.
Element CreeFace(const EntiteDxf& entite) {
    auto profil = CreeProfil(entite, true);
    PointVek coin = entite.Points[0];
    for (std::size_t rang = 0; rang < 4; ++rang) {
        coin = entite.Point(rang, coin);
        profil->Ajoute(coin);
    }
    return profil;
}

Element CreeTxt(const EntiteDxf& entite) {
    auto txt = std::make_unique<EltTxt>();
    txt->SetTexte(EnTexte(entite.Texte));
    if (!entite.Style.empty()) txt->Police = EnTexte(entite.Style);
    txt->Place(entite.Points[0]);
    txt->Angle = EnRadians(entite.Reel(50));
    txt->SetTaille(entite.Reel(40));
    return txt;
}

Element CreeRond(const EntiteDxf& entite, double debut, double ouverture) {
    const double rayon = entite.Reel(40);
    if (!(rayon > 0.0)) return nullptr;
    return std::make_unique<EltArc>(entite.Points[0], rayon, debut, ouverture, 0);
}

Element CreeCercle(const EntiteDxf& entite) {
    return CreeRond(entite, 0.0, DeuxPi);
}

Element CreeArc(const EntiteDxf& entite) {
    constexpr double epsilon = 1e-6;
    const double debut = AngleReduit(EnRadians(entite.Reel(50)), epsilon);
    const double ouverture = AngleReduit(EnRadians(entite.Reel(51) - entite.Reel(50)), epsilon);
    // An arc that ends where it begins goes all around.
    return CreeRond(entite, debut, ouverture < epsilon ? DeuxPi : ouverture);
}

Element CreeImage(const EntiteDxf& entite) {
    auto image = std::make_unique<EltImage>();
    image->Place(entite.Points[0]);
    image->SetIdentificateur(EnTexte(entite.Nom));
    image->Angle = EnRadians(entite.Reel(50));
    const double echelle = entite.Reel(41, 1.0);
    image->Agrandissement = echelle == 0.0 ? 1.0 : std::abs(echelle);
    return image;
}

/// What an entity of that name becomes.
struct Creation {
    std::string_view Genre;
    Element (*Cree)(const EntiteDxf& entite);
};

constexpr Creation Creations[] = {
    {"LINE", CreeSegment}, {"ARC", CreeArc},        {"CIRCLE", CreeCercle},
    {"POINT", CreePoint},  {"TEXT", CreeTxt},       {"LWPOLYLINE", CreeLwPolyligne},
    {"INSERT", CreeImage}, {"SOLID", CreeFace},     {"3DFACE", CreeFace},
    {"TRACE", CreeFace},   {"DIMENSION", CreeCote},
};

}  // namespace

std::unique_ptr<EltGeo> CreeElement(const EntiteDxf& entite) {
    for (const Creation& creation : Creations)
        if (creation.Genre == entite.Genre) return creation.Cree(entite);
    return nullptr;
}

std::unique_ptr<EltBDD> CreeGroupe(const EntiteDxf& entite) {
    auto groupe = std::make_unique<EltBDD>();
    groupe->SetIdentificateur(EnTexte(entite.Nom));
    return groupe;
}

std::unique_ptr<EltProfil> CreePolyligne(const EntiteDxf& entite) {
    return CreeProfil(entite, EstFermee(entite));
}
