#include "elements/eltprofil.h"

#include <algorithm>
#include <cmath>

#include "elements/angles.h"
#include "elements/distances.h"
#include "elements/ecrivain.h"
#include "elements/eltarc.h"
#include "elements/eltsegment.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/tuile.h"
#include "elements/vue.h"

int SommetCourant = -1;

EltProfil::EltProfil(int type) : EltGeo(type) {}

std::unique_ptr<EltGeo> EltProfil::Clone() const {
    return std::make_unique<EltProfil>(*this);
}

void EltProfil::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    const auto& profil = static_cast<const EltProfil&>(source);
    Ferme = profil.Ferme;
    Sommets = profil.Sommets;
}

void EltProfil::Dessine(Trace& trace) const {
    Peint(trace, Liens(Ferme), Ferme && (Style.Remplissage || Style.Hachure == 1));
}

void EltProfil::DessineEnCours(Trace& trace) const {
    std::vector<LienEcran> liens = Liens(false);
    if (!Sommets.empty()) {
        LienEcran lien;
        lien.Debut = vue::VersEcran(Dernier);
        lien.Fin = vue::VersEcran(Provisoire);
        liens.push_back(lien);
    }
    Peint(trace, liens, false);
}

LienEcran EltProfil::Lien(const SommetProfil& precedent, const SommetProfil& sommet) const {
    LienEcran lien;
    lien.Debut = vue::VersEcran(Absolu(precedent));
    lien.Fin = vue::VersEcran(Absolu(sommet));
    if (!sommet.Arrondi) return lien;
    const auto arc = sommet.Arc(precedent);
    lien.Visible = arc.has_value();
    if (!arc) return lien;
    const double rayon = vue::LongueurEcran(arc->Rayon), debut = arc->Debut + vue::Rotation();
    // What is straight to the eye needs no centre, which may be too far away to be known.
    constexpr double droit = 0.1;
    if (rayon * (1.0 - std::cos(arc->Ouverture / 2.0)) < droit) return lien;
    lien.Arc = ArcEcran{vue::VersEcran(Position + arc->Centre), rayon, debut, arc->Ouverture};
    return lien;
}

std::vector<LienEcran> EltProfil::Liens(bool ferme) const {
    std::vector<LienEcran> liens;
    for (std::size_t i = 1; i < Sommets.size(); ++i)
        liens.push_back(Lien(Sommets[i - 1], Sommets[i]));
    if (ferme && !Sommets.empty()) liens.push_back(Lien(Sommets.back(), Sommets.front()));
    return liens;
}

void EltProfil::Peint(Trace& trace, const std::vector<LienEcran>& liens, bool surface) const {
    const PointVek centre = vue::VersEcran(Position);
    Boite boite = Boite::Autour(centre, centre).Elargie(5.0);
    for (const LienEcran& lien : liens) {
        const Boite cadre = lien.Cadre();
        boite = boite.Avec({cadre.Gauche, cadre.Haut}).Avec({cadre.Droite, cadre.Bas});
    }
    if (!trace.Touche(boite, Style)) return;
    // In a band the links would take away the pixels that they share.
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        if (surface) {
            t.AppliqueTrait(Style, Trace::Surface);
            t.Polygone(liens);
        }
        EltGeo::Dessine(t);
        if (surface && !Style.Contour) return;
        t.AppliqueTrait(Style, Trace::Ligne);
        for (const LienEcran& lien : liens)
            if (t.Touche(lien.Cadre(), Style)) t.Lien(lien);
    });
}

void EltProfil::DessinePoignees(Trace& trace) const {
    EltGeo::DessinePoignees(trace);
    for (const SommetProfil& sommet : Sommets)
        trace.Poignee(vue::VersEcran(Absolu(sommet)));
}

void EltProfil::Transforme(const TransformeColle& t) {
    Position.Transforme(t);
    for (SommetProfil& sommet : Sommets)
        sommet.Transforme(t);
}

void EltProfil::ChangeTrait(const Trait& trait) {
    Style = trait;
}

void EltProfil::DebutDeforme(const PointVek& p) {
    PoigneeCourante = 1;
    if (::Distance(p, Position) < vue::Proche10()) return;
    SommetCourant = SommetProche(p - Position, ::Distance);
    if (SommetCourant >= 0) PoigneeCourante = 4;
}

void EltProfil::Deforme(const PointVek& v) {
    if (PoigneeCourante != 4)
        EltGeo::Deforme(v);
    else if (SommetCourant >= 0 && SommetCourant < static_cast<int>(Sommets.size()))
        Sommets[static_cast<std::size_t>(SommetCourant)] += v;
}

PointVek EltProfil::PointProche3D(const PointVek& p) const {
    std::vector<PointVek> reperes = {{}};
    reperes.insert(reperes.end(), Sommets.begin(), Sommets.end());
    return Position + DepuisAxes(PlusProche3D(VersAxes(p - Position), reperes));
}

void EltProfil::DebutDeforme3D(const PointVek& p) {
    PoigneeCourante = 1;
    if (::Distance3D(p, Position) < vue::Proche3D) return;
    SommetCourant = SommetProche(VersAxes(p - Position), ::Distance3D);
    if (SommetCourant >= 0) PoigneeCourante = 4;
}

