// How fast the program opens, saves, paints and follows the pointer, beside the floor of each.

#include <benchmark/benchmark.h>
#include <gdk/gdk.h>
#include <gtkmm/main.h>
#include <gtkmm/window.h>
#include <malloc.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <vector>

#include "dessinmesure.h"
#include "ecran.h"
#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "elements/vue.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/fichier.h"
#include "planchers.h"
#include "rapports.h"
#include "zone/etats.h"
#include "zone/zonedessin.h"

namespace {

void Ouverture(benchmark::State& etat) {
    const std::string& nom = FichierMesure(static_cast<int>(etat.range(0)));
    for (auto _ : etat) {
        auto bdd = std::make_unique<BDDGeo>();
        bdd->Ouvre(nom);
        etat.PauseTiming();
        bdd.reset();
        etat.ResumeTiming();
    }
}

void OuverturePlancher(benchmark::State& etat) {
    const std::string& nom = FichierMesure(static_cast<int>(etat.range(0)));
    for (auto _ : etat) {
        std::string texte;
        LitFichier(nom, texte);
        benchmark::DoNotOptimize(Nombres(texte));
    }
}

void Sauvegarde(benchmark::State& etat) {
    BDDGeo bdd;
    bdd.Ouvre(FichierMesure(static_cast<int>(etat.range(0))));
    for (auto _ : etat)
        benchmark::DoNotOptimize(bdd.SauveTexte());
}

void SauvegardePlancher(benchmark::State& etat) {
    std::string texte;
    LitFichier(FichierMesure(static_cast<int>(etat.range(0))), texte);
    const std::vector<double> nombres = Nombres(texte);
    std::vector<char> tampon(nombres.size() * 16);
    for (auto _ : etat) {
        EcritNombres(nombres, tampon);
        benchmark::DoNotOptimize(tampon.data());
    }
}

void Repeinte(benchmark::State& etat) {
    Ecran ecran(FichierMesure(static_cast<int>(etat.range(0))));
    ecran.Montre(10200.0);
    for (auto _ : etat)
        ecran.Repeint();
}

void RepeinteCentieme(benchmark::State& etat) {
    Ecran ecran(FichierMesure(static_cast<int>(etat.range(0))));
    // One corner of the drawing, at the same scale.
    ecran.Montre(10200.0);
    EchelleCourante.Origine =
        PointVek(4000.0 + ecran.zone.Vue.Largeur() / 2 / EchelleCourante.Facteur,
                 4000.0 + ecran.zone.Vue.Hauteur() / 2 / EchelleCourante.Facteur);
    for (auto _ : etat)
        ecran.Repeint();
}

/// An area that only makes the toolkit's calls, on pixels worked out beforehand.
class AireNue : public Gtk::DrawingArea {
  public:
    struct Appel {
        bool Arc;
        int x, y, a, b, debut, ouverture;
    };

    std::vector<Appel> Appels;

