// The sheet on paper: where things come to lie, in which colours, and the PDF.

#include <cairomm/surface.h>
#include <gio/gio.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

#include "commun/record.h"
#include "elements/angles.h"
#include "elements/eltcote.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltpoint.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "exchange/miseenpagedialog.h"
#include "exchange/printformoperation.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/eltimage.h"
#include "model/feuille.h"

namespace {

constexpr int Largeur = 105, Hauteur = 148;  ///< Millimetres: a small page.
constexpr int ParMm = 10;

/// An empty drawing and the sheet as the program starts with, for one test.
struct Presse {
    Presse() { Remet(); }
    ~Presse() { Remet(); }

    static void Remet() {
        BddCourante.Vide();
        BddCourante.SetCalqueAffiche(-1);
        EchelleCourante.ZoomInit();
        FeuilleCourante.SetEchelle(1.0);
        FeuilleCourante.OrigineFeuille = PointVek();
        FeuilleCourante.ImpressionNoir = false;
        FeuilleCourante.ChargeCartouche("");
    }
};

/// What came out of the press, in tenths of a millimetre from the upper left corner.
class Epreuve {
  public:
    Epreuve()
        : Image(
              Cairo::ImageSurface::create(Cairo::FORMAT_RGB24, Largeur * ParMm, Hauteur * ParMm)) {
        const auto contexte = Cairo::Context::create(Image);
        contexte->set_source_rgb(1.0, 1.0, 1.0);
        contexte->paint();
        FeuilleCourante.Imprime(contexte, Largeur * ParMm, Hauteur * ParMm, ParMm);
        Image->flush();
    }

    unsigned Vu(int x, int y) const {
        const auto* ligne =
            reinterpret_cast<const guint32*>(Image->get_data() + y * Image->get_stride());
        return ligne[x] & 0xffffff;
    }

    /// Whether there is something other than paper within two tenths of a millimetre.
    bool Encre(double xMm, double yMm) const {
        const int x = static_cast<int>(xMm * ParMm), y = static_cast<int>(yMm * ParMm);
        for (int j = y - 2; j <= y + 2; ++j)
            for (int i = x - 2; i <= x + 2; ++i)
                if (Vu(i, j) != 0xffffff) return true;
        return false;
    }

  private:
    Cairo::RefPtr<Cairo::ImageSurface> Image;
};

template <class Elt>
Elt& Pose(std::unique_ptr<Elt> elt) {
    return static_cast<Elt&>(*BddCourante.AjouteFin(std::move(elt)));
}

void PoseSegment(const PointVek& a, const PointVek& b) {
    Pose(std::make_unique<EltSegment>(a, b, 0));
}

/// What paints the page of a PDF.
std::string Page(const std::string& pdf) {
    const std::size_t debut = pdf.find("stream\n") + 7;
    char page[4096];
    gsize lus = 0, ecrits = 0;
    GZlibDecompressor* zlib = g_zlib_decompressor_new(G_ZLIB_COMPRESSOR_FORMAT_ZLIB);
    g_converter_convert(G_CONVERTER(zlib), pdf.data() + debut, pdf.size() - debut, page,
                        sizeof page, G_CONVERTER_NO_FLAGS, &lus, &ecrits, nullptr);
    g_object_unref(zlib);
    return std::string(page, ecrits);
}

}  // namespace

TEST(Impression, ALEchelleDepuisLeCoinDeLaFeuille) {
    const Presse presse;
    PoseSegment({100, -40}, {200, -40});
    FeuilleCourante.SetEchelle(0.5);
    FeuilleCourante.SetEchelle(0.0);
    FeuilleCourante.OrigineFeuille = {60, 20};
    // The view on the screen plays no part.
    EchelleCourante.ZoomPlusEn({1000, 1000});
    const Epreuve epreuve;
    // (100 - 60) / 2 = 20 mm from the left, (20 + 40) / 2 = 30 mm down, 50 mm long.
    EXPECT_TRUE(epreuve.Encre(20, 30));
    EXPECT_TRUE(epreuve.Encre(70, 30));
    EXPECT_FALSE(epreuve.Encre(19.5, 30));
    EXPECT_FALSE(epreuve.Encre(70.5, 30));
    EXPECT_FALSE(epreuve.Encre(45, 31));
    EXPECT_EQ(EchelleCourante.Facteur, 2.0);
    EXPECT_EQ(EchelleCourante.Origine.x, 1000.0);
}

