// What the net under the work costs: a copy of what is not saved, beside a save of the same
// drawing.

#include <benchmark/benchmark.h>
#include <glib.h>
#include <glib/gstdio.h>

#include "dessinmesure.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/recuperation.h"

namespace {

std::string Dossier() {
    static const std::string dossier = [] {
        char modele[] = "/tmp/krvek-secours-XXXXXX";
        return std::string(g_mkdtemp(modele));
    }();
    return dossier;
}

void Edite(BDDGeo& bdd) {
    bdd.Ajoute(EltSegment({0.0, 0.0}, {10.0, 5.0}, 0));
}

void CopieSecourue(benchmark::State& etat) {
    BDDGeo bdd;
    bdd.Ouvre(FichierMesure(static_cast<int>(etat.range(0))));
    Recuperation secours(bdd, Dossier());
    for (auto _ : etat) {
        Edite(bdd);
        if (!secours.Ecrit("Travail en cours")) etat.SkipWithError("no copy could be written");
    }
    secours.Oublie();
}

void Enregistrement(benchmark::State& etat) {
    BDDGeo bdd;
    bdd.Ouvre(FichierMesure(static_cast<int>(etat.range(0))));
    const std::string nom = Dossier() + "/dessin.vek";
    for (auto _ : etat) {
        Edite(bdd);
        if (!bdd.EnregistreSous(nom)) etat.SkipWithError("the drawing could not be saved");
    }
    g_unlink(nom.c_str());
}

/// A thousand edits in a row, as fast as they come, behind the first copy.
void EditionsSecourues(benchmark::State& etat) {
    BDDGeo bdd;
    bdd.Ouvre(FichierMesure(static_cast<int>(etat.range(0))));
    Recuperation secours(bdd, Dossier());
    Edite(bdd);
    secours.Passe();
    for (auto _ : etat)
        for (int i = 0; i < 1000; ++i) {
            Edite(bdd);
            secours.Passe();
        }
    secours.Oublie();
}

BENCHMARK(CopieSecourue)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Enregistrement)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(EditionsSecourues)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
