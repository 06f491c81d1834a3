#pragma once

#include "elements/eltarc.h"
#include "elements/eltcote.h"
#include "elements/eltcoteang.h"
#include "elements/eltcotedia.h"
#include "elements/eltcotehori.h"
#include "elements/eltcoterayon.h"
#include "elements/eltcotevert.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltpoint.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"
#include "model/eltimage.h"
#include "solids/eltcylindre.h"
#include "solids/eltenvboule.h"
#include "solids/eltimage3d.h"
#include "solids/eltpave.h"
#include "solids/eltpercage.h"
#include "solids/eltprofilboarond.h"
#include "solids/eltprofilevantail.h"
#include "solids/eltprofilruban.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltrainure.h"
#include "solids/eltrainurep.h"
#include "solids/eltsphere.h"

/// One scratch element of each class: a tool fills it click after click, shows it in a band, and a
/// copy of it goes into the drawing. All have the style and the layer in force.
struct Prototypes {
    EltPoint Point;
    EltDroite Droite;
    EltSegment Segment;
    EltArc Arc;
    EltDisque Disque;
    EltTxt Txt;
    EltCote Cote;
    EltCoteVert CoteVert;
    EltCoteHori CoteHori;
    EltCoteDia CoteDia;
    EltCoteRayon CoteRayon;
    EltCoteAng CoteAng;
    EltRectangle Rectangle;
    EltProfil Profil;
    EltImage Image;
    EltPave Pave;
    EltSphere Sphere;
    EltCylindre Cylindre;
    EltProfilElevation ProfilElevation;
    EltProfilTourne ProfilTourne;
    EltProfilSurface ProfilSurface;
    EltProfilRuban ProfilRuban;
    EltProfilEvantail ProfilEvantail;
    EltPercage Percage;
    EltEnvBoule EnvBoule;
    EltRainure Rainure;
    EltRainureP RainureP;
    EltImage3d Image3d;
    EltProfilTubeRond ProfilTubeRond;
    EltProfilBoaRond ProfilBoaRond;

    /// The style of the next elements, and their layer.
    void SetTrait(const ::Trait& trait);
    const ::Trait& Trait() const { return TraitCourant; }
    void SetCalque(int calque);
    int Calque() const { return CalqueCourant; }

    /// Gives the other dimensions the size and font of `Cote`.
    void DiffuseCote();

  private:
    template <class Action>
    void Chacun(const Action& action);

    ::Trait TraitCourant;
    int CalqueCourant = 0;
};
