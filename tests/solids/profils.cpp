// Solids made of profiles: records, what is copied, the points that the 3D view picks, and the
// pieces that their bodies are made of.

#include <gtest/gtest.h>

#include "commun/hasard.h"
#include "commun/record.h"
#include "elements/angles.h"
#include "elements/lecteur.h"
#include "model/registre.h"
#include "solids/chaine.h"
#include "solids/eltimage3d.h"
#include "solids/eltprofilevantail.h"
#include "solids/eltprofilruban.h"
#include "solids/eltprofilsurface.h"
#include "solids/eltprofiltourne.h"
#include "solids/eltrainurep.h"
#include "solids/grain.h"

namespace {

const std::string Entete = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
const std::string Neuf = "0 0 0\n10 1 1 1 1 1 0 0 50\n\n";
const std::string Marque = "1.5 2.5 3.5\n4.5 0 0 0 0 5.5 6.5 1 7\nmarque\n";

/// A triangle about (1, 2) with an arc, and a vertex above the plane.
template <class Elt>
Elt Triangle() {
    Elt elt;
    elt.Debut({1, 2});
    elt.Ajoute({1, 2});
    elt.Sommets.emplace_back(PointVek(10, 0, 4));
    elt.Sommets.emplace_back(PointVek(0, 10), -10);
    return elt;
}

const std::string Sommets = "1 2 0\n1\n3\n0 0 0 10 0 4 0 10 0R-10  \n";

/// Attributes that are all different from those of a new solid.
Elt3d Attributs() {
    Lecteur entree(Marque);
    Elt3d solide;
    solide.Charge(entree);
    return solide;
}

/// The attributes in the record of elt, which has as many lines behind them.
std::string DansRecord(const EltGeo& elt, int derriere = 0) {
    std::string texte = Record(elt);
    for (int i = 0; i < derriere; ++i)
        texte.erase(texte.rfind('\n', texte.size() - 2) + 1);
    std::size_t debut = texte.size();
    for (int i = 0; i < 4; ++i)
        debut = texte.rfind('\n', debut - 1);
    return texte.substr(debut + 1);
}

/// What a new element has taken by `ChangeElt3d`, then another one of it by `Copie`.
template <class Elt>
std::pair<std::string, std::string> Pris(int derriere = 0) {
    Elt source, change, copie;
    static_cast<Elt3d&>(source).Copie(Attributs());
    change.ChangeElt3d(Attributs());
    static_cast<EltGeo&>(copie).Copie(source);
    EXPECT_EQ(DansRecord(*source.Clone(), derriere), Marque) << "a clone takes all";
    return {DansRecord(change, derriere), DansRecord(copie, derriere)};
}

void Proche(const PointVek& p, const PointVek& attendu) {
    EXPECT_NEAR(Distance3D(p, attendu), 0.0, 1e-9) << p.x << ' ' << p.y << ' ' << p.z;
}

}  // namespace

TEST(ProfilsSolides, Records) {
    EXPECT_EQ(Record(Triangle<EltProfilElevation>()), "20" + Entete + Sommets + Neuf);
    EXPECT_EQ(Record(Triangle<EltProfilTourne>()), "23" + Entete + Sommets + Neuf);
    EXPECT_EQ(Record(Triangle<EltProfilSurface>()), "24" + Entete + Sommets + Neuf + "4 4\n");
    EXPECT_EQ(Record(Triangle<EltProfilRuban>()), "25" + Entete + Sommets + Neuf);
    EXPECT_EQ(Record(Triangle<EltProfilEvantail>()), "26" + Entete + Sommets + Neuf);
    EXPECT_EQ(Record(Triangle<EltRainureP>()), "30" + Entete + Sommets + Neuf + "1\n");
    EltImage3d image;
    image.SetIdentificateur("vis");
    image.Angle = 0.5;
    EXPECT_EQ(Record(image), "31" + Entete + "0 0 0\nvis\n0.5\n1\n" + Neuf);
    // Read back, with other attributes.
    for (const std::string& record :
         {"20" + Entete + Sommets + Marque, "23" + Entete + Sommets + Marque,
          "24" + Entete + Sommets + Marque + "3 7\n", "25" + Entete + Sommets + Marque,
          "26" + Entete + Sommets + Marque, "30" + Entete + Sommets + Marque + "0\n",
          "31" + Entete + "0 0 0\nvis\n0.5\n1\n" + Marque}) {
        Lecteur entree(record);
        int type = 0;
        entree >> type;
        const auto elt = CreeElement(type);
        ASSERT_TRUE(elt) << type;
        elt->Charge(entree);
        EXPECT_EQ(Record(*elt), record);
        EXPECT_EQ(Record(*elt->Clone()), record);
    }
}

