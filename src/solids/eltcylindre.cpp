#include "solids/eltcylindre.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "elements/distances.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/corps.h"
#include "view3d/dc3d.h"

EltCylindre::EltCylindre(int type) : EltArc(type) {}

std::unique_ptr<EltGeo> EltCylindre::Clone() const {
    return std::make_unique<EltCylindre>(*this);
}

void EltCylindre::Copie(const EltGeo& source) {
    EltArc::Copie(source);
    const auto& cylindre = static_cast<const EltCylindre&>(source);
    CopieForme(cylindre);
    CopieFaces(cylindre);
    rayonHaut = cylindre.rayonHaut;
}

void EltCylindre::CopieCylindre(const EltCylindre& source) {
    EltCylindre::Copie(source);
    CopieCommun(source);
}

void EltCylindre::ChangeElt3d(const Elt3d& source) {
    CopieCommun(source);
    CopieFaces(source);
}

void EltCylindre::Transforme(const TransformeColle& t) {
    EltArc::Transforme(t);
    rayonHaut *= t.Agrandissement;
}

void EltCylindre::Sauve(Ecrivain& sortie) const {
    EltArc::Sauve(sortie);
    Elt3d::Sauve(sortie);
    sortie << rayonHaut << '\n';
}

void EltCylindre::Charge(Lecteur& entree) {
    EltArc::Charge(entree);
    Elt3d::Charge(entree);
    entree >> rayonHaut;
}

bool EltCylindre::EstFini() const {
    return EltArc::EstFini() && Elt3d::EstFini() && std::isfinite(rayonHaut);
}

bool EltCylindre::EstValide() const {
    return EltArc::EstValide() && rayonHaut >= 0.0;
}

void EltCylindre::SetRayonPoint(const PointVek& p) {
    EltArc::SetRayonPoint(p);
    rayonHaut = Rayon;
}

void EltCylindre::SetCentreDefaut(const PointVek& p) {
    EltArc::SetCentreDefaut(p);
    rayonHaut = Rayon;
}

double EltCylindre::Pieces(double facettes, bool anneaux) const {
    const double paroi = anneaux || Rayon != rayonHaut ? facettes : 1.0;
    return facettes * (paroi + 2.0 * (anneaux ? facettes : 1.0));
}

void EltCylindre::Dessine3D(DC3D& dc, bool couleur) const {
    AppliqueBrillance();
    ColoreCorps(Style, couleur);
    const int facettes = Facettes(dc.GrainCorps());
    const bool anneaux = dc.GrainCorps().Anneaux;
    {
        const RepereLocal repere(Position, *this);
        const Elevation elevation(h);
        Habille(dc, *this, pourtour);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        elevation.Sens(GL_CW);
        glTexCoord2f(0.0f, 0.0f);
        Quadrique(GLU_OUTSIDE).Cylindre(Rayon, rayonHaut, elevation.Hauteur, facettes, anneaux);
        Habille(dc, *this, dessous);
        Quadrique(GLU_INSIDE).Disque(Rayon, facettes, anneaux);
        glTranslated(0.0, 0.0, elevation.Hauteur);
        Habille(dc, *this, dessus);
        Quadrique(GLU_OUTSIDE).Disque(rayonHaut, facettes, anneaux);
    }
    dc.FinTexture();
}

void EltCylindre::DessineFilaire(DC3D&) const {
    const RepereLocal repere(Position, *this);
    DessineCage(Rayon, Rayon, 0.0, h);
}

double EltCylindre::Distance3D(const PointVek& p) const {
    const PointVek local = VersLocal(p - Position);
    return std::min(std::abs(Norme(local) - Rayon),
                    std::abs(::Distance3D(local, {0.0, 0.0, h}) - rayonHaut));
}

PointVek EltCylindre::PointProche3D(const PointVek& p) const {
    std::vector<PointVek> reperes = {{}, {0.0, 0.0, h}};
    const std::pair<double, double> bords[] = {{rayonHaut, h}, {Rayon, 0.0}};
    for (const auto& [r, z] : bords)
        for (const PointVek& bord :
             {PointVek(0.0, r, z), PointVek(r, 0.0, z), PointVek(0.0, -r, z), PointVek(-r, 0.0, z)})
            reperes.push_back(bord);
    return Position + VersMonde(PlusProche3D(VersLocal(p - Position), reperes));
}
