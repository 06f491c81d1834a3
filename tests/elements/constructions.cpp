// What each construction makes, worked out by hand in data/constructions.txt: a line for each, the
// result behind "=". The lines are played again in drawings that are turned and shifted, and must
// give the same there, but for those behind "-", which keep to the axes or hang on a tie.

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>
#include <vector>

#include "commun/record.h"
#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/eltarc.h"
#include "elements/eltcoteang.h"
#include "elements/eltcotecercle.h"
#include "elements/eltdroite.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "elements/intersections.h"
#include "elements/lecteur.h"
#include "elements/traceetendue.h"
#include "model/registre.h"
#include "table.h"
#include "toile.h"
#include "verifie.h"

namespace {

/// One line of the table: its words are read in order, and what comes out is said in order.
class Ligne {
  public:
    Ligne(const std::string& texte, double rotation, const PointVek& decalage)
        : Mots(texte), Rotation(rotation), Decalage(decalage) {}

    std::string Mot() {
        std::string mot;
        Mots >> mot;
        return mot;
    }
    double Nombre() { return std::stod(Mot()); }
    double Angle() { return EnRadians(Nombre()) + Rotation; }

    PointVek Vecteur() {
        const double x = Nombre();
        PointVek v(x, Nombre());
        v.Tourne(Rotation);
        return v;
    }
    PointVek Point() { return Vecteur() + Decalage; }

    std::unique_ptr<EltGeo> Element();

    /// The next value, of any type that a construction takes.
    template <class Type>
    decltype(auto) Lit() {
        if constexpr (std::is_same_v<Type, double>)
            return Nombre();
        else if constexpr (std::is_same_v<Type, bool>)
            return Mot() == "oui";
        else if constexpr (std::is_same_v<Type, PointVek>)
            return Point();
        else if constexpr (std::is_same_v<Type, TransformeColle>)
            return Collage();
        else
            return static_cast<const Type&>(*Lus.emplace_back(Element()));
    }

    /// Degrees, mirrors, factor.
    TransformeColle Collage() {
        const double angle = EnRadians(Nombre());
        const std::string miroirs = Mot();
        return {Nombre(),          angle,
                std::cos(angle),   std::sin(angle),
                miroirs[0] == 'x', miroirs.back() == 'y'};
    }

    bool Reste() { return (Mots >> std::ws).good(); }

    void Dit(const std::string& mot) { Dits += ' ' + mot; }
    void Dit(double valeur) {
        Ecrivain sortie;
        sortie << std::round(valeur * 1e4) / 1e4;
        Dit(sortie.Texte());
    }
    void DitAngle(double angle) { Dit(EnDegres(AngleReduit(angle - Rotation + 1e-9, 0.0))); }
    void Dit(PointVek p) {
        p += -Decalage;
        p.Tourne(-Rotation);
        Dit(p.x);
        Dit(p.y);
    }
    void Dit(const EltGeo& elt);

    std::string Dits;

