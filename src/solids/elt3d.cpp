#include "solids/elt3d.h"

#include <GL/gl.h>
#include <glib.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <string>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/encodage.h"
#include "elements/lecteur.h"
#include "solids/grain.h"

namespace {

/// What GL takes of a shininess; beyond it the call would be an error and the former value would
/// stay.
int Exposant(double brillance) {
    return static_cast<int>(std::lround(std::clamp(brillance, 0.0, 128.0)));
}

constexpr std::size_t LongueurLigne = 256;

/// The values at the end of the record's second line. One counts only when a blank follows it.
class Suite {
  public:
    explicit Suite(std::string_view ligne) : Texte(ligne.substr(0, LongueurLigne)) {
        if (!Texte.empty() && Texte.front() == ' ') Curseur = 1;
    }

    /// Whether one more value is there; it is then what `Entier` and `Reel` answer.
    bool Avance() {
        const std::size_t blanc = Texte.find(' ', Curseur);
        if (blanc == std::string::npos) return false;
        Valeur = Curseur;
        Curseur = blanc + 1;
        return true;
    }

    int Entier() const { return EntierEn(Valeur); }

    double Reel() const {
        const double lu = g_ascii_strtod(Texte.c_str() + Valeur, nullptr);
        return std::isfinite(lu) ? lu : 0.0;
    }

    bool Drapeau(bool absent) { return Avance() ? Entier() != 0 : absent; }

    /// What stands behind the last separator, whether or not a blank follows it.
    int Reste() const { return EntierEn(Curseur); }

  private:
    /// A text that is no number gives 0.
    int EntierEn(std::size_t debut) const {
        const long lu = std::strtol(Texte.c_str() + debut, nullptr, 10);
        return static_cast<int>(std::clamp<long>(lu, INT_MIN, INT_MAX));
    }

    const std::string Texte;
    std::size_t Valeur = 0;
    std::size_t Curseur = 0;
};

/// Turns the plane of two axes by degrees, from the first to the second.
void TournePlan(double& a, double& b, double degres) {
    const double angle = EnRadians(degres), c = std::cos(angle), s = std::sin(angle);
    const double avant = a;
    a = avant * c - b * s;
    b = avant * s + b * c;
}

}  // namespace

void Elt3d::Copie(const Elt3d& source) {
    CopieCommun(source);
    CopieFaces(source);
    echelleTexture = source.echelleTexture;
    facetisation = source.facetisation;
}

void Elt3d::CopieForme(const Elt3d& source) {
    alpha = source.alpha;
    beta = source.beta;
    gamma = source.gamma;
    h = source.h;
    texture = source.texture;
    repetition = source.repetition;
}

void Elt3d::CopieCommun(const Elt3d& source) {
    CopieForme(source);
    brillance = source.brillance;
    gourault = source.gourault;
}

void Elt3d::CopieFaces(const Elt3d& source) {
    dessus = source.dessus;
    dessous = source.dessous;
    pourtour = source.pourtour;
}

void Elt3d::Sauve(Ecrivain& sortie) const {
    sortie << alpha << ' ' << beta << ' ' << gamma << '\n';
    sortie << h << ' ' << dessus << ' ' << dessous << ' ' << pourtour << ' ' << repetition << ' '
           << echelleTexture << ' ' << brillance << ' ' << gourault << ' ' << facetisation << '\n';
    sortie << EnLigne(texture).substr(0, LongueurLigne).raw() << '\n';
}

void Elt3d::Charge(Lecteur& entree) {
    entree >> alpha >> beta >> gamma >> h;
    if (entree.Echec()) return;
    Suite suite(entree.Ligne());
    dessus = suite.Drapeau(true);
    dessous = suite.Drapeau(true);
    pourtour = suite.Drapeau(true);
    repetition = suite.Drapeau(true);
    // A record without a scale is from before textures could end at their edge.
    if (suite.Avance())
        echelleTexture = suite.Reel();
    else
        repetition = true;
    brillance = suite.Avance() ? suite.Reel() : 0.0;
    const bool complet = suite.Avance();
    gourault = complet && suite.Entier() != 0;
    facetisation = complet ? suite.Reste() : 100;
    texture = EnLigne(EnUtf8(entree.Ligne())).substr(0, LongueurLigne);
}

bool Elt3d::EstFini() const {
    const auto finis = {alpha, beta, gamma, h, echelleTexture, brillance};
    return std::all_of(finis.begin(), finis.end(), [](double v) { return std::isfinite(v); });
}

void Elt3d::AppliqueRotation() const {
    glRotatef(static_cast<GLfloat>(alpha), 0.0f, 0.0f, 1.0f);
    glRotatef(static_cast<GLfloat>(beta), 0.0f, 1.0f, 0.0f);
    glRotatef(static_cast<GLfloat>(gamma), 1.0f, 0.0f, 0.0f);
}

PointVek Elt3d::PointAxe() const {
    return VersMonde({0.0, 0.0, h});
}

PointVek Elt3d::VersLocal(const PointVek& v) const {
    PointVek p = v;
    TournePlan(p.x, p.y, -alpha);
    TournePlan(p.z, p.x, -beta);
    TournePlan(p.y, p.z, -gamma);
    return p;
}

PointVek Elt3d::VersMonde(const PointVek& v) const {
    PointVek p = v;
    TournePlan(p.y, p.z, gamma);
    TournePlan(p.z, p.x, beta);
    TournePlan(p.x, p.y, alpha);
    return p;
}

void Elt3d::AppliqueBrillance() const {
    glMateriali(GL_FRONT_AND_BACK, GL_SHININESS, Exposant(brillance));
}

bool Elt3d::Brille() const {
    return Exposant(brillance) != 0;
}

double Elt3d::Pieces(double, bool) const {
    constexpr double facesPave = 6.0;
    return facesPave;
}

int Elt3d::FacettesBornees() const {
    return std::clamp(facetisation, 0, 1000);
}

int Elt3d::Facettes(const Grain& grain) const {
    // With fewer a round body is none.
    constexpr int facettesCorps = 4;
    const auto tenables = [&](double maximum) {
        return FacettesTenables(
            FacettesBornees(), [&](double f) { return Pieces(f, grain.Anneaux); }, maximum);
    };
    return std::max(tenables(grain.PiecesMax),
                    std::min(tenables(Grain().PiecesMax), facettesCorps));
}
