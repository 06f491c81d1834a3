// Points, texts and images of groups.

#include <vector>

#include "dialogs/elttxtdialog.h"
#include "dialogs/stringdialog.h"
#include "zone/ligneetat.h"
#include "zone/zonedessin.h"

namespace {

Bande ApercuPoint(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Point.Place(p);
    return BandeDe(zone.Protos.Point);
}

bool PlacePoint(ZoneDessin& zone, const PointVek& p) {
    ApercuPoint(zone, p);
    zone.Ajoute(zone.Protos.Point);
    return true;
}

/// The tool is entered whatever the answer.
bool DemandeTexte(ZoneDessin& zone) {
    zone.Protos.Txt.SetTexte("Texte");
    EltTxtDialog("Texte :", &zone.Protos.Txt).run();
    return true;
}

Bande ApercuTexte(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Txt.Place(p);
    return BandeDe(zone.Protos.Txt);
}

bool PlaceTexte(ZoneDessin& zone, const PointVek& p) {
    ApercuTexte(zone, p);
    zone.Ajoute(zone.Protos.Txt);
    return true;
}

bool DemandeImage(ZoneDessin& zone) {
    Glib::ustring nom = zone.Protos.Image.Identificateur;
    StringDialog dialogue("Identificateur de la BDD ?", &nom);
    if (dialogue.run() != Gtk::RESPONSE_OK) return false;
    zone.Protos.Image.SetIdentificateur(nom);
    return true;
}

Bande ApercuImage(ZoneDessin& zone, const PointVek& p) {
    zone.Protos.Image.Place(p);
    return BandeDe(zone.Protos.Image);
}

bool PlaceImage(ZoneDessin& zone, const PointVek& p) {
    ApercuImage(zone, p);
    zone.Ajoute(zone.Protos.Image);
    return true;
}

}  // namespace

std::vector<LigneEtat> LignesTextes() {
    return {
        LigneEtat(ETAT_POINT, ETAT_POINT, "Position du Point")
            .AuClic(PlacePoint, ETAT_POINT)
            .Montre(ApercuPoint),
        LigneEtat(ETAT_TEXTE, ETAT_TEXTE, "Position du texte")
            .Demande(DemandeTexte)
            .AuClic(PlaceTexte, ETAT_TEXTE)
            .Montre(ApercuTexte)
            .Pointe(Gdk::TCROSS),
        LigneEtat(ETAT_IMAGE, ETAT_IMAGE, "Position de l'image de BDD")
            .Demande(DemandeImage)
            .AuClic(PlaceImage, ETAT_IMAGE)
            .Montre(ApercuImage),
        LigneEtat(ETAT_IMAGE3D, ETAT_IMAGE3D, "Position de l'image de BDD"),
    };
}
