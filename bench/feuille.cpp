// A sheet of every class: opening, motion, clipboard, hatches.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>
#include <cmath>

#include "dessinmesure.h"
#include "ecran.h"
#include "elements/eltdisque.h"
#include "elements/eltrectangle.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

constexpr double Cote = 10200.0;  ///< What holds the whole sheet, in drawing units.

void FeuilleOuverte(benchmark::State& etat) {
    const std::string& nom = FichierFeuille(static_cast<int>(etat.range(0)));
    Ecran ecran(nom);
    ecran.Montre(Cote);
    for (auto _ : etat) {
        BddCourante.Ouvre(nom);
        ecran.Repeint();
    }
}

void FeuilleMotion(benchmark::State& etat) {
    Ecran ecran(FichierFeuille(static_cast<int>(etat.range(0))));
    ecran.Montre(Cote);
    ecran.zone.Souris.Bascule(&OptionsAccrochage::Actif);
    ecran.zone.Outils.Entre(ETAT_SEGMENT_2);
    ecran.Repeint();
    int pas = 0;
    for (auto _ : etat) {
        ++pas;
        ecran.Bouge(400 + pas % 200, 300 + pas % 131);
    }
}

/// The rectangle that holds all of a sheet.
EltRectangle Tout() {
    return EltRectangle({-Cote, Cote}, {Cote, -Cote}, 0);
}

/// Measures one of the two steps that action and its undo are, on a sheet of range(0) elements.
template <class Action>
void MesurePas(benchmark::State& etat, bool annule, const Action& action) {
    BDDGeo bdd;
    bdd.Ouvre(FichierFeuille(static_cast<int>(etat.range(0))));
    bdd.CopieZone(Tout(), false);
    BDDGeoClipboard collage;
    collage.ChargeTexte(bdd.PressePapier.SauveTexte());
    for (auto _ : etat) {
        if (annule) etat.PauseTiming();
        action(bdd, collage);
        if (annule)
            etat.ResumeTiming();
        else
            etat.PauseTiming();
        bdd.Annule();
        if (!annule) etat.ResumeTiming();
    }
}

void ActionColle(BDDGeo& bdd, const BDDGeoClipboard& collage) {
    bdd.Coller(collage, {0, 0}, 0);
}

void ActionCoupe(BDDGeo& bdd, const BDDGeoClipboard&) {
    bdd.CopieZone(Tout(), true);
}

void Collage(benchmark::State& etat) {
    MesurePas(etat, false, ActionColle);
}

void CollageAnnule(benchmark::State& etat) {
    MesurePas(etat, true, ActionColle);
}

void Coupe(benchmark::State& etat) {
    MesurePas(etat, false, ActionCoupe);
}

void CoupeAnnulee(benchmark::State& etat) {
    MesurePas(etat, true, ActionCoupe);
}

/// Discs in one style over the whole view.
void RepeintDisques(benchmark::State& etat, bool hachure) {
    BDDGeoBase bdd;
    const int nombre = static_cast<int>(etat.range(0));
    for (int i = 0; i < nombre; ++i) {
        auto disque = std::make_unique<EltDisque>();
        disque->Position = {i % 100 * 100.0 - 4950.0, i / 100 % 100 * 100.0 - 4950.0};
        disque->Rayon = 45.0;
        disque->Style.Remplissage = true;
        disque->Style.Hachure = hachure;
        disque->Style.PasHachure = 5.0;
        bdd.AjouteFin(std::move(disque));
    }
    Ecran ecran(FichierMesure("disques", bdd.SauveTexte()));
    ecran.Montre(Cote);
    for (auto _ : etat)
        ecran.Repeint();
}

void FeuilleHachuree(benchmark::State& etat) {
    RepeintDisques(etat, true);
}

void FeuillePleine(benchmark::State& etat) {
    RepeintDisques(etat, false);
}

/// A step of zoom among texts of all heights, from the whole sheet to a fiftieth of it, to scales
/// that were not shown before, or were. Also tells the slowest step, and what memory all took.
void ZoomTextes(benchmark::State& etat, bool nouvelle) {
    Ecran ecran(FichierMesure("hauteurs", TexteHauteurs(static_cast<int>(etat.range(0)))));
    const auto montre = [&ecran](double pas) {
        const auto debut = std::chrono::steady_clock::now();
        ecran.Montre(Cote * std::pow(50.0, -pas / 50.0));
        ecran.Repeint();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - debut)
            .count();
    };
    const auto prise = [] {
        const struct mallinfo2 memoire = mallinfo2();
        return static_cast<double>(memoire.uordblks + memoire.hblkhd) / 1e6;
    };
    montre(0);
    for (int pas = 0; pas < 50 && !nouvelle; ++pas)
        montre(pas);
    const double avant = prise();
    double lent = 0.0;
    int pas = 0;
    for (auto _ : etat)
        lent = std::max(lent, montre(pas++ + (nouvelle ? 0.1 : 0.0)));
    etat.counters["slowest_ms"] = lent;
    etat.counters["MB"] = prise() - avant;
}

void TextesZoom(benchmark::State& etat) {
    ZoomTextes(etat, true);
}

void TextesZoomRevu(benchmark::State& etat) {
    ZoomTextes(etat, false);
}

BENCHMARK(FeuilleOuverte)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(FeuilleMotion)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(TextesZoom)->Arg(100000)->Iterations(50)->Unit(benchmark::kMillisecond);
BENCHMARK(TextesZoomRevu)->Arg(100000)->Iterations(50)->Unit(benchmark::kMillisecond);
BENCHMARK(Collage)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(CollageAnnule)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(Coupe)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(CoupeAnnulee)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(FeuillePleine)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(FeuilleHachuree)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
