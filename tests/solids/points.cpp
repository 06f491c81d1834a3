// Solids picked, measured and deformed by their points, as the file beside this tells; the chains
// that those made of profiles rest on.

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>

#include "commun/hasard.h"
#include "ecrit.h"
#include "elements/angles.h"
#include "elements/distances.h"
#include "solids/chaine.h"
#include "solids/elt3d.h"
#include "solids/eltpercage.h"
#include "solids/eltprofilsurface.h"
#include "solids/grain.h"

namespace {

PointVek Point(std::istream& mots) {
    PointVek p;
    mots >> p;
    return p;
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
        {"distance", [this](Mots& mots) { return Dit({Elt->Distance3D(Point(mots))}); }},
        {"proche", [this](Mots& mots) { return Dit(Elt->PointProche3D(Point(mots))); }},
        {"monde", [this](Mots& mots) { return Dit(Solide().VersMonde(Point(mots))); }},
        {"local", [this](Mots& mots) { return Dit(Solide().VersLocal(Point(mots))); }},
        {"axe", [this](Mots&) { return Dit(Solide().PointAxe()); }},
        {"prend",
         [this](Mots& mots) {
             Elt->DebutDeforme3D(Point(mots));
             return std::to_string(PoigneeCourante);
         }},
        {"tire",
         [this](Mots& mots) {
             Elt->Deforme3D(Point(mots));
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
        {"pris3d", [this](Mots&) { return std::string(Elt->GetElt3d() ? "solide" : "position"); }}};
};

void Proche(const PointVek& p, const PointVek& attendu) {
    EXPECT_NEAR(Distance3D(p, attendu), 0.0, 1e-9) << p.x << ' ' << p.y << ' ' << p.z;
}

}  // namespace

TEST(Solides, RepondentParLeursPoints) {
    std::ifstream fichier(KRVEK_ESSAIS "/solids/data/points.txt");
    Questions questions;
    int lignes = 0;
    for (std::string ligne; std::getline(fichier, ligne); ++lignes) {
        if (ligne.empty() || ligne[0] == '#') continue;
        const std::string entiere = ligne, attente = Attente(ligne);
        EXPECT_EQ(questions.Repond(ligne), attente) << entiere;
    }
    EXPECT_GT(lignes, 50);
    PoigneeCourante = 0;
}

TEST(Solides, UnClicDonneLesDeuxRayons) {
    EltPercage percage;
    percage.SetCentreDefaut({7, 8});
    EXPECT_EQ(percage.rayonHaut, percage.Rayon);
    percage.SetRayonPoint({10, 12});
    EXPECT_EQ(percage.rayonHaut, 5.0);
    // A paste keeps their ratio.
    percage.rayonHaut = 2.0;
    TransformeColle fois3;
    fois3.Agrandissement = 3.0;
    percage.Transforme(fois3);
    EXPECT_EQ(percage.Rayon, 15.0);
    EXPECT_EQ(percage.rayonHaut, 6.0);
}

TEST(Solides, LaGrilleResteUnPasEnDeca) {
    EltProfilSurface surface;
    for (const int nombre : {3, 2, 0, -5}) {
        surface.SetNbX(nombre);
        surface.SetNbY(nombre + 1);
    }
    ASSERT_EQ(surface.nbX, 3);
    ASSERT_EQ(surface.nbY, 3);
    surface.SetNbY(4);
    surface.Grille(1, 1);
    surface.Grille(30, 8);
    std::string points;
    for (const PointVek& p : surface.Sommets)
        points += Dit(p) + ", ";
    EXPECT_EQ(points,
              "0 0 0, 0 2 0, 0 4 0, 0 6 0, 10 0 0, 10 2 0, 10 4 0, 10 6 0, "
              "20 0 0, 20 2 0, 20 4 0, 20 6 0, ");
    surface.SetNbX(1000);
    surface.SetNbY(100);
    surface.Grille(1, 1);
    EXPECT_EQ(surface.Sommets.size(), 100000u);
    surface.SetNbX(2000000000);
    surface.SetNbY(2000000000);
    surface.Grille(1, 1);
    EXPECT_EQ(surface.Sommets.size(), 0u);
}

TEST(Chaine, UnArcFinitSurSonSommet) {
    const SommetProfil sommet(PointVek(0, 10, 3), -10);
    const auto troncons = Troncons({10, 0, 1}, sommet, 2);
    ASSERT_EQ(troncons.size(), 2u);
    const double k = 10 * std::sqrt(0.5);
    Proche(troncons[0].Debut, {10, 0, 1});
    Proche(troncons[0].Fin, {k, k, 3});
    Proche(troncons[1].Debut, {k, k, 3});
    EXPECT_EQ(Distance3D(troncons[1].Fin, sommet), 0.0);
    EXPECT_NEAR(troncons[0].AngleDebut, 0.0, 1e-12);
    EXPECT_NEAR(troncons[0].AngleFin, Pi / 4, 1e-12);
    EXPECT_NEAR(troncons[1].AngleDebut, Pi / 4, 1e-12);
    EXPECT_NEAR(troncons[1].AngleFin, Pi / 2, 1e-12);
    EXPECT_TRUE(Troncons({10, 0}, sommet, 0).empty());
    // A radius that does not reach leaves a straight link.
    EXPECT_FALSE(Troncons({100, 0}, sommet, 5).front().SurArc);
    EltProfil profil;
    profil.Sommets = {SommetProfil(PointVek(10, 0)), sommet, SommetProfil(PointVek(5, 20)),
                      SommetProfil(PointVek(5, 40))};
    const auto chaine = Chaine(profil, 3);
    ASSERT_EQ(chaine.size(), 5u);
    Proche(chaine[3].Debut, {0, 10, 3});
    Proche(chaine[4].Fin, {5, 40});
}

TEST(Chaine, DeQuelCoteEstLaSurface) {
    EltProfil profil;
    for (const PointVek& p : {PointVek(10, 0), PointVek(20, 0), PointVek(20, 10)})
        profil.Sommets.emplace_back(p);
    EXPECT_TRUE(EstAntihoraire(profil));
    EXPECT_TRUE(EstAntihoraireAutourDeY(profil));
    for (SommetProfil& sommet : profil.Sommets)
        sommet.x -= 40;
    EXPECT_TRUE(EstAntihoraire(profil));
    EXPECT_FALSE(EstAntihoraireAutourDeY(profil));
    // Half a disc, whose chord bounds nothing: the arc alone tells.
    for (const double rayon : {10.0, -10.0}) {
        profil.Sommets = {SommetProfil(PointVek(0, 10)), SommetProfil(PointVek(0, -10), rayon)};
        EXPECT_EQ(EstAntihoraire(profil), rayon < 0.0);
        // Its surface is at x > 0 for the one and at x < 0 for the other.
        EXPECT_FALSE(EstAntihoraireAutourDeY(profil));
    }
}

TEST(Chaine, Convexite) {
    std::vector<PointVek> points = {{0, 0}, {0, 10}, {10, 10, 30}, {10, 0}};
    EXPECT_TRUE(EstConvexe(points, false));
    EXPECT_FALSE(EstConvexe(points, true));
    points.insert(points.begin() + 2, {{5, 10}, {5, 10}});
    EXPECT_TRUE(EstConvexe(points, false)) << "a vertex along an edge, and the same again";
    points[2].y = 9.9;
    EXPECT_FALSE(EstConvexe(points, false));
    std::vector<PointVek> etoile;
    for (int i = 0; i < 5; ++i)
        etoile.push_back(PointPolaire({}, 10, i * 2 * DeuxPi / 5));
    EXPECT_FALSE(EstConvexe(etoile, true)) << "round twice";
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

TEST(Chaine, FacettesEnNombreTenable) {
    const auto facettes = [](int voulues, double cout) {
        return FacettesTenables(
            voulues, [cout](double f) { return cout * f * f; }, 2e5);
    };
    EXPECT_EQ(facettes(20, 100), 20);
    EXPECT_EQ(facettes(1000, 100), 44);
    EXPECT_EQ(facettes(1000, 1e9), 1);
    EXPECT_EQ(facettes(2, 1e9), 1);
    EXPECT_EQ(facettes(1, 1e9), 1);
    EXPECT_EQ(facettes(0, 1e9), 0);
    EXPECT_EQ(facettes(100, 20), 100) << "just what is allowed";
    EXPECT_EQ(facettes(101, 20), 100);
}
