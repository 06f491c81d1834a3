#include "exchange/dxfentite.h"

#include <utility>

#include "elements/eltgeo.h"

bool EntiteDxf::Lit(PairesDxf& paires) {
    std::vector<PointVek> place = std::move(Sommets);
    place.clear();
    *this = {};
    Sommets = std::move(place);
    Genre = SansBlancs(paires.Valeur());
    while (paires.Suivante()) {
        if (paires.Code() == 0) return true;
        Range(paires.Code(), paires.Valeur());
    }
    return false;
}

void EntiteDxf::Range(int code, std::string_view valeur) {
    const auto rang = static_cast<std::size_t>(code % 10);
    if (code >= 10 && code < 40 && rang < Points.size()) {
        if (code < 20)
            RangeX(rang, EnReel(valeur));
        else if (code < 30)
            RangeY(rang, EnReel(valeur));
        else
            RangeZ(rang, EnReel(valeur));
        return;
    }
    const auto reel = static_cast<std::size_t>(code - PremierReel);
    if (code >= PremierReel && reel < Reels.size()) {
        Reels[reel] = valeur;
        return;
    }
    switch (code) {
        case 1:
            Texte = valeur;
            break;
        case 2:
            Nom = valeur;
            break;
        case 6:
            TypeLigne = valeur;
            break;
        case 7:
            Style = valeur;
            break;
        case 62:
            Couleur = EnEntier(valeur);
            break;
        case 70:
            Drapeaux = EnEntier(valeur);
            break;
        case 90:
            NbSommets = EnEntier(valeur);
            break;
        case 420:
            CouleurVraie = EnCouleur(valeur);
            break;
    }
}

double EntiteDxf::Reel(int code, double sinon) const {
    const std::string_view valeur = Reels.at(static_cast<std::size_t>(code - PremierReel));
    return valeur.data() ? EnReel(valeur) : sinon;
}

void EntiteDxf::RangeX(std::size_t rang, double x) {
    if (rang == 0 && Donne[0]) {
        EnSommets = true;
        Travail.x = x;
    } else {
        Points[rang].x = x;
        Donne[rang] = true;
    }
}

void EntiteDxf::RangeY(std::size_t rang, double y) {
    if (rang != 0 || !DonneY) {
        Points[rang].y = y;
        DonneY = DonneY || rang == 0;
        return;
    }
    Travail.y = y;
    Sommets.push_back(Travail);
}

void EntiteDxf::RangeZ(std::size_t rang, double z) {
    if (rang != 0 || !EnSommets) Points[rang].z = z;
}

namespace {

/// The colours of the indices 0 to 5.
const Gdk::Color* CouleurIndexee(int index) {
    static const Gdk::Color couleurs[] = {Gdk::Color("black"),  Gdk::Color("red"),
                                          Gdk::Color("yellow"), Gdk::Color("green"),
                                          Gdk::Color("cyan"),   Gdk::Color("blue")};
    return index >= 0 && index < 6 ? &couleurs[index] : nullptr;
}

bool Contient(std::string_view texte, std::string_view mot) {
    return texte.find(mot) != std::string_view::npos;
}

}  // namespace

void AppliqueStyle(EltGeo& elt, const EntiteDxf& entite) {
    if (const Gdk::Color* couleur = CouleurIndexee(entite.Couleur)) elt.Style.Couleur = *couleur;
    if (entite.CouleurVraie != 0) {
        const auto octet = [&entite](int decalage) {
            return static_cast<guint16>((entite.CouleurVraie >> decalage & 0xff) * 256);
        };
        elt.Style.Couleur.set_rgb(octet(16), octet(8), octet(0));
    }
    if (Contient(entite.TypeLigne, "DASHDOT"))
        elt.Style.StyleLigne = Axe;
    else if (Contient(entite.TypeLigne, "DASH"))
        elt.Style.StyleLigne = Tirets;
    else if (Contient(entite.TypeLigne, "DOT"))
        elt.Style.StyleLigne = Pointille;
}
