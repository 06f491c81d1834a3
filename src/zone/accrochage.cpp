#include "zone/accrochage.h"

#include "elements/eltprofil.h"
#include "elements/intersections.h"
#include "elements/vue.h"
#include "model/bddgeo.h"

namespace {

/// What a point of `PointProche` is.
const char* GenreProche(const EltGeo& elt, const PointVek& p) {
    const bool position = Distance(p, elt.Position) == 0.0;
    if (EstArc(elt)) return position ? "centre" : "extrémité";
    if (EstDroit(elt)) return position ? "milieu" : "extrémité";
    if (elt.Type == TypeRectangle) return "coin";
    return CommeProfil(elt) && !position ? "sommet" : "position";
}

PointAccroche PointDe(const EltGeo& elt, const PointVek& p) {
    const PointVek proche = elt.PointProche(p);
    return {proche, GenreProche(elt, proche)};
}

/// The crossing of the two elements nearest to p; none when they have none.
std::optional<PointAccroche> Croisement(const EltGeo& a, const EltGeo& b, const PointVek& p) {
    PointVek p1, p2;
    const int nombre = Intersecte(a, b, p1, p2);
    if (nombre == 0) return std::nullopt;
    const bool premier = nombre == 1 || Distance(p, p2) > Distance(p, p1);
    return PointAccroche{premier ? p1 : p2, "intersection"};
}

/// The candidate, whatever its distance: crossings first.
std::optional<PointAccroche> Candidat(BDDGeo& bdd, const PointVek& p,
                                      const OptionsAccrochage& options, bool boutsDevant) {
    const EltGeo* a = bdd.ChercheProche(p, options.Supports);
    if (!a) return std::nullopt;
    const EltGeo* b = bdd.ChercheAutre(p, options.Supports);
    if (options.Intersections && b) {
        const auto croisement = Croisement(*a, *b, p);
        const bool loin = croisement && !(Distance(croisement->Point, p) < vue::Proche10());
        if (croisement && !(loin && boutsDevant)) return croisement;
        // Without a crossing the second element plays no part: users see the nearer one win.
        if (!croisement) b = nullptr;
    }
    if (!options.Extremites) return std::nullopt;
    const PointAccroche q = PointDe(*a, p);
    if (!b) return q;
    const PointAccroche r = PointDe(*b, p);
    return Distance(p, q.Point) > Distance(p, r.Point) ? r : q;
}

}  // namespace

std::optional<PointAccroche> ChercheAccroche(BDDGeo& bdd, const PointVek& p,
                                             const OptionsAccrochage& options, bool boutsDevant) {
    if (!options.Actif) return std::nullopt;
    const auto candidat = Candidat(bdd, p, options, boutsDevant);
    if (!candidat || !(Distance(candidat->Point, p) < vue::Proche10())) return std::nullopt;
    return candidat;
}
