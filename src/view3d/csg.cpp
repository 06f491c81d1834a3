// The driver of the passes that show a solid less its holes and grooves. The subtraction exists in
// the picture alone: it is made per pixel, with the stencil and the depth.

#include <GL/gl.h>

#include <algorithm>
#include <vector>

#include "solids/eltenvboule.h"
#include "solids/soustractif.h"
#include "view3d/corpscompiles.h"
#include "view3d/dc3d.h"
#include "view3d/scenebornee.h"

namespace {

void DessineNu(DC3D& dc, const EltGeo& elt, Partie partie, bool couleur) {
    const Soustractif* creux = CommeSoustractif(elt);
    if (creux && partie == Partie::Paroi)
        creux->DessineParoi(dc, couleur);
    else if (creux && partie == Partie::Fonds)
        creux->DessineFonds(dc, couleur);
    else if (const EltEnvBoule* boule = CommeEnveloppe(elt))
        boule->DessineBoule(dc, couleur);
    else
        elt.Dessine3D(dc, couleur);
}

/// Has an own body: what takes something away is drawn by the solid that holds it, or not at all.
bool APropreCorps(const EltGeo& elt) {
    return !CommeSoustractif(elt) && !CommeEnveloppe(elt);
}

/// While it lives, the grain is the one that the light asks for on that solid.
class GrainDuSolide {
  public:
    GrainDuSolide(DC3D& dc, const EltGeo& solide) : Dc(dc), Avant(dc.GrainCorps()) {
        Dc.MetGrainCorps({LumiereVarie(solide, dc), Avant.PiecesMax});
    }
    ~GrainDuSolide() { Dc.MetGrainCorps(Avant); }
    GrainDuSolide(const GrainDuSolide&) = delete;
    GrainDuSolide& operator=(const GrainDuSolide&) = delete;

