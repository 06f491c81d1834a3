#include "dialogs/elt3ddialog.h"

#include <gtkmm/box.h>
#include <gtkmm/frame.h>

#include "dialogs/nombres.h"
#include "elements/encodage.h"

namespace {

/// What a file keeps of the name of a texture.
constexpr int LongueurTexture = 256;

}  // namespace

Elt3dDialog::Elt3dDialog(const Glib::ustring& titre, EltGeo& elt, const Elt3d& solide)
    : EltGeoDialog(titre, elt),
      Saisie(solide),
      Texture(solide.texture, LongueurTexture),
      Facetisation(TexteNombre(solide.facetisation)) {}

void Elt3dDialog::AjouteChamps3d() {
    AjouteReel("h", &Elt3d::h);
    AjouteReel("alpha", &Elt3d::alpha);
    AjouteReel("béta", &Elt3d::beta);
    AjouteReel("gamma", &Elt3d::gamma);
    AjouteChamp("texture", Texture);
    AjouteChamp("facétisation", Facetisation, UnNombre());
    AjouteCadre();
    AjouteReel("Echelle Texture", &Elt3d::echelleTexture);
    AjouteReel("Brillance", &Elt3d::brillance);
    AjouteBloc(CreeCoche("Gourault", &Elt3d::gourault));
}

void Elt3dDialog::AjouteReel(const char* libelle, double Elt3d::*champ) {
    auto* saisie = Gtk::manage(new ChampSaisie(TexteNombre(Saisie.*champ)));
    AjouteChamp(libelle, *saisie, UnNombre());
    Reels.emplace_back(saisie, champ);
}

Gtk::CheckButton& Elt3dDialog::CreeCoche(const char* libelle, bool Elt3d::*drapeau) {
    auto* coche = Gtk::manage(new Gtk::CheckButton(libelle));
    coche->set_active(Saisie.*drapeau);
    Coches.emplace_back(coche, drapeau);
    return *coche;
}

void Elt3dDialog::AjouteCadre() {
    auto* ligne = Gtk::manage(new Gtk::HBox(false, 6));
    ligne->pack_start(CreeCoche("Dessus", &Elt3d::dessus));
    ligne->pack_start(CreeCoche("Dessous", &Elt3d::dessous));
    ligne->pack_start(CreeCoche("Pourtour", &Elt3d::pourtour));
    ligne->pack_start(CreeCoche("Repetition", &Elt3d::repetition));
    auto* cadre = Gtk::manage(new Gtk::Frame("Texture"));
    cadre->add(*ligne);
    AjouteBloc(*cadre);
}

void Elt3dDialog::Prend() {
    EltGeoDialog::Prend();
    for (const auto& [saisie, champ] : Reels)
        if (const auto nombre = saisie->Nombre()) Saisie.*champ = *nombre;
    for (const auto& [coche, drapeau] : Coches)
        Saisie.*drapeau = coche->get_active();
    if (Texture.EstModifie()) Saisie.texture = EnLigne(Texture.get_text());
    if (const auto facettes = Facetisation.Nombre()) Saisie.facetisation = EnEntier(*facettes);
    if (EltGeo* elt = Element()) elt->ChangeElt3d(Saisie);
}

Glib::ustring TitreProprietes(const EltGeo& elt) {
    return "Propriété du " + elt.Nom();
}
