#include "zone/accrochage.h"

#include "elements/eltgeo.h"
#include "elements/intersections.h"
#include "elements/vue.h"
#include "model/bddgeo.h"

namespace {

/// The candidate, whatever its distance: crossings first.
std::optional<PointVek> Candidat(BDDGeo& bdd, const PointVek& p, const OptionsAccrochage& options) {
    const EltGeo* a = bdd.ChercheProche(p, options.Supports);
    if (!a) return std::nullopt;
    const EltGeo* b = bdd.ChercheAutre(p, options.Supports);
    if (options.Intersections && b) {
        PointVek p1, p2;
        const int nombre = Intersecte(*a, *b, p1, p2);
        if (nombre == 1) return p1;
        if (nombre == 2) return Distance(p, p2) > Distance(p, p1) ? p1 : p2;
        // Without a crossing the second element plays no part: users see the nearer one win.
        if (options.Extremites) return a->PointProche(p);
        return std::nullopt;
    }
    if (!options.Extremites) return std::nullopt;
    const PointVek q = a->PointProche(p);
    if (!b) return q;
    const PointVek r = b->PointProche(p);
    return Distance(p, q) > Distance(p, r) ? r : q;
}

}  // namespace

std::optional<PointVek> ChercheAccroche(BDDGeo& bdd, const PointVek& p,
                                        const OptionsAccrochage& options) {
    if (!options.Actif) return std::nullopt;
    const auto candidat = Candidat(bdd, p, options);
    if (!candidat || !(Distance(*candidat, p) < vue::Proche10())) return std::nullopt;
    return candidat;
}