  private:
    DC3D& Dc;
    const Grain Avant;
};

void DessinePartie(DC3D& dc, const EltGeo& elt, Partie partie, bool couleur) {
    // What an image shows is compiled one by one, and so once for all images of a group.
    if (elt.Type == TypeImage3d) return elt.Dessine3D(dc, couleur);
    dc.Corps().Dessine(elt, partie, couleur,
                       [&](bool enCouleur) { DessineNu(dc, elt, partie, enCouleur); });
}

const Etendue& EtendueDe(DC3D& dc, const EltGeo& elt, Partie partie) {
    return dc.Corps().EtendueDe(elt, partie,
                                [&](bool enCouleur) { DessineNu(dc, elt, partie, enCouleur); });
}

ZonePixels ZoneDe(DC3D& dc, const EltGeo& elt, Partie partie) {
    // The parts of a group may lie too far from one another to be measured.
    if (elt.Type == TypeImage3d) return dc.ZoneDe(Etendue());
    return dc.ZoneDe(EtendueDe(dc, elt, partie));
}

ZonePixels ZoneCreux(DC3D& dc, const EltGeo& creux) {
    return ZoneDe(dc, creux, Partie::Paroi).Reunie(ZoneDe(dc, creux, Partie::Fonds));
}

/// Where the solid and all that its passes draw appear.
ZonePixels ZoneSolide(DC3D& dc, const EltGeo& solide) {
    ZonePixels zone = ZoneDe(dc, solide, Partie::Corps);
    for (const EltGeo* fils : solide.Fils) {
        if (CommeSoustractif(*fils))
            zone = zone.Reunie(ZoneCreux(dc, *fils));
        else if (CommeEnveloppe(*fils))
            zone = zone.Reunie(ZoneDe(dc, *fils, Partie::Corps));
    }
    return zone;
}

/// Draws the envelopes; from the first hole or groove on only their depth, and that there was one
/// is the answer. An envelope before it is painted as it stands: users choose that by the order.
bool DessineEnveloppes(DC3D& dc, const EltGeo& solide) {
    bool creuse = false;
    for (const EltGeo* fils : solide.Fils) {
        if (CommeSoustractif(*fils) && !creuse) {
            creuse = true;
            dc.DebutEnveloppe();
        } else if (CommeEnveloppe(*fils)) {
            DessinePartie(dc, *fils, Partie::Corps, true);
        }
    }
    return creuse;
}

/// Leaves in the depth buffer the near sides of what is inside the solid and all envelopes.
void TailleDehors(DC3D& dc, const EltGeo& solide) {
    DessinePartie(dc, solide, Partie::Corps, false);
    dc.EtatCompte();
    for (const EltGeo* fils : solide.Fils) {
        if (!CommeEnveloppe(*fils)) continue;
        DessinePartie(dc, *fils, Partie::Corps, false);
        dc.CompteUn();
    }
    dc.CompteUn();
    DessinePartie(dc, solide, Partie::Corps, false);
    dc.EffaceHorsCompte();
}

/// A hole or groove of a solid.
struct Creux {
    const EltGeo* Elt;
    bool Debouchant;
    bool Mele;  ///< Another one may run into it.
};

/// Marks where its mouth shows, and writes its walls into the depth there, then its bottom, or the
/// far plane where it goes through. Caps that only cover pixels are drawn in white: they may be
/// coarser inside their outline than those that are painted.
void Creuse(DC3D& dc, const Creux& creux) {
    dc.EtatMarqueCreux();
    DessinePartie(dc, *creux.Elt, Partie::Fonds, false);
    // Where several run into one another the deepest counts, and the ends wait for `OuvreFond`.
    creux.Mele ? dc.EtatApprofondit() : dc.EtatCreux();
    dc.EtatFondVisible();
    DessinePartie(dc, *creux.Elt, Partie::Paroi, true);
    if (creux.Debouchant && !creux.Mele) dc.EtatFondOuvert();
    DessinePartie(dc, *creux.Elt, Partie::Fonds, !creux.Debouchant);
}

/// Where what the depth buffer holds lies inside the hole or groove, as the walls of another one
/// that runs into it do, writes its far side in its place.
void Approfondit(DC3D& dc, const Creux& creux) {
    dc.EtatEntreeFonds();
    DessinePartie(dc, *creux.Elt, Partie::Fonds, false);
    dc.EtatEntreeParoi();
    DessinePartie(dc, *creux.Elt, Partie::Paroi, true);
    dc.EtatSortieParoi();
    DessinePartie(dc, *creux.Elt, Partie::Paroi, true);
    if (creux.Debouchant) dc.EtatSortieOuverte();
    DessinePartie(dc, *creux.Elt, Partie::Fonds, false);
    dc.EtatApprofondit();
    DessinePartie(dc, *creux.Elt, Partie::Paroi, true);
    DessinePartie(dc, *creux.Elt, Partie::Fonds, !creux.Debouchant);
}

/// Opens the far cap where no other one has taken it away: the end of a through one; of a blind
/// one its mouth, seen from within, which lies in the far side of the solid.
void OuvreFond(DC3D& dc, const EltGeo& solide, const Creux& creux) {
    dc.EtatFondRestant(creux.Debouchant);
    DessinePartie(dc, *creux.Elt, Partie::Fonds, !creux.Debouchant);
    if (!creux.Debouchant) {
        dc.EtatDosDuSolide();
        DessinePartie(dc, solide, Partie::Corps, false);
    }
    dc.OuvreMarques();
}

std::vector<Creux> CreuxDe(DC3D& dc, const EltGeo& solide) {
    std::vector<Creux> creux;
    std::vector<const Etendue*> places;
    for (const EltGeo* fils : solide.Fils) {
        const Soustractif* soustractif = CommeSoustractif(*fils);
        if (!soustractif) continue;
        creux.push_back({fils, soustractif->debouchant, false});
        places.push_back(&EtendueDe(dc, *fils, Partie::Paroi));
    }
    const std::vector<bool> meles = SeTouchent(places);
    for (std::size_t i = 0; i < creux.size(); ++i)
        creux[i].Mele = meles[i];
    return creux;
}

/// Does to each of them, within the part of the picture where it appears.
template <class Fait>
void PourChaque(DC3D& dc, const std::vector<Creux>& suite, const Fait& fait) {
    for (const Creux& creux : suite) {
        const ZonePixels place = ZoneCreux(dc, *creux.Elt);
        if (place.EstVide()) continue;
        dc.Limite(place);
        fait(creux);
    }
}

/// Those that others may run into, from the nearest to the eye on.
std::vector<Creux> MelesDeDevant(DC3D& dc, std::vector<Creux> creux) {
    creux.erase(
        std::remove_if(creux.begin(), creux.end(), [](const Creux& un) { return !un.Mele; }),
        creux.end());
    const auto cote = [&dc](const Creux& un) {
        const Etendue& place = EtendueDe(dc, *un.Elt, Partie::Paroi);
        return dc.Oeil.VersVue((place.Bas + place.Haut) * 0.5).z;
    };
    std::stable_sort(creux.begin(), creux.end(),
                     [&cote](const Creux& a, const Creux& b) { return cote(a) > cote(b); });
    return creux;
}

/// One after the other, or each would show the walls of the others through its own mouth. Those
/// that run into one another are gone over again as a sight would cross them, twice since boxes
/// only tell about where they lie.
void CreuseTout(DC3D& dc, const EltGeo& solide, const ZonePixels& zone) {
    const std::vector<Creux> creux = CreuxDe(dc, solide);
    PourChaque(dc, creux, [&](const Creux& un) { Creuse(dc, un); });
    const std::vector<Creux> meles = MelesDeDevant(dc, creux);
    for (int fois = 0; fois < 2; ++fois)
        PourChaque(dc, meles, [&](const Creux& un) { Approfondit(dc, un); });
    PourChaque(dc, meles, [&](const Creux& un) { OuvreFond(dc, solide, un); });
    dc.Limite(zone);
}

/// Paints what the depth buffer holds of the envelopes, walls and bottoms.
void PeintCreux(DC3D& dc, const EltGeo& solide) {
    for (const EltGeo* fils : solide.Fils) {
        if (CommeEnveloppe(*fils)) DessinePartie(dc, *fils, Partie::Corps, true);
        const Soustractif* creux = CommeSoustractif(*fils);
        if (!creux) continue;
        DessinePartie(dc, *fils, Partie::Paroi, true);
        if (!creux->debouchant) DessinePartie(dc, *fils, Partie::Fonds, true);
    }
}

}  // namespace

