#include "zone/preferences.h"

#include <glib.h>
#include <glibmm/miscutils.h>

#include <cmath>

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "model/echelle.h"
#include "model/fichier.h"
#include "zone/zonedessin.h"

namespace {

/// The file, in the folder that the environment names for it, else in the user's configuration
/// folder, which is made if it is missing.
std::string FichierPreferences() {
    std::string dossier = Glib::getenv("APPDATA");
    if (dossier.empty()) {
        dossier = Glib::get_user_config_dir();
        g_mkdir_with_parents(dossier.c_str(), 0700);
    }
    return Glib::build_filename(dossier, "KRVEK.ini");
}

/// Reads an element's record, whose type code says nothing here.
template <class Elt>
void Lit(Lecteur& entree, Elt& elt) {
    int type = 0;
    entree >> type;
    elt.Charge(entree);
}

void LitCouleurFond(Lecteur& entree, Gdk::Color& couleur) {
    int composantes[3] = {couleur.get_red(), couleur.get_green(), couleur.get_blue()};
    for (int& composante : composantes) {
        entree >> composante;
        if (composante < 0 || composante > 65535) composante = 65535;
    }
    couleur.set_rgb(static_cast<gushort>(composantes[0]), static_cast<gushort>(composantes[1]),
                    static_cast<gushort>(composantes[2]));
}

}  // namespace

void ChargePreferences(ZoneDessin& zone) {
    std::string texte;
    if (!LitFichier(FichierPreferences(), texte)) return;
    Prototypes& protos = zone.Outils.Protos;
    OptionsAccrochage& options = zone.Souris.Options;
    Lecteur entree(texte);
    int decimales = NbDecimales, calque = protos.Calque();
    double rayon = zone.Outils.Rayon;
    entree >> decimales >> rayon >> options.Actif;
    if (EstNombreDecimales(decimales)) NbDecimales = decimales;
    if (rayon > 0.0) zone.Outils.Rayon = rayon;
    Lit(entree, protos.Txt);
    Lit(entree, protos.Cote);
    Lit(entree, zone.Vue.GrilleCourante);
    Lit(entree, EchelleCourante);
    Gdk::Color fond = zone.Vue.Fond();
    LitCouleurFond(entree, fond);
    zone.Vue.SetFond(fond);
    Trait trait = protos.Trait();
    entree >> trait;
    if (trait.Epaisseur < 1) trait.Epaisseur = 1;
    entree >> options.Intersections >> options.Supports >> options.Extremites >> calque;
    protos.SetTrait(trait);
    protos.DiffuseCote();
    protos.SetCalque(calque);
}

void SauvePreferences(const ZoneDessin& zone) {
    const Prototypes& protos = zone.Outils.Protos;
    const OptionsAccrochage& options = zone.Souris.Options;
    const Gdk::Color& fond = zone.Vue.Fond();
    Ecrivain sortie;
    sortie << NbDecimales << '\n' << zone.Outils.Rayon << '\n' << options.Actif << '\n';
    protos.Txt.Sauve(sortie);
    sortie << '\n';
    protos.Cote.Sauve(sortie);
    sortie << '\n';
    zone.Vue.GrilleCourante.Sauve(sortie);
    sortie << '\n';
    EchelleCourante.Sauve(sortie);
    sortie << '\n'
           << int{fond.get_red()} << ' ' << int{fond.get_green()} << ' ' << int{fond.get_blue()}
           << '\n'
           << protos.Trait() << '\n'
           << options.Intersections << '\n'
           << options.Supports << '\n'
           << options.Extremites << '\n'
           << protos.Calque() << '\n';
    EcritFichier(FichierPreferences(), sortie.Texte());
}
