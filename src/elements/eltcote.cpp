#include "elements/eltcote.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/tuile.h"
#include "elements/vue.h"

int NbDecimales = 2;

bool EstNombreDecimales(int nombre) {
    return nombre >= 0 && nombre <= 15;
}

namespace {

/// How far the barbs of an arrow reach from its tip, in pixels or page units.
constexpr double PorteeFleche = 12.0;

constexpr double RayonPoignee = 5.0;

/// The decimals that a text may come to show when their number is changed.
constexpr Glib::ustring::size_type DecimalesMax = 15;

double EnDouble(const char* debut, const char* fin) {
    double valeur = 0.0;
    std::from_chars(debut, fin, valeur);
    return valeur;
}

/// In fixed notation with 12 significant digits, which leaves out the noise of the computation, and
/// no zeros at the end.
std::string DouzeChiffres(double valeur) {
    char chiffres[400];
    char* const borne = chiffres + sizeof chiffres;
    const char* fin = std::to_chars(chiffres, borne, valeur, std::chars_format::scientific, 11).ptr;
    const double arrondie = EnDouble(chiffres, fin);
    fin = std::to_chars(chiffres, borne, arrondie, std::chars_format::fixed).ptr;
    return std::string(static_cast<const char*>(chiffres), fin);
}

/// The value, or the next step of the decimals that are shown, where that is no farther than the
/// blur, nor than the step below.
double PasAtteint(double valeur, double flou) {
    if (NbDecimales < 0) return valeur;
    const double pas = std::pow(10.0, -NbDecimales);
    const double suivant = std::ceil(valeur / pas) * pas;
    return suivant - valeur <= std::min(flou, pas / 2.0) ? suivant : valeur;
}

}  // namespace

void DessineFleche(Trace& trace, const PointVek& pointe, const PointVek& direction) {
    const double longueur = ::Distance({}, direction);
    if (!(longueur > 0.0)) return;
    const PointVek u = direction * (trace.LongueurFleche() / longueur);
    trace.Segment(pointe, pointe + u + Normale(u));
    trace.Segment(pointe, pointe + u - Normale(u));
}

EltCote::EltCote(int type, const char* police) : EltTxt(type) {
    Texte = "Cote";
    Police = police;
}

std::unique_ptr<EltGeo> EltCote::Clone() const {
    return std::make_unique<EltCote>(*this);
}

void EltCote::Copie(const EltGeo& source) {
    EltTxt::Copie(source);
    const auto& cote = static_cast<const EltCote&>(source);
    Point1 = cote.Point1;
    Point2 = cote.Point2;
}

void EltCote::Dessine(Trace& trace) const {
    const Glib::ustring mots = EstAutomatique() ? TexteValeur() : Texte;
    const PointVek p = vue::VersEcran(Position);
    const double portee = std::abs(vue::LongueurEcran(std::max(PorteeLignes(), Portee(mots))));
    const Boite boite = Boite::Autour(p, p).Elargie(portee + PorteeFleche);
    if (!trace.Touche(boite, Style)) return;
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        EltGeo::Dessine(t);
        t.AppliqueTrait(Style, Trace::Ligne);
        DessineLignes(t);
        DessineTexte(t, mots, AngleCote(), true);
    });
}

void EltCote::DessineLignes(Trace& trace) const {
    const PointVek h = DemiLigne();
    const PointVek a = vue::VersEcran(Point1), b = vue::VersEcran(Point2);
    const PointVek e1 = vue::VersEcran(Position - h), e2 = vue::VersEcran(Position + h);
    trace.Segment(a, e1);
    trace.Segment(e1, e2);
    trace.Segment(e2, b);
    DessineFleche(trace, e1, e2 - e1);
    DessineFleche(trace, e2, e1 - e2);
}

void EltCote::DessinePoignees(Trace& trace) const {
    const PointVek poignees[] = {vue::VersEcran(Position), vue::VersEcran(Point1),
                                 vue::VersEcran(Point2)};
    Boite boite = Boite::Autour(poignees[0], poignees[1]).Avec(poignees[2]);
    boite = boite.Elargie(RayonPoignee);
    if (!trace.Touche(boite, Style)) return;
    // As one, since two on the same place would take each other away in a band.
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        t.AppliqueTrait(Style, Trace::Ligne);
        for (const PointVek& p : poignees)
            t.Arc({p, RayonPoignee, 0.0, DeuxPi}, false);
    });
}

