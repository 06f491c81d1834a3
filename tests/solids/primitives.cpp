// Boxes, cylinders and balls, and what takes something away: records and geometry by hand.

#include <gtest/gtest.h>

#include <cmath>

#include "commun/record.h"
#include "elements/ecrivain.h"
#include "elements/eltsegment.h"
#include "model/bddgeo.h"
#include "model/registre.h"
#include "solids/eltenvboule.h"
#include "solids/eltpercage.h"
#include "solids/eltrainure.h"
#include "solids/eltsphere.h"

namespace {

const std::string Entete = " 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n";
const std::string Attributs = "0 0 0\n10 1 1 1 1 1 0 0 50\n\n";

void Proche(const PointVek& p, const PointVek& attendu) {
    EXPECT_NEAR(Distance3D(p, attendu), 0.0, 1e-12) << p.x << ' ' << p.y << ' ' << p.z;
}

/// From (0, 20) to (40, 0), so that it stands about (20, 10, 0).
EltPave BoiteType() {
    EltPave pave;
    pave.SetPoints({0, 20}, {40, 0});
    return pave;
}

/// A cone of radius 5 at (1, 2, 3), 10 high and 2 wide at its top.
EltCylindre Cone() {
    EltCylindre cylindre;
    cylindre.Place({1, 2, 3});
    cylindre.Rayon = 5;
    cylindre.rayonHaut = 2;
    return cylindre;
}

}  // namespace

TEST(Primitives, Records) {
    EXPECT_EQ(Record(BoiteType()), "19" + Entete + "20 10 0\n0 20 0 40 0 0\n" + Attributs);
    EltCylindre cylindre = Cone();
    EXPECT_EQ(Record(cylindre), "21" + Entete + "1 2 3\n5 0 6.28319\n" + Attributs + "2\n");
    EltSphere sphere;
    sphere.SetCentreDefaut({7, 8});
    EXPECT_EQ(Record(sphere), "22" + Entete + "7 8 0\n10 0 6.28319\n0 0 0\n0 1 1 1 1 1 0 0 50\n\n");
    EltPercage percage;
    percage.SetCentreDefaut({7, 8});
    EXPECT_EQ(Record(percage), "27" + Entete + "7 8 0\n10 0 6.28319\n" + Attributs + "10\n1\n");
    EltRainure rainure;
    rainure.SetPoints({0, 2}, {4, 0});
    rainure.debouchant = false;
    EXPECT_EQ(Record(rainure), "29" + Entete + "2 1 0\n0 2 0 4 0 0\n" + Attributs + "0\n");
    EltEnvBoule boule;
    boule.SetCentreDefaut({});
    boule.SetRayonPoint({0, 3});
    EXPECT_EQ(Record(boule), "28" + Entete + "0 0 0\n3 0 6.28319\n0 0 0\n0 1 1 1 1 1 0 0 50\n\n");
}

TEST(Primitives, LaClasseSuitLeCode) {
    for (int type : {TypePave, TypeCylindre, TypeSphere, TypePercage, TypeEnvBoule, TypeRainure}) {
        const auto elt = CreeElement(type);
        ASSERT_TRUE(elt) << type;
        EXPECT_EQ(elt->Type, type);
        EXPECT_EQ(elt->Clone()->Type, type);
        EXPECT_TRUE(elt->GetElt3d());
        const bool creux = type == TypePercage || type == TypeRainure;
        EXPECT_EQ(CommeSoustractif(*elt) != nullptr, creux) << type;
        EXPECT_EQ(CommeEnveloppe(*elt) != nullptr, type == TypeEnvBoule) << type;
    }
    EXPECT_FALSE(EltSegment().GetElt3d());
    EltPercage percage;
    percage.debouchant = false;
    EXPECT_FALSE(CommeSoustractif(*percage.Clone())->debouchant);
}

TEST(Primitives, UneBoiteSePrendParSesCoins) {
    EltPave pave = BoiteType();
    EXPECT_EQ(pave.Distance3D({20, 10, 4}), 4.0);
    EXPECT_EQ(pave.Distance3D({43, 0, 14}), 5.0);
    EXPECT_EQ(pave.Distance3D({43, 0, 5}), 3.0) << "half way up an edge";
    EXPECT_NEAR(pave.Distance3D({20, 0, 5}), std::sqrt(125.0), 1e-12) << "within a face";
    Proche(pave.PointProche3D({41, 22, 11}), {40, 20, 10});
    Proche(pave.PointProche3D({20, 10, 9}), {20, 10, 10});
    // Corners given in another order, the height downward.
    pave.SetPoints({40, 0}, {0, 20});
    pave.h = -10;
    Proche(pave.PointProche3D({41, 22, -11}), {40, 20, -10});
    // A quarter turn: the corner (20, -10) of the box comes to (10, 20) from its centre.
    pave.alpha = 90;
    Proche(pave.PointProche3D({31, 31, 0}), {30, 30, 0});
    EXPECT_NEAR(pave.Distance3D({30, 30, 3}), 3.0, 1e-12);
}

