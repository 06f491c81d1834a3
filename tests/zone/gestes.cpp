// Whole gestures in a real window, seen in the drawing and in the pixels.

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include "commun/banc.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/etats.h"
#include "zone/tableetats.h"

namespace {

EltSegment* AjouteSegment(const PointVek& a, const PointVek& b) {
    return static_cast<EltSegment*>(BddCourante.Ajoute(EltSegment(a, b, 0)));
}

EltArc* AjouteCercle(const PointVek& centre, double rayon) {
    return static_cast<EltArc*>(BddCourante.Ajoute(EltArc(centre, rayon, 0.0, DeuxPi, 0)));
}

void ExigePoint(const PointVek& p, double x, double y) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
}

/// The picture after a repaint of everything from scratch.
Capture Neuve(Banc& banc) {
    banc.Zone.Vue.Redessine();
    return banc.Image();
}

}  // namespace

TEST(Table, CompleteEtCoherente) {
    for (int etat = 0; etat < NOMBRE_ETATS; ++etat)
        EXPECT_EQ(LigneDe(etat).Numero, etat);
    EXPECT_STREQ(LigneDe(ETAT_COTE_3).Invite, "Position du texte de la ĉote");
    EXPECT_STREQ(LigneDe(100).Invite, "?");
}

TEST(Modifier, DeplaceUnePoigneePuisLeTout) {
    Banc banc;
    EltSegment* segment = AjouteSegment({-100, 0}, {100, 0});
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    banc.Souris.ClicA({50, 3});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE_POINT);
    const Capture poignees = banc.Image();
    EXPECT_EQ(poignees.Pixel(195, 195), 0x000000u) << "corner of the handle at the origin";

    banc.Souris.ClicA({98, 2});
    banc.Souris.BougeA({120, 80});
    banc.Souris.ClicA({150, 60});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE);
    ExigePoint(segment->Origine, -100, 0);
    ExigePoint(segment->Extremite, 150, 60);
    ExigePoint(segment->Position, 25, 30);
    EXPECT_TRUE(BddCourante.Modifie);

    banc.Souris.ClicA({25, 30});
    banc.Souris.ClicA({25, 30});
    banc.Souris.ClicA({25, 130});
    ExigePoint(segment->Origine, -100, 100);

    // An end brought onto the other makes no segment: the drag goes on.
    banc.Souris.ClicA({-100, 100});
    banc.Souris.ClicA({-100, 100});
    banc.Souris.ClicA({150, 160});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE_POSITION);
    banc.Souris.Touche(GDK_Escape);

    banc.Zone.AnnuleAction();
    banc.Zone.AnnuleAction();
    ExigePoint(segment->Extremite, 100, 0);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
}

TEST(Modifier, SeulLeControleGaucheCopie) {
    Banc banc;
    EltArc* cercle = AjouteCercle({0, 0}, 50);
    for (const unsigned touche : {GDK_Control_L, GDK_Control_R}) {
        banc.Zone.Outils.Entre(ETAT_MODIFIE);
        banc.Souris.ClicA({0, 50});
        banc.Souris.ClicA({0, 3});
        banc.Souris.Touche(touche);
        banc.Souris.ClicA({100, 0});
        banc.Zone.ToucheRelachee();
    }
    // A menu that opens sees the release of the key in the window's place.
    banc.Souris.Touche(GDK_Control_L);
    banc.Souris.MenuDroit(0, 0);
    banc.Souris.ClicA({150, 0});
    banc.Souris.ClicA({100, 3});
    banc.Souris.ClicA({100, 0});
    ASSERT_EQ(BddCourante.Elements.Nombre(), 2);
    // The copy went to (100, 0) and left the circle; then the circle itself moved there.
    ExigePoint(cercle->Position, 100, 0);
    ExigePoint(BddCourante.Elements.Premier()->Position, 100, 0);
}

TEST(Modifier, RectangleRetourneResteOrdonne) {
    Banc banc;
    auto* rectangle =
        static_cast<EltRectangle*>(BddCourante.Ajoute(EltRectangle({-50, 40}, {50, -40}, 0)));
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    banc.Souris.ClicA({-50, 0});
    banc.Souris.ClicA({50, -40});
    banc.Souris.ClicA({-100, 90});
    ExigePoint(rectangle->Origine, -100, 90);
    ExigePoint(rectangle->Extremite, -50, 40);
}

