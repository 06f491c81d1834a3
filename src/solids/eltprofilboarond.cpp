#include "solids/eltprofilboarond.h"

#include <cmath>
#include <optional>

#include "elements/angles.h"
#include "solids/chaine.h"
#include "solids/corps.h"
#include "solids/grain.h"

namespace {

/// A circle across the way.
struct Anneau {
    PointVek Centre;
    PointVek Voie;  ///< In the plane.
    double Rayon;

    /// From the centre to the point at t radians, which starts on the left of the way.
    PointVek Bras(double t) const {
        PointVek bras(0.0, Rayon * std::cos(t), Rayon * std::sin(t));
        bras.Tourne(Angle(Voie));
        return bras;
    }
};

void Emet(const Anneau& anneau, const PointVek& bras, double s, double t) {
    const PointVek p = anneau.Centre + bras;
    glNormal3d(bras.x, bras.y, bras.z);
    glTexCoord2d(s, t);
    glVertex3d(p.x, p.y, p.z);
}

/// The skin between two rings.
void Anneaux(const Anneau& a, const Anneau& b, int facettes) {
    PointVek dernierA = a.Bras(0.0), dernierB = b.Bras(0.0);
    for (int i = 1; i <= facettes; ++i) {
        const double t = DeuxPi * i / facettes;
        const PointVek brasA = a.Bras(t), brasB = b.Bras(t);
        glBegin(GL_POLYGON);
        Emet(a, brasA, 0.0, 0.0);
        Emet(b, brasB, 0.0, 1.0);
        Emet(b, dernierB, 1.0, 1.0);
        Emet(a, dernierA, 1.0, 0.0);
        glEnd();
        dernierA = brasA;
        dernierB = brasB;
    }
}

void Bout(const Anneau& anneau, GLenum orientation, int facettes, bool anneaux) {
    const RepereTroncon repere(anneau.Centre, anneau.Voie);
    Quadrique(orientation).Disque(anneau.Rayon, facettes, anneaux);
}

/// The radius at each vertex of the path.
std::vector<double> Rayons(const EltProfil& chemin, const EltGeo& enveloppe) {
    std::vector<double> rayons;
    double rayon = 10.0;
    const EltProfil* bord = CommeProfil(enveloppe);
    for (std::size_t i = 0; i < chemin.Sommets.size(); ++i) {
        if (bord && i < bord->Sommets.size()) rayon = std::abs(bord->Sommets[i].y);
        rayons.push_back(rayon);
    }
    return rayons;
}

/// A piece of the boa with its corner towards the piece before, if there is one, and its caps.
struct TronconBoa {
    Anneau Debut;
    Anneau Fin;
    std::optional<PointVek> Precedent;
    bool Premier;
    bool Dernier;

    void Dessine(int facettes, bool anneaux) const {
        Anneaux(Debut, Fin, facettes);
        if (Premier)
            Bout(Debut, GLU_INSIDE, facettes, anneaux);
        else if (Precedent)
            Anneaux({Debut.Centre, Debut.Centre - *Precedent, Debut.Rayon}, Debut, facettes);
        if (Dernier) Bout(Fin, GLU_OUTSIDE, facettes, anneaux);
    }
};

}  // namespace

EltProfilBoaRond::EltProfilBoaRond() : EltProfilTube(TypeProfilBoaRond) {}

std::unique_ptr<EltGeo> EltProfilBoaRond::Clone() const {
    return std::make_unique<EltProfilBoaRond>(*this);
}

double EltProfilBoaRond::Pieces(double facettes, bool anneaux) const {
    const EltProfil* chemin = Chemin();
    if (!chemin) return 0.0;
    const CompteLiens liens(*chemin);
    const double peau = (liens.Droits + liens.Arcs * std::floor(facettes / 2.0)) * 2.0 * facettes;
    return peau + 2.0 * facettes * (anneaux ? facettes : 1.0);
}

void EltProfilBoaRond::Balaie(const EltProfil& chemin, const Grain& grain) const {
    if (Fils.Nombre() < 2) return;
    const std::vector<double> rayons = Rayons(chemin, **std::next(Fils.begin()));
    const int f = Facettes(grain);
    const auto& sommets = chemin.Sommets;
    std::optional<PointVek> precedent;
    for (std::size_t i = 1; i < sommets.size(); ++i) {
        const double ecart = rayons[i] - rayons[i - 1];
        double rayon = rayons[i - 1];
        for (const Troncon& t : Troncons(sommets[i - 1], sommets[i], f / 2)) {
            const double suivant = rayon + (t.SurArc ? 2.0 * ecart / f : ecart);
            const PointVek voie = t.Fin - t.Debut;
            TronconBoa{{t.Debut, voie, rayon},
                       {t.Fin, voie, suivant},
                       precedent,
                       i == 1 && !t.SurArc,
                       i + 1 == sommets.size() && !t.SurArc}
                .Dessine(f, grain.Anneaux);
            precedent = t.Debut;
            rayon = suivant;
        }
    }
}
