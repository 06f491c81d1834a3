#include "scene.h"

#include <gtest/gtest.h>

#include <gdk/gdkkeysyms.h>

#include <algorithm>
#include <cstdlib>

#include "solids/eltenvboule.h"
#include "solids/eltpercage.h"
#include "solids/eltrainure.h"
#include "solids/eltsphere.h"

namespace {

void Habille(EltGeo& elt, const Forme& forme) {
    const auto part = [&](int bit) { return forme.Couleur & bit ? 1.0 : 0.0; };
    elt.Style.Couleur.set_rgb_p(part(1), part(2), part(4));
    Elt3d& solide = *elt.GetElt3d();
    solide.alpha = forme.Alpha;
    solide.beta = forme.Beta;
    solide.gamma = forme.Gamma;
    solide.h = forme.H;
}

template <class Elt>
EltGeo* AjoutePave(Elt&& elt, const Forme& forme) {
    elt.Origine = {-forme.A, forme.B};
    elt.Extremite = {forme.A, -forme.B};
    elt.Position = {};
    elt.Deplace(forme.Position);
    Habille(elt, forme);
    return BddCourante.Ajoute(elt);
}

template <class Elt>
EltGeo* AjouteCylindre(Elt&& elt, const Forme& forme) {
    elt.Place(forme.Position);
    elt.Rayon = elt.rayonHaut = forme.A;
    Habille(elt, forme);
    return BddCourante.Ajoute(elt);
}

template <class Elt>
EltGeo* AjouteBoule(Elt&& elt, const Forme& forme) {
    elt.Place(forme.Position);
    elt.Rayon = forme.A;
    elt.facetisation = 150;
    Habille(elt, forme);
    return BddCourante.Ajoute(elt);
}

EltGeo* AjouteForme(const Forme& forme) {
    if (forme.Quoi == Forme::Pave) return AjoutePave(EltPave(), forme);
    if (forme.Quoi == Forme::Cylindre) return AjouteCylindre(EltCylindre(), forme);
    return AjouteBoule(EltSphere(), forme);
}

EltGeo* AjouteCreux(const Creux& creux) {
    if (creux.Place.Quoi == Forme::Pave) {
        EltRainure rainure;
        rainure.debouchant = creux.Debouchant;
        return AjoutePave(rainure, creux.Place);
    }
    EltPercage percage;
    percage.debouchant = creux.Debouchant;
    return AjouteCylindre(percage, creux.Place);
}

}  // namespace

Banc3D::Banc3D() : Main3D(Fenetre3D) {
    BddCourante.Vide();
    BddCourante.SetCalqueAffiche(-1);
    Fenetre.set_resizable(false);
    Fenetre.SignalEdition().connect([this] { ++Editions; });
    Fenetre.show();
    LaisseTourner();
    Frappe(GDK_f);
}

Banc3D::~Banc3D() {
    BddCourante.Vide();
}

EltGeo* Banc3D::Ajoute(const Solide& solide) {
    return Garnit(AjouteForme(solide.Corps), solide);
}

EltGeo* Banc3D::Garnit(EltGeo* corps, const Solide& solide) {
    std::size_t rang = 0;
    const auto enveloppe = [&](std::size_t fin) {
        for (; rang < fin; ++rang)
            corps->AjouteFils(AjouteBoule(EltEnvBoule(), solide.Enveloppes[rang]));
    };
    enveloppe(solide.Avant);
    for (const Creux& creux : solide.Enleves)
        corps->AjouteFils(AjouteCreux(creux));
    enveloppe(solide.Enveloppes.size());
    return corps;
}

Vue Banc3D::Regarde(int alpha, int beta, int gamma) {
    Frappe(GDK_f);
    const auto tourne = [&](int degres, unsigned etat) {
        for (int i = 0; i < std::abs(degres) / 5; ++i)
            Frappe(degres > 0 ? GDK_Page_Up : GDK_Page_Down, etat);
    };
    // Forward and back again through the axes of the turned view.
    for (int i = 0; i < 30; ++i)
        Frappe(GDK_Up, GDK_CONTROL_MASK | GDK_SHIFT_MASK);
    tourne(alpha, 0);
    tourne(beta, GDK_SHIFT_MASK);
    tourne(gamma, GDK_CONTROL_MASK);
    for (int i = 0; i < 30; ++i)
        Frappe(GDK_Down, GDK_CONTROL_MASK | GDK_SHIFT_MASK);
    Vue vue{{}, 1.0 * alpha, 1.0 * beta, 1.0 * gamma};
    vue.Translation = TranslationRecul(vue, 300.0);
    return vue;
}

