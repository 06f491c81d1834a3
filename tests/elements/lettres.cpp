#include "elements/lettres.h"

#include <cairomm/context.h>
#include <gdk/gdk.h>
#include <gtest/gtest.h>
#include <pango/pangocairo.h>

#include <cmath>
#include <functional>
#include <vector>

namespace {

/// How much ink each column and each row of a picture takes.
std::vector<double> Peinte(const std::function<void(cairo_t*)>& peint) {
    constexpr int largeur = 1600, hauteur = 160;
    const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_A8, largeur, hauteur);
    peint(Cairo::Context::create(surface)->cobj());
    surface->flush();
    const unsigned char* const octets = surface->get_data();
    const int pas = surface->get_stride();
    std::vector<double> encre(largeur + hauteur);
    for (int i = 0; i < largeur * hauteur; ++i) {
        const int x = i % largeur, y = i / largeur;
        const double noir = octets[y * pas + x] / 255.0;
        encre[static_cast<std::size_t>(x)] += noir;
        encre[static_cast<std::size_t>(largeur + y)] += noir;
    }
    return encre;
}

}  // namespace

TEST(Lettres, CommeDesPolicesDeChaqueTaille) {
    PangoContext* contexte = gdk_pango_context_get_for_screen(gdk_screen_get_default());
    PangoLayout* mise = pango_layout_new(contexte);
    int mesures = 0, decalees = 0;
    for (double taille = 2.0; taille < 75.0; taille *= 1.0871)
        for (const char* police : {"Arial", "Nice", "Serif Italic"}) {
            SCOPED_TRACE(testing::Message() << police << ' ' << taille);
            const TexteEcran texte{"Bride à Ø 45 WAVE", police, taille, 0, TexteEcran::Debut, {}};
            const double cadratin = CadratinDe(taille);
            RegleMiseEnPage(mise, texte, cadratin);
            int w = 0, h = 0;
            pango_layout_get_pixel_size(mise, &w, &h);
            const auto lettres = Lettres::De(texte, cadratin);
            EXPECT_EQ(lettres->Montee(cadratin) + lettres->Descente(cadratin), h);
            EXPECT_EQ(lettres->Montee(cadratin), PANGO_PIXELS(pango_layout_get_baseline(mise)));
            EXPECT_NEAR(lettres->Largeur(cadratin), w, 1);
            ++mesures;
            decalees += lettres->Largeur(cadratin) != w;
            // The same letters at any size that can be read.
            EXPECT_TRUE(cadratin < 8.0 || Lettres::De(texte, cadratin * 1.7) == lettres);

            const auto voulue = Peinte([mise](cairo_t* cr) { pango_cairo_show_layout(cr, mise); });
            const auto vue =
                Peinte([&](cairo_t* cr) { lettres->Peint(cr, cadratin, taille > 60.0); });
            double total = 0.0, ecart = 0.0;
            for (std::size_t i = 0; i < vue.size(); ++i) {
                total += voulue[i];
                ecart += std::abs(vue[i] - voulue[i]);
            }
            EXPECT_LT(ecart, 0.15 * total);
        }
    EXPECT_LT(decalees, mesures / 20);
    g_object_unref(mise);
    g_object_unref(contexte);
}
