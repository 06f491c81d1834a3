#include "elements/lettres.h"

#include <gdk/gdk.h>
#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

namespace {

/// More than this many characters reach beyond any screen.
constexpr std::size_t CaracteresMax = 4000;

/// About what is remembered at most, in bytes, before all is forgotten; what a text takes, and
/// each of its letters.
constexpr std::size_t OctetsMax = 32'000'000, OctetsTexte = 400, OctetsLettre = 24;

/// Steps of the sizes at which letters are painted, and up to where they go. The pictures of
/// letters are made once for each of these, and not for every size: a drawing may have texts of as
/// many heights as it has texts. Beyond, the steps are the finest that the font engine knows.
/// Wherever letters are painted, they stand where their own size puts them.
constexpr double Finesse = 64.0;
constexpr struct { double Jusque, Pas; } Paliers[] = {{32.0, 1.0 / 8.0}, {64.0, 1.0 / 4.0}};

/// Where some fonts change their look for the screen, and a size of letters that are smaller.
constexpr double CadratinFin = 7.5, CadratinMinuscule = 7.0;

/// The one layout of the screen, on its fonts.
PangoLayout* MiseEnPageEcran() {
    static PangoLayout* mise = [] {
        PangoContext* contexte = gdk_pango_context_get_for_screen(gdk_screen_get_default());
        // Widths are made whole at the size that is painted.
        pango_context_set_round_glyph_positions(contexte, FALSE);
        PangoLayout* neuve = pango_layout_new(contexte);
        g_object_unref(contexte);
        return neuve;
    }();
    return mise;
}

double TaillePeinte(double cadratin) {
    for (const auto& [jusque, pas] : Paliers)
        if (cadratin < jusque) return std::round(cadratin / pas) * pas;
    return std::round(cadratin * Finesse) / Finesse;
}

/// The whole pixels that hold a part of letters of that size.
int Tient(double part, double cadratin) {
    return static_cast<int>(std::ceil(std::round(part * cadratin * PANGO_SCALE) / PANGO_SCALE));
}

/// What the font says of itself without regard to pixels.
cairo_font_extents_t Etendue(PangoFont* police) {
    cairo_font_extents_t etendue = {};
    cairo_scaled_font_t* placee = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(police));
    if (!placee) return etendue;
    cairo_matrix_t taille, droite;
    cairo_scaled_font_get_font_matrix(placee, &taille);
    cairo_matrix_init_identity(&droite);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_scaled_font_t* libre = cairo_scaled_font_create(cairo_scaled_font_get_font_face(placee),
                                                          &taille, &droite, options);
    cairo_scaled_font_extents(libre, &etendue);
    cairo_scaled_font_destroy(libre);
    cairo_font_options_destroy(options);
    return etendue;
}

}  // namespace

double CadratinDe(double taille) {
    const double points = std::round(PANGO_SCALE * taille);
    return std::floor(points * 96.0 / 72.0 + 0.5) / PANGO_SCALE;
}

void RegleMiseEnPage(PangoLayout* mise, const TexteEcran& texte, double cadratin) {
    PangoFontDescription* police = pango_font_description_from_string(texte.Police.c_str());
    pango_font_description_set_weight(police, PANGO_WEIGHT_BOLD);
    pango_font_description_set_gravity(police, PANGO_GRAVITY_SOUTH);
    pango_font_description_set_absolute_size(police, PANGO_SCALE * cadratin);
    pango_layout_set_font_description(mise, police);
    pango_font_description_free(police);
    pango_layout_set_single_paragraph_mode(mise, TRUE);
    const Glib::ustring& mots = texte.Texte;
    pango_layout_set_text(
        mise, (mots.size() > CaracteresMax ? mots.substr(0, CaracteresMax) : mots).c_str(), -1);
}