int Teinte(unsigned couleur) {
    const unsigned r = couleur >> 16, v = couleur >> 8 & 0xff, b = couleur & 0xff;
    const unsigned fort = std::max({r, v, b});
    if (fort < 40) return 0;
    return (r > fort / 2) | (v > fort / 2) << 1 | (b > fort / 2) << 2;
}

std::string ImageDeTeintes(const std::string& nom, int largeur, const std::vector<int>& teintes) {
    const int nombre = static_cast<int>(teintes.size());
    const auto image =
        Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, false, 8, largeur, nombre / largeur);
    for (int i = 0; i < nombre; ++i)
        for (int c = 0; c < 3; ++c)
            image->get_pixels()[i / largeur * image->get_rowstride() + i % largeur * 3 + c] =
                teintes[static_cast<std::size_t>(i)] >> c & 1 ? 255 : 0;
    const std::string chemin = std::string(g_get_home_dir()) + '/' + nom;
    image->save(chemin, "png");
    return chemin;
}

Accord::Accord(const std::vector<Solide>& scene, const Vue& vue, const Capture& image,
               const std::string& nom) {
    const int cote = image.Image->get_width();
    std::vector<int> rayons(static_cast<std::size_t>(cote * cote));
    const auto rayon = [&](int x, int y) -> int& {
        return rayons[static_cast<std::size_t>(y * cote + x)];
    };
    for (int y = 0; y < cote; ++y)
        for (int x = 0; x < cote; ++x)
            rayon(x, y) = Lance(scene, vue, x, cote - 1 - y, cote).Couleur;
    const auto voisin = [&](int x, int y, int teinte) {
        for (int v = std::max(y - 1, 0); v <= std::min(y + 1, cote - 1); ++v)
            for (int u = std::max(x - 1, 0); u <= std::min(x + 1, cote - 1); ++u)
                if (rayon(u, v) == teinte) return true;
        return false;
    };
    int montres = 0, faux = 0, loin = 0;
    for (int y = 0; y < cote; ++y)
        for (int x = 0; x < cote; ++x) {
            const int teinte = Teinte(image.Pixel(x, y));
            montres += teinte != 0 || rayon(x, y) != 0;
            faux += teinte != rayon(x, y);
            loin += !voisin(x, y, teinte);
        }
    Part = 1.0 - static_cast<double>(faux) / std::max(montres, 1);
    LoinDesBords = static_cast<double>(loin) / std::max(montres, 1);
    if (Part >= 0.995 && LoinDesBords <= 0.0005) return;
    image.Garde(nom);
    Capture attendue = image;
    attendue.Image = image.Image->copy();
    for (int y = 0; y < cote; ++y)
        for (int x = 0; x < cote; ++x)
            for (int canal = 0; canal < 3; ++canal)
                attendue.Image->get_pixels()[y * attendue.Image->get_rowstride() + 3 * x + canal] =
                    rayon(x, y) >> canal & 1 ? 255 : 0;
    attendue.Garde(nom + "_rayons");
}

void VerifieVues(Banc3D& banc, const std::vector<Solide>& scene, const std::vector<Angles>& vues,
                 const std::string& nom) {
    for (const Angles& angles : vues) {
        const Vue vue = banc.Regarde(angles.Alpha, angles.Beta, angles.Gamma);
        const std::string titre = nom + '_' + std::to_string(angles.Alpha) + '_' +
                                  std::to_string(angles.Beta) + '_' + std::to_string(angles.Gamma);
        const Accord accord(scene, vue, banc.Image(), titre);
        EXPECT_GE(accord.Part, 0.995) << titre;
        EXPECT_LE(accord.LoinDesBords, 0.0005) << titre;
    }
}