void EltProfil::Deforme3D(const PointVek& v) {
    Deforme(PoigneeCourante == 4 ? VersAxes(v) : v);
}

void EltProfil::Sauve(Ecrivain& sortie) const {
    EltGeo::Sauve(sortie);
    sortie << Ferme << '\n' << static_cast<int>(Sommets.size()) << '\n';
    for (const SommetProfil& sommet : Sommets)
        sortie << sommet << ' ';
    sortie << '\n';
}

void EltProfil::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    int nombre = 0;
    entree >> Ferme >> nombre;
    Sommets.clear();
    for (int i = 0; i < nombre && entree.PeutLire(); ++i) {
        SommetProfil sommet;
        entree >> sommet;
        if (!entree.Echec()) Sommets.push_back(sommet);
    }
}

int EltProfil::SommetProche(const PointVek& p, Mesure distance) const {
    int proche = -1;
    double minimum = HUGE_VAL;
    for (std::size_t i = 0; i < Sommets.size(); ++i) {
        const double d = distance(p, Sommets[i]);
        if (!(d < minimum)) continue;
        minimum = d;
        proche = static_cast<int>(i);
    }
    return proche;
}

double EltProfil::Distance(const PointVek& p) const {
    return ::Distance(p, PointProche(p));
}

PointVek EltProfil::PointProche(const PointVek& p) const {
    const int proche = SommetProche(p - Position, ::Distance);
    if (proche < 0) return Position;
    const PointVek sommet = Absolu(Sommets[static_cast<std::size_t>(proche)]);
    return ::Distance(p, sommet) < ::Distance(p, Position) ? sommet : Position;
}

Minorant EltProfil::MinorantDistance() const {
    Boite boite = Boite::Autour(Position, Position);
    for (std::size_t i = 0; i < Sommets.size(); ++i) {
        const SommetProfil& precedent = i > 0 ? Sommets[i - 1] : Sommets.back();
        const PointVek a = Absolu(precedent), b = Absolu(Sommets[i]);
        boite = boite.Avec(b);
        if (!Sommets[i].Arrondi) continue;
        // Half a turn and less stays within the circle about its chord.
        const PointVek milieu = (a + b) / 2.0;
        const Boite cercle = Boite::Autour(milieu, milieu).Elargie(::Distance(a, b) / 2.0);
        boite = boite.Avec({cercle.Gauche, cercle.Haut}).Avec({cercle.Droite, cercle.Bas});
    }
    return Minorant::Rectangle({boite.Gauche, boite.Haut}, {boite.Droite, boite.Bas});
}

bool EltProfil::EstFini() const {
    return EltGeo::EstFini() &&
           std::all_of(Sommets.begin(), Sommets.end(), [this](const SommetProfil& sommet) {
               return sommet.EstFini() && Absolu(sommet).EstFini();
           });
}

bool EltProfil::EstValide() const {
    return EstFini() &&
           std::any_of(Sommets.begin(), Sommets.end(), [this](const SommetProfil& sommet) {
               return ::Distance(sommet, Sommets.front()) >= vue::Epsilon();
           });
}

void EltProfil::Debut(const PointVek& p) {
    Sommets.clear();
    Position = p;
}

void EltProfil::Ajoute(const PointVek& p) {
    Sommets.emplace_back(p - Position);
    Dernier = p;
}

void EltProfil::AjouteElement(const EltGeo& elt) {
    if (elt.Type == TypeArc) {
        AjouteArc(static_cast<const EltArc&>(elt));
    } else if (elt.Type == TypeSegment) {
        const auto& segment = static_cast<const EltSegment&>(elt);
        const bool retour =
            ::Distance(Dernier, segment.Extremite) <= ::Distance(Dernier, segment.Origine);
        Ajoute(retour ? segment.Origine : segment.Extremite);
    }
}

void EltProfil::AjouteArc(const EltArc& arc) {
    const double ouverture = std::clamp(arc.Ouverture, -DeuxPi, DeuxPi);
    const PointVek debut = arc.Debut();
    const PointVek fin = PointPolaire(arc.Centre(), arc.Rayon, arc.AngleDebut + ouverture);
    const bool retour = ::Distance(Dernier, fin) < ::Distance(Dernier, debut);
    const bool horaire = (ouverture < 0.0) != retour;
    const double rayon = horaire ? arc.Rayon : -arc.Rayon;
    if (std::abs(ouverture) > Pi + 1e-9) {
        const double milieu = arc.AngleDebut + ouverture / 2.0;
        Sommets.emplace_back(PointPolaire(arc.Centre(), arc.Rayon, milieu) - Position, rayon);
    }
    Dernier = retour ? debut : fin;
    Sommets.emplace_back(Dernier - Position, rayon);
}

const EltProfil* CommeProfil(const EltGeo& elt) {
    switch (elt.Type) {
        case TypeProfil:
        case TypeProfilElevation:
        case TypeProfilTourne:
        case TypeProfilSurface:
        case TypeProfilRuban:
        case TypeProfilEvantail:
        case TypeRainureP:
            return static_cast<const EltProfil*>(&elt);
        default:
            return nullptr;
    }
}
