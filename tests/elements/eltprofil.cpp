#include "elements/eltprofil.h"
#include "commun/record.h"

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "elements/lecteur.h"
#include "toile.h"
#include "verifie.h"

namespace {

const char Debut[] = "1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n1 2 0\n";

EltProfil Charge(const std::string& suite) {
    const std::string texte = Debut + suite;
    Lecteur entree(texte);
    EltProfil profil;
    profil.Charge(entree);
    return profil;
}

std::vector<unsigned> Peint(const EltProfil& profil, bool bande = false) {
    const Toile toile;
    TraceEcran trace = bande ? toile.Bande() : toile.Pinceau();
    profil.Dessine(trace);
    return toile.Lit();
}

PointVek Milieu(const ArcDeLien& arc) {
    return PointPolaire(arc.Centre, arc.Rayon, arc.Debut + arc.Ouverture / 2.0);
}

/// The chain of the vertices from depart along one element.
std::vector<SommetProfil> Suivi(const PointVek& depart, const EltGeo& elt) {
    EltProfil profil;
    profil.Debut({7, 7});
    profil.Ajoute(depart);
    profil.AjouteElement(elt);
    for (SommetProfil& sommet : profil.Sommets)
        sommet += profil.Position;
    return profil.Sommets;
}

}  // namespace

TEST(EltProfil, ArcsDesLiens) {
    // A chord of 10 on a circle of 13: the centre is 12 away from it.
    const PointVek a(0, 0);
    for (const double rayon : {13.0, -13.0}) {
        const SommetProfil b({10, 0}, rayon);
        const auto arc = b.Arc(a);
        ASSERT_TRUE(arc);
        EXPECT_POINT(arc->Centre, 5, rayon > 0 ? -12 : 12);
        EXPECT_EQ(arc->Ouverture<0, rayon> 0);
        EXPECT_POINT(PointPolaire(arc->Centre, 13, arc->Debut), 0, 0);
        EXPECT_POINT(PointPolaire(arc->Centre, 13, arc->Debut + arc->Ouverture), 10, 0);
        EXPECT_POINT(Milieu(*arc), 5, rayon > 0 ? 1 : -1);
    }
    EXPECT_FALSE(SommetProfil({10, 0}, 4.9).Arc(a)) << "the chord exceeds the diameter";
    EXPECT_FALSE(SommetProfil({10, 0}, 0).Arc(a));
    EXPECT_FALSE(SommetProfil({0, 0}, 5).Arc(a));
    EXPECT_FALSE(SommetProfil(PointVek(10, 0)).Arc(a));
    EXPECT_FALSE(SommetProfil({1e300, 1e300}, 5).Arc(-PointVek(1e300, 1e300)));
    // A half turn whose ends were rounded by a file is still one.
    const auto demi = SommetProfil({66.6667, 0}, -33.3333).Arc(a);
    ASSERT_TRUE(demi);
    EXPECT_NEAR(demi->Ouverture, Pi, 1e-9);
    EXPECT_POINT(Milieu(*demi), 33.33335, -33.33335);
}

TEST(EltProfil, Enregistrement) {
    EltProfil profil;
    profil.Debut({1, 2});
    profil.Ajoute({1, 2});
    profil.Sommets.emplace_back(PointVek(10, 0), -25);
    profil.Ajoute({21, -3.5, 3});
    const std::string texte = std::string("5 ") + Debut + "1\n3\n0 0 0 10 0 0R-25  20 -5.5 3 \n";
    EXPECT_EQ(Record(profil), texte);
    EXPECT_EQ(Record(Charge(texte.substr(texte.find("1\n3\n")))), texte);
    EXPECT_FALSE(Charge("0\n0\n\n").Ferme);

    // The count is a bound and no promise; a vertex enters when all of it could be read.
    const auto nombre = [](const std::string& suite) { return Charge(suite).Sommets.size(); };
    EXPECT_EQ(nombre("1\n2000000000\n1 2 3 4 5 6 "), 2u);
    EXPECT_EQ(nombre("1\n2000000000\n1 2 3 4 5 6"), 2u);
    EXPECT_EQ(nombre("1\n-5\n1 2 3 "), 0u);
    EXPECT_EQ(nombre("1\n99999999999\n1 2 3 "), 0u);
    EXPECT_EQ(nombre("1\n3\n1 2 3R4  5 6 7R"), 1u);
    EXPECT_EQ(nombre("1\n3\n1 2 3 R4  5 6 7 "), 1u) << "no R behind a blank";
    EXPECT_EQ(nombre("1\n3\n1 2 3 4 nan 6 7 8 9 "), 1u);
    EXPECT_EQ(nombre(""), 0u);
}

