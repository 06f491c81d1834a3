#include "zone/reglages.h"

#include <glib.h>
#include <glibmm/fileutils.h>
#include <glibmm/keyfile.h>
#include <glibmm/miscutils.h>

#include "model/fichier.h"
#include "zone/zonedessin.h"

namespace {

struct Reglage {
    const char* Groupe;
    const char* Cle;
    bool& (*Valeur)(ZoneDessin& zone);
};

template <bool OptionsSpeciales::*Option>
bool& Speciale(ZoneDessin& zone) {
    return zone.Souris.Speciales.*Option;
}

const Reglage Reglages[] = {
    {"Vue", "MoletteProgressive",
     [](ZoneDessin& zone) -> bool& { return zone.MoletteProgressive; }},
    {"Accrochage", "BoutsDevant", Speciale<&OptionsSpeciales::BoutsDevant>},
    {"Accrochage", "Milieux", Speciale<&OptionsSpeciales::Milieux>},
    {"Accrochage", "Quadrants", Speciale<&OptionsSpeciales::Quadrants>},
    {"Accrochage", "Pieds", Speciale<&OptionsSpeciales::Pieds>},
    {"Accrochage", "Tangentes", Speciale<&OptionsSpeciales::Tangentes>},
    {"Accrochage", "Proches", Speciale<&OptionsSpeciales::Proches>},
};

std::string DossierReglages() {
    return Glib::build_filename(Glib::get_user_config_dir(), "krvek");
}

std::string FichierReglages() {
    return Glib::build_filename(DossierReglages(), "complements.ini");
}

/// The file as it is; empty where there is none that can be read.
void Lit(Glib::KeyFile& fichier) {
    try {
        fichier.load_from_file(FichierReglages(), Glib::KEY_FILE_KEEP_COMMENTS);
    } catch (const Glib::Error&) {
        // Everything stays as it is.
    }
}

}  // namespace

void ChargeReglages(ZoneDessin& zone) {
    Glib::KeyFile fichier;
    Lit(fichier);
    for (const Reglage& reglage : Reglages) {
        try {
            reglage.Valeur(zone) = fichier.get_boolean(reglage.Groupe, reglage.Cle);
        } catch (const Glib::KeyFileError&) {
            // This one stays.
        }
    }
}

void SauveReglages(ZoneDessin& zone) {
    Glib::KeyFile fichier;
    Lit(fichier);
    for (const Reglage& reglage : Reglages)
        fichier.set_boolean(reglage.Groupe, reglage.Cle, reglage.Valeur(zone));
    g_mkdir_with_parents(DossierReglages().c_str(), 0700);
    EcritFichier(FichierReglages(), fichier.to_data().raw());
}
