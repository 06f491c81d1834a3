// The profile tools, gesture by gesture.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include "commun/banc.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "zone/etats.h"

namespace {

/// That of the newest element.
std::string DerniereLigne() {
    return DerniereLigne(*BddCourante.Elements.Premier());
}

void Clics(Banc& banc, std::initializer_list<PointVek> clics) {
    for (const PointVek& p : clics) {
        banc.Souris.BougeA(p + PointVek(9.0, -6.0));
        banc.Souris.BougeA(p);
        banc.Souris.ClicA(p);
    }
}

Capture Neuve(Banc& banc) {
    banc.Zone.Vue.Redessine();
    return banc.Image();
}

/// A slot of 100 by 40 about the origin, its lines and arcs drawn this way and that, and a
/// rectangle, which no profile follows.
void PoseRainure() {
    BddCourante.Ajoute(EltSegment({-50, 20}, {50, 20}, 0));
    BddCourante.Ajoute(EltSegment({-50, -20}, {50, -20}, 0));
    BddCourante.Ajoute(EltArc({50, 0}, 20, -Pi / 2, Pi, 0));
    BddCourante.Ajoute(EltArc({-50, 0}, 20, Pi / 2, Pi, 0));
    BddCourante.Ajoute(EltRectangle({150, 50}, {170, 0}, 0));
}

}  // namespace

TEST(Profil, LaChaineEstCeQuiSeraAjoute) {
    Banc banc;
    const Capture propre = Neuve(banc);
    banc.Zone.Outils.Entre(ETAT_PROFIL_1);
    Clics(banc, {{0, 0}, {-100, -50}, {100, -50}, {0, 80}});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PROFIL_3);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
    // The link in progress leads from the last vertex to the pointer.
    banc.Souris.BougeA({0, 150});
    EXPECT_EQ(banc.Image().Pixel(300, 70), 0x000000u);
    Clics(banc, {{-100, -50}});
    const Capture bande = banc.Image();
    EXPECT_EQ(Neuve(banc).Ecart(bande), 0);
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PROFIL_1);
    ASSERT_EQ(BddCourante.Elements.Nombre(), 1);
    EXPECT_EQ(BddCourante.Elements.Premier()->Type, TypeProfil);
    EXPECT_EQ(DerniereLigne(), "-100 -50 0 100 -50 0 0 80 0 -100 -50 0 ");
    EXPECT_EQ(banc.Image().Ecart(bande), 0);
    banc.Zone.AnnuleAction();
    EXPECT_EQ(banc.Image().Ecart(propre), 0);

    // The next one starts anew, about its own centre; it is filled once it is added.
    Trait rempli;
    rempli.Remplissage = true;
    rempli.CouleurFond = Gdk::Color("yellow");
    banc.Zone.Outils.Protos.SetTrait(rempli);
    Clics(banc, {{10, 10}, {20, 10}, {20, 40}, {80, 40}});
    EXPECT_EQ(banc.Image().Pixel(330, 170), 0xffffffu);
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(DerniereLigne(), "10 0 0 10 30 0 70 30 0 ");
    EXPECT_EQ(banc.Image().Pixel(330, 170), 0xffff00u);
}

TEST(Profil, FinSansAssezDeSommets) {
    Banc banc;
    const Capture propre = Neuve(banc);
    banc.Zone.Outils.Entre(ETAT_PROFIL_1);
    banc.Souris.Touche(GDK_End);
    Clics(banc, {{0, 0}});
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PROFIL_2) << "End counts in the open ring only";
    Clics(banc, {{10, 0}});
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PROFIL_1);
    Clics(banc, {{0, 0}, {10, 0}, {10, 0}});
    banc.Souris.Touche(GDK_End);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0) << "one point is no profile";
    EXPECT_EQ(banc.Image().Ecart(propre), 0);
}

TEST(Profil, EchapEtZoomEnCoursDeRoute) {
    Banc banc;
    BddCourante.Ajoute(EltSegment({-200, -100}, {200, 100}, 0));
    const Capture propre = Neuve(banc);
    banc.Zone.Outils.Entre(ETAT_PROFIL_1);
    Clics(banc, {{0, 0}, {-60, 30}, {40, 30}});
    banc.Souris.BougeA({40, 0});
    banc.Souris.Tourne(340, 200, GDK_SCROLL_UP);
    // Two pixels a unit about (40, 0), which came to the centre; the pointer stays at (60, 0).
    const Capture zoom = banc.Image();
    EXPECT_EQ(zoom.Pixel(150, 140), 0x000000u) << "the chain at (-35, 30)";
    EXPECT_EQ(zoom.Pixel(320, 170), 0x000000u) << "the link in progress at (50, 15)";
    EXPECT_EQ(Neuve(banc).Ecart(zoom), 0);
    banc.Zone.ZoomInitAction();
    banc.Souris.Touche(GDK_Escape);
    EXPECT_EQ(banc.Image().Ecart(propre), 0);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
}

TEST(ProfilElt, SuitLesElementsDansLesDeuxSens) {
    for (const bool horaire : {true, false}) {
        Banc banc;
        PoseRainure();
        const Capture elements = Neuve(banc);
        banc.Zone.Outils.Entre(ETAT_PROFIL_ELT_1);
        Clics(banc, {{0, 0}, {-50, 20}});
        if (horaire)
            Clics(banc, {{0, 20}, {70, 0}, {0, -20}, {-70, 0}});
        else
            Clics(banc, {{-70, 0}, {200, 150}, {0, -20}, {150, 25}, {70, 0}, {0, 20}});
        // The last click shows at once what it placed: the inverse where it follows an element.
        const Capture chaine = banc.Image();
        EXPECT_EQ(chaine.Pixel(370, 200), 0xffffffu);
        banc.Souris.BougeA(horaire ? PointVek(-70, 0) : PointVek(0, 20));
        EXPECT_EQ(banc.Image().Ecart(chaine), 0);
        banc.Souris.Touche(GDK_End);
        EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_PROFIL_ELT_1);
        EXPECT_EQ(DerniereLigne(), horaire
                                       ? "-50 20 0 50 20 0 50 -20 0R20  -50 -20 0 -50 20 0R20  "
                                       : "-50 20 0 -50 -20 0R-20  50 -20 0 50 20 0R-20  -50 20 0 ");
        // The profile runs on the very pixels of the elements; only its cross is new.
        EXPECT_EQ(banc.Image().Ecart(elements), 21);
    }
}
