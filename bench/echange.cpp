// DXF in and out, beside the floor of each.

#include <benchmark/benchmark.h>

#include "dessinmesure.h"
#include "elements/eltsegment.h"
#include "exchange/dxf.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"
#include "model/fichier.h"
#include "planchers.h"

namespace {

/// Opens a drawing of segments, circles and arcs.
std::unique_ptr<BDDGeo> Dessin(benchmark::State& etat) {
    auto bdd = std::make_unique<BDDGeo>();
    bdd->Ouvre(FichierMesure(static_cast<int>(etat.range(0))));
    return bdd;
}

void ExportDxf(benchmark::State& etat) {
    const auto bdd = Dessin(etat);
    for (auto _ : etat)
        benchmark::DoNotOptimize(EcritDxf(*bdd));
}

void ExportDxfPlancher(benchmark::State& etat) {
    const std::vector<double> nombres = Nombres(EcritDxf(*Dessin(etat)));
    std::vector<char> tampon(nombres.size() * 16);
    for (auto _ : etat) {
        EcritNombres(nombres, tampon);
        benchmark::DoNotOptimize(tampon.data());
    }
}

/// Measures the import of a DXF text.
void MesureImport(benchmark::State& etat, const std::string& genre, const std::string& texte) {
    const std::string nom = FichierMesure(genre, texte);
    for (auto _ : etat) {
        auto bdd = std::make_unique<BDDGeo>();
        ImporteDxf(*bdd, nom);
        etat.PauseTiming();
        bdd.reset();
        etat.ResumeTiming();
    }
}

void ImportDxf(benchmark::State& etat) {
    MesureImport(etat, "dxf", EcritDxf(*Dessin(etat)));
}

void ImportDxfPlancher(benchmark::State& etat) {
    const std::string nom = FichierMesure("dxf", EcritDxf(*Dessin(etat)));
    for (auto _ : etat) {
        std::string texte;
        LitFichier(nom, texte);
        benchmark::DoNotOptimize(Nombres(texte));
    }
}

/// A hundred groups of ten segments, and images of them in turn.
void ImportBlocs(benchmark::State& etat) {
    BDDGeoBase bdd;
    for (int i = 0; i < 100; ++i) {
        auto groupe = std::make_unique<EltBDD>();
        groupe->SetIdentificateur("bloc" + std::to_string(i));
        for (int j = 0; j < 10; ++j)
            groupe->Contenu.AjouteFin(
                std::make_unique<EltSegment>(PointVek(0, j), PointVek(i + 1, j), 0));
        bdd.AjouteFin(std::move(groupe));
    }
    for (int i = 0; i < etat.range(0); ++i) {
        auto image = std::make_unique<EltImage>();
        image->SetIdentificateur("bloc" + std::to_string(i % 100));
        image->Position = PointVek(i % 1000, i / 1000);
        bdd.AjouteFin(std::move(image));
    }
    MesureImport(etat, "blocs", EcritDxf(bdd));
}

BENCHMARK(ExportDxfPlancher)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(ExportDxf)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportDxfPlancher)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportDxf)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportBlocs)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
