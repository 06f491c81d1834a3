// What the area keeps from one run to the next.

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

void ZoneDessin::ChargePreferences() {
    std::string texte;
    if (!LitFichier(FichierPreferences(), texte)) return;
    Lecteur entree(texte);
    int decimales = NbDecimales;
    double rayon = Rayon;
    entree >> decimales >> rayon >> Options.Actif;
    if (EstNombreDecimales(decimales)) NbDecimales = decimales;
    if (rayon > 0.0) Rayon = rayon;
    Lit(entree, Protos.Txt);
    Lit(entree, Protos.Cote);
    Lit(entree, GrilleCourante);
    Lit(entree, EchelleCourante);
    LitCouleurFond(entree, CouleurFond);
    entree >> TraitCourant;
    if (TraitCourant.Epaisseur < 1) TraitCourant.Epaisseur = 1;
    entree >> Options.Intersections >> Options.Supports >> Options.Extremites >> CalqueCourant;
    Protos.DiffuseTrait(TraitCourant);
    Protos.DiffuseCote();
    Protos.SetCalque(CalqueCourant);
}

void ZoneDessin::SauvePreferences() const {
    Ecrivain sortie;
    sortie << NbDecimales << '\n' << Rayon << '\n' << Options.Actif << '\n';
    Protos.Txt.Sauve(sortie);
    sortie << '\n';
    Protos.Cote.Sauve(sortie);
    sortie << '\n';
    GrilleCourante.Sauve(sortie);
    sortie << '\n';
    EchelleCourante.Sauve(sortie);
    sortie << '\n'
           << int{CouleurFond.get_red()} << ' ' << int{CouleurFond.get_green()} << ' '
           << int{CouleurFond.get_blue()} << '\n'
           << TraitCourant << '\n'
           << Options.Intersections << '\n'
           << Options.Supports << '\n'
           << Options.Extremites << '\n'
           << CalqueCourant << '\n';
    EcritFichier(FichierPreferences(), sortie.Texte());
}
