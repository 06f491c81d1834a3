#include "model/bddgeo.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <sstream>
#include <vector>

#include "commun/hasard.h"
#include "elements/eltrectangle.h"
#include "elements/table.h"
#include "elements/toile.h"
#include "model/eltbdd.h"

namespace {

/// Plays the commands of data/histoire.txt on a drawing of flat segments of ten units, which bear
/// letters in the order in which they are made.
class Histoire {
  public:
    Histoire() {
        Large.Epaisseur = 3;
        Bdd.SignalRetrait().connect([this](EltGeo* elt) { Dit(elt ? "-" + Nom(elt) : "--"); });
        Bdd.SignalChangement().connect([this] { Dit("+"); });
        Bdd.SignalReprise().connect([this](const EltGeo* elt) { Dit('~' + Nom(elt)); });
    }

    /// What a line gives: the answer, "+" for each change that is told, what left and what was
    /// taken back, then the drawing from head to tail with children, numbers of parents and layers;
    /// "*" where it is modified, "!" where it is to be saved all the same.
    std::string Joue(const std::string& ligne) {
        std::istringstream mots(ligne);
        std::string commande, mot;
        mots >> commande;
        E.clear();
        N.clear();
        while (mots >> mot) {
            if (const auto elt = Elements.find(mot); elt != Elements.end())
                E.push_back(elt->second);
            else
                N.push_back(std::stod(mot));
        }
        N.resize(4);
        Dits.clear();
        const int avant = Bdd.Elements.Nombre();
        Fait(commande);
        if (commande == "vide") Elements.clear();
        auto nouveau = Bdd.Elements.begin();
        if (commande != "annule")
            for (int i = avant; i < Bdd.Elements.Nombre(); ++i, ++nouveau)
                Elements[std::string(1, static_cast<char>('a' + Elements.size()))] = *nouveau;
        for (const EltGeo* elt : Bdd.Elements)
            Dit(Nom(elt) + Details(*elt));
        if (Bdd.AEnregistrer()) Dit(Bdd.Modifie ? "*" : "!");
        return Dits;
    }

  private:
    void Fait(const std::string& commande) {
        const PointVek p(N[0], N[1]);
        const EltRectangle zone(p, {N[2], N[3]}, 0);
        if (commande == "ajoute") DitSi(Bdd.Ajoute(Plat()) != nullptr);
        if (commande == "fils") Bdd.AjouteFils(*E[0], Plat());
        if (commande == "parent") Bdd.AjouteParent(Plat(), E);
        if (commande == "change") DitSi(Bdd.Change(*E[0], Plat()));
        if (commande == "ensemble") {
            const auto deplace = E[0]->Clone();
            deplace->Deplace(p);
            DitSi(Bdd.ChangeEnsemble(*E[0], *deplace, p));
        }
        if (commande == "lie") E[0]->AjouteFils(E[1]);
        if (commande == "delie") E[0]->RetireFils(E[1]);
        if (commande == "efface") DitSi(Bdd.Efface(p));
        if (commande == "avant") DitSi(Bdd.Avant(p));
        if (commande == "arriere") DitSi(Bdd.Arriere(p));
        if (commande == "annule") DitSi(Bdd.Annule());
        if (commande == "cherche") Dit(Nom(Bdd.Cherche(p)));
        if (commande == "type") Dit(Nom(Bdd.ChercheType(p, static_cast<int>(N[2]))));
        if (commande == "calque") Bdd.SetCalqueAffiche(static_cast<int>(N[0]));
        if (commande == "copie" || commande == "coupe") Bdd.CopieZone(zone, commande == "coupe");
        if (commande == "colle") Bdd.Coller(Bdd.PressePapier, p, static_cast<int>(N[2]));
        if (commande == "groupe") Bdd.CollerCommeBDD(Bdd.PressePapier, p, "vis");
        if (commande == "vis") Dit(Nom(Bdd.ChercheBDD("vis")));
        if (commande == "trait") Bdd.ChangeTraitZone(zone, Large);
        if (commande == "sauve") Bdd.SauveTexte();
        if (commande == "vide") Bdd.Vide();
    }

