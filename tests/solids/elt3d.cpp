// What solids have besides their plane shape: the record, the axes, what is copied of it.

#include "solids/elt3d.h"

#include <gtest/gtest.h>

#include "commun/record.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "solids/eltcylindre.h"
#include "solids/eltenvboule.h"
#include "solids/eltpave.h"
#include "solids/eltpercage.h"
#include "solids/eltrainure.h"
#include "solids/eltsphere.h"

namespace {

std::string Ecrit(const Elt3d& solide) {
    Ecrivain sortie;
    solide.Sauve(sortie);
    return sortie.Texte();
}

/// Reads a record with that second line, and writes its second line again.
std::string Relit(const std::string& ligne) {
    const std::string texte = "1 2 3\n" + ligne + "\nbois.png\n77";
    Lecteur entree(texte);
    Elt3d solide;
    solide.Charge(entree);
    int suite = 0;
    entree >> suite;
    EXPECT_EQ(suite, 77) << "what follows the record";
    EXPECT_EQ(solide.texture, "bois.png");
    const std::string ecrit = Ecrit(solide);
    EXPECT_EQ(ecrit.substr(0, 6), "1 2 3\n");
    return ecrit.substr(6, ecrit.find('\n', 6) - 6);
}

/// Attributes that are all different from those of a new solid.
void Marque(Elt3d& solide) {
    solide.alpha = 1.5;
    solide.beta = 2.5;
    solide.gamma = 3.5;
    solide.h = 4.5;
    solide.texture = "marque";
    solide.echelleTexture = 5.5;
    solide.brillance = 6.5;
    solide.gourault = true;
    solide.facetisation = 7;
    solide.dessus = solide.dessous = solide.pourtour = solide.repetition = false;
}

/// What solide has of what `Marque` gives, in one letter each: angles, height, texture, its
/// wrapping, its scale, its three faces, shininess, smooth shading, facets.
std::string Pris(const Elt3d& solide) {
    std::string pris;
    if (solide.alpha == 1.5 && solide.beta == 2.5 && solide.gamma == 3.5) pris += 'a';
    if (solide.h == 4.5) pris += 'h';
    if (solide.texture == "marque") pris += 't';
    if (!solide.repetition) pris += 'r';
    if (solide.echelleTexture == 5.5) pris += 'e';
    if (!solide.dessus && !solide.dessous && !solide.pourtour) pris += '3';
    if (solide.brillance == 6.5) pris += 'b';
    if (solide.gourault) pris += 'g';
    if (solide.facetisation == 7) pris += 'f';
    return pris;
}

/// What `ChangeElt3d`, `Copie` and `Clone` take.
template <class Elt>
std::string Prises() {
    Elt source;
    Marque(source);
    Elt change, copie;
    change.ChangeElt3d(source);
    copie.Copie(source);
    return Pris(change) + ' ' + Pris(copie) + ' ' + Pris(*source.Clone()->GetElt3d());
}

void Proche(const PointVek& p, const PointVek& attendu) {
    EXPECT_NEAR(Distance3D(p, attendu), 0.0, 1e-12) << p.x << ' ' << p.y << ' ' << p.z;
}

}  // namespace