TEST(Bandes, RienNeResteNiNeManque) {
    Banc banc;
    AjouteSegment({-200, -100}, {200, 100});
    Trait hachure;
    hachure.Remplissage = true;
    hachure.Hachure = 1;
    hachure.PasHachure = 8;
    hachure.AngleHachure = 0.6;
    hachure.Couleur = Gdk::Color("blue");
    hachure.CouleurFond = Gdk::Color("yellow");
    hachure.Epaisseur = 3;
    banc.Zone.Outils.Protos.SetTrait(hachure);
    const Capture propre = Neuve(banc);

    banc.Zone.Outils.Entre(ETAT_RECTANGLE_1);
    banc.Souris.ClicA({-100, 80});
    banc.Souris.BougeA({120, -70});
    const Capture bande = banc.Image();
    EXPECT_GT(bande.Ecart(propre), 5000);

    // A partial exposure, a whole one, a change of style: the band is as it was.
    banc.Zone.queue_draw_area(150, 100, 77, 63);
    EXPECT_EQ(banc.Image().Ecart(bande), 0);
    EXPECT_EQ(Neuve(banc).Ecart(bande), 0);
    banc.Zone.Outils.Protos.SetTrait(Trait());
    EXPECT_EQ(banc.Image().Ecart(bande), 0);

    // Leaving the tool takes the band away to the pixel, before any repaint.
    banc.Zone.Outils.Entre(ETAT_ZOOM_1);
    EXPECT_EQ(banc.Image().Ecart(propre), 0);
    EXPECT_EQ(Neuve(banc).Ecart(propre), 0);
}

TEST(Bandes, MontrentLElementTelQuIlSera) {
    Trait rempli;
    rempli.Remplissage = true;
    Trait rouge = rempli;
    rouge.Couleur = rouge.CouleurFond = Gdk::Color("red");
    rouge.Epaisseur = 8;
    Trait contraste = rempli;
    contraste.CouleurFond = Gdk::Color("yellow");
    contraste.Epaisseur = 8;
    Trait hachure = contraste;
    hachure.Hachure = 1;
    hachure.PasHachure = 7;
    hachure.AngleHachure = -0.5;
    for (const Trait& trait : {rempli, rouge, contraste, hachure})
        for (const int outil : {ETAT_RECTANGLE_1, ETAT_CERCLE_1, ETAT_DISQUE_1}) {
            Banc banc;
            banc.Zone.Outils.Protos.SetTrait(trait);
            banc.Zone.Outils.Entre(outil);
            banc.Souris.ClicA({-80, 60});
            banc.Souris.BougeA({30, -40});
            banc.Souris.BougeA({50, -50});
            const Capture bande = banc.Image();
            banc.Souris.ClicA({50, -50});
            const Capture element = banc.Image();
            if (element.Ecart(bande) == 0) continue;
            bande.Garde("remplie-bande");
            element.Garde("remplie-element");
            ADD_FAILURE() << element.Ecart(bande) << " pixels differ, tool " << outil;
        }

    // All in white on white: the band shows all the same.
    Trait blanc = hachure;
    blanc.Couleur = blanc.CouleurFond = Gdk::Color("white");
    blanc.Contour = false;
    Banc banc;
    const Capture propre = Neuve(banc);
    banc.Zone.Outils.Protos.SetTrait(blanc);
    banc.Zone.Outils.Entre(ETAT_RECTANGLE_1);
    banc.Souris.ClicA({-80, 60});
    banc.Souris.BougeA({50, -50});
    EXPECT_GT(banc.Image().Ecart(propre), 100);
    banc.Zone.Outils.RazEtat();
    EXPECT_EQ(banc.Image().Ecart(propre), 0);
}