TEST(Impression, GroupesImagesCalquesEtCartouche) {
    const Presse presse;
    const std::string nom = std::string(getenv("HOME")) + "/cartouche.vek";
    BddCourante.AjouteFin(std::make_unique<EltSegment>(PointVek(10, -10), PointVek(30, -10), 0));
    std::ofstream(nom) << BddCourante.SauveTexte();
    BddCourante.Vide();

    BDDGeoClipboard contenu;
    contenu.AjouteFin(std::make_unique<EltSegment>(PointVek(0, 0), PointVek(20, 0), 0));
    BddCourante.CollerCommeBDD(contenu, {20, -60}, "g");
    auto& image = Pose(std::make_unique<EltImage>());
    image.SetIdentificateur("g");
    image.Place({120, -160});
    image.Angle = Pi / 2;
    image.Agrandissement = 2.0;
    PoseSegment({40, -200}, {60, -200});
    BddCourante.Elements.Premier()->Calque = 0;
    FeuilleCourante.ChargeCartouche(nom);
    FeuilleCourante.SetEchelle(0.5);
    FeuilleCourante.OrigineFeuille = {20, -20};
    const Epreuve epreuve;
    // The title block in its own millimetres from the corner of the sheet.
    EXPECT_TRUE(epreuve.Encre(10, 10));
    EXPECT_TRUE(epreuve.Encre(30, 10));
    EXPECT_FALSE(epreuve.Encre(31, 10));
    // The image at 50, 70: 20 units doubled and turned are 20 mm upward. It has no marker.
    EXPECT_TRUE(epreuve.Encre(50, 70));
    EXPECT_TRUE(epreuve.Encre(50, 50));
    EXPECT_FALSE(epreuve.Encre(50, 49));
    EXPECT_FALSE(epreuve.Encre(50.8, 70));
    EXPECT_FALSE(epreuve.Encre(5, 20)) << "the group itself";
    EXPECT_TRUE(epreuve.Encre(15, 90));

    BddCourante.SetCalqueAffiche(3);
    EXPECT_FALSE(Epreuve().Encre(15, 90));
    EXPECT_TRUE(Epreuve().Encre(10, 10));
    FeuilleCourante.ChargeCartouche("/nulle part");
    EXPECT_FALSE(Epreuve().Encre(10, 10));
}