    EltSegment Plat() const { return {{0, N[0]}, {10, N[0]}, static_cast<int>(N[1])}; }
    std::string Nom(const EltGeo* elt) const {
        for (const auto& [nom, connu] : Elements)
            if (connu == elt) return nom;
        return "rien";
    }
    std::string Details(const EltGeo& elt) const {
        std::string details = std::to_string(std::lround(elt.Position.y));
        for (const EltGeo* fils : elt.Fils)
            details += '(' + Nom(fils) + ')';
        if (elt.NbParents != 0) details += '/' + std::to_string(elt.NbParents);
        if (elt.Style.Epaisseur != 1) details += 't';
        if (elt.Calque != 0) details += ':' + std::to_string(elt.Calque);
        return details;
    }
    void Dit(const std::string& mot) { Dits += ' ' + mot; }
    void DitSi(bool fait) { Dit(fait ? "oui" : "non"); }

    BDDGeo Bdd;
    Trait Large;
    std::map<std::string, EltGeo*> Elements;
    std::vector<EltGeo*> E;  ///< Those of the line.
    std::vector<double> N;   ///< Its numbers.
    std::string Dits;
};

}  // namespace

TEST(BDDGeo, SelonLHistoire) {
    Histoire histoire;
    ExigeTable("model/data/histoire.txt", [&histoire](const std::string& commande, const auto&) {
        return histoire.Joue(commande);
    });
}

namespace {

/// An element of a drawing of all kinds, elsewhere; whole tens away now and then, so that elements
/// coincide and share their ends.
std::unique_ptr<EltGeo> AuHasard(Hasard& hasard, const BDDGeoBase& modeles) {
    auto elt =
        (*std::next(modeles.Elements.begin(), hasard.Entier(modeles.Elements.Nombre())))->Clone();
    const PointVek dizaines(10 * hasard.Entier(20), 10 * hasard.Entier(20));
    elt->Deplace(hasard.Entier(2) ? dizaines : hasard.Point(200));
    elt->Calque = hasard.Entier(3);
    return elt;
}

EltGeo* ChercheUnParUn(const BDDGeo& bdd, const PointVek& p, bool support, const EltGeo* sauf) {
    EltGeo* trouve = nullptr;
    double meilleure = 10;
    for (EltGeo* elt : bdd.Elements) {
        const double d = support ? elt->DistanceSupport(p) : elt->Distance(p);
        if (!bdd.EstVisible(*elt) || elt == sauf || !(d < meilleure)) continue;
        meilleure = d;
        trouve = elt;
    }
    return trouve;
}

/// The picture from the elements that may show alone, or from all of them.
std::vector<unsigned> Image(const BDDGeo& bdd, bool toutes) {
    const Toile toile;
    TraceEcran trace = toile.Pinceau();
    if (toutes)
        bdd.BDDGeoBase::Dessine(trace);
    else
        bdd.Dessine(trace);
    return toile.Lit();
}

}  // namespace

TEST(BDDGeo, ChercheEtDessineCommeUnParcoursComplet) {
    Hasard hasard(4);
    BDDGeo bdd, modeles;
    modeles.ChargeTexte(Contenu(KRVEK_ESSAIS "/model/data/feuille.vek"));
    int trouves = 0;
    for (int tour = 0; tour < 1500; ++tour) {
        SCOPED_TRACE(tour);
        const PointVek p =
            tour % 2 ? hasard.Point(200) : PointVek(5 * hasard.Entier(40), 5 * hasard.Entier(40));
        EltGeo* elt = bdd.Cherche(p);
        const int quoi = hasard.Entier(10);
        if (quoi == 0) bdd.Annule();
        if (quoi == 1) bdd.Avant(p);
        if (quoi == 2) bdd.Arriere(p);
        if (quoi == 3 && tour % 4 == 0) bdd.Efface(p);
        if (quoi == 4 && elt) {
            const auto deplace = elt->Clone();
            deplace->Deplace(hasard.Point(50));
            bdd.Change(*elt, *deplace);
        }
        for (int i = 4; i < quoi; ++i)
            bdd.Ajoute(AuHasard(hasard, modeles));
        bdd.SetCalqueAffiche(hasard.Entier(4) - 1);
        ASSERT_EQ(bdd.Cherche(p), ChercheUnParUn(bdd, p, false, nullptr));
        for (const bool support : {false, true}) {
            const EltGeo* premier = bdd.ChercheProche(p, support);
            ASSERT_EQ(premier, ChercheUnParUn(bdd, p, support, nullptr));
            if (!premier) continue;
            ++trouves;
            ASSERT_EQ(bdd.ChercheAutre(p, support), ChercheUnParUn(bdd, p, support, premier));
        }
        ASSERT_TRUE(tour % 100 != 9 || Image(bdd, false) == Image(bdd, true));
    }
    EXPECT_GT(trouves, 1000);
    while (bdd.Annule()) {
    }
    EXPECT_EQ(bdd.Elements.Nombre(), 0);
}
