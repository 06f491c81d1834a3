// Points, texts and images of groups.

#include <vector>

#include "dialogs/elttxtdialog.h"
#include "dialogs/stringdialog.h"
#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

namespace {

/// What is placed by one click: its preview and its addition, for the prototype named.
template <auto Proto>
Bande Apercu(ZoneDessin& zone, const PointVek& p) {
    EltGeo& elt = zone.Protos.*Proto;
    elt.Place(p);
    return BandeDe(elt);
}

template <auto Proto>
bool Place(ZoneDessin& zone, const PointVek& p) {
    Apercu<Proto>(zone, p);
    zone.Ajoute(zone.Protos.*Proto);
    return true;
}

/// The tool is entered whatever the answer.
bool DemandeTexte(ZoneDessin& zone) {
    zone.Protos.Txt.SetTexte("Texte");
    EltTxtDialog("Texte :", &zone.Protos.Txt).run();
    return true;
}

template <auto Proto>
bool DemandeImage(ZoneDessin& zone) {
    EltImage& image = zone.Protos.*Proto;
    Glib::ustring nom = image.Identificateur;
    StringDialog dialogue("Identificateur de la BDD ?", &nom);
    if (dialogue.run() != Gtk::RESPONSE_OK) return false;
    image.SetIdentificateur(nom);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesTextes() {
    return {
        LigneEtat(ETAT_POINT, ETAT_POINT, "Position du Point")
            .AuClic(Place<&Prototypes::Point>, ETAT_POINT)
            .Montre(Apercu<&Prototypes::Point>),
        LigneEtat(ETAT_TEXTE, ETAT_TEXTE, "Position du texte")
            .Demande(DemandeTexte)
            .AuClic(Place<&Prototypes::Txt>, ETAT_TEXTE)
            .Montre(Apercu<&Prototypes::Txt>)
            .Pointe(Gdk::TCROSS),
        LigneEtat(ETAT_IMAGE, ETAT_IMAGE, "Position de l'image de BDD")
            .Demande(DemandeImage<&Prototypes::Image>)
            .AuClic(Place<&Prototypes::Image>, ETAT_IMAGE)
            .Montre(Apercu<&Prototypes::Image>),
        LigneEtat(ETAT_IMAGE3D, ETAT_IMAGE3D, "Position de l'image de BDD")
            .Demande(DemandeImage<&Prototypes::Image3d>)
            .AuClic(Place<&Prototypes::Image3d>, ETAT_IMAGE3D)
            .Montre(Apercu<&Prototypes::Image3d>),
    };
}