TEST(Elt3d, RecordsDeTousLesAges) {
    Elt3d solide;
    EXPECT_EQ(Ecrit(solide), "0 0 0\n10 1 1 1 1 1 0 0 50\n\n");
    Marque(solide);
    EXPECT_EQ(Ecrit(solide), "1.5 2.5 3.5\n4.5 0 0 0 0 5.5 6.5 1 7\nmarque\n");

    EXPECT_EQ(Relit("10"), "10 1 1 1 1 1 0 0 100");
    EXPECT_EQ(Relit("10 "), "10 1 1 1 1 1 0 0 100");
    EXPECT_EQ(Relit("-2.5 0 0 0 \r"), "-2.5 0 0 0 1 1 0 0 100");
    // No blank behind it: the last value does not count.
    EXPECT_EQ(Relit("10 1 0 0"), "10 1 0 1 1 1 0 0 100");
    EXPECT_EQ(Relit("10 0 0 0 0 2"), "10 0 0 0 1 1 0 0 100");
    EXPECT_EQ(Relit("10 0 0 0 0 2 "), "10 0 0 0 0 2 0 0 100");
    EXPECT_EQ(Relit("10 0 0 0 0 2 3 1"), "10 0 0 0 0 2 3 0 100");
    EXPECT_EQ(Relit("10 0 0 0 0 2 3 1 "), "10 0 0 0 0 2 3 1 0");
    EXPECT_EQ(Relit("10 1 0 1 0 2.5 7 1 12"), "10 1 0 1 0 2.5 7 1 12");
    // What is no number, or none that can be used.
    EXPECT_EQ(Relit("10 x -3 y 1 z nan 1 q"), "10 0 1 0 1 0 0 1 0");
    EXPECT_EQ(Relit("10 1 1 1 1 1e400 -inf 1 99999999999"), "10 1 1 1 1 0 0 1 2147483647");
    EXPECT_EQ(Relit("10 1 0 " + std::string(5000, '1')), "10 1 0 1 1 1 0 0 100");
}

TEST(Elt3d, NomsDeTextures) {
    const auto relit = [](const std::string& nom) {
        const std::string texte = "0 0 0\n10\n" + nom + "\n";
        Lecteur entree(texte);
        Elt3d solide;
        solide.Charge(entree);
        return solide.texture;
    };
    EXPECT_EQ(relit(""), "");
    EXPECT_EQ(relit(" bois clair é.png "), " bois clair é.png ");
    EXPECT_EQ(relit("ch\xeane.png"), "chêne.png");
    Glib::ustring long_;
    for (int i = 0; i < 300; ++i)
        long_ += "é";
    EXPECT_EQ(relit(long_).size(), 256u);
    Elt3d solide;
    solide.texture = long_;
    EXPECT_EQ(Ecrit(solide), "0 0 0\n10 1 1 1 1 1 0 0 50\n" + long_.substr(0, 256).raw() + "\n");
    solide.texture = "deux\nlignes";
    EXPECT_EQ(Ecrit(solide), "0 0 0\n10 1 1 1 1 1 0 0 50\ndeux lignes\n");
}

TEST(Elt3d, Axes) {
    Elt3d solide;
    Proche(solide.PointAxe(), {0, 0, 10});
    solide.beta = 90;
    Proche(solide.PointAxe(), {10, 0, 0});
    solide.alpha = 90;
    Proche(solide.PointAxe(), {0, 10, 0});
    // Across about X, then flat about Y, then a quarter turn about Z.
    solide.gamma = 90;
    Proche(solide.PointAxe(), {10, 0, 0});
    Proche(solide.VersMonde({1, 2, 3}), {3, 2, -1});
    Proche(solide.VersLocal({3, 2, -1}), {1, 2, 3});

    Elt3d penche;
    penche.alpha = 30;
    penche.beta = -70;
    penche.gamma = 200;
    penche.h = -4;
    Proche(penche.VersLocal(penche.PointAxe()), {0, 0, -4});
    penche.beta = penche.gamma = 0;
    // cos 30 = 0.866..., sin 30 = 0.5.
    const PointVek local = penche.VersLocal({2, 0, 5});
    EXPECT_NEAR(local.x, 1.7320508, 1e-7);
    EXPECT_NEAR(local.y, -1.0, 1e-12);
    EXPECT_EQ(local.z, 5.0);
}

TEST(Elt3d, CeQueChaqueClasseRetient) {
    EXPECT_EQ(Prises<EltPave>(), "ahtre3bg ahtre3bg ahtre3bgf");
    EXPECT_EQ(Prises<EltRainure>(), "ahtre3bg ahtre3bg ahtre3bgf");
    EXPECT_EQ(Prises<EltCylindre>(), "ahtr3bg ahtr3 ahtre3bgf");
    EXPECT_EQ(Prises<EltPercage>(), "ahtr3bg ahtr3bg ahtre3bgf");
    EXPECT_EQ(Prises<EltSphere>(), "ahtrbgf ahtrf ahtre3bgf");
    EXPECT_EQ(Prises<EltEnvBoule>(), "ahtrbgf ahtrf ahtre3bgf");
}