void EltGeo::DessinePoint3D() const {
    glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
    glBegin(GL_POINTS);
    glVertex3d(Position.x, Position.y, Position.z);
    glEnd();
}

void EltGeo::DessineCorps3D(DC3D& dc, bool couleur) const {
    if (Type < TypePave || !APropreCorps(*this)) return;
    const GrainDuSolide grain(dc, *this);
    DessinePartie(dc, *this, Partie::Corps, couleur);
}

void EltGeo::Dessine3DCSG(DC3D& dc) const {
    // A plane element has no body, and leaves the state as it is.
    if (Type < TypePave && Fils.Nombre() == 0) return;
    if (!APropreCorps(*this)) return;
    const GrainDuSolide grain(dc, *this);
    const ZonePixels zone = ZoneSolide(dc, *this);
    if (zone.EstVide()) return;
    if (Fils.Nombre() > 0) dc.Limite(zone);
    if (DessineEnveloppes(dc, *this)) {
        TailleDehors(dc, *this);
        CreuseTout(dc, *this, zone);
        dc.FusionneProfondeur();
        dc.EtatCouleurEgale();
        PeintCreux(dc, *this);
    }
    DessinePartie(dc, *this, Partie::Corps, true);
    dc.FinLimite();
    dc.EtatNormal();
}
