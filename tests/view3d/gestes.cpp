// Whole gestures in the 3D window: keys, mouse, menus, and what they do to the drawing.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include <cmath>

#include "model/bddgeo.h"
#include "scene.h"
#include "solids/elt3d.h"
#include "solids/eltpave.h"

namespace {

/// A plate from z = 0 to 10 about (20, 10): its position is picked at z = 0.
Solide Plaque() {
    return {{Forme::Pave, {20.0, 10.0, 0.0}, 30.0, 15.0, 10.0, 1}, {}};
}

/// The pixel of the front view where a point at z = 0 shows.
PointVek Pixel(const PointVek& p) {
    const double unite = 600.0 / (2.0 * std::tan(22.5 * std::acos(-1.0) / 180.0) * 300.0);
    return {300.0 + p.x * unite, 300.0 - p.y * unite};
}

void BougeA(Banc3D& banc, const PointVek& p) {
    banc.Bouge(Pixel(p).x, Pixel(p).y);
}

void CliqueA(Banc3D& banc, const PointVek& p) {
    BougeA(banc, p);
    banc.Clique(Pixel(p).x, Pixel(p).y);
}

/// Clicks on the element at its position and chooses an edit.
void Edite(Banc3D& banc, const EltGeo& elt, const std::string& action) {
    CliqueA(banc, elt.Position);
    banc.Choisit(action);
}

#define EXPECT_PRES(p, abscisse, ordonnee, cote) \
    EXPECT_LT(Norme((p)-PointVek(abscisse, ordonnee, cote)), 1e-3)

}  // namespace

TEST(Gestes3D, LaSphereSuitLaSouris) {
    Banc3D banc;
    for (const PointVek& pixel : {PointVek(100.0, 80.0), PointVek(450.0, 520.0)}) {
        banc.Bouge(pixel.x, pixel.y);
        const Capture image = banc.Image();
        EXPECT_EQ(Teinte(image.Pixel(static_cast<int>(pixel.x), static_cast<int>(pixel.y))), 7);
        EXPECT_EQ(Teinte(image.Pixel(static_cast<int>(pixel.x) + 5, static_cast<int>(pixel.y))), 0);
        // Whatever its depth, and however the camera moves.
        for (int i = 0; i < 20; ++i)
            banc.Roule(GDK_SCROLL_DOWN);
        banc.Bouge(pixel.x, pixel.y);
        banc.Frappe(GDK_Right, GDK_CONTROL_MASK);
        banc.Frappe(GDK_Page_Up, GDK_SHIFT_MASK);
        const Capture apres = banc.Image();
        EXPECT_EQ(Teinte(apres.Pixel(static_cast<int>(pixel.x), static_cast<int>(pixel.y))), 7);
        banc.Frappe(GDK_f);
    }
}

TEST(Gestes3D, DeplaceSansAnnulation) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    BddCourante.Modifie = false;
    // A click counts where it is, even when the window came under a mouse that did not move.
    banc.Bouge(5.0, 5.0);
    banc.Clique(Pixel(pave->Position).x, Pixel(pave->Position).y);
    banc.Choisit("Deplace");
    BougeA(banc, {0.0, 0.0});
    EXPECT_PRES(pave->Position, 20.0, 10.0, 0.0);
    CliqueA(banc, {-40.0, 25.0});
    EXPECT_PRES(pave->Position, -40.0, 25.0, 0.0);
    EXPECT_TRUE(BddCourante.Modifie);
    EXPECT_EQ(banc.Editions, 1);
    // The newest record is that of the addition.
    BddCourante.Annule();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
}

TEST(Gestes3D, TourneAvecAnnulation) {
    const struct {
        const char* Action;
        double Elt3d::*Angle;
    } cas[] = {{"Alpha", &Elt3d::alpha}, {"Beta", &Elt3d::beta}, {"Gamma", &Elt3d::gamma}};
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    for (const auto& [action, angle] : cas) {
        Edite(banc, *pave, action);
        CliqueA(banc, pave->Position + PointVek(30.0, 30.0));
        EXPECT_NEAR(pave->GetElt3d()->*angle, 45.0, 1e-3) << action;
        EXPECT_TRUE(BddCourante.Annule());
        EXPECT_EQ(pave->GetElt3d()->*angle, 0.0) << action;
    }
    EXPECT_EQ(banc.Editions, 3);
}

TEST(Gestes3D, DirectionVersLePointeur) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    pave->GetElt3d()->alpha = 30.0;
    Edite(banc, *pave, "Direction");
    CliqueA(banc, pave->Position + PointVek(40.0, -30.0));
    const PointVek axe = pave->GetElt3d()->PointAxe();
    EXPECT_PRES(axe, 8.0, -6.0, 0.0);
    BddCourante.Annule();
    EXPECT_PRES(pave->GetElt3d()->PointAxe(), 0.0, 0.0, 10.0);
}

TEST(Gestes3D, AxesDuMenu) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    const struct {
        const char* Action;
        PointVek Axe;
    } cas[] = {{"AxeX", {10.0, 0.0, 0.0}}, {"AxeY", {0.0, 10.0, 0.0}}, {"AxeZ", {0.0, 0.0, 10.0}}};
    for (const auto& [action, axe] : cas) {
        Edite(banc, *pave, action);
        EXPECT_PRES(pave->GetElt3d()->PointAxe(), axe.x, axe.y, axe.z) << action;
    }
    BddCourante.Annule();
    EXPECT_PRES(pave->GetElt3d()->PointAxe(), 0.0, 10.0, 0.0);
}