TEST(EltProfil, TransformationPoigneesCopie) {
    EltProfil profil;
    profil.Debut({10, 20});
    profil.Ajoute({30, 20});
    profil.Sommets.emplace_back(PointVek(60, 30), 35);
    const PointVek bombe = profil.Position + Milieu(*profil.Sommets[1].Arc(profil.Sommets[0]));
    for (const bool x : {false, true})
        for (const bool y : {false, true}) {
            TransformeColle t;
            t.Cos = 0.6;
            t.Sin = 0.8;
            t.SymetrieX = x;
            t.SymetrieY = y;
            t.Agrandissement = 3;
            EltProfil autre(profil);
            autre.Transforme(t);
            PointVek attendu = bombe;
            attendu.Transforme(t);
            const auto arc = autre.Sommets[1].Arc(autre.Sommets[0]);
            ASSERT_TRUE(arc);
            EXPECT_POINT(autre.Position + Milieu(*arc), attendu.x, attendu.y);
        }

    EXPECT_POINT(profil.PointProche({72, 49}), 70, 50);
    EXPECT_POINT(profil.PointProche({20, 20}), 10, 20);  // A tie goes to the position.
    EXPECT_DOUBLE_EQ(profil.Distance({73, 54}), 5);
    EXPECT_POINT(EltProfil().PointProche({3, 3}), 0, 0);

    const auto saisit = [](EltProfil& p, const PointVek& la, const PointVek& v) {
        p.DebutDeforme(la);
        p.Deforme(v);
        return PoigneeCourante;
    };
    const auto clone = profil.Clone();
    auto& copie = static_cast<EltProfil&>(*clone);
    EXPECT_EQ(saisit(copie, {500, 300}, {1, 2}), 4);  // However far the nearest vertex is.
    EXPECT_EQ(SommetCourant, 1);
    EXPECT_POINT(copie.Sommets[1], 61, 32);
    EXPECT_POINT(profil.Sommets[1], 60, 30);
    EXPECT_EQ(saisit(copie, {12, 21}, {5, 5}), 1);
    EXPECT_POINT(copie.Position, 15, 25);
    EXPECT_POINT(copie.Sommets[1], 61, 32);
    EltProfil vide;
    EXPECT_EQ(saisit(vide, {500, 300}, {1, 2}), 1);
    vide.Copie(copie);
    EXPECT_EQ(Record(vide), Record(copie));

    EXPECT_TRUE(profil.EstValide());
    profil.Sommets[1] = profil.Sommets[0];
    EXPECT_FALSE(profil.EstValide());
    profil.Sommets.pop_back();
    EXPECT_FALSE(profil.EstValide());
    profil.Sommets[0].Rayon = HUGE_VAL;
    EXPECT_FALSE(profil.EstFini());
}

