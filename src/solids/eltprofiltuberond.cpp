#include "solids/eltprofiltuberond.h"

#include <algorithm>
#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/chaine.h"
#include "solids/corps.h"

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

void EltProfilTubeRond::Balaie(const EltProfil& chemin) const {
    constexpr double tronconsMax = 2000.0;
    // Fixed, whatever `facetisation` says, but for what one solid may cost.
    constexpr int grainVoulu = 100;
    const CompteLiens liens(chemin);
    const auto troncons = [&liens](double n) { return liens.Droits + liens.Arcs * n; };
    const int pas = FacettesTenables(FacettesBornees() / 2, troncons, tronconsMax);
    // Fewer than three sides are no tube.
    const int grain = std::max(
        3, FacettesTenables(grainVoulu, [&](double n) { return 2.0 * troncons(pas) * n * n; }));
    const auto& sommets = chemin.Sommets;
    for (std::size_t i = 1; i < sommets.size(); ++i)
        for (const Troncon& t : Troncons(sommets[i - 1], sommets[i], pas))
            DessineTroncon(t.Debut, t.Fin, i == 1 && !t.SurArc,
                           i + 1 == sommets.size() && !t.SurArc, grain);
}

void EltProfilTubeRond::DessineTroncon(const PointVek& p, const PointVek& q, bool premier,
                                       bool dernier, int grain) const {
    const PointVek u = q - p;
    const double longueur = Norme(u);
    const RepereTroncon repere(p, u);
    glTexCoord2f(0.0f, 0.0f);
    const Quadrique dehors(GLU_OUTSIDE);
    dehors.Cylindre(rayon, rayon, longueur, grain);
    if (premier) Quadrique(GLU_INSIDE).Disque(rayon, grain);
    glTranslated(0.0, 0.0, longueur);
    if (dernier)
        dehors.Disque(rayon, grain);
    else
        dehors.Sphere(rayon, grain);
}