TEST(Impression, SurfacesHachuresEtNoir) {
    const Presse presse;
    Trait trait;
    trait.Couleur = Gdk::Color("red");
    trait.CouleurFond = Gdk::Color("blue");
    trait.Remplissage = true;
    trait.Epaisseur = 3;
    Pose(std::make_unique<EltRectangle>(PointVek(10, -10), PointVek(30, -30), 0)).Style = trait;
    // A sector that opens clockwise, from the right to below: its other quarters stay empty.
    auto& secteur = Pose(std::make_unique<EltArc>(PointVek(50, -20), 10, 0, -Pi / 2, 0));
    secteur.Style = trait;
    trait.CouleurFond = Gdk::Color("white");
    trait.Hachure = 1;
    trait.PasHachure = 40;
    trait.AngleHachure = Pi / 2;
    trait.Epaisseur = 6;
    auto& profil = Pose(std::make_unique<EltProfil>());
    profil.Debut({10, -50});
    for (const PointVek& p : {PointVek(10, -50), PointVek(40, -50), PointVek(40, -80)})
        profil.Ajoute(p);
    profil.Style = trait;
    for (const bool noir : {false, true}) {
        FeuilleCourante.ImpressionNoir = noir;
        const Epreuve epreuve;
        EXPECT_EQ(epreuve.Vu(200, 200), noir ? 0x000000u : 0x0000ffu);
        EXPECT_EQ(epreuve.Vu(100, 200), noir ? 0x000000u : 0xff0000u) << "the outline over it";
        EXPECT_EQ(epreuve.Vu(530, 230), noir ? 0x000000u : 0x0000ffu);
        EXPECT_EQ(epreuve.Vu(470, 170), 0xffffffu);
        EXPECT_EQ(epreuve.Vu(530, 170), 0xffffffu);
        // Upright lines of 6 every 40 units, in the triangle alone.
        int raies = 0;
        for (int x = 101; x < 400; ++x)
            raies += epreuve.Vu(x, 503 + (x - 100) / 4) == 0xffffff &&
                     epreuve.Vu(x + 1, 503 + (x + 1 - 100) / 4) != 0xffffff;
        EXPECT_NEAR(raies, 7, 1);
        EXPECT_EQ(epreuve.Vu(320, 560), epreuve.Vu(320, 600));
        EXPECT_EQ(epreuve.Vu(150, 700), 0xffffffu) << "outside";
    }
}

TEST(Impression, PointsTraitsFinsEtHorsDeProportion) {
    const Presse presse;
    Pose(std::make_unique<EltPoint>()).Place({20, -20});
    Pose(std::make_unique<EltDroite>(PointVek(0, -40), PointVek(1, -40), 0));
    PoseSegment({-1e9, -50}, {1e9, -50});
    Pose(std::make_unique<EltArc>(PointVek(50, -1e7), 1e7 - 60, 0, DeuxPi, 0));
    BddCourante.Elements.Premier()->Style.Epaisseur = 0;
    const Epreuve epreuve;
    EXPECT_TRUE(epreuve.Encre(20, 20));
    EXPECT_FALSE(epreuve.Encre(20.8, 20)) << "a dot and no cross";
    for (const double x : {1.0, 50.0, 104.0}) {
        EXPECT_TRUE(epreuve.Encre(x, 40)) << x;
        EXPECT_TRUE(epreuve.Encre(x, 50)) << x;
        EXPECT_TRUE(epreuve.Encre(x, 60)) << x;
        EXPECT_FALSE(epreuve.Encre(x, 45)) << x;
    }
}

TEST(Impression, PdfDUnePage) {
    const Presse presse;
    PoseSegment({10, -10}, {100, -100});
    const std::string nom = std::string(getenv("HOME")) + "/feuille.pdf";
    const auto page = Gtk::PageSetup::create();
    page->set_paper_size(Gtk::PaperSize("iso_a5"));
    page->set_orientation(Gtk::PAGE_ORIENTATION_LANDSCAPE);
    const auto ecrit = [&page](const std::string& chemin) {
        const auto operation = PrintFormOperation::create();
        operation->set_default_page_setup(page);
        return EcritPdf(operation, chemin);
    };
    ASSERT_TRUE(ecrit(nom));
    const std::string pdf = Contenu(nom);
    EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
    // 210 by 148 mm in points.
    EXPECT_NE(pdf.find("/MediaBox [ 0 0 595.275591 419.527559 ]"), std::string::npos);
    // 10 mm and 100 mm in points, from the corner of the paper.
    EXPECT_NE(Page(pdf).find(" 28.34"), std::string::npos) << Page(pdf);
    EXPECT_NE(Page(pdf).find(" 283.46"), std::string::npos) << Page(pdf);

    BddCourante.Modifie = true;
    EXPECT_FALSE(ecrit("/nulle/part.pdf"));
    EXPECT_TRUE(BddCourante.Modifie);
    EXPECT_EQ(BddCourante.Elements.Nombre(), 1);
}