TEST(EltProfil, SuitLesElementsDansLesDeuxSens) {
    const EltSegment segment({0, 0}, {30, 40}, 0);
    EXPECT_POINT(Suivi({1, 0}, segment)[1], 30, 40);
    EXPECT_POINT(Suivi({29, 40}, segment)[1], 0, 0);

    struct Cas {
        double Ouverture;  ///< Degrees, from the direction of x.
        PointVek Depart, Arrivee;
        double Rayon;
    };
    for (const Cas& cas : {Cas{90, {10, 0}, {0, 10}, -10}, Cas{90, {0, 10}, {10, 0}, 10},
                           Cas{-90, {10, 0}, {0, -10}, 10}, Cas{-90, {0, -10}, {10, 0}, -10},
                           Cas{180, {10, 0}, {-10, 0}, -10}, Cas{180, {-10, 0}, {10, 0}, 10},
                           Cas{270, {10, 0}, {0, -10}, -10}, Cas{270, {0, -10}, {10, 0}, 10},
                           Cas{360, {10, 0}, {10, 0}, -10}}) {
        SCOPED_TRACE(cas.Ouverture);
        const EltArc arc({0, 0}, 10, 0, EnRadians(cas.Ouverture), 0);
        const auto sommets = Suivi(cas.Depart, arc);
        ASSERT_EQ(sommets.size(), std::abs(cas.Ouverture) > 180 ? 3u : 2u);
        EXPECT_POINT(sommets.back(), cas.Arrivee.x, cas.Arrivee.y);
        for (std::size_t i = 1; i < sommets.size(); ++i) {
            EXPECT_EQ(sommets[i].Rayon, cas.Rayon);
            const auto lien = sommets[i].Arc(sommets[i - 1]);
            ASSERT_TRUE(lien);
            EXPECT_POINT(lien->Centre, 0, 0);
            // The middle of the link lies on the element and not on what it leaves out.
            const PointVek milieu = Milieu(*lien);
            const double angle = EnDegres(std::atan2(milieu.y, milieu.x));
            const double depuis = std::remainder(angle - cas.Ouverture / 2, 360);
            EXPECT_LT(std::abs(depuis), std::abs(cas.Ouverture) / 2);
        }
    }
}

TEST(EltProfil, SurfaceBordeeDArcs) {
    // A square of which the upper side is half a circle, outward or inward.
    for (const double cote : {29.05, 40.0, 25.5, 15.73})
        for (const double decalage : {0.0, 0.3, 0.5})
            for (const bool dehors : {true, false}) {
                EltProfil profil;
                profil.Debut({decalage, -20});
                for (const PointVek& p : {PointVek(-cote, -50), {cote, -50}, {cote, 0}})
                    profil.Ajoute(p + PointVek(decalage, 0));
                profil.Sommets.emplace_back(PointVek(-cote, 20), dehors ? -cote : cote);
                profil.Style.Couleur = Gdk::Color("#ff0000");
                profil.Style.CouleurFond = Gdk::Color("#0000ff");
                profil.Style.Remplissage = true;
                const auto image = Peint(profil);
                EXPECT_TRUE(image == Peint(profil, true)) << "in a band";
                int faux = 0;
                for (int i = 0; i < Toile::Hauteur; ++i)
                    for (int j = 0; j < Toile::Largeur; ++j) {
                        const double x = j - 100 - decalage, y = 80 - i;
                        const double carre = std::max({std::abs(x) - cote, -50 - y, y});
                        const double disque = std::hypot(x, y) - cote;
                        // Negative within the surface.
                        const double bord =
                            dehors ? std::min(carre, disque) : std::max(carre, -disque);
                        const unsigned vu = Vu(image, j, i);
                        const bool croix = std::abs(x) < 6 && std::abs(y + 20) < 6;
                        if (bord > 1.5 && !croix) faux += vu != Blanc;
                        // The outline lets nothing of the background through.
                        if (vu == Bleu)
                            faux += Vu(image, j - 1, i) == Blanc || Vu(image, j + 1, i) == Blanc ||
                                    Vu(image, j, i - 1) == Blanc || Vu(image, j, i + 1) == Blanc;
                        if (bord < -2 && !croix) faux += vu != Bleu;
                    }
                EXPECT_EQ(faux, 0) << cote << ' ' << decalage << ' ' << dehors;
            }
}