TEST(ProfilsSolides, CeQuiEstCopie) {
    EXPECT_EQ(Pris<EltProfilElevation>(), std::pair(Marque, Marque));
    EXPECT_EQ(Pris<EltProfilTourne>(), std::pair(Marque, Marque));
    EXPECT_EQ(Pris<EltProfilRuban>(), std::pair(Marque, Marque));
    EXPECT_EQ(Pris<EltRainureP>(1), std::pair(Marque, Marque));
    // Not the faces of the texture, nor its wrapping.
    const std::string sansDrapeaux = "1.5 2.5 3.5\n4.5 1 1 1 1 5.5 6.5 1 7\nmarque\n";
    EXPECT_EQ(Pris<EltProfilSurface>(1), std::pair(Marque, sansDrapeaux));
    // Not the facets.
    const std::string sansFacettes = "1.5 2.5 3.5\n4.5 0 0 0 0 5.5 6.5 1 50\nmarque\n";
    EXPECT_EQ(Pris<EltImage3d>(), std::pair(sansFacettes, Marque));
    EltProfilSurface grille, copie;
    grille.SetNbX(5);
    grille.SetNbY(2);
    copie.Copie(grille);
    EXPECT_EQ(DerniereLigne(copie), "5 4");
    EltRainureP borgne, rainure;
    borgne.debouchant = false;
    rainure.Copie(borgne);
    EXPECT_FALSE(rainure.debouchant);
}

TEST(ProfilsSolides, LaGrilleResteUnPasEnDeca) {
    EltProfilSurface surface;
    surface.SetNbX(3);
    surface.SetNbY(4);
    surface.Place({10, 20});
    surface.Grille(30, 8);
    EXPECT_EQ(Record(surface),
              "24" + Entete +
                  "10 20 0\n1\n12\n0 0 0 0 2 0 0 4 0 0 6 0 10 0 0 10 2 0 10 4 0 10 6 0 "
                  "20 0 0 20 2 0 20 4 0 20 6 0 \n" +
                  Neuf + "3 4\n");
    surface.SetNbX(2000000000);
    surface.SetNbY(2000000000);
    surface.Grille(1, 1);
    EXPECT_FALSE(surface.EstValide());
    EXPECT_EQ(surface.Sommets.size(), 0u);
}

TEST(ProfilsSolides, PointsPrisEn3D) {
    auto elt = Triangle<EltProfilElevation>();
    Proche(elt.PointProche3D({12, 2, 13}), {11, 2, 14});
    EXPECT_NEAR(elt.Distance3D({12, 2, 16}), std::sqrt(5.0), 1e-9);
    // Arcs count by their ends: the middle of this one is no point.
    Proche(elt.PointProche3D({9, 8, 0}), {11, 2, 4});
    // A quarter turn about Y brings the height along x, one about Z the first vertex along y.
    elt.beta = 90;
    Proche(elt.PointProche3D({30, 12, 0}), {11, 12, 0});
    elt.beta = 0;
    elt.alpha = 90;
    Proche(elt.PointProche3D({1, 30, 4}), {1, 12, 4});

    // The handle is found, and moves, in the solid's own axes.
    elt.DebutDeforme3D({1, 2, 9});
    EXPECT_EQ(PoigneeCourante, 1);
    elt.DebutDeforme3D({1, 14, 4});
    EXPECT_EQ(PoigneeCourante, 4);
    elt.Deforme3D({0, 3, 1});
    Proche(elt.Sommets[1], {13, 0, 5});

    // A turned profile is picked by its position, and snaps to its vertices.
    auto tourne = Triangle<EltProfilTourne>();
    tourne.gamma = 90;
    EXPECT_EQ(tourne.Distance3D({1, 2, 7}), 7.0);
    Proche(tourne.PointProche3D({1, 2, 9}), {1, 2, 10});
    EXPECT_EQ(static_cast<EltGeo&>(tourne).GetElt3d(), nullptr);
    auto profil = Triangle<EltProfil>();
    Proche(profil.PointProche3D({12, 2, 13}), {11, 2, 4});
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
    EXPECT_NEAR(troncons[1].AngleFin, Pi / 2, 1e-12);
    EXPECT_TRUE(Troncons({10, 0}, sommet, 0).empty());
    // A radius that does not reach leaves a straight link.
    EXPECT_FALSE(Troncons({100, 0}, sommet, 5).front().SurArc);
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
        profil.Sommets.assign(1, SommetProfil(PointVek(0, 10)));
        profil.Sommets.emplace_back(PointVek(0, -10), rayon);
        EXPECT_EQ(EstAntihoraire(profil), rayon < 0.0);
        // Its surface is at x > 0 for the one and at x < 0 for the other.
        EXPECT_FALSE(EstAntihoraireAutourDeY(profil));
    }
}

TEST(Chaine, Convexite) {
    std::vector<PointVek> points = {{0, 0}, {0, 10}, {10, 10}, {10, 0}};
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
    std::vector<PointVek> peigne, pelote;
    for (int i = 0; i < 10000; ++i) {
        peigne.emplace_back(i / 2, i % 4 < 2 ? 0 : 100);
        pelote.emplace_back(hasard.Reel(0, 1000), hasard.Reel(0, 1000));
    }
    peigne.emplace_back(5000, -10);
    peigne.emplace_back(0, -10);
    EXPECT_FALSE(EstEmmele(peigne));
    EXPECT_TRUE(EstEmmele(pelote));
    // To and fro along one line.
    std::vector<PointVek> ligne;
    for (int i = 0; i < 1000; ++i)
        ligne.emplace_back(i * 389 % 1007, 0);
    EXPECT_TRUE(EstEmmele(ligne));
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
    EXPECT_EQ(facettes(0, 1e9), 0);
}
