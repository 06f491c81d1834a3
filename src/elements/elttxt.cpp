#include "elements/elttxt.h"

#include <cmath>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/encodage.h"
#include "elements/lecteur.h"
#include "elements/texteecran.h"
#include "elements/trace.h"
#include "elements/tuile.h"
#include "elements/vue.h"

namespace {

/// What the format keeps of a text, in bytes, as it is written and as it is read.
constexpr std::size_t OctetsEcrits = 255;
constexpr std::size_t OctetsLus = 256;

/// The text cut to that many bytes, at a whole character.
std::string Coupe(const std::string& texte, std::size_t octets) {
    if (texte.size() <= octets) return texte;
    while (octets > 0 && (static_cast<unsigned char>(texte[octets]) & 0xc0) == 0x80)
        --octets;
    return texte.substr(0, octets);
}

}  // namespace

EltTxt::EltTxt(int type) : EltGeo(type), Police("Arial") {}

std::unique_ptr<EltGeo> EltTxt::Clone() const {
    return std::make_unique<EltTxt>(*this);
}

void EltTxt::Copie(const EltGeo& source) {
    EltGeo::Copie(source);
    const auto& txt = static_cast<const EltTxt&>(source);
    Texte = txt.Texte;
    Angle = txt.Angle;
    Taille = txt.Taille;
    Police = txt.Police;
    Centre_ = txt.Centre_;
}

void EltTxt::Dessine(Trace& trace) const {
    DessineTexte(trace, Texte, Angle, Centre_);
}

void EltTxt::DessineTexte(Trace& trace, const Glib::ustring& texte, double angle,
                          bool centre) const {
    const PointVek ancre = vue::VersEcran(Position);
    const double portee = vue::LongueurEcran(Portee(texte));
    const Boite boite = Boite::Autour(ancre, ancre).Elargie(portee);
    if (!trace.Touche(boite, Style)) return;
    trace.Compose(boite.Elargie(EpaisseurBornee(Style) + 2.0), [&](Trace& t) {
        DessineCroix(t, ancre, 1.0);
        t.Texte({texte, Police, vue::LongueurEcran(Taille), angle + vue::Rotation(),
                 centre ? TexteEcran::Milieu : TexteEcran::Debut, ancre},
                Style.Couleur);
    });
}

double EltTxt::Portee(const Glib::ustring& texte) const {
    // No character of a bold font is wider than twice its nominal size, taken at 96 dots an inch.
    constexpr double parCaractere = 2.0 * 96.0 / 72.0;
    return std::abs(Taille) * parCaractere * (static_cast<double>(texte.bytes()) + 2.0);
}

void EltTxt::Sauve(Ecrivain& sortie) const {
    EltGeo::Sauve(sortie);
    sortie << Coupe(EnLigne(Texte).raw(), OctetsEcrits) << '\n'
           << Angle << ' ' << Taille << ' ' << Centre_ << '\n'
           << EnLigne(Police).raw() << '\n';
}

void EltTxt::Charge(Lecteur& entree) {
    EltGeo::Charge(entree);
    entree.Ligne();
    const std::string_view texte = entree.Ligne();
    if (!entree.Echec()) Texte = Coupe(EnLigne(EnUtf8(texte)).raw(), OctetsLus);
    entree >> Angle >> Taille;
    const std::string_view centre = entree.Ligne();
    const std::string_view police = entree.Ligne();
    if (entree.Echec()) return;
    Centre_ = centre.find('1') != std::string_view::npos;
    Police = EnUtf8(police);
}

Minorant EltTxt::MinorantDistance() const {
    return Minorant::Point(Position, Portee(Texte));
}

bool EltTxt::EstFini() const {
    return EltGeo::EstFini() && std::isfinite(Angle) && std::isfinite(Taille);
}

void EltTxt::SetTexte(const Glib::ustring& texte) {
    Texte = EnLigne(texte);
}

void EltTxt::SetTaille(double taille) {
    Taille = taille;
}

double EltTxt::GetAngleDegres() const {
    return DegresEntiers(Angle);
}

void EltTxt::SetAngleDegres(double degres) {
    double entiers = std::fmod(std::ceil(degres), 360.0);
    if (entiers >= 181.0) entiers -= 360.0;
    if (entiers < -180.0) entiers += 360.0;
    Angle = EnRadians(entiers);
}