  protected:
    bool on_expose_event(GdkEventExpose*) override {
        GdkWindow* fenetre = get_window()->gobj();
        GdkGC* gc = gdk_gc_new(fenetre);
        gdk_gc_set_line_attributes(gc, 1, GDK_LINE_SOLID, GDK_CAP_ROUND, GDK_JOIN_MITER);
        for (const Appel& appel : Appels)
            if (appel.Arc)
                gdk_draw_arc(fenetre, gc, FALSE, appel.x, appel.y, appel.a, appel.b, appel.debut,
                             appel.ouverture);
            else
                gdk_draw_line(fenetre, gc, appel.x, appel.y, appel.a, appel.b);
        g_object_unref(gc);
        return true;
    }
};

std::vector<AireNue::Appel> AppelsDe(const BDDGeo& bdd) {
    const auto pixels = [](double v) { return static_cast<int>(std::lround(v)); };
    std::vector<AireNue::Appel> appels;
    for (const EltGeo* elt : bdd.Elements) {
        if (elt->Type == TypeSegment) {
            const auto& segment = static_cast<const EltSegment&>(*elt);
            const PointVek a = vue::VersEcran(segment.Origine);
            const PointVek b = vue::VersEcran(segment.Extremite);
            appels.push_back({false, pixels(a.x), pixels(a.y), pixels(b.x), pixels(b.y), 0, 0});
            continue;
        }
        const auto& arc = static_cast<const EltArc&>(*elt);
        const PointVek c = vue::VersEcran(arc.Centre());
        const double r = vue::LongueurEcran(arc.Rayon);
        appels.push_back({true, pixels(c.x - r), pixels(c.y - r), pixels(2 * r), pixels(2 * r),
                          pixels(EnDegres(arc.AngleDebut) * 64),
                          pixels(EnDegres(arc.Ouverture) * 64)});
    }
    return appels;
}

void RepeintePlancher(benchmark::State& etat) {
    std::vector<AireNue::Appel> appels;
    {
        Ecran ecran(FichierMesure(static_cast<int>(etat.range(0))));
        ecran.Montre(10200.0);
        appels = AppelsDe(BddCourante);
    }
    Gtk::Window fenetre;
    AireNue aire;
    aire.Appels = std::move(appels);
    fenetre.set_default_size(1000, 800);
    fenetre.add(aire);
    fenetre.show_all();
    Ecran::Tourne();
    for (auto _ : etat) {
        aire.queue_draw();
        aire.get_window()->process_updates(false);
        gdk_display_sync(gdk_display_get_default());
    }
}

/// One motion of the segment tool, with or without the search for special points.
void Motion(benchmark::State& etat, bool accrochage) {
    Ecran ecran(FichierMesure(static_cast<int>(etat.range(0))));
    ecran.Montre(10200.0);
    if (accrochage) ecran.zone.Souris.Bascule(&OptionsAccrochage::Actif);
    ecran.zone.Outils.Entre(ETAT_SEGMENT_2);
    ecran.Repeint();
    ecran.Bouge(500, 400);
    int pas = 0;
    for (auto _ : etat) {
        ++pas;
        ecran.Bouge(400 + pas % 200, 300 + pas % 131);
    }
}

void MotionAccrochage(benchmark::State& etat) {
    Motion(etat, true);
}

void MotionBande(benchmark::State& etat) {
    Motion(etat, false);
}

void AnnulationDixMille(benchmark::State& etat) {
    EltSegment source({0, 0}, {10, 10}, 0);
    for (auto _ : etat) {
        BDDGeo bdd;
        EltGeo* cible = bdd.Ajoute(source);
        for (int i = 0; i < 10000; ++i)
            bdd.Change(*cible, source);
        benchmark::DoNotOptimize(cible);
    }
}

void ClonesDixMille(benchmark::State& etat) {
    EltSegment source({0, 0}, {10, 10}, 0);
    for (auto _ : etat) {
        std::vector<std::unique_ptr<EltGeo>> clones;
        for (int i = 0; i < 10000; ++i)
            clones.push_back(source.Clone());
        benchmark::DoNotOptimize(clones.data());
    }
}

BENCHMARK(OuverturePlancher)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Ouverture)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(SauvegardePlancher)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Sauvegarde)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(RepeintePlancher)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Repeinte)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(RepeinteCentieme)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(MotionAccrochage)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(MotionBande)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(ClonesDixMille)->Unit(benchmark::kMillisecond);
BENCHMARK(AnnulationDixMille)->Unit(benchmark::kMillisecond);

std::size_t MemoirePrise() {
    const struct mallinfo2 etat = mallinfo2();
    return etat.uordblks + etat.hblkhd;
}

void AfficheMemoire(int nombre) {
    const std::string nom = FichierMesure(nombre);
    BDDGeo bdd;
    const std::size_t avant = MemoirePrise();
    bdd.Ouvre(nom);
    bdd.Cherche({0.0, 0.0});
    std::printf("%-52s %8.1f bytes (at most 500)\n", "memory of an element, searches included",
                static_cast<double>(MemoirePrise() - avant) / nombre);
}

}  // namespace

