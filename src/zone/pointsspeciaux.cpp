#include "zone/pointsspeciaux.h"

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "elements/intersections.h"
#include "elements/vue.h"
#include "model/bddgeo.h"

namespace {

const char* const Dessus = "sur l'élément";

/// A straight piece of an element; an endless line is one without ends.
struct Droit {
    PointVek A, B;
    bool SansFin = false;
};

/// What an element is made of.
struct Pieces {
    std::vector<Droit> Droits;
    std::vector<ArcDeLien> Arcs;
    bool Chaine = false;  ///< Of several: their middles are none of the element's own.
};

void AjouteSommets(const EltProfil& profil, Pieces& pieces) {
    const auto& sommets = profil.Sommets;
    for (std::size_t i = profil.Ferme ? 0 : 1; i < sommets.size(); ++i) {
        const SommetProfil& avant = i > 0 ? sommets[i - 1] : sommets.back();
        if (auto arc = sommets[i].Arc(avant)) {
            arc->Centre = arc->Centre + profil.Position;
            pieces.Arcs.push_back(*arc);
        } else {
            pieces.Droits.push_back({profil.Position + avant, profil.Position + sommets[i]});
        }
    }
}

Pieces PiecesDe(const EltGeo& elt) {
    Pieces pieces;
    if (EstDroit(elt)) {
        const auto& segment = static_cast<const EltSegment&>(elt);
        pieces.Droits.push_back({segment.Origine, segment.Extremite, elt.Type == TypeDroite});
    } else if (EstArc(elt)) {
        const auto& arc = static_cast<const EltArc&>(elt);
        pieces.Arcs.push_back({arc.Position, arc.Rayon, arc.AngleDebut, arc.Ouverture});
    } else if (elt.Type == TypeRectangle) {
        const auto coins = static_cast<const EltRectangle&>(elt).Coins();
        const PointVek tour[] = {coins.HautGauche, coins.HautDroite(), coins.BasDroite,
                                 coins.BasGauche()};
        for (int i = 0; i < 4; ++i)
            pieces.Droits.push_back({tour[i], tour[(i + 1) % 4]});
        pieces.Chaine = true;
    } else if (const EltProfil* profil = CommeProfil(elt)) {
        AjouteSommets(*profil, pieces);
        pieces.Chaine = true;
    }
    return pieces;
}

PointVek Polaire(const ArcDeLien& arc, double angle) {
    return arc.Centre + PointVek(std::cos(angle), std::sin(angle)) * arc.Rayon;
}

/// Whether the arc passes the point of its circle at that angle.
bool Passe(const ArcDeLien& arc, double angle) {
    constexpr double arrondi = 1e-9;
    const double tour = arc.Ouverture < 0.0 ? arc.Debut - angle : angle - arc.Debut;
    return AngleReduit(tour, arrondi) <= std::abs(arc.Ouverture) + arrondi;
}

/// Gathers the special points near to p.
class Recolte {
  public:
    Recolte(const PointVek& p, const PointVek& reference, const OptionsSpeciales& options)
        : P(p), Reference(reference), Options(options) {}

    void Ajoute(const PointVek& q, const char* genre) {
        if (!(Distance(q, P) < vue::Proche10())) return;
        const auto meme = [&q](const PointAccroche& autre) {
            return Distance(q, autre.Point) < 0.05 * vue::Proche10();
        };
        if (std::none_of(Points.begin(), Points.end(), meme)) Points.push_back({q, genre});
    }

    void AjouteElement(const EltGeo& elt) {
        const Pieces pieces = PiecesDe(elt);
        for (const Droit& droit : pieces.Droits)
            AjouteDroit(droit, pieces.Chaine);
        for (const ArcDeLien& arc : pieces.Arcs)
            AjouteArc(arc);
    }

    /// What is merely on an element is always the nearest: it comes behind all others.
    std::vector<PointAccroche> ParDistance() {
        std::stable_sort(Points.begin(), Points.end(),
                         [this](const PointAccroche& a, const PointAccroche& b) {
                             const bool aDessus = a.Genre == Dessus, bDessus = b.Genre == Dessus;
                             if (aDessus != bDessus) return bDessus;
                             return Distance(a.Point, P) < Distance(b.Point, P);
                         });
        return std::move(Points);
    }

  private:
    void AjouteDroit(const Droit& droit, bool chaine) {
        const PointVek d = droit.B - droit.A;
        const double carre = Scalaire(d, d);
        if (!(carre > 0.0)) return;
        const auto rang = [&](const PointVek& q) { return Scalaire(q - droit.A, d) / carre; };
        const auto tient = [&](double t) { return droit.SansFin || (t >= 0.0 && t <= 1.0); };
        if (Options.Milieux && chaine) Ajoute(droit.A + d / 2.0, "milieu");
        // A foot on what the segment would go on as is one to a draughtsman, too.
        if (Options.Pieds) Ajoute(droit.A + d * rang(Reference), "perpendiculaire");
        if (!Options.Proches) return;
        const double t = rang(P);
        if (tient(t)) Ajoute(droit.A + d * t, Dessus);
    }

    void AjouteArc(const ArcDeLien& arc) {
        const auto ajoute = [&](double angle, const char* genre) {
            if (Passe(arc, angle)) Ajoute(Polaire(arc, angle), genre);
        };
        if (Options.Milieux && std::abs(arc.Ouverture) < DeuxPi)
            Ajoute(Polaire(arc, arc.Debut + arc.Ouverture / 2.0), "milieu");
        for (int quart = 0; Options.Quadrants && quart < 4; ++quart)
            ajoute(quart * Pi / 2.0, "quadrant");
        const PointVek vers = Reference - arc.Centre;
        const double direction = std::atan2(vers.y, vers.x), loin = Norme(vers);
        if (Options.Pieds && loin > 0.0)
            for (const double demi : {0.0, Pi})
                ajoute(direction + demi, "perpendiculaire");
        if (Options.Tangentes && loin > arc.Rayon) {
            const double ouverture = std::acos(arc.Rayon / loin);
            for (const double cote : {-ouverture, ouverture})
                ajoute(direction + cote, "tangente");
        }
        const PointVek pointeur = P - arc.Centre;
        if (Options.Proches) ajoute(std::atan2(pointeur.y, pointeur.x), Dessus);
    }

    const PointVek P, Reference;
    const OptionsSpeciales& Options;
    std::vector<PointAccroche> Points;
};

}  // namespace

std::vector<PointAccroche> ChercheAccroches(BDDGeo& bdd, const PointVek& p,
                                            const OptionsAccrochage& options,
                                            const OptionsSpeciales& speciales,
                                            const PointVek& reference) {
    if (!options.Actif) return {};
    Recolte recolte(p, reference, speciales);
    const auto habituel = ChercheAccroche(bdd, p, options, speciales.BoutsDevant);
    if (habituel) recolte.Ajoute(habituel->Point, habituel->Genre);
    if (speciales.Cherche())
        for (const EltGeo* elt : bdd.VisiblesPres(p))
            recolte.AjouteElement(*elt);
    return recolte.ParDistance();
}