TEST(Bandes, SuiventLaVueEtLeFond) {
    Banc banc;
    banc.Zone.Outils.Entre(ETAT_CERCLE_1);
    banc.Souris.ClicA({0, 0});
    banc.Souris.BougeA({60, 0});
    banc.Souris.Tourne(360, 200, GDK_SCROLL_UP);
    const Capture apres = banc.Image();
    // The view is centred on (60, 0) at 2 pixels a unit; the circle still runs from the centre of
    // the drawing to the pointer, which stays where it was on the screen: at (90, 0).
    EXPECT_EQ(apres.Pixel(360, 200), 0x000000u);
    EXPECT_EQ(apres.Pixel(0, 200), 0x000000u);
    EXPECT_EQ(Neuve(banc).Ecart(apres), 0);

    banc.Zone.Vue.SetFond(Gdk::Color("black"));
    const Capture noire = banc.Image();
    EXPECT_EQ(noire.Pixel(360, 200), 0xffffffu) << "a black band on black shows as white";
    banc.Zone.Outils.RazEtat();
    EXPECT_EQ(banc.Image().Ecart(Neuve(banc)), 0);
    banc.Zone.Vue.SetFond(Gdk::Color("white"));
}

TEST(Bandes, SuiventLaTailleDeLaFenetre) {
    Banc banc;
    AjouteSegment({-100, 0}, {100, 0});
    banc.Zone.Souris.Bascule(&OptionsAccrochage::Actif);
    banc.Zone.Outils.Entre(ETAT_SEGMENT_1);
    banc.Souris.ClicA({0, 50});
    banc.Souris.BougeA({97, 3});
    banc.Zone.set_size_request(600, 440);
    const Capture apres = banc.Image();
    EXPECT_EQ(apres.Ecart(Neuve(banc)), 0);
    // The pointer rests on its pixel, which now lies at (97, 23), far from the end of the segment.
    banc.Souris.Presse(397, 197);
    const auto& segment = static_cast<const EltSegment&>(*BddCourante.Elements.Premier());
    ExigePoint(segment.Extremite, 97, 23);
}

TEST(Bandes, LaPoigneeSuitLAnnulation) {
    Banc banc;
    EltSegment* premier = AjouteSegment({-100, 0}, {100, 0});
    EltSegment* second = AjouteSegment({-100, 100}, {100, 100});
    banc.Zone.Outils.Entre(ETAT_MODIFIE);
    banc.Souris.ClicA({0, 97});
    banc.Souris.ClicA({0, 100});
    banc.Souris.BougeA({30, 60});
    ASSERT_EQ(banc.Zone.Outils.EltCourant, second);
    // The element under the tool leaves the drawing: the tool starts over, nothing stays behind.
    banc.Zone.AnnuleAction();
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE);
    EXPECT_EQ(banc.Zone.Outils.EltCourant, nullptr);
    EXPECT_EQ(banc.Image().Ecart(Neuve(banc)), 0);
    banc.Souris.ClicA({30, 60});
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);

    // A drag outlives the undoing of what is not its own, and ends with that of its element.
    BddCourante.Change(*premier, EltSegment({-100, 20}, {100, 20}, 0));
    AjouteSegment({-100, -90}, {100, -90});
    banc.Souris.ClicA({100, 20});
    banc.Souris.ClicA({100, 20});
    banc.Souris.BougeA({30, 150});
    banc.Souris.Touche(GDK_Z, GDK_CONTROL_MASK | GDK_SHIFT_MASK);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2) << "with Shift the key means nothing";
    ExigePoint(EchelleCourante.Origine, 0, 0);
    banc.Souris.Touche(GDK_z, GDK_CONTROL_MASK);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
    ASSERT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE_POSITION);
    for (Gtk::MenuItem* entree : banc.Souris.MenuDroit(330, 50))
        if (NomAction(*entree) == "Prop") entree->activate();
    ASSERT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE_POSITION) << "nothing was there";
    EXPECT_EQ(banc.Image().Ecart(Neuve(banc)), 0);
    banc.Souris.Touche(GDK_z, GDK_CONTROL_MASK);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_MODIFIE);
    ExigePoint(premier->Extremite, 100, 0);
}