TEST(Primitives, UnCoinDeBoiteSeTireDansSesAxes) {
    EltPave pave = BoiteType();
    pave.alpha = 90;
    // `Extremite`, 20 and -10 from the centre, stands at (30, 30) in the world, `Origine` at
    // (10, -10).
    pave.DebutDeforme3D({31, 30, 0});
    EXPECT_EQ(PoigneeCourante, 2);
    pave.Deforme3D({2, 6, 0});
    Proche(pave.PointProche3D({32, 36, 0}), {32, 36, 0});
    Proche(pave.PointProche3D({10, -10, 0}), {10, -10, 0});
    EXPECT_EQ(pave.Extremite.x - pave.Origine.x, 46.0);
    pave.DebutDeforme3D({10, -10, 0});
    EXPECT_EQ(PoigneeCourante, 3);
    pave.DebutDeforme3D({500, 0, 0});
    EXPECT_EQ(PoigneeCourante, 1);
    pave.Deforme3D({1, 1, 5});
    Proche(pave.PointProche3D({33, 37, 5}), {33, 37, 5});
    PoigneeCourante = 0;
}

TEST(Primitives, UnCone) {
    EltCylindre cone = Cone();
    EXPECT_EQ(cone.Distance3D({9, 2, 3}), 3.0);
    EXPECT_EQ(cone.Distance3D({1, 2, 18}), 3.0);
    Proche(cone.PointProche3D({5, 2, 4}), {6, 2, 3});
    Proche(cone.PointProche3D({1, 3.5, 13}), {1, 4, 13});
    Proche(cone.PointProche3D({1, 2, 12.9}), {1, 2, 13});
    // Laid along x: its own x looks down.
    cone.beta = 90;
    Proche(cone.PointProche3D({1, 2, -1}), {1, 2, -2});
    Proche(cone.PointProche3D({11, 2.1, 3}), {11, 2, 3});
    EXPECT_NEAR(cone.Distance3D({11, 2, 6}), 1.0, 1e-12);

    // A click gives both radii, a paste keeps their ratio.
    EltPercage percage;
    percage.SetCentreDefaut({0, 0});
    percage.SetRayonPoint({3, 4});
    EXPECT_EQ(percage.rayonHaut, 5.0);
    TransformeColle double_;
    double_.Agrandissement = 2.0;
    cone.Transforme(double_);
    EXPECT_EQ(cone.Rayon, 10.0);
    EXPECT_EQ(cone.rayonHaut, 4.0);
    cone.rayonHaut = -1;
    EXPECT_FALSE(cone.EstValide());
}

TEST(Primitives, UneBoule) {
    EltSphere sphere;
    sphere.Place({1, 2, 3});
    sphere.Rayon = 5;
    sphere.beta = 40;
    EXPECT_EQ(sphere.Distance3D({1, 2, 10}), 2.0);
    EXPECT_EQ(sphere.Distance3D({1, 2, 3}), 5.0);
    Proche(sphere.PointProche3D({9, 9, 9}), {1, 2, 3});
}

TEST(Primitives, LAnnulationRendToutCeQuUneBoiteDeDialogueChange) {
    BDDGeo bdd;
    EltSphere sphere;
    sphere.Rayon = 5;
    EltGeo* elt = bdd.Ajoute(sphere);
    const std::string avant = Record(*elt);
    auto change = elt->Clone();
    change->GetElt3d()->brillance = 12;
    change->GetElt3d()->gourault = true;
    ASSERT_TRUE(bdd.Change(*elt, *change));
    EXPECT_EQ(elt->GetElt3d()->brillance, 12.0);
    EXPECT_TRUE(bdd.Annule());
    EXPECT_EQ(Record(*elt), avant);
    // What is not finite does not enter.
    change->GetElt3d()->alpha = NAN;
    EXPECT_FALSE(bdd.Change(*elt, *change));
}