void EltCote::Deplace(const PointVek& v) {
    EltTxt::Deplace(v);
    Point1 += v;
    Point2 += v;
}

void EltCote::Transforme(const TransformeColle& t) {
    EltTxt::Transforme(t);
    Point1.Transforme(t);
    Point2.Transforme(t);
    AccordeAngle();
}

void EltCote::Sauve(Ecrivain& sortie) const {
    // The angle as it follows from the points that are written, so that a drawing that is opened
    // and saved again gives the same file.
    const auto ecrite = Clone();
    auto& cote = static_cast<EltCote&>(*ecrite);
    cote.Point1 = CommeEcrit(Point1);
    cote.Point2 = CommeEcrit(Point2);
    cote.AccordeAngle();
    cote.EltTxt::Sauve(sortie);
    sortie << Point1 << ' ' << Point2 << '\n';
}

void EltCote::Charge(Lecteur& entree) {
    EltTxt::Charge(entree);
    entree >> Point1 >> Point2;
    AccordeAngle();
}

Minorant EltCote::MinorantDistance() const {
    // The decimals of an automatic text may change without the element.
    const double texte =
        Portee(EstAutomatique() ? TexteValeur() + Glib::ustring(DecimalesMax, '0') : Texte);
    return Minorant::Point(Position, std::max(PorteeLignes(), texte));
}

PointVek EltCote::Direction() const {
    const double distance = ::Distance(Point1, Point2);
    if (!(distance > 0.0)) return {};
    return {(Point2.x - Point1.x) / distance, (Point2.y - Point1.y) / distance};
}

bool EltCote::EstFini() const {
    return EltTxt::EstFini() && Point1.EstFini() && Point2.EstFini();
}

bool EltCote::EstValide() const {
    return EstFini() && Valeur() >= vue::Epsilon();
}

double EltCote::Valeur() const {
    return std::abs(Scalaire(Point2 - Point1, Direction()));
}

void EltCote::SetPoint1(const PointVek& p) {
    Point1 = p;
    Position = (Point1 + Point2) / 2.0;
    AccordeAngle();
}

void EltCote::SetPoint2(const PointVek& p) {
    Point2 = p;
    Position = (Point1 + Point2) / 2.0;
    AccordeAngle();
}

void EltCote::PlaceLigne(const PointVek& p) {
    const PointVek milieu = (Point1 + Point2) / 2.0;
    const PointVek n = Normale(Direction());
    Position = milieu + n * Scalaire(p - milieu, n);
    Texte = TexteValeur();
}

Glib::ustring EltCote::TexteValeur() const {
    std::string texte = DouzeChiffres(PasAtteint(Valeur(), Flou()));
    const std::size_t point = texte.find('.');
    if (point != std::string::npos && NbDecimales >= 0)
        texte.resize(std::min(texte.size(), point + 1 + static_cast<std::size_t>(NbDecimales)));
    return texte;
}

double EltCote::Flou() const {
    const PointVek u = Direction();
    return std::abs(u.x) * (EcartEcrit(Point1.x) + EcartEcrit(Point2.x)) +
           std::abs(u.y) * (EcartEcrit(Point1.y) + EcartEcrit(Point2.y));
}

double EltCote::AngleCote() const {
    const PointVek direction = Direction();
    return std::atan2(direction.y, direction.x);
}

double EltCote::PorteeLignes() const {
    return std::max(
        {::Distance(Position, Point1), ::Distance(Position, Point2), ::Distance({}, DemiLigne())});
}

bool EltCote::EstAutomatique() const {
    return Texte.raw().compare(0, 1, "*") == 0;
}

PointVek EltCote::DemiLigne() const {
    const PointVek direction = Direction();
    return direction * (Scalaire(Point2 - Point1, direction) / 2.0);
}