TEST(Echecs, UneConstructionImpossibleNAjouteRien) {
    Banc banc;
    AjouteCercle({0, 0}, 100);
    AjouteCercle({0, 0}, 60);
    const Capture propre = Neuve(banc);
    banc.Zone.Outils.Entre(ETAT_SEGMENT_AA_1);
    banc.Souris.ClicA({100, 0});
    banc.Souris.ClicA({100, 0});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SEGMENT_AA_2)
        << "the same arc again is no second arc";
    banc.Souris.ClicA({60, 0});
    banc.Souris.BougeA({0, 30});
    EXPECT_EQ(banc.Image().Ecart(propre), 0) << "no band where a click would add nothing";
    banc.Souris.ClicA({0, 30});
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SEGMENT_AA_1);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2);

    // Null elements are refused.
    banc.Zone.Outils.Entre(ETAT_SEGMENT_1);
    banc.Souris.ClicA({10, 10});
    banc.Souris.ClicA({10, 10});
    banc.Zone.Outils.Entre(ETAT_CERCLE_1);
    banc.Souris.ClicA({10, 10});
    banc.Souris.ClicA({10, 10});
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2);

    // A dialog given up keeps the former tool.
    RepondSaisie("33", Gtk::RESPONSE_CANCEL);
    banc.Zone.Outils.Entre(ETAT_CERCLE_RAYON);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_CERCLE_1);
    EXPECT_EQ(banc.Zone.Outils.Rayon, 10.0);
}

TEST(Clics, SeulesLesPressesSimplesComptent) {
    Banc banc;
    banc.Zone.Outils.Entre(ETAT_SEGMENT_1);
    banc.Souris.Presse(300, 200, 1, GDK_BUTTON_PRESS);
    banc.Souris.Presse(300, 200, 1, GDK_2BUTTON_PRESS);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SEGMENT_2);
    banc.Souris.Presse(400, 200, 2);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SEGMENT_2);
    banc.Souris.Touche(GDK_Escape);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_REPOS);
    banc.Souris.Presse(300, 200);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
}

TEST(Accrochage, LeRepereBatLaGrille) {
    Banc banc;
    AjouteSegment({-103, 0}, {103, 0});
    AjouteSegment({3, -100}, {3, 100});
    banc.Zone.Vue.ChangeGrille();
    banc.Zone.Souris.Bascule(&OptionsAccrochage::Actif);
    banc.Zone.Outils.Entre(ETAT_SEGMENT_1);
    banc.Souris.BougeA({8, 4});
    const Capture repere = banc.Image();
    EXPECT_EQ(repere.Pixel(305, 202) & 0xff0000, 0xff0000u) << "the marker on the crossing is red";
    banc.Souris.ClicA({8, 4});
    banc.Souris.BougeA({54, 66});
    banc.Souris.ClicA({54, 66});
    const auto& segment = static_cast<const EltSegment&>(*BddCourante.Elements.Premier());
    ExigePoint(segment.Origine, 3, 0);
    ExigePoint(segment.Extremite, 50, 70);
}

TEST(Accrochage, ChoixDuPoint) {
    Banc banc;
    AjouteSegment({-100, 0}, {100, 0});
    AjouteSegment({-100, 8}, {60, 8});
    OptionsAccrochage options;
    EXPECT_FALSE(ChercheAccroche(BddCourante, {98, 1}, options)) << "snapping is off";
    options.Actif = true;
    // Parallels do not cross: the special point of the nearest one.
    ExigePoint(ChercheAccroche(BddCourante, {98, 1}, options)->Point, 100, 0);
    EXPECT_FALSE(ChercheAccroche(BddCourante, {50, 1}, options)) << "too far from any end";
    options.Extremites = false;
    EXPECT_FALSE(ChercheAccroche(BddCourante, {98, 1}, options));
    // Without crossings the second nearest may give the nearer end.
    options.Extremites = true;
    options.Intersections = false;
    ExigePoint(ChercheAccroche(BddCourante, {61, 3}, options)->Point, 60, 8);

    // A circle and a line: the nearer crossing, halfway the second.
    options.Intersections = true;
    BddCourante.Vide();
    AjouteSegment({-100, 0}, {100, 0});
    AjouteCercle({0, 0}, 4);
    ExigePoint(ChercheAccroche(BddCourante, {-5, 1}, options)->Point, -4, 0);
    ExigePoint(ChercheAccroche(BddCourante, {0, 4.5}, options)->Point, 4, 0);
}