TEST(Gestes3D, DeformeUnSommet) {
    Banc3D banc;
    auto* pave = static_cast<EltPave*>(banc.Ajoute(Plaque()));
    Edite(banc, *pave, "Deforme");
    CliqueA(banc, {50.0, -5.0});
    CliqueA(banc, {70.0, -15.0});
    EXPECT_PRES(pave->Coins().BasDroite, 70.0, -15.0, 0.0);
    EXPECT_PRES(pave->Coins().HautGauche, -10.0, 25.0, 0.0);
    EXPECT_EQ(banc.Editions, 1);
}

TEST(Gestes3D, EchapRendLeDessinIntact) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    banc.Bouge(0.0, 0.0);
    const Capture avant = banc.Image();
    Edite(banc, *pave, "Deplace");
    BougeA(banc, {-50.0, -50.0});
    EXPECT_GT(banc.Image().Ecart(avant), 100);
    banc.Frappe(GDK_Escape);
    banc.Bouge(0.0, 0.0);
    EXPECT_EQ(banc.Image().Ecart(avant), 0);
    EXPECT_PRES(pave->Position, 20.0, 10.0, 0.0);
    EXPECT_EQ(banc.Editions, 0);
    // A click is a choice again.
    CliqueA(banc, {-80.0, -80.0});
    EXPECT_TRUE(banc.MenuOuvert("VueFace"));
}

TEST(Gestes3D, PropDialogue) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    RepondDialogue(Gtk::RESPONSE_CANCEL);
    Edite(banc, *pave, "Prop");
    EXPECT_EQ(banc.Editions, 0);
    RepondDialogue(Gtk::RESPONSE_OK);
    Edite(banc, *pave, "Prop");
    EXPECT_EQ(banc.Editions, 1);
    // The record of the dialog that was accepted, then that of the addition.
    BddCourante.Annule();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
    BddCourante.Annule();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
}

TEST(Gestes3D, CeQuiPartEstLache) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    Edite(banc, *pave, "Deplace");
    BddCourante.Annule();
    banc.Image();
    CliqueA(banc, {0.0, 0.0});
    EXPECT_TRUE(banc.MenuOuvert("VueFace"));
    pave = banc.Ajoute(Plaque());
    Edite(banc, *pave, "Alpha");
    BddCourante.Vide();
    CliqueA(banc, {0.0, 0.0});
    EXPECT_TRUE(banc.MenuOuvert("VueFace"));
    EXPECT_EQ(banc.Editions, 0);
}

TEST(Gestes3D, AccrocheUnAutreElement) {
    Banc3D banc;
    EltGeo* pave = banc.Ajoute(Plaque());
    EltGeo* autre = banc.Ajoute({{Forme::Pave, {-60.0, -40.0, 0.0}, 10.0, 10.0, 20.0, 2}, {}});
    banc.Frappe(GDK_a);
    Edite(banc, *pave, "Deplace");
    // Near a corner of the other one: the marker takes the click.
    CliqueA(banc, autre->Position + PointVek(12.0, 11.0));
    EXPECT_PRES(pave->Position, -50.0, -30.0, 0.0);
}

TEST(Gestes3D, LumieresEtTouches) {
    Banc3D banc;
    banc.Ajoute(Plaque());
    banc.Bouge(10.0, 10.0);
    const Capture jour = banc.Image();
    const PointVek p = Pixel({30.0, 10.0});
    const auto clarte = [&](const Capture& image) {
        return image.Pixel(static_cast<int>(p.x), static_cast<int>(p.y)) >> 16;
    };
    for (int i = 0; i < 8; ++i)
        banc.Frappe(GDK_J);
    EXPECT_LT(clarte(banc.Image()), clarte(jour) / 2);
    for (int i = 0; i < 10; ++i)
        banc.Frappe(GDK_j);
    EXPECT_EQ(banc.Image().Ecart(jour), 0);
    // The menu puts light 0 out; lit again, it is placed by the next click.
    banc.Clique(10.0, 10.0);
    banc.Choisit("Lum0");
    EXPECT_LT(clarte(banc.Image()), clarte(jour) / 2);
    banc.Clique(10.0, 10.0);
    banc.Choisit("Lum0");
    banc.Clique(10.0, 10.0);
    banc.Clique(10.0, 10.0);
    EXPECT_TRUE(banc.MenuOuvert("Lum0"));
}

TEST(Gestes3D, MolettesEtBornes) {
    Banc3D banc;
    banc.Bouge(300.0, 300.0);
    // Neither far away nor up close does the pointer leave for good.
    for (const GdkScrollDirection sens : {GDK_SCROLL_UP, GDK_SCROLL_DOWN})
        for (int i = 0; i < 2000; ++i)
            banc.Roule(sens);
    for (int i = 0; i < 100; ++i)
        banc.Frappe(GDK_P);
    banc.Bouge(1e300, -1e300);
    banc.Bouge(HUGE_VAL, 0.0);
    for (int i = 0; i < 100; ++i)
        banc.Frappe(GDK_p);
    banc.Frappe(GDK_z);
    banc.Bouge(200.0, 200.0);
    EltGeo* pave = banc.Ajoute(Plaque());
    banc.Frappe(GDK_f);
    for (int i = 0; i < 400; ++i)
        banc.Roule(GDK_SCROLL_UP);
    BougeA(banc, pave->Position);
    banc.Frappe(GDK_z);
    EXPECT_EQ(Teinte(banc.Image().Pixel(200, 200)), 0);
}

TEST(Gestes3D, FinCacheEtRetrouve) {
    Banc3D banc;
    banc.Ajoute(Plaque());
    banc.Regarde(0, 25, 35);
    const Capture avant = banc.Image();
    banc.Frappe(GDK_End);
    EXPECT_FALSE(banc.Fenetre.get_visible());
    banc.Fenetre.show();
    EXPECT_EQ(banc.Image().Ecart(avant), 0);
}
