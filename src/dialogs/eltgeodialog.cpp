#include "dialogs/eltgeodialog.h"

#include <gtkmm/label.h>

#include "dialogs/demandecouleur.h"
#include "dialogs/nombres.h"
#include "dialogs/traitdialog.h"
#include "model/bddgeo.h"

EltGeoDialog::EltGeoDialog(const Glib::ustring& titre, EltGeo& elt, bool avecPosition)
    : SaisieDialog(titre),
      Elt(&elt),
      Valeur(elt.Clone()),
      Style(elt.Style),
      X(TexteNombre(elt.Position.x)),
      Y(TexteNombre(elt.Position.y)),
      Z(TexteNombre(elt.Position.z)),
      Calque(TexteNombre(elt.Calque)),
      Ligne(false, 6),
      BoutonTrait("Trait"),
      BoutonCouleur("Couleur") {
    if (avecPosition) {
        AjouteChamp("X", X, UnNombre());
        AjouteChamp("Y", Y, UnNombre());
        AjouteChamp("Z", Z, UnNombre());
    }
    RangeLigne();
    BddCourante.SignalRetrait().connect(sigc::mem_fun(*this, &EltGeoDialog::LaisseElement));
}

void EltGeoDialog::RangeLigne() {
    Branche(Calque, UnNombre());
    Calque.set_width_chars(6);
    Ligne.pack_start(*Gtk::manage(new Gtk::Label("Calque")), Gtk::PACK_SHRINK);
    Ligne.pack_start(Calque);
    Ligne.pack_start(BoutonTrait, Gtk::PACK_SHRINK);
    Ligne.pack_start(BoutonCouleur, Gtk::PACK_SHRINK);
    BrancheQuestion(BoutonTrait, sigc::mem_fun(*this, &EltGeoDialog::DemandeTrait));
    BrancheQuestion(BoutonCouleur, sigc::mem_fun(*this, &EltGeoDialog::DemandeCouleurTrait));
    // Below the rows that derived dialogs add.
    get_vbox()->pack_end(Ligne, Gtk::PACK_SHRINK);
    Ligne.show_all();
}

void EltGeoDialog::DemandeTrait() {
    TraitDialog dialogue("Style du trait", &Style);
    if (dialogue.run() == Gtk::RESPONSE_OK) StyleModifie = true;
}

void EltGeoDialog::DemandeCouleurTrait() {
    if (DemandeCouleur(this, "Couleur", Style.Couleur)) StyleModifie = true;
}

void EltGeoDialog::LaisseElement(EltGeo* elt) {
    if (elt && elt != Elt) return;
    Elt = nullptr;
    response(Gtk::RESPONSE_CANCEL);
}

Glib::ustring EltGeoDialog::Refus() {
    const Glib::ustring phrase = SaisieDialog::Refus();
    if (!phrase.empty() || !Elt) return phrase;
    const auto x = X.Nombre(), y = Y.Nombre(), z = Z.Nombre();
    const PointVek& p = Valeur->Position;
    if (x || y || z) Valeur->Place({x.value_or(p.x), y.value_or(p.y), z.value_or(p.z)});
    PrendChamps();
    if (!Valeur->EstFini() || !Valeur->Position.EstFini()) return "Ces nombres sont trop grands.";
    // What a file has brought in such a state may keep it.
    if (!Valeur->EstValide() && Elt->EstValide())
        return "Avec ces mesures, il ne resterait rien de l'élément.";
    return {};
}

void EltGeoDialog::Prend() {
    if (!Elt) return;
    Elt->Copie(*Valeur);
    if (const auto calque = Calque.Nombre()) Elt->Calque = EnEntier(*calque);
    if (StyleModifie) Elt->ChangeTrait(Style);
}

bool EltGeo::Proprietes() {
    EltGeoDialog dialogue("Coordonnées du centre du " + Nom(), *this);
    return dialogue.run() == Gtk::RESPONSE_OK;
}
