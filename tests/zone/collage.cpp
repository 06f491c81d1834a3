// Copy, cut and paste through the system clipboard, groups and their images.

#include <gtest/gtest.h>
#include <gtkmm/clipboard.h>

#include "commun/banc.h"
#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"
#include "solids/eltimage3d.h"
#include "zone/etats.h"

namespace {

void AjouteSegment(const PointVek& a, const PointVek& b) {
    BddCourante.Ajoute(EltSegment(a, b, 0));
}

void Selectionne(Banc& banc, const PointVek& a, const PointVek& b) {
    banc.Zone.Outils.Entre(ETAT_SELECTION_1);
    banc.Souris.ClicA(a);
    banc.Souris.ClicA(b);
}

void ExigeSegment(const EltGeo& elt, const PointVek& a, const PointVek& b) {
    const auto& segment = static_cast<const EltSegment&>(elt);
    EXPECT_LT(Distance(segment.Origine, a), 1e-9);
    EXPECT_LT(Distance(segment.Extremite, b), 1e-9);
}

void Colle(Banc& banc) {
    banc.Zone.Presse.Colle();
    for (int tour = 0; tour < 20 && banc.Zone.Outils.EtatCourant() != ETAT_COLLER; ++tour)
        LaisseTourner();
}

/// Gives the paste options back at the end of a test.
struct OptionsNeuves {
    ~OptionsNeuves() { BddCourante.Transforme = TransformeColle(); }
};

}  // namespace

TEST(Collage, CopierDeuxFoisPuisColler) {
    Banc banc;
    AjouteSegment({-200, 100}, {-180, 100});
    AjouteSegment({-100, 50}, {-80, 70});
    Selectionne(banc, {-210, 110}, {-170, 90});
    banc.Zone.Presse.Copie();
    Selectionne(banc, {-110, 90}, {-70, 40});
    banc.Zone.Presse.Copie();
    banc.Zone.Vue.AnnuleSelection();
    banc.Zone.Outils.Protos.SetCalque(3);
    Colle(banc);
    ASSERT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_COLLER);
    banc.Souris.BougeA({50, 0});
    const Capture bande = banc.Image();
    banc.Souris.ClicA({50, 0});
    EXPECT_EQ(banc.Image().Ecart(bande), 0);
    banc.Souris.ClicA({60, 0});
    ASSERT_EQ(BddCourante.Elements.Nombre(), 4);
    // The corner of the selection comes to the click.
    ExigeSegment(*BddCourante.Elements.Premier(), {70, -40}, {90, -20});
    EXPECT_EQ(BddCourante.Elements.Premier()->Calque, 3);
    BddCourante.Annule();
    ASSERT_EQ(BddCourante.Elements.Nombre(), 3);
    ExigeSegment(*BddCourante.Elements.Premier(), {60, -40}, {80, -20});
}

TEST(Collage, MiroirRotationEtFacteur) {
    const OptionsNeuves neuves;
    Banc banc;
    AjouteSegment({10, 20}, {30, 20});
    Selectionne(banc, {0, 40}, {50, 0});
    banc.Zone.Presse.Copie();
    TransformeColle& t = BddCourante.Transforme;
    t.Cos = 0.0;
    t.Sin = 1.0;
    t.Agrandissement = 2.0;
    banc.Zone.Presse.ChangeSymetrieX();
    for (int tour = 0; tour < 20 && banc.Zone.Outils.EtatCourant() != ETAT_COLLER; ++tour)
        LaisseTourner();
    banc.Souris.ClicA({100, 100});
    // Relative to the corner: (10, -20) to (30, -20); turned a quarter: (20, 10) to (20, 30);
    // mirrored: (20, -10) to (20, -30); doubled.
    ExigeSegment(*BddCourante.Elements.Premier(), {140, 80}, {140, 40});
}

