#include "model/eltimage.h"

#include <cmath>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/encodage.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "model/vuedecalee.h"

namespace {

/// Images inside images are painted down to this depth, which is what stops a group that holds an
/// image of itself.
constexpr int ProfondeurMax = 10;

int Profondeur = 0;

}  // namespace

EltImage::EltImage() : EltGeo(TypeImage), Identificateur(EnUnMot("")) {}

std::unique_ptr<EltGeo> EltImage::Clone() const {
    return std::make_unique<EltImage>(*this);
}

void EltImage::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    const auto& image = static_cast<const EltImage&>(source);
    Identificateur = image.Identificateur;
    Angle = image.Angle;
    Agrandissement = image.Agrandissement;
}

void EltImage::Dessine(Trace& trace) const {
    trace.Compose(trace.ZonePeinte(), [this](Trace& t) {
        EltGeo::Dessine(t);
        DessineGroupe(t);
    });
}

void EltImage::DessineGroupe(Trace& trace) const {
    if (Profondeur + 1 >= ProfondeurMax) return;
    const EltBDD* groupe = BddCourante.ChercheBDD(Identificateur);
    if (!groupe || !trace.PeutPeindreContenus(groupe->NombrePeints())) return;
    // A negative enlargement is half a turn.
    const VueDecalee decalee(Position, Agrandissement < 0.0 ? Angle + Pi : Angle,
                             std::abs(Agrandissement));
    ++Profondeur;
    groupe->DessineContenu(trace);
    --Profondeur;
}

void EltImage::Sauve(Ecrivain& sortie) const {
    EltGeo::Sauve(sortie);
    sortie << Identificateur.raw() << '\n' << Angle << '\n' << Agrandissement << '\n';
}

void EltImage::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    const std::string_view nom = entree.Mot();
    if (!entree.Echec()) Identificateur = EnUtf8(nom);
    entree >> Angle >> Agrandissement;
}

bool EltImage::EstFini() const {
    return EltGeo::EstFini() && std::isfinite(Angle) && std::isfinite(Agrandissement);
}

void EltImage::SetIdentificateur(const Glib::ustring& identificateur) {
    Identificateur = EnUnMot(identificateur);
}
