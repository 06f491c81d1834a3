#include "solids/eltprofiltuberond.h"

#include <algorithm>
#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/chaine.h"
#include "solids/corps.h"
#include "solids/grain.h"

namespace {

/// Fixed, whatever `facetisation` says, but for what one solid may cost.
constexpr int TranchesVoulues = 100;

double NombreTroncons(const EltProfil& chemin, double pasArc) {
    const CompteLiens liens(chemin);
    return liens.Droits + liens.Arcs * pasArc;
}

/// Each has a wall and a ball.
double PiecesTroncons(double nombre, double tranches, bool anneaux) {
    return nombre * tranches * (tranches + (anneaux ? tranches : 1.0));
}

}  // namespace

EltProfilTubeRond::EltProfilTubeRond() : EltProfilTube(TypeProfilTubeRond) {}

std::unique_ptr<EltGeo> EltProfilTubeRond::Clone() const {
    return std::make_unique<EltProfilTubeRond>(*this);
}

void EltProfilTubeRond::Copie(const EltGeo& source) {
    EltProfilTube::Copie(source);
    rayon = static_cast<const EltProfilTubeRond&>(source).rayon;
}

void EltProfilTubeRond::Sauve(Ecrivain& sortie) const {
    EltProfilTube::Sauve(sortie);
    sortie << rayon << '\n';
}

void EltProfilTubeRond::Charge(Lecteur& entree) {
    EltProfilTube::Charge(entree);
    entree >> rayon;
}

bool EltProfilTubeRond::EstFini() const {
    return EltProfilTube::EstFini() && std::isfinite(rayon);
}

bool EltProfilTubeRond::EstValide() const {
    return EstFini() && rayon > 0.0;
}

double EltProfilTubeRond::Pieces(double facettes, bool anneaux) const {
    const EltProfil* chemin = Chemin();
    return chemin
               ? PiecesTroncons(NombreTroncons(*chemin, facettes / 2.0), TranchesVoulues, anneaux)
               : 0.0;
}

void EltProfilTubeRond::Balaie(const EltProfil& chemin, const Grain& grain) const {
    constexpr double tronconsMax = 2000.0;
    const int pas = FacettesTenables(
        FacettesBornees() / 2, [&](double n) { return NombreTroncons(chemin, n); }, tronconsMax);
    // Fewer than three sides are no tube.
    const int tranches = std::max(
        3,
        FacettesTenables(
            TranchesVoulues,
            [&](double n) { return PiecesTroncons(NombreTroncons(chemin, pas), n, grain.Anneaux); },
            grain.PiecesMax));
    const auto& sommets = chemin.Sommets;
    for (std::size_t i = 1; i < sommets.size(); ++i)
        for (const Troncon& t : Troncons(sommets[i - 1], sommets[i], pas))
            DessineTroncon(t.Debut, t.Fin, i == 1 && !t.SurArc,
                           i + 1 == sommets.size() && !t.SurArc, tranches, grain.Anneaux);
}

void EltProfilTubeRond::DessineTroncon(const PointVek& p, const PointVek& q, bool premier,
                                       bool dernier, int tranches, bool anneaux) const {
    const PointVek u = q - p;
    const double longueur = Norme(u);
    const RepereTroncon repere(p, u);
    glTexCoord2f(0.0f, 0.0f);
    const Quadrique dehors(GLU_OUTSIDE);
    dehors.Cylindre(rayon, rayon, longueur, tranches, anneaux);
    if (premier) Quadrique(GLU_INSIDE).Disque(rayon, tranches, anneaux);
    glTranslated(0.0, 0.0, longueur);
    if (dernier)
        dehors.Disque(rayon, tranches, anneaux);
    else
        dehors.Sphere(rayon, tranches);
}
