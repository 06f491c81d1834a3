#include "scene.h"

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "solids/ecrit.h"

Banc3D::Banc3D(int cote) : Main3D(Fenetre3D) {
    BddCourante.Vide();
    BddCourante.SetCalqueAffiche(-1);
    Zone.set_size_request(cote, cote);
    Fenetre.set_size_request(cote, cote);
    Fenetre.set_resizable(false);
    Fenetre.SignalEdition().connect([this] { ++Editions; });
    Fenetre.show();
    LaisseTourner();
    Frappe(GDK_f);
}

Banc3D::~Banc3D() {
    BddCourante.Vide();
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
    vue.Avance({0.0, 0.0, -300.0});
    return vue;
}

EltGeo* PoseRecord(const std::string& record, EltGeo* porteur) {
    if (!porteur) return BddCourante.Ajoute(EltDe(record));
    EltGeo* const enfant = BddCourante.AjouteFin(EltDe(record));
    porteur->AjouteFils(enfant);
    return enfant;
}

EltGeo* Pose(const Forme& forme, Role role, EltGeo* porteur) {
    const bool creux = role == Role::Trou || role == Role::Poche;
    const double a = forme.A, b = forme.B;
    const PointVek& p = forme.Position;
    std::ostringstream texte;
    const auto point = [&](double x, double y, double z) {
        texte << x << ' ' << y << ' ' << z << ' ';
    };
    const auto debut = [&](int type, int typeCreux) {
        texte << Entete(creux ? typeCreux : type, forme.Couleur);
        point(p.x, p.y, p.z);
        texte << '\n';
    };
    switch (forme.Quoi) {
        case Forme::Pave:
            debut(TypePave, TypeRainure);
            point(p.x - a, p.y + b, p.z);
            point(p.x + a, p.y - b, p.z);
            break;
        case Forme::Eleve:
        case Forme::Retour:
            debut(TypeProfilElevation, TypeRainureP);
            texte << "1\n4\n";
            for (int i = 0; i < 4; ++i) {
                const int coin = forme.Quoi == Forme::Eleve ? i : 3 - i;
                point(coin < 2 ? -a : a, coin == 1 || coin == 2 ? b : -b, 0.0);
            }
            break;
        case Forme::Cylindre:
            debut(TypeCylindre, TypePercage);
            texte << a << " 0 6.28319";
            break;
        case Forme::Boule:
            debut(role == Role::Enveloppe ? TypeEnvBoule : TypeSphere, TypeEnvBoule);
            texte << a << " 0 6.28319";
    }
    texte << '\n';
    point(forme.Alpha, forme.Beta, forme.Gamma);
    texte << '\n' << forme.H << " 1 1 1 1 1 0 0 50\n\n";
    if (forme.Quoi == Forme::Cylindre) texte << a << '\n';
    if (creux) texte << (role == Role::Trou) << '\n';
    return PoseRecord(texte.str(), porteur);
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

namespace {

// Of the pixels that show something.
constexpr double FauxMax = 0.015, LoinMax = 0.002;

/// A picture beside what its rays meet.
class Accord {
  public:
    Accord(const std::vector<Solide>& scene, const Vue& vue, const Capture& image)
        : Image(image), Cote(image.Image->get_width()) {
        for (int y = 0; y < Cote; ++y)
            for (int x = 0; x < Cote; ++x)
                Rayons.push_back(Lance(scene, vue, x, Cote - 1 - y, Cote));
        for (int y = 0; y < Cote; ++y)
            for (int x = 0; x < Cote; ++x)
                Compare(x, y);
    }

    /// Of the pixels that show something, those that differ, and those that agree with no ray of
    /// their neighbours either.
    double Faux() const { return static_cast<double>(NbFaux) / std::max(NbMontres, 1); }
    double Loin() const { return static_cast<double>(NbLoin) / std::max(NbMontres, 1); }

  private:
    bool Convient(int x, int y, unsigned pixel) const {
        const Touche& rayon = Rayons[static_cast<std::size_t>(y * Cote + x)];
        for (int canal = 0; canal < 3; ++canal)
            if (std::abs((pixel >> (16 - 8 * canal) & 255) - rayon.Canaux[canal]) > rayon.Jeu)
                return false;
        return true;
    }

    void Compare(int x, int y) {
        const unsigned pixel = Image.Pixel(x, y);
        // The points at the positions of elements lie over all.
        if (pixel == 0xffffff && NbPoints-- > 0) return;
        const bool juste = Convient(x, y, pixel);
        if (juste && Rayons[static_cast<std::size_t>(y * Cote + x)].Rien) return;
        ++NbMontres;
        if (juste) return;
        ++NbFaux;
        for (int v = std::max(y - 1, 0); v <= std::min(y + 1, Cote - 1); ++v)
            for (int u = std::max(x - 1, 0); u <= std::min(x + 1, Cote - 1); ++u)
                if (Convient(u, v, pixel)) return;
        ++NbLoin;
    }

    const Capture& Image;
    const int Cote;
    std::vector<Touche> Rayons;
    int NbPoints = BddCourante.Elements.Nombre();
    int NbMontres = 0, NbFaux = 0, NbLoin = 0;
};

}  // namespace

void ExigeRayons(const std::vector<Solide>& scene, const Vue& vue, const Capture& image,
                 const std::string& nom) {
    const Accord accord(scene, vue, image);
    if (accord.Faux() > FauxMax || accord.Loin() > LoinMax) image.Garde(nom);
    EXPECT_LE(accord.Faux(), FauxMax) << nom;
    EXPECT_LE(accord.Loin(), LoinMax) << nom;
}
