#include "elements/eltgeo.h"

#include "elements/ecrivain.h"
#include "elements/lecteur.h"
#include "elements/trace.h"
#include "elements/tuile.h"
#include "elements/vue.h"

int PoigneeCourante = 0;

EltGeo::EltGeo(int type) : Type(type) {}

EltGeo::EltGeo(const PointVek& position, int calque)
    : Position(position), Type(TypeGeo), Calque(calque) {}

EltGeo::EltGeo(const EltGeo& source)
    : Position(source.Position), Type(source.Type), Style(source.Style), Calque(source.Calque) {
    CopieFils(source);
}

std::unique_ptr<EltGeo> EltGeo::Clone() const {
    return std::make_unique<EltGeo>(*this);
}

void EltGeo::Copie(const EltGeo& source) {
    Position = source.Position;
    Style = source.Style;
    Calque = source.Calque;
    Fils.Vide();
    CopieFils(source);
}

void EltGeo::CopieFils(const EltGeo& source) {
    for (EltGeo* fils : source.Fils)
        Fils.Ajoute(fils);
}

void EltGeo::Dessine(Trace& trace) const {
    const PointVek p = vue::VersEcran(Position);
    DessineCroix(trace, p, 5.0);
}

void EltGeo::DessineCroix(Trace& trace, const PointVek& p, double bras) const {
    const Boite boite = Boite::Autour(p, p).Elargie(bras);
    if (!trace.Touche(boite, Style)) return;
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        t.AppliqueTrait(Style, Trace::Ligne);
        t.Croix(p, bras);
    });
}

void EltGeo::DessinePoignees(Trace& trace) const {
    trace.AppliqueTrait(Style, Trace::Ligne);
    trace.Poignee(vue::VersEcran(Position));
}

Glib::ustring EltGeo::Nom() const {
    return NomDuType(Type);
}

void EltGeo::Place(const PointVek& p) {
    Position = p;
}

void EltGeo::Deplace(const PointVek& v) {
    Position += v;
}

void EltGeo::Transforme(const TransformeColle& t) {
    Position.Transforme(t);
}

void EltGeo::ChangeTrait(const Trait& trait) {
    Style = trait;
    Style.Hachure = 0;
    Style.Remplissage = false;
}

void EltGeo::DebutDeforme(const PointVek&) {
    PoigneeCourante = 1;
}

void EltGeo::Deforme(const PointVek& v) {
    if (PoigneeCourante == 1) Deplace(v);
}

void EltGeo::Sauve(Ecrivain& sortie) const {
    SauveCommun(sortie, Position);
}

void EltGeo::SauveCommun(Ecrivain& sortie, const PointVek& position) const {
    sortie << Type << ' ' << Style << ' ' << Calque << '\n' << position << '\n';
}

void EltGeo::Charge(Lecteur& entree) {
    entree >> Style >> Calque >> Position;
}

double EltGeo::Distance(const PointVek& p) const {
    return ::Distance(p, Position);
}

double EltGeo::DistanceSupport(const PointVek& p) const {
    return Distance(p);
}

double EltGeo::Distance3D(const PointVek& p) const {
    return ::Distance3D(p, Position);
}

PointVek EltGeo::PointProche3D(const PointVek&) const {
    return Position;
}

void EltGeo::DebutDeforme3D(const PointVek& p) {
    DebutDeforme(p);
}

void EltGeo::Deforme3D(const PointVek& v) {
    Deforme(v);
}

Minorant EltGeo::MinorantDistance() const {
    return Minorant::Nul();
}

PointVek EltGeo::PointProche(const PointVek&) const {
    return Position;
}

PointVek EltGeo::Direction() const {
    return {1.0, 1.0};
}

bool EltGeo::EstFini() const {
    return Position.EstFini();
}

bool EltGeo::EstValide() const {
    return EstFini();
}

void EltGeo::AjouteFils(EltGeo* fils) {
    Fils.Ajoute(fils);
    ++fils->NbParents;
}

void EltGeo::RetireFils(EltGeo* fils) {
    Fils.Retire(fils);
    --fils->NbParents;
}

void EltGeo::VideFils() {
    while (EltGeo* fils = Fils.Premier())
        RetireFils(fils);
}

void EltGeo::ReferenceFils() {
    for (EltGeo* fils : Fils)
        ++fils->NbParents;
}
