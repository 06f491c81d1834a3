// Solids picked, measured and deformed by their points, as the file beside this tells; the chains
// that those made of profiles rest on.

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>

#include "commun/hasard.h"
#include "ecrit.h"
#include "solids/chaine.h"
#include "solids/elt3d.h"
#include "solids/eltpercage.h"
#include "solids/eltprofilsurface.h"
#include "solids/grain.h"

namespace {

std::string DitPoints(const std::vector<SommetProfil>& points) {
    if (points.size() > 12) return ", " + std::to_string(points.size()) + " points";
    std::string texte;
    for (const PointVek& p : points)
        texte += ", " + Dit(p);
    return texte;
}

/// The element that a line tells of, and what the next ones ask of it.
class Questions {
  public:
    std::string Repond(const std::string& ligne) {
        std::istringstream mots(ligne);
        std::string mot;
        mots >> mot;
        const auto reponse = Table.find(mot);
        return reponse == Table.end() ? "no word " + mot : reponse->second(mots);
    }

  private:
    using Mots = std::istream;

    Elt3d& Solide() { return dynamic_cast<Elt3d&>(*Elt); }

    std::unique_ptr<EltGeo> Elt;
    const std::map<std::string, std::function<std::string(Mots&)>> Table = {
        {"elt", [this](Mots& mots) { return Elt = EltDe(LitRecord(mots)), std::string(); }},
        {"distance", [this](Mots& mots) { return Dit({Elt->Distance3D(LitPoint(mots))}); }},
        {"proche", [this](Mots& mots) { return Dit(Elt->PointProche3D(LitPoint(mots))); }},
        {"monde", [this](Mots& mots) { return Dit(Solide().VersMonde(LitPoint(mots))); }},
        {"local", [this](Mots& mots) { return Dit(Solide().VersLocal(LitPoint(mots))); }},
        {"axe", [this](Mots&) { return Dit(Solide().PointAxe()); }},
        {"prend",
         [this](Mots& mots) {
             Elt->DebutDeforme3D(LitPoint(mots));
             return std::to_string(PoigneeCourante);
         }},
        {"tire",
         [this](Mots& mots) {
             Elt->Deforme3D(LitPoint(mots));
             return Dit(Elt->Position);
         }},
        // Steps asked for; how many are kept, and how many pieces these are, without rings and
        // with.
        {"pieces",
         [this](Mots& mots) {
             mots >> Solide().facetisation;
             const int f = Solide().Facettes({});
             return Dit({1.0 * f, Solide().Pieces(f, false), Solide().Pieces(f, true)});
         }},
        {"pris3d", [this](Mots&) { return std::string(Elt->GetElt3d() ? "solide" : "position"); }},
        // The numbers asked for, then the lengths; the numbers kept, and the points.
        {"grille",
         [this](Mots& mots) {
             auto& surface = dynamic_cast<EltProfilSurface&>(*Elt);
             int x = 0, y = 0;
             double longueur = 0.0, hauteur = 0.0;
             mots >> x >> y >> longueur >> hauteur;
             surface.SetNbX(x);
             surface.SetNbY(y);
             surface.Grille(longueur, hauteur);
             return Dit({1.0 * surface.nbX, 1.0 * surface.nbY}) + DitPoints(surface.Sommets);
         }},
        // Arcs in that many steps; the end of each piece, with both its angles where it is one.
        {"chaine",
         [this](Mots& mots) {
             int pas = 0;
             mots >> pas;
             std::string texte;
             for (const Troncon& t : Chaine(dynamic_cast<EltProfil&>(*Elt), pas))
                 texte +=
                     ", " + Dit(t.Fin) + (t.SurArc ? " R " + Dit({t.AngleDebut, t.AngleFin}) : "");
             return texte;
         }},
        // On which side of the way the surface lies, and what it sweeps about y.
        {"cote",
         [this](Mots&) {
             const auto& profil = dynamic_cast<EltProfil&>(*Elt);
             return std::string(EstAntihoraire(profil) ? "gauche " : "droite ") +
                    (EstAntihoraireAutourDeY(profil) ? "gauche" : "droite");
         }},
        // Of the facets wanted, those that cost no more than 200000 where f of them cost f * f of
        // this.
        {"tenables",
         [](Mots& mots) {
             int voulues = 0;
             double prix = 0.0;
             mots >> voulues >> prix;
             return std::to_string(FacettesTenables(
                 voulues, [prix](double f) { return prix * f * f; }, 2e5));
         }},
        {"convexe", [](Mots& mots) {
             std::vector<PointVek> points;
             for (PointVek p; mots >> p; mots.ignore(1, ','))
                 points.push_back(p);
             return std::string(EstConvexe(points, true)    ? "gauche"
                                : EstConvexe(points, false) ? "droite"
                                                            : "non");
         }}};
};

}  // namespace

TEST(Solides, RepondentParLeursPoints) {
    std::ifstream fichier(KRVEK_ESSAIS "/solids/data/points.txt");
    Questions questions;
    ASSERT_TRUE(fichier);
    for (std::string ligne; std::getline(fichier, ligne);) {
        if (ligne.empty() || ligne[0] == '#') continue;
        const std::string entiere = ligne, attente = Attente(ligne);
        EXPECT_EQ(questions.Repond(ligne), attente) << entiere;
    }
    PoigneeCourante = 0;
}

TEST(Solides, UnClicDonneLesDeuxRayons) {
    EltPercage percage;
    percage.SetCentreDefaut({7, 8});
    EXPECT_EQ(percage.rayonHaut, percage.Rayon);
    percage.SetRayonPoint({10, 12});
    EXPECT_EQ(percage.rayonHaut, 5.0);
    TransformeColle fois3;
    fois3.Agrandissement = 3.0;
    percage.Transforme(fois3);
    EXPECT_EQ(percage.rayonHaut, 15.0);
}

TEST(Chaine, CeQuiSeCroiseTropSouvent) {
    Hasard hasard(5);
    std::vector<PointVek> peigne, pelote, ligne, debout;
    for (int i = 0; i < 10000; ++i) {
        peigne.emplace_back(i / 2, i % 4 < 2 ? 0 : 100);
        pelote.emplace_back(hasard.Reel(0, 1000), hasard.Reel(0, 1000));
    }
    peigne.emplace_back(5000, -10);
    peigne.emplace_back(0, -10);
    EXPECT_FALSE(EstEmmele(peigne));
    EXPECT_TRUE(EstEmmele(pelote));
    // To and fro along one line, level or upright.
    for (int i = 0; i < 1000; ++i) {
        ligne.emplace_back(i * 389 % 1007, 0);
        debout.emplace_back(3, i * 389 % 1007);
    }
    EXPECT_TRUE(EstEmmele(ligne));
    EXPECT_TRUE(EstEmmele(debout));
    // All on one point, or one after the other along a line, nothing crosses.
    EXPECT_FALSE(EstEmmele(std::vector<PointVek>(1000, PointVek(3, 4))));
    pelote.resize(40);
    EXPECT_FALSE(EstEmmele(pelote));
}
