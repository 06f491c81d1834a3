// The sheet as a PDF.

#include <benchmark/benchmark.h>
#include <glib/gstdio.h>

#include "dessinmesure.h"
#include "exchange/printformoperation.h"
#include "model/bddgeo.h"
#include "model/feuille.h"

namespace {

/// The whole drawing on one sheet; also tells the size of the file.
void Pdf(benchmark::State& etat) {
    BddCourante.Ouvre(FichierMesure(static_cast<int>(etat.range(0))));
    FeuilleCourante.SetEchelle(0.02);
    FeuilleCourante.OrigineFeuille = {-5100.0, 5100.0};
    const std::string nom = FichierMesure("page", "") + ".pdf";
    for (auto _ : etat) {
        const auto operation = PrintFormOperation::create();
        operation->set_default_page_setup(Gtk::PageSetup::create());
        if (!EcritPdf(operation, nom)) etat.SkipWithError("no PDF");
    }
    GStatBuf fichier;
    if (g_stat(nom.c_str(), &fichier) == 0)
        etat.counters["MB"] = static_cast<double>(fichier.st_size) / 1e6;
    BddCourante.Vide();
}

BENCHMARK(Pdf)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
