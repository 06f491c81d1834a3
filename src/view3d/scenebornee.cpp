#include "view3d/scenebornee.h"

#include <algorithm>
#include <cmath>

#include "model/bddgeo.h"
#include "solids/eltimage3d.h"
#include "view3d/dc3d.h"

namespace {

/// Elements that one repaint shows through images.
constexpr int ContenusMax = 100000;

/// What all solids may be made of together, and what is left to each however many they are.
constexpr double PiecesScene = 4e6;
constexpr double PiecesPlancher = 64.0;

bool Brille(const EltGeo& elt) {
    const auto* solide = dynamic_cast<const Elt3d*>(&elt);
    return solide && solide->Brille();
}

}  // namespace

bool LumiereVarie(const EltGeo& solide, const DC3D& dc) {
    // Light 0 comes from one direction. What is no solid leaves the shininess of the one before.
    if (dc.LumiereAllumee(1) || !dynamic_cast<const Elt3d*>(&solide) || Brille(solide)) return true;
    return std::any_of(solide.Fils.begin(), solide.Fils.end(),
                       [](const EltGeo* fils) { return Brille(*fils); });
}

SceneBornee::SceneBornee(const BDDGeo& bdd, const DC3D& dc)
    : ResteImages(ContenusMax), Maximum(Grain().PiecesMax) {
    for (const EltGeo* elt : bdd.Elements)
        if (elt->Type >= TypePave || elt->Fils.Nombre() > 0) Ajoute(*elt, dc);
    while (Maximum > PiecesPlancher && PiecesSous(Maximum) > PiecesScene)
        Maximum /= 2.0;
}

void SceneBornee::Ajoute(const EltGeo& elt, const DC3D& dc) {
    if (elt.Type == TypeImage3d && !CompteImage(static_cast<const EltImage3d&>(elt), dc)) return;
    const bool anneaux = LumiereVarie(elt, dc);
    Compte(elt, anneaux);
    for (const EltGeo* fils : elt.Fils)
        Compte(*fils, anneaux);
    Montres.push_back(&elt);
}

bool SceneBornee::CompteImage(const EltImage3d& image, const DC3D& dc) {
    const std::size_t comptes = Pieces.size();
    ResteImages -= image.ParcourtContenus(
        ResteImages, [&](const EltGeo& contenu) { Compte(contenu, LumiereVarie(contenu, dc)); });
    // From the first that is too much on none is looked into again, however many there are.
    if (ResteImages < 0) Pieces.resize(comptes);
    return ResteImages >= 0;
}

void SceneBornee::Compte(const EltGeo& elt, bool anneaux) {
    if (const auto* solide = dynamic_cast<const Elt3d*>(&elt))
        Pieces.push_back(solide->Pieces(solide->FacettesBornees(), anneaux));
}

double SceneBornee::PiecesSous(double maximum) const {
    double somme = 0.0;
    for (const double pieces : Pieces)
        somme += std::min(pieces, maximum);
    return somme;
}