int main(int nombre, char** mots) {
    // Slices out of the allocator's sight would not be counted.
    setenv("G_SLICE", "always-malloc", 1);
    setenv("APPDATA", "/nonexistent", 1);
    Gtk::Main toolkit(nombre, mots, true);
    std::setlocale(LC_NUMERIC, "C");
    benchmark::Initialize(&nombre, mots);
    Rapports rapports;
    benchmark::RunSpecifiedBenchmarks(&rapports);

    std::printf("\n");
    rapports.Compare("opening / read and converted once", "Ouverture/100000",
                     "OuverturePlancher/100000", 4);
    rapports.Compare("saving / written once", "Sauvegarde/100000", "SauvegardePlancher/100000", 3);
    rapports.Compare("repaint / the bare calls", "Repeinte/100000", "RepeintePlancher/100000", 1.5);
    rapports.Compare("repaint of 1 in 100 / of all", "RepeinteCentieme/100000", "Repeinte/100000",
                     0.05);
    rapports.Temps("one motion with snapping, 100,000 elements", "MotionAccrochage/100000", 3);
    rapports.Compare("band on 1,000,000 / on 10,000 elements", "MotionBande/1000000",
                     "MotionBande/10000", 1.5);
    rapports.Compare("opening 1,000,000 / 100,000", "Ouverture/1000000", "Ouverture/100000", 12);
    rapports.Compare("repaint of 1,000,000 / 100,000", "Repeinte/1000000", "Repeinte/100000", 12);
    rapports.Compare("snapping on 1,000,000 / 100,000", "MotionAccrochage/1000000",
                     "MotionAccrochage/100000", 12);
    rapports.Compare("10,000 undo records / 10,000 clones", "AnnulationDixMille", "ClonesDixMille",
                     3);
    rapports.Temps("sheet of 100,000 opened and painted", "FeuilleOuverte/100000", 1200);
    rapports.Temps("one motion with snapping, sheet of 100,000", "FeuilleMotion/100000", 4);
    rapports.Temps("step of zoom, 10,000 texts of 10,000 heights", "TextesZoom/100000", 200);
    rapports.Temps("paste of 10,000", "Collage/10000", 100);
    rapports.Temps("undo of that paste", "CollageAnnule/10000", 100);
    rapports.Temps("cut of 10,000", "Coupe/10000", 100);
    rapports.Temps("undo of that cut", "CoupeAnnulee/10000", 100);
    rapports.Compare("paste of 1,000,000 / of 100,000", "Collage/1000000", "Collage/100000", 12);
    rapports.Compare("cut of 1,000,000 / of 100,000", "Coupe/1000000", "Coupe/100000", 12);
    rapports.Compare("repaint hatched / filled", "FeuilleHachuree/10000", "FeuillePleine/10000", 3);
    rapports.Temps("PDF of 100,000 elements", "Pdf/100000", 3000);
    rapports.Compare("PDF of 100,000 / of 10,000", "Pdf/100000", "Pdf/10000", 12);
    rapports.Compare("DXF import / read and converted once", "ImportDxf/100000",
                     "ImportDxfPlancher/100000", 4);
    rapports.Compare("DXF export / written once", "ExportDxf/100000", "ExportDxfPlancher/100000",
                     3);
    rapports.Compare("DXF import of 1,000,000 / 100,000", "ImportDxf/1000000", "ImportDxf/100000",
                     15);
    rapports.Compare("DXF export of 1,000,000 / 100,000", "ExportDxf/1000000", "ExportDxf/100000",
                     15);
    rapports.Compare("100,000 / 10,000 inserts of 100 blocks", "ImportBlocs/100000",
                     "ImportBlocs/10000", 12);
    rapports.Compare("plate of 50 holes / the same plate and 50 cylinders", "PlaquePercee/50",
                     "PlaqueEtCylindres/50", 4);
    rapports.Compare("plate of 200 holes / of 50", "PlaquePercee/200", "PlaquePercee/50", 5);
    rapports.Compare("20 carved solids / 5", "SolidesPerces/20", "SolidesPerces/5", 5);
    rapports.Compare("copy of the net / save, 100,000 elements", "CopieSecourue/100000",
                     "Enregistrement/100000", 1.5);
    rapports.Compare("copy of the net / save, 1,000,000 elements", "CopieSecourue/1000000",
                     "Enregistrement/1000000", 1.5);
    rapports.Part("share of the net while 100,000 are edited", "CopieSecourue/100000", 10.0, 50.0);
    rapports.Part("share of the net while 1,000,000 are edited", "CopieSecourue/1000000", 10.0,
                  50.0);
    rapports.Temps("1,000 edits looked after, 100,000 elements", "EditionsSecourues/100000", 1);
    AfficheMemoire(100000);
    return 0;
}
