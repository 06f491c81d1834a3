// One image of the 3D window, 600 by 600.

#include <benchmark/benchmark.h>
#include <gdk/gdk.h>
#include <gdk/gdkkeysyms.h>

#include <cmath>

#include "ecran.h"
#include "elements/angles.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "solids/eltimage3d.h"
#include "solids/eltpave.h"
#include "solids/eltpercage.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltprofiltuberond.h"
#include "solids/eltsphere.h"
#include "view3d/window3d.h"

namespace {

/// The 3D window on an empty drawing, seen from the front.
class Ecran3D {
  public:
    Ecran3D() : Fenetre(BddCourante) {
        BddCourante.Vide();
        Fenetre.show();
        Ecran::Tourne();
        GdkEvent evenement = {};
        evenement.key.type = GDK_KEY_PRESS;
        evenement.key.window = Fenetre.get_window()->gobj();
        evenement.key.keyval = GDK_f;
        gtk_widget_event(GTK_WIDGET(Fenetre.gobj()), &evenement);
        Ecran::Tourne();
    }

    ~Ecran3D() { BddCourante.Vide(); }

    void Peint() {
        GtkWidget* zone = GTK_WIDGET(Fenetre.get_child()->gobj());
        gtk_widget_queue_draw(zone);
        gdk_window_process_updates(zone->window, TRUE);
        gdk_display_sync(gdk_display_get_default());
    }

  private:
    Window3D Fenetre;
};

template <class Solide>
Solide& Pose(std::unique_ptr<Solide> solide) {
    return static_cast<Solide&>(*BddCourante.AjouteFin(std::move(solide)));
}

EltPave& PosePave(const PointVek& a, const PointVek& b) {
    auto pave = std::make_unique<EltPave>();
    pave->SetPoints(a, b);
    return Pose(std::move(pave));
}

template <class Solide>
void PoseRond(EltGeo* porteur, const PointVek& centre, double rayon) {
    auto solide = std::make_unique<Solide>();
    solide->Place(centre);
    solide->Rayon = solide->rayonHaut = rayon;
    solide->Ouverture = DeuxPi;
    Solide& pose = Pose(std::move(solide));
    if (porteur) porteur->AjouteFils(&pose);
}

/// A plate with as many holes, or in their place as many plain cylinders: what they cost undug.
/// part: the radius as a part of the step between two; beyond 0.5 they run into one another.
template <class Rond>
void PosePlaque(int trous, bool perce, double part = 0.3) {
    EltPave& plaque = PosePave({-100, 100}, {100, -100});
    const int cote = static_cast<int>(std::ceil(std::sqrt(trous)));
    const double pas = 200.0 / cote;
    for (int i = 0; i < trous; ++i)
        PoseRond<Rond>(perce ? &plaque : nullptr,
                       {-100.0 + (i % cote + 0.5) * pas, -100.0 + (i / cote + 0.5) * pas},
                       pas * part);
}

template <class Scene>
void Mesure(benchmark::State& etat, const Scene& scene) {
    Ecran3D ecran;
    scene(static_cast<int>(etat.range(0)));
    ecran.Peint();
    for (auto _ : etat)
        ecran.Peint();
}

void Paves(benchmark::State& etat) {
    Mesure(etat, [](int nombre) {
        for (int i = 0; i < nombre; ++i) {
            const PointVek coin(-100.0 + i % 10 * 20.0, 100.0 - i / 10 * 20.0);
            PosePave(coin, coin + PointVek(15, -15));
        }
    });
}

void PlaquePercee(benchmark::State& etat) {
    Mesure(etat, [](int trous) { PosePlaque<EltPercage>(trous, true); });
}

void PlaqueTrousMeles(benchmark::State& etat) {
    Mesure(etat, [](int trous) { PosePlaque<EltPercage>(trous, true, 0.6); });
}

void PlaqueEtCylindres(benchmark::State& etat) {
    Mesure(etat, [](int trous) { PosePlaque<EltCylindre>(trous, false); });
}

void SolidesPerces(benchmark::State& etat) {
    Mesure(etat, [](int nombre) {
        for (int i = 0; i < nombre; ++i) {
            const PointVek coin(-100.0 + i % 5 * 40.0, 100.0 - i / 5 * 40.0);
            EltPave& pave = PosePave(coin, coin + PointVek(35, -35));
            for (int trou = 0; trou < 5; ++trou)
                PoseRond<EltPercage>(&pave, coin + PointVek(5.0 + trou * 6.0, -17.5), 2.0);
        }
    });
}

void Tube(benchmark::State& etat) {
    Mesure(etat, [](int liens) {
        auto chemin = std::make_unique<EltProfil>();
        chemin->Debut({-100, 0});
        for (int i = 0; i <= liens; ++i)
            chemin->Ajoute({-100.0 + 200.0 * i / liens, i % 2 * 20.0});
        chemin->Ferme = false;
        EltProfil& profil = Pose(std::move(chemin));
        Pose(std::make_unique<EltProfilTubeRond>()).AjouteFils(&profil);
    });
}

void Tourne(benchmark::State& etat) {
    Mesure(etat, [](int facettes) {
        auto tourne = std::make_unique<EltProfilTourne>();
        tourne->Debut({0, 0});
        for (const PointVek& p : {PointVek(20, -60), PointVek(60, -20), PointVek(40, 30),
                                  PointVek(70, 60), PointVek(0, 80)})
            tourne->Ajoute(p);
        tourne->facetisation = facettes;
        Pose(std::move(tourne));
    });
}

/// A group of 20 balls, shown as often as told; facettes as a file may ask for.
void Images(benchmark::State& etat, int facettes) {
    Mesure(etat, [facettes](int images) {
        auto groupe = std::make_unique<EltBDD>();
        groupe->SetIdentificateur("billes");
        for (int i = 0; i < 20; ++i) {
            EltSphere bille;
            bille.Place({-100.0 + i * 10.0, 0.0});
            bille.Rayon = 4.0;
            bille.Ouverture = DeuxPi;
            bille.facetisation = facettes;
            groupe->Contenu.AjouteFin(bille.Clone());
        }
        BddCourante.AjouteFin(std::move(groupe));
        for (int i = 0; i < images; ++i) {
            auto image = std::make_unique<EltImage3d>();
            image->SetIdentificateur("billes");
            image->Place({0.0, -100.0 + 200.0 * i / images});
            Pose(std::move(image));
        }
    });
}

BENCHMARK(Paves)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(PlaquePercee)->Arg(1)->Arg(10)->Arg(50)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(PlaqueTrousMeles)->Arg(10)->Arg(50)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(PlaqueEtCylindres)->Arg(50)->Unit(benchmark::kMillisecond);
BENCHMARK(SolidesPerces)->Arg(5)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(Tube)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(Tourne)->Arg(100)->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(Images, fines, 50)->Arg(5)->Arg(30)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Images, outrees, 1000)->Arg(30)->Unit(benchmark::kMillisecond);

}  // namespace