TEST(EltProfil, HachuresEtContours) {
    EltProfil profil;
    profil.Debut({0, 60});
    for (const PointVek& p : {PointVek(-50, -50), {50, -50}, {50, 50}, {-50, 50}})
        profil.Ajoute(p);
    profil.Style.CouleurFond = Gdk::Color("#0000ff");
    profil.Style.Hachure = 1;
    profil.Style.PasHachure = 10;
    const auto bleus = [](const std::vector<unsigned>& image) {
        return static_cast<double>(std::count(image.begin(), image.end(), Bleu));
    };
    EXPECT_NEAR(bleus(Peint(profil)), 100 * 90, 300);
    profil.Style.Contour = false;
    profil.Style.Couleur = Gdk::Color("#ff0000");
    EXPECT_NE(Vu(Peint(profil), 100 - 50, 80 + 3), Rouge) << "no outline";
    profil.Ferme = false;
    const auto ouvert = Peint(profil);
    EXPECT_EQ(bleus(ouvert), 0);
    EXPECT_EQ(Vu(ouvert, 100, 80 + 50), Rouge);
    EXPECT_EQ(Vu(ouvert, 100 - 50, 80), Blanc) << "no closing link";

    // A link that does not reach is left out; its ends and the others stay.
    profil.Sommets[1] = SommetProfil(profil.Sommets[1], 20);
    const auto rompu = Peint(profil);
    EXPECT_EQ(Vu(rompu, 100, 80 + 50), Blanc);
    EXPECT_EQ(Vu(rompu, 100 + 50, 80), Rouge);
}

TEST(EltProfil, LointainEtImmense) {
    for (const double loin : {1e5, 1e9, 1e15, 1e100}) {
        SCOPED_TRACE(loin);
        EltProfil profil;
        profil.Debut({0, loin});
        // Everything on the left of x = 0; the other links bulge far away.
        profil.Ajoute({0, -loin});
        profil.Ajoute({0, loin});
        profil.Sommets.emplace_back(PointVek(-loin, 0), -loin);
        profil.Style.Remplissage = true;
        profil.Style.Contour = false;
        profil.Style.CouleurFond = Gdk::Color("#0000ff");
        const auto image = Peint(profil);
        EXPECT_EQ(Vu(image, 3, 80), Bleu);
        EXPECT_EQ(Vu(image, 98, 3), Bleu);
        EXPECT_EQ(Vu(image, 102, 150), Blanc);
    }
    // So large an arc that the eye takes it for straight.
    for (const double rayon : {1e6, 1e12, 1e200}) {
        EltProfil profil;
        profil.Debut({0, 50});
        profil.Ferme = false;
        profil.Ajoute({-40, 0});
        profil.Ajoute({40, 7});
        const auto droit = Peint(profil);
        profil.Sommets[1] = SommetProfil(profil.Sommets[1], rayon);
        EXPECT_TRUE(Peint(profil) == droit);
    }
    EltProfil profil = Charge("1\n3\n1e308 1e308 0 -1e308 1e300 0R1e308  1 1e-320 0R1e-300  ");
    EXPECT_EQ(profil.Sommets.size(), 3u);
    Peint(profil);
    Peint(profil, true);
    profil.Style.Hachure = 1;
    Peint(profil);
    profil.MinorantDistance();

    // The time that a surface takes is bounded, however many vertices it has.
    profil.Sommets.clear();
    profil.Style.Remplissage = true;
    for (int i = 0; i < 100000; ++i)
        profil.Sommets.emplace_back(PointVek(i * 0.0018 - 90, i % 2 * 120 - 60));
    Peint(profil);

    // What bulges beyond the vertices is found and repainted.
    profil.Debut({0, 0});
    profil.Ajoute({0, 0});
    profil.Sommets.emplace_back(PointVek(100, 0), 50);
    EXPECT_TRUE(profil.MinorantDistance().PeutToucher({40, 45, 60, 49}));
    profil.Sommets = {SommetProfil({0, 0}, 50), SommetProfil(PointVek(100, 0))};
    EXPECT_TRUE(profil.MinorantDistance().PeutToucher({40, -49, 60, -45})) << "the closing link";
}