std::shared_ptr<const Lettres> Lettres::De(const TexteEcran& texte, double cadratin) {
    static std::unordered_map<std::string, std::shared_ptr<const Lettres>> connues;
    static std::size_t octets = 0;
    const bool minuscule = cadratin < CadratinFin;
    const double pose = minuscule ? CadratinMinuscule : Cadratin;
    std::string cle = texte.Police.raw() + (minuscule ? '\t' : '\n') + texte.Texte.raw();
    if (const auto connue = connues.find(cle); connue != connues.end()) return connue->second;
    RegleMiseEnPage(MiseEnPageEcran(), texte, pose);
    auto lettres = std::make_shared<const Lettres>(MiseEnPageEcran(), pose);
    const std::size_t prises = OctetsTexte + cle.size() + OctetsLettre * lettres->Nombre();
    if (octets + prises > OctetsMax) {
        connues.clear();
        octets = 0;
    }
    octets += prises;
    connues.emplace(std::move(cle), lettres);
    return lettres;
}

Lettres::Lettres(PangoLayout* mise, double cadratin) : Pose(cadratin) {
    const PangoLayoutLine* ligne = pango_layout_get_line_readonly(mise, 0);
    for (const GSList* suite = ligne->runs; suite; suite = suite->next) {
        const auto* posee = static_cast<const PangoLayoutRun*>(suite->data);
        PangoFont* police = posee->item->analysis.font;
        if (!police) continue;
        const cairo_font_extents_t etendue = Etendue(police);
        Suites.push_back({PANGO_FONT(g_object_ref(police)), pango_glyph_string_copy(posee->glyphs),
                          etendue.ascent / Pose, etendue.descent / Pose});
    }
}

Lettres::~Lettres() {
    for (const Suite& suite : Suites) {
        pango_glyph_string_free(suite.Glyphes);
        g_object_unref(suite.Police);
    }
}

std::size_t Lettres::Nombre() const {
    std::size_t nombre = 0;
    for (const Suite& suite : Suites)
        nombre += static_cast<std::size_t>(suite.Glyphes->num_glyphs);
    return nombre;
}

int Lettres::EnPixels(int longueur, double cadratin) const {
    return PANGO_PIXELS(static_cast<int>(std::lround(longueur * cadratin / Pose)));
}

int Lettres::Largeur(double cadratin) const {
    int largeur = 0;
    for (const Suite& suite : Suites)
        for (int i = 0; i < suite.Glyphes->num_glyphs; ++i)
            largeur += EnPixels(suite.Glyphes->glyphs[i].geometry.width, cadratin);
    return largeur;
}

int Lettres::Montee(double cadratin) const {
    int montee = 0;
    for (const Suite& suite : Suites)
        montee = std::max(montee, Tient(suite.Montee, cadratin));
    return montee;
}

int Lettres::Descente(double cadratin) const {
    int descente = 0;
    for (const Suite& suite : Suites)
        descente = std::max(descente, Tient(suite.Descente, cadratin));
    return descente;
}

void Lettres::Peint(cairo_t* cr, double cadratin, bool contours) const {
    const double peint = TaillePeinte(cadratin);
    const double unite = Pose / peint;  // Of a pixel, in the scale of the letters.
    cairo_save(cr);
    cairo_translate(cr, 0.0, Montee(cadratin));
    cairo_scale(cr, 1.0 / unite, 1.0 / unite);
    const auto place = [&](int& longueur) {
        longueur =
            static_cast<int>(std::lround(EnPixels(longueur, cadratin) * unite * PANGO_SCALE));
    };
    int x = 0;
    for (const Suite& suite : Suites) {
        PangoGlyphString* glyphes = pango_glyph_string_copy(suite.Glyphes);
        cairo_move_to(cr, x * unite, 0.0);
        for (int i = 0; i < glyphes->num_glyphs; ++i) {
            PangoGlyphGeometry& geometrie = glyphes->glyphs[i].geometry;
            x += EnPixels(geometrie.width, cadratin);
            place(geometrie.width);
            place(geometrie.x_offset);
            place(geometrie.y_offset);
        }
        if (contours)
            pango_cairo_glyph_string_path(cr, suite.Police, glyphes);
        else
            pango_cairo_show_glyph_string(cr, suite.Police, glyphes);
        pango_glyph_string_free(glyphes);
    }
    if (contours) cairo_fill(cr);
    cairo_restore(cr);
}
