#include "zone/prototypes.h"

template <class Action>
void Prototypes::Chacun(const Action& action) {
    const std::initializer_list<EltGeo*> prototypes = {
        &Point,          &Droite,
        &Segment,        &Arc,
        &Disque,         &Txt,
        &Cote,           &CoteVert,
        &CoteHori,       &CoteDia,
        &CoteRayon,      &CoteAng,
        &Rectangle,      &Profil,
        &Image,          &Pave,
        &Sphere,         &Cylindre,
        &Percage,        &EnvBoule,
        &Rainure,        &ProfilElevation,
        &ProfilTourne,   &ProfilSurface,
        &ProfilRuban,    &ProfilEvantail,
        &RainureP,       &Image3d,
        &ProfilTubeRond, &ProfilBoaRond,
    };
    for (EltGeo* elt : prototypes)
        action(*elt);
}

void Prototypes::SetTrait(const ::Trait& trait) {
    TraitCourant = trait;
    Chacun([&trait](EltGeo& elt) { elt.ChangeTrait(trait); });
}

void Prototypes::SetCalque(int calque) {
    CalqueCourant = calque;
    Chacun([calque](EltGeo& elt) { elt.Calque = calque; });
}

void Prototypes::DiffuseCote() {
    const std::initializer_list<EltTxt*> cotes = {&CoteVert, &CoteHori, &CoteDia, &CoteRayon,
                                                  &CoteAng};
    for (EltTxt* cote : cotes) {
        cote->SetTaille(Cote.Taille);
        cote->Police = Cote.Police;
    }
}