TEST(Vue, TouchesMoletteEtZooms) {
    Banc banc;
    AjouteSegment({-100, 0}, {100, 0});
    banc.Souris.Bouge(400.4, 150.0);
    ExigePoint(banc.Zone.Souris.Position(), 100, 50);
    banc.Souris.Tourne(400, 150, GDK_SCROLL_UP);
    EXPECT_EQ(EchelleCourante.Facteur, 2.0);
    ExigePoint(EchelleCourante.Origine, 100, 50);
    ExigePoint(banc.Zone.Souris.Position(), 150, 75);  // It follows the view at rest.
    banc.Souris.Touche(GDK_Up);
    banc.Souris.Touche(GDK_KP_Right);
    ExigePoint(EchelleCourante.Origine, 105, 55);
    banc.Souris.Touche(GDK_Shift_L);
    banc.Souris.Tourne(400, 150, GDK_SCROLL_DOWN);
    banc.Zone.ToucheRelachee();
    ExigePoint(EchelleCourante.Origine, 100, 55);
    banc.Zone.ZoomInitAction();

    // Drawn in any direction, the larger side of the rectangle takes the width of the area.
    for (const PointVek& coin : {PointVek(30, 40), PointVek(-30, 40), PointVek(30, -40)}) {
        banc.Zone.ZoomInitAction();
        banc.Zone.Outils.Entre(ETAT_ZOOM_1);
        banc.Souris.ClicA({0, 0});
        banc.Souris.ClicA(coin);
        EXPECT_EQ(EchelleCourante.Facteur, 15.0);
        ExigePoint(EchelleCourante.Origine, coin.x / 2, coin.y / 2);
    }
    banc.Zone.ZoomInitAction();
}

TEST(Commandes, SupprimerPilerAnnuler) {
    Banc banc;
    EltSegment* dessous = AjouteSegment({-100, 0}, {100, 0});
    EltSegment* dessus = AjouteSegment({-100, 0}, {100, 0});
    EXPECT_EQ(BddCourante.Cherche({0, 0}), dessus) << "the newest stands at the head";
    BddCourante.Avant({0, 0});
    EXPECT_EQ(BddCourante.Cherche({0, 0}), dessous);
    banc.Zone.Outils.Entre(ETAT_SUPPRIME);
    banc.Souris.ClicA({0, 2});
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
    EXPECT_EQ(BddCourante.Elements.Premier(), dessus);
    banc.Souris.BougeA({0, 2});
    banc.Souris.Touche(GDK_KP_Delete);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
    banc.Zone.AnnuleAction();
    banc.Zone.AnnuleAction();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2);

    // The keys of the popup menu open it where the pointer is.
    for (const auto& [touche, modificateurs] :
         {std::pair{GDK_Menu, 0}, {GDK_F10, 1}, {GDK_F10, 0}}) {
        banc.Souris.Touche(touche, modificateurs);
        const auto entrees = banc.Souris.FermeMenu();
        const bool ouvert = touche == GDK_Menu || modificateurs == GDK_SHIFT_MASK;
        ASSERT_EQ(entrees.size(), ouvert ? 4u : 0u) << touche;
        if (ouvert) entrees.front()->activate();
        LaisseTourner();
    }
    EXPECT_EQ(BddCourante.Elements.Nombre(), 0);
}

TEST(Selection, ResteJusquACeQuOnLAnnule) {
    Banc banc;
    EltSegment* dedans = AjouteSegment({-20, 0}, {20, 0});
    EltSegment* dehors = AjouteSegment({-20, 90}, {20, 90});
    banc.Zone.Outils.Entre(ETAT_SELECTION_1);
    banc.Souris.ClicA({50, -50});
    banc.Souris.BougeA({-30, 30});
    banc.Souris.ClicA({-50, 50});
    EXPECT_TRUE(banc.Zone.Vue.SelectionVisible);
    EXPECT_EQ(banc.Image().Pixel(250, 200), 0x0000ffu);
    Trait rouge;
    rouge.Couleur = Gdk::Color("red");
    banc.Zone.Outils.Protos.SetTrait(rouge);
    banc.Zone.ZoneTrait();
    EXPECT_EQ(dedans->Style.Couleur, Gdk::Color("red"));
    EXPECT_EQ(dehors->Style.Couleur, Gdk::Color("black"));
    banc.Zone.Vue.AnnuleSelection();
    EXPECT_EQ(banc.Image().Pixel(250, 200), 0xffffffu);
}