TEST(Collage, CouperEtAnnuler) {
    Banc banc;
    for (int i = 0; i < 5; ++i)
        AjouteSegment({i * 10.0, 0}, {i * 10.0 + 5.0, 5});
    AjouteSegment({-200, 0}, {-150, 0});
    EltBDD groupe;
    groupe.Place({20, 2});
    BddCourante.AjouteFin(groupe.Clone());
    BddCourante.Modifie = false;
    Selectionne(banc, {-20, 50}, {90, -50});
    banc.Zone.Presse.Coupe();
    EXPECT_EQ(BddCourante.Elements.Nombre(), 2) << "the group and what lies outside stay";
    EXPECT_FALSE(BddCourante.Modifie);
    EXPECT_TRUE(BddCourante.Annule());
    EXPECT_EQ(BddCourante.Elements.Nombre(), 7);
}

TEST(Collage, DonneesVidesOuEtrangeres) {
    Banc banc;
    AjouteSegment({-200, 100}, {-180, 100});
    banc.Zone.Outils.Entre(ETAT_SEGMENT_1);
    Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD)->set_text("VERSION3.3");
    Colle(banc);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SEGMENT_1);
    banc.Zone.Vue.RectangleSelection.SetPoints({500, 500}, {501, 499});
    banc.Zone.Presse.Copie();
    Colle(banc);
    EXPECT_EQ(banc.Zone.Outils.EtatCourant(), ETAT_SEGMENT_1) << "an empty selection gives nothing";
}

TEST(Collage, ImageDeLaSelection) {
    Banc banc;
    AjouteSegment({-20, 0}, {20, 0});
    Selectionne(banc, {-50, 30}, {60, -40});
    banc.Zone.Vue.AnnuleSelection();
    banc.Zone.Presse.CopieBitmap();
    const auto image = Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD)->wait_for_image();
    ASSERT_TRUE(image);
    EXPECT_EQ(image->get_width(), 110);
    EXPECT_EQ(image->get_height(), 70);
    EXPECT_EQ(image->get_pixels()[30 * image->get_rowstride() + 50 * image->get_n_channels()], 0);
}

TEST(Groupes, UneImageMontreLeGroupeTourneEtAgrandi) {
    Banc banc;
    BDDGeoClipboard contenu;
    contenu.AjouteFin(std::make_unique<EltSegment>(PointVek(10, 0), PointVek(30, 0), 0));
    BddCourante.CollerCommeBDD(contenu, {-200, 100}, "ma piece");
    EltImage image;
    image.SetIdentificateur("ma piece");
    image.Place({50, -20});
    image.Angle = Pi / 2;
    image.Agrandissement = 2.0;
    BddCourante.Ajoute(image);
    banc.Zone.Vue.Redessine();
    const Capture seule = banc.Image();
    // The group at its place; its image from (50, 0) to (50, 40).
    EXPECT_EQ(seule.Pixel(300 - 200 + 20, 100), 0x000000u);
    EXPECT_EQ(seule.Pixel(350, 180), 0x000000u);
    EXPECT_EQ(seule.Pixel(350, 161), 0x000000u);
    EXPECT_EQ(seule.Pixel(350, 150), 0xffffffu);
    EXPECT_EQ(EchelleCourante.Rotation, 0.0);
    EXPECT_EQ(EchelleCourante.Agrandissement, 1.0);

    // What a paste could not show: the drawing has this group, and no other.
    BDDGeoClipboard collage;
    collage.ChargeTexte(BddCourante.SauveTexte());
    EXPECT_EQ(BddCourante.ImagesSansGroupe(collage), 0);
    for (const char* nom : {"ma_piece", "MA_PIECE", "autre", "autre"}) {
        auto dansLEspace = std::make_unique<EltImage3d>();
        dansLEspace->SetIdentificateur(nom);
        collage.AjouteDebut(std::move(dansLEspace));
    }
    EXPECT_EQ(BddCourante.ImagesSansGroupe(collage), 3);
    EXPECT_EQ(BDDGeo().ImagesSansGroupe(collage), 5);

    // Without the groups their images stay.
    banc.Zone.Vue.ChangeAfficheBDD();
    const Capture sans = banc.Image();
    EXPECT_EQ(sans.Pixel(120, 100), 0xffffffu);
    EXPECT_EQ(sans.Pixel(350, 180), 0x000000u);
    banc.Zone.Vue.ChangeAfficheBDD();

    // Saved and read back the same.
    const std::string texte = BddCourante.SauveTexte();
    EXPECT_NE(texte.find("\nma_piece\nVERSION3.3\n2\n1 1 0\n"), std::string::npos);
    BddCourante.ChargeTexte(texte);
    EXPECT_EQ(BddCourante.SauveTexte(), texte);
    EXPECT_EQ(banc.Image().Ecart(seule), 0);
}

