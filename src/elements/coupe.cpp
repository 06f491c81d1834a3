#include "elements/coupe.h"

#include <array>
#include <cmath>

#include "elements/angles.h"

namespace {

/// One side of the box: what lies beyond limite along the axis, seen with signe, is cut away.
struct Cote {
    double PointVek::*Axe;
    double Signe;
    double Limite;

    double Depassement(const PointVek& p) const { return Signe * p.*Axe - Limite; }

    /// Where a b meets the side: exactly on it, however far away the two points are.
    PointVek Croisement(const PointVek& a, const PointVek& b, double da, double db) const {
        PointVek c = a + (b - a) * (da / (da - db));
        c.*Axe = Signe * Limite;
        return c;
    }
};

std::array<Cote, 4> Cotes(const Boite& boite) {
    return {Cote{&PointVek::x, 1.0, boite.Droite}, Cote{&PointVek::x, -1.0, -boite.Gauche},
            Cote{&PointVek::y, 1.0, boite.Bas}, Cote{&PointVek::y, -1.0, -boite.Haut}};
}

void CoupeContour(std::vector<PointVek>& sommets, const Cote& cote) {
    std::vector<PointVek> garde;
    garde.reserve(sommets.size() + 4);
    for (std::size_t i = 0; i < sommets.size(); ++i) {
        const PointVek& ici = sommets[i];
        const PointVek& suivant = sommets[(i + 1) % sommets.size()];
        const double d0 = cote.Depassement(ici);
        const double d1 = cote.Depassement(suivant);
        if (d0 <= 0.0) garde.push_back(ici);
        if ((d0 < 0.0 && d1 > 0.0) || (d0 > 0.0 && d1 < 0.0))
            garde.push_back(cote.Croisement(ici, suivant, d0, d1));
    }
    sommets.swap(garde);
}

void Subdivise(const ArcEcran& arc, double a0, double a1, const Boite& boite, double flecheMax,
               int profondeur, std::vector<double>& angles) {
    const double demi = std::abs(a1 - a0) / 2.0;
    const double fleche = arc.Rayon * (1.0 - std::cos(demi));
    const PointVek milieu = (arc.Point(a0) + arc.Point(a1)) / 2.0;
    const Boite portee = Boite::Autour(milieu, milieu).Elargie(arc.Rayon * std::sin(demi) + fleche);
    const bool assezFin = demi < Pi / 4.0 && (fleche < flecheMax || !portee.Touche(boite));
    if (assezFin || profondeur == 0) {
        angles.push_back(a1);
        return;
    }
    const double am = (a0 + a1) / 2.0;
    Subdivise(arc, a0, am, boite, flecheMax, profondeur - 1, angles);
    Subdivise(arc, am, a1, boite, flecheMax, profondeur - 1, angles);
}

}  // namespace

bool CoupeLigne(PointVek& a, PointVek& b, const Boite& boite) {
    for (const Cote& cote : Cotes(boite)) {
        const double da = cote.Depassement(a), db = cote.Depassement(b);
        if (da > 0.0 && db > 0.0) return false;
        if (da > 0.0)
            a = cote.Croisement(a, b, da, db);
        else if (db > 0.0)
            b = cote.Croisement(b, a, db, da);
    }
    return true;
}

std::vector<PointVek> CoupePolygone(std::vector<PointVek> sommets, const Boite& boite) {
    for (const Cote& cote : Cotes(boite))
        CoupeContour(sommets, cote);
    return sommets;
}

PointVek ArcEcran::Point(double angle) const {
    return {Centre.x + Rayon * std::cos(angle), Centre.y - Rayon * std::sin(angle)};
}

std::vector<double> PasArc(const ArcEcran& arc, const Boite& boite, double fleche) {
    constexpr int profondeurMax = 40;
    std::vector<double> angles{arc.Debut};
    Subdivise(arc, arc.Debut, arc.Debut + arc.Ouverture, boite, fleche, profondeurMax, angles);
    return angles;
}

Boite LienEcran::Cadre() const {
    if (!Arc) return Boite::Autour(Debut, Fin);
    // Half a turn and less stays within the circle about its chord.
    const PointVek milieu = (Debut + Fin) / 2.0;
    return Boite::Autour(milieu, milieu).Elargie(Distance(Debut, Fin) / 2.0);
}
