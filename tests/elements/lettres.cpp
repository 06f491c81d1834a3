#include "elements/lettres.h"

#include <gdk/gdk.h>
#include <gtest/gtest.h>
#include <pango/pangocairo.h>

#include <cmath>
#include <functional>
#include <vector>

namespace {

/// How much ink each column and each row of a picture takes.
using Encre = std::vector<double>;

Encre Peinte(const std::function<void(cairo_t*)>& peint) {
    constexpr int largeur = 1600, hauteur = 160;
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, largeur, hauteur);
    cairo_t* cr = cairo_create(surface);
    peint(cr);
    cairo_destroy(cr);
    cairo_surface_flush(surface);
    Encre encre(largeur + hauteur);
    for (int y = 0; y < hauteur; ++y)
        for (int x = 0; x < largeur; ++x) {
            const double noir = cairo_image_surface_get_data(
                surface)[y * cairo_image_surface_get_stride(surface) + x];
            encre[static_cast<std::size_t>(x)] += noir / 255.0;
            encre[static_cast<std::size_t>(largeur + y)] += noir / 255.0;
        }
    cairo_surface_destroy(surface);
    return encre;
}

}  // namespace

TEST(Lettres, CommeDesPolicesDeChaqueTaille) {
    PangoContext* contexte = gdk_pango_context_get_for_screen(gdk_screen_get_default());
    PangoLayout* mise = pango_layout_new(contexte);
    int mesures = 0, decalees = 0;
    for (double taille = 2.0; taille < 75.0; taille *= 1.0371)
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

            const Encre voulue = Peinte([mise](cairo_t* cr) { pango_cairo_show_layout(cr, mise); });
            const Encre vue =
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