TEST(Groupes, UnRectangleTourneAvecSonImage) {
    Banc banc;
    BDDGeoClipboard contenu;
    contenu.AjouteFin(std::make_unique<EltRectangle>(PointVek(-40, 40), PointVek(40, -40), 0));
    BddCourante.CollerCommeBDD(contenu, {-200, 100}, "carre");
    EltImage image;
    image.SetIdentificateur("carre");
    image.Place({100, 0});
    image.Angle = Pi / 4;
    BddCourante.Ajoute(image);
    banc.Zone.Vue.Redessine();
    const Capture tourne = banc.Image();
    // A corner stands where the half diagonal reaches, and the edge runs slanted to the next one.
    const auto noir = [&tourne](int x, int y) {
        for (int j = y - 1; j <= y + 1; ++j)
            if (tourne.Pixel(x, j) == 0x000000u) return true;
        return false;
    };
    EXPECT_TRUE(noir(400, 200 - 56));
    EXPECT_TRUE(noir(400 + 28, 200 - 28));
    EXPECT_FALSE(noir(400 + 40, 200 - 40));
}

TEST(Groupes, QuiSeContiennentOuSEmboitentSansFin) {
    Banc banc;
    BDDGeoClipboard contenu;
    for (int i = 0; i < 3; ++i) {
        auto image = std::make_unique<EltImage>();
        image->SetIdentificateur("soi");
        image->Place({i * 10.0, 5.0});
        image->Agrandissement = 0.9;
        contenu.AjouteFin(std::move(image));
    }
    BddCourante.CollerCommeBDD(contenu, {0, 0}, "soi");
    EltImage image;
    image.SetIdentificateur("soi");
    BddCourante.Ajoute(image);
    banc.Zone.Vue.Redessine();
    banc.Image();

    std::string texte;
    for (int i = 0; i < 10000; ++i)
        texte += "VERSION3.3\n2\n15 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n0 0 0\nx\n";
    BddCourante.ChargeTexte(texte);
    const std::string lu = BddCourante.SauveTexte();
    BddCourante.ChargeTexte(lu);
    EXPECT_EQ(BddCourante.SauveTexte(), lu);
}

TEST(Groupes, UnDeplacementNeDoublePasLeContenu) {
    Banc banc;
    BDDGeoClipboard contenu;
    contenu.AjouteFin(std::make_unique<EltSegment>(PointVek(10, 0), PointVek(30, 0), 0));
    contenu.AjouteFin(std::make_unique<EltArc>(PointVek(0, 0), 5.0, 0.0, DeuxPi, 0));
    BddCourante.CollerCommeBDD(contenu, {0, 0}, "g");
    const std::string avant = BddCourante.SauveTexte();
    for (int i = 0; i < 3; ++i) {
        banc.Zone.Outils.Entre(ETAT_MODIFIE);
        banc.Souris.ClicA({i * 20.0, 0});
        banc.Souris.ClicA({i * 20.0, 0});
        banc.Souris.ClicA({i * 20.0 + 20.0, 0});
    }
    EltGeo* groupe = BddCourante.Elements.Premier();
    EXPECT_EQ(groupe->Position.x, 60.0);
    groupe->Place({0, 0});
    EXPECT_EQ(BddCourante.SauveTexte(), avant) << "the stacking within stays as well";
    groupe->Place({60, 0});
    for (int i = 0; i < 3; ++i)
        BddCourante.Annule();
    EXPECT_EQ(BddCourante.SauveTexte(), avant);
}