  private:
    std::istringstream Mots;
    const double Rotation;
    const PointVek Decalage;
    std::vector<std::unique_ptr<EltGeo>> Lus;
};

std::unique_ptr<EltGeo> Ligne::Element() {
    const std::string mot = Mot();
    const PointVek a = Point();
    if (mot == "point") {
        auto point = std::make_unique<EltGeo>(TypePoint);
        point->Place(a);
        return point;
    }
    if (mot == "segment") return std::make_unique<EltSegment>(a, Point(), 0);
    if (mot == "rectangle") return std::make_unique<EltRectangle>(a, Point(), 0);
    if (mot == "droite") return EltDroite(a, Point(), 0).Clone();
    // As the mouse draws it: it bears the rectangle's code.
    if (mot == "tracee") return std::make_unique<EltDroite>(a, Point(), 0);
    if (mot == "arc") {
        const double rayon = Nombre(), debut = Angle();
        return std::make_unique<EltArc>(a, rayon, debut, EnRadians(Nombre()), 0);
    }
    if (mot == "profil") {
        auto profil = std::make_unique<EltProfil>();
        profil->Debut(a);
        for (double nombre = Nombre(); nombre > 0; --nombre) {
            profil->Ajoute(Point());
            SommetProfil& sommet = profil->Sommets.back();
            sommet.Rayon = Nombre();
            sommet.Arrondi = sommet.Rayon != 0.0;
        }
        return profil;
    }
    const char* const cotes[] = {"cote",        "angulaire", "verticale",
                                 "horizontale", "diametre",  "rayon"};
    const auto rang = std::find(std::begin(cotes), std::end(cotes), mot) - std::begin(cotes);
    auto elt = CreeElement(TypeCote + static_cast<int>(rang));
    auto& cote = static_cast<EltCote&>(*elt);
    cote.SetPoint1(a);
    cote.SetPoint2(Point());
    cote.PlaceLigne(Point());
    if (auto* angle = dynamic_cast<EltCoteAng*>(elt.get())) angle->PlaceExtremite2(Point());
    return elt;
}

void Ligne::Dit(const EltGeo& elt) {
    if (const auto* segment = dynamic_cast<const EltSegment*>(&elt)) {
        Dit(segment->Origine);
        Dit(segment->Extremite);
        EXPECT_POINT(elt.Position * 2, segment->Origine.x + segment->Extremite.x,
                     segment->Origine.y + segment->Extremite.y);
    } else {
        Dit(elt.Position);
    }
    if (const auto* arc = dynamic_cast<const EltArc*>(&elt)) {
        Dit(arc->Rayon);
        if (arc->Ouverture != DeuxPi) DitAngle(arc->AngleDebut);
        Dit(EnDegres(arc->Ouverture));
    } else if (const auto* profil = dynamic_cast<const EltProfil*>(&elt)) {
        for (const SommetProfil& sommet : profil->Sommets) {
            Dit(profil->Position + sommet);
            Dit(sommet.Rayon);
        }
    } else if (const auto* cote = dynamic_cast<const EltCote*>(&elt)) {
        Dit(cote->Point1);
        Dit(cote->Point2);
        if (const auto* angle = dynamic_cast<const EltCoteAng*>(cote)) {
            Dit(angle->Sommet);
            Dit(angle->Extremite1);
            Dit(angle->Extremite2);
        }
        // That of a circle is level in any drawing.
        if (!dynamic_cast<const EltCoteCercle*>(cote)) DitAngle(cote->Angle);
        Dit(cote->Texte + ' ' + cote->TexteValeur());
    }
    if (!elt.EstValide()) Dit("invalide");
}

/// What the rest of the line looks like on one drawing.
std::vector<unsigned> Ensemble(Ligne& l) {
    const Toile toile;
    TraceEcran trace = toile.Pinceau();
    while (l.Reste())
        l.Element()->Dessine(trace);
    return toile.Lit();
}

using Construction = std::function<void(Ligne&)>;

/// A method that makes something of its element, or answers that it cannot, and then must have left
/// it alone.
template <class Type, class Rendu, class... Args>
Construction Regle(Rendu (Type::*methode)(Args...)) {
    return [methode](Ligne& l) {
        auto& elt = const_cast<Type&>(l.Lit<Type>());
        const std::string avant = Record(elt);
        const std::tuple<decltype(l.Lit<std::decay_t<Args>>())...> args{
            l.Lit<std::decay_t<Args>>()...};
        bool fait = true;
        std::apply(
            [&](auto&... lus) {
                if constexpr (std::is_same_v<Rendu, bool>)
                    fait = (elt.*methode)(lus...);
                else
                    (elt.*methode)(lus...);
            },
            args);
        if (fait)
            l.Dit(elt);
        else
            l.Dit(Record(elt) == avant ? "rien" : "change");
    };
}

const std::map<std::string, Construction> Constructions = {
    {"element", [](Ligne& l) { l.Dit(l.Lit<EltGeo>()); }},
    {"proche",
     [](Ligne& l) {
         const EltGeo& elt = l.Lit<EltGeo>();
         const PointVek p = l.Point();
         l.Dit(elt.Distance(p));
         l.Dit(elt.DistanceSupport(p));
         l.Dit(elt.PointProche(p));
     }},
    {"deforme",
     [](Ligne& l) {
         const auto elt = l.Element();
         PoigneeCourante = 0;
         elt->DebutDeforme(l.Point());
         elt->Deforme(l.Vecteur());
         l.Dit(PoigneeCourante);
         l.Dit(*elt);
     }},
    {"croise",
     [](Ligne& l) {
         PointVek points[2];
         const EltGeo& premier = l.Lit<EltGeo>();
         const int nombre = Intersecte(premier, l.Lit<EltGeo>(), points[0], points[1]);
         for (int i = 0; i < nombre; ++i)
             l.Dit(points[i]);
     }},
    {"suit",
     [](Ligne& l) {
         EltProfil profil;
         profil.Debut(l.Point());
         profil.Ajoute(l.Point());
         profil.AjouteElement(l.Lit<EltGeo>());
         l.Dit(profil);
     }},
    {"lien",
     [](Ligne& l) {
         const PointVek a = l.Point(), b = l.Point();
         const auto arc = SommetProfil(b, l.Nombre()).Arc(a);
         if (!arc) return l.Dit("rien");
         l.Dit(arc->Centre);
         for (const double part : {0.0, 0.5, 1.0})
             l.Dit(PointPolaire(arc->Centre, arc->Rayon, arc->Debut + part * arc->Ouverture));
     }},
    {"image",
     [](Ligne& l) {
         const auto elt = l.Element();
         if (auto* cote = dynamic_cast<EltCote*>(elt.get())) cote->Texte = "";
         const auto semblable = Ensemble(l);
         const bool bande = Peint(*elt, true) == semblable;
         l.Dit(Peint(*elt) == semblable && bande ? "oui" : "non");
     }},
    {"poignees",
     [](Ligne& l) {
         const Toile toile;
         TraceEcran trace = toile.Pinceau();
         l.Element()->DessinePoignees(trace);
         const auto poignees = toile.Lit();
         l.Dit(poignees == Ensemble(l) ? "oui" : "non");
     }},
    {"etendue",
     [](Ligne& l) {
         TraceEtendue trace(true);
         l.Element()->Dessine(trace);
         l.Dit(PointVek(trace.Etendue()->Gauche, -trace.Etendue()->Haut));
         l.Dit(PointVek(trace.Etendue()->Droite, -trace.Etendue()->Bas));
     }},
    {"valeur",
     [](Ligne& l) {
         EltCote cote;
         cote.SetPoint2({l.Nombre(), 0});
         NbDecimales = static_cast<int>(l.Nombre());
         l.Dit(cote.TexteValeur());
         NbDecimales = 2;
     }},
    {"relue",
     [](Ligne& l) {
         const std::string record = Record(*l.Element());
         Lecteur entree(record);
         int type = 0;
         entree >> type;
         const auto relu = CreeElement(type);
         relu->Charge(entree);
         l.Dit(std::stod(static_cast<EltCote&>(*relu).TexteValeur()));
     }},
    {"semblables",
     [](Ligne& l) {
         const auto elt = l.Element();
         auto& cote = static_cast<EltCote&>(*elt);
         cote.Texte = l.Mot();
         const auto image = Peint(cote);
         cote.Texte = l.Mot();
         l.Dit(Peint(cote) == image ? "oui" : "non");
     }},
    {"colle", Regle(&EltGeo::Transforme)},
    {"place", Regle(&EltGeo::Place)},
    {"deplace", Regle(&EltGeo::Deplace)},
    {"copie", Regle(&EltGeo::Copie)},
    {"longueur", Regle(&EltSegment::SetLongueur)},
    {"angle", Regle(&EltSegment::SetAngle)},
    {"centree", Regle(&EltSegment::SetExtremiteSymetrique)},
    {"origine", Regle(&EltSegment::SetOrigine)},
    {"parallele", Regle(&EltSegment::ParalleleCote)},
    {"orthogonal", Regle(&EltSegment::Orthogonal)},
    {"accroche", Regle(&EltSegment::Accroche)},
    {"tangente", Regle(&EltSegment::Tangente2Arcs)},
    {"cercle", Regle(&EltArc::SetCentreDefaut)},
    {"rayon", Regle(&EltArc::SetRayonPoint)},
    {"debut", Regle(&EltArc::SetDebutPoint)},
    {"fin", Regle(&EltArc::SetFinPoint)},
    {"placedebut", Regle(&EltArc::PlaceDebut)},
    {"placefin", Regle(&EltArc::PlaceFin)},
    {"points", Regle(&EltArc::DepuisPoints)},
    {"arc2", Regle(&EltArc::Arc2Points)},
    {"arc3", Regle(&EltArc::Arc3Points)},
    {"tangent", Regle(&EltArc::TangentPoint)},
    {"tangent2", Regle(&EltArc::Tangent2Elements)},
    {"conge", Regle(&EltArc::Tangent2ElementsRayon)},
    {"cotearc", Regle(&EltCoteCercle::DepuisArc)},
    {"ligne", Regle(&EltCote::PlaceLigne)},
};

}  // namespace

TEST(Constructions, SelonLaTable) {
    for (double rotation = 0.0; rotation < 14.0; rotation += 0.7)
        ExigeTable("elements/data/constructions.txt", [rotation](const std::string& question,
                                                                 const std::string& attendu) {
            Ligne ligne(question, rotation, PointVek(310.5, -47.25) * std::sin(rotation));
            std::string mot = ligne.Mot();
            const bool fixe = mot == "-";
            if (fixe) mot = ligne.Mot();
            if (fixe && rotation != 0.0) return attendu;
            Constructions.at(mot)(ligne);
            return ligne.Dits;
        });
}
