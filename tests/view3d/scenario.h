#pragma once

#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "scene.h"

/// One case of a file of scenarios: a line that begins with `cas` gives its name and the side of
/// its picture, the next ones what is done and, behind a sign of equality, what is then expected.
struct CasEcrit {
    std::string Nom;
    int Cote = 600;
    std::vector<std::string> Lignes;
};

/// What a failure says of it.
inline void PrintTo(const CasEcrit& cas, std::ostream* sortie) {
    *sortie << cas.Nom;
}

/// The cases of the file of that name under the folder of the tests.
std::vector<CasEcrit> CasDe(const std::string& nom);

/// Plays a case in the 3D window. The words that it knows are those of its table; points are
/// positions of the world, in drawing units, and follow one another behind commas.
class Scenario {
  public:
    explicit Scenario(const CasEcrit& cas);

    void Joue();

  private:
    using Mots = std::istream;

    void Apprend(const char* mot, const std::function<void(Mots&)>& fait);
    void ApprendLaScene();
    void ApprendLesGestes();
    void ApprendLesQuestions();

    std::string Fait(const std::string& ligne);
    void Corps(Mots& mots);
    void Enfant(Mots& mots, Role role);
    void Groupe(Mots& mots);
    void Accorde(const std::string& suite);
    void Vues(Mots& mots);
    void Frappe(Mots& mots);

    PointVek Pixel(const PointVek& p) const { return OuApparait(Oeil, p, Cas.Cote); }

    /// What is said of the pixel of each of the points.
    std::string PourChaque(Mots& mots, const std::function<std::string(const PointVek&)>& dit);
    std::string Couleur(Mots& mots);

    /// Whether a wire or a point shows there, in plain white.
    static bool EstBlanc(const Capture& image, const PointVek& pixel);

    const CasEcrit Cas;
    Banc3D Banc;
    std::vector<Solide> Scene;  ///< What the rays meet.
    Vue Oeil{{0.0, 0.0, -300.0}, 0.0, 0.0, 0.0};
    EltGeo* Elt = nullptr;            ///< The last one that is no child.
    std::string Attendu;              ///< Behind the sign of equality.
    std::unique_ptr<Capture> Gardee;  ///< The picture to compare with.
    std::map<std::string, std::function<std::string(Mots&)>> Table;
};
