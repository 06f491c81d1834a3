#include "dessinmesure.h"

#include <glib.h>

#include <random>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "model/bddgeobase.h"
#include "model/fichier.h"

std::string TexteMesure(int nombre) {
    std::mt19937 hasard(20121010);
    std::uniform_real_distribution<double> place(-5000.0, 5000.0), taille(-60.0, 60.0),
        angle(0.0, DeuxPi);
    BDDGeoBase bdd;
    for (int i = 0; i < nombre; ++i) {
        const PointVek p(place(hasard), place(hasard));
        const PointVek v(taille(hasard), taille(hasard));
        if (i % 3 == 0)
            bdd.AjouteFin(std::make_unique<EltSegment>(p, p + v, 0));
        else
            bdd.AjouteFin(std::make_unique<EltArc>(p, Norme(v), i % 3 == 1 ? 0.0 : angle(hasard),
                                                   i % 3 == 1 ? DeuxPi : angle(hasard), 0));
    }
    return bdd.SauveTexte();
}

std::string FichierMesure(int nombre) {
    const std::string nom =
        std::string(g_get_tmp_dir()) + "/krvek-mesure-" + std::to_string(nombre) + ".vek";
    EcritFichier(nom, TexteMesure(nombre));
    return nom;
}
