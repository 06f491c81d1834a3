#include "solids/eltimage3d.h"

#include "elements/angles.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "solids/corps.h"

namespace {

/// Images inside images are painted down to this depth, which is what stops a group that holds an
/// image of itself.
constexpr int ProfondeurMax = 10;

int Profondeur = 0;

}  // namespace

EltImage3d::EltImage3d() {
    Type = TypeImage3d;
}

std::unique_ptr<EltGeo> EltImage3d::Clone() const {
    return std::make_unique<EltImage3d>(*this);
}

void EltImage3d::Copie(const EltGeo& source) {
    EltImage::Copie(source);
    Elt3d::Copie(static_cast<const EltImage3d&>(source));
}

void EltImage3d::ChangeElt3d(const Elt3d& source) {
    CopieCommun(source);
    CopieFaces(source);
    echelleTexture = source.echelleTexture;
}

void EltImage3d::Sauve(Ecrivain& sortie) const {
    EltImage::Sauve(sortie);
    Elt3d::Sauve(sortie);
}

void EltImage3d::Charge(Lecteur& entree) {
    EltImage::Charge(entree);
    Elt3d::Charge(entree);
}

bool EltImage3d::EstFini() const {
    return EltImage::EstFini() && Elt3d::EstFini();
}

void EltImage3d::Dessine3D(DC3D& dc, bool couleur) const {
    // Both turn about the same axis.
    Elt3d axes(*this);
    axes.alpha += EnDegres(Angle);
    const RepereLocal repere(Position, axes);
    ++Profondeur;
    if (Profondeur < ProfondeurMax) DessineGroupe3D(dc, couleur);
    --Profondeur;
}

int EltImage3d::ParcourtContenus(int limite,
                                 const std::function<void(const EltGeo&)>& visite) const {
    const EltBDD* groupe = BddCourante.ChercheBDD(Identificateur);
    if (!groupe || Profondeur + 1 >= ProfondeurMax || limite < 0) return 0;
    int nombre = 0;
    ++Profondeur;
    for (const EltGeo* elt : groupe->Contenu.Elements) {
        if (++nombre > limite) break;
        visite(*elt);
        if (elt->Type == TypeImage3d)
            nombre +=
                static_cast<const EltImage3d*>(elt)->ParcourtContenus(limite - nombre, visite);
        if (nombre > limite) break;
    }
    --Profondeur;
    return nombre;
}

void EltImage3d::DessineGroupe3D(DC3D& dc, bool couleur) const {
    const EltBDD* groupe = BddCourante.ChercheBDD(Identificateur);
    if (groupe) groupe->Dessine3DContenu(dc, couleur);
}

// It does not turn with the image: to users the level cage marks the place alone.
void EltImage3d::DessineFilaire(DC3D&) const {
    const RepereLocal repere(Position, Elt3d());
    DessineCage(20.0, 20.0, 0.0, 20.0);
}
