// Points, texts and images of groups.

#include <vector>

#include "dialogs/elttxtdialog.h"
#include "dialogs/stringdialog.h"
#include "zone/ligneetat.h"
#include "zone/machine.h"

namespace {

/// What is placed by one click: its band and its addition, for the prototype named.
template <auto Proto>
Bande BandePlacee(Machine& outils, const PointVek& p) {
    EltGeo& elt = outils.Protos.*Proto;
    elt.Place(p);
    return BandeDe(elt);
}

template <auto Proto>
bool Place(Machine& outils, const PointVek& p) {
    BandePlacee<Proto>(outils, p);
    outils.Ajoute(outils.Protos.*Proto);
    return true;
}

/// The tool is entered whatever the answer.
bool DemandeTexte(Machine& outils) {
    outils.Protos.Txt.SetTexte("Texte");
    EltTxtDialog("Texte :", &outils.Protos.Txt).run();
    return true;
}

template <auto Proto>
bool DemandeImage(Machine& outils) {
    EltImage& image = outils.Protos.*Proto;
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
            .Montre(BandePlacee<&Prototypes::Point>),
        LigneEtat(ETAT_TEXTE, ETAT_TEXTE, "Position du texte")
            .Demande(DemandeTexte)
            .AuClic(Place<&Prototypes::Txt>, ETAT_TEXTE)
            .Montre(BandePlacee<&Prototypes::Txt>)
            .Pointe(Gdk::TCROSS),
        LigneEtat(ETAT_IMAGE, ETAT_IMAGE, "Position de l'image de BDD")
            .Demande(DemandeImage<&Prototypes::Image>)
            .AuClic(Place<&Prototypes::Image>, ETAT_IMAGE)
            .Montre(BandePlacee<&Prototypes::Image>),
        LigneEtat(ETAT_IMAGE3D, ETAT_IMAGE3D, "Position de l'image de BDD")
            .Demande(DemandeImage<&Prototypes::Image3d>)
            .AuClic(Place<&Prototypes::Image3d>, ETAT_IMAGE3D)
            .Montre(BandePlacee<&Prototypes::Image3d>),
    };
}
