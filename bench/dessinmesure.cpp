#include "dessinmesure.h"

#include <glib.h>

#include <cmath>
#include <map>
#include <random>

#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "elements/eltarc.h"
#include "elements/eltcoteang.h"
#include "elements/eltprofil.h"
#include "elements/eltsegment.h"
#include "model/bddgeobase.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"
#include "model/fichier.h"
#include "model/registre.h"

namespace {

/// Places and sizes, the same on every run.
class Tirage {
  public:
    PointVek Place() { return {Places(Hasard), Places(Hasard)}; }
    PointVek Taille() { return {Tailles(Hasard), Tailles(Hasard)}; }
    double Angle() { return Angles(Hasard); }

  private:
    std::mt19937 Hasard{20121010};
    std::uniform_real_distribution<double> Places{-5000.0, 5000.0};
    std::uniform_real_distribution<double> Tailles{-60.0, 60.0};
    std::uniform_real_distribution<double> Angles{0.0, DeuxPi};
};

}  // namespace

namespace {

/// Height of the smallest text, in drawing units, and by how much the tallest is taller.
constexpr double HauteurTexte = 30.0, EcartHauteurs = 100.0;

/// Each pas-th element is a text; none where that is 0.
std::string TexteDessin(int nombre, int pas) {
    Tirage tirage;
    BDDGeoBase bdd;
    for (int i = 0; i < nombre; ++i) {
        const PointVek p = tirage.Place(), v = tirage.Taille();
        if (pas > 0 && i % pas == 0) {
            auto txt = std::make_unique<EltTxt>();
            txt->Position = p;
            txt->SetTexte("Bride " + std::to_string(i / pas));
            txt->SetTaille(HauteurTexte + EcartHauteurs * i / nombre);
            bdd.AjouteFin(std::move(txt));
            continue;
        }
        if (i % 3 == 0)
            bdd.AjouteFin(std::make_unique<EltSegment>(p, p + v, 0));
        else
            bdd.AjouteFin(std::make_unique<EltArc>(p, Norme(v), i % 3 == 1 ? 0.0 : tirage.Angle(),
                                                   i % 3 == 1 ? DeuxPi : tirage.Angle(), 0));
    }
    return bdd.SauveTexte();
}

}  // namespace

std::string TexteMesure(int nombre) {
    return TexteDessin(nombre, 0);
}

std::string TexteHauteurs(int nombre) {
    return TexteDessin(nombre, 10);
}

namespace {

/// Numbers of elements in every twenty of a sheet, by type.
constexpr std::pair<int, int> Proportions[] = {
    {TypeSegment, 6}, {TypeArc, 4},   {TypeRectangle, 1}, {TypeProfil, 2}, {TypeDisque, 1},
    {TypePoint, 1},   {TypeImage, 1}, {TypeTxt, 2},       {TypeCote, 1},   {TypeCoteHori, 1}};

/// What takes turns with linear dimensions, and an endless line now and then.
int TypeVarie(int type, int tour) {
    static const int cotes[] = {TypeCoteVert, TypeCoteAng, TypeCoteDia, TypeCoteRayon};
    if (type == TypeCote && tour % 2) return cotes[tour / 2 % 4];
    return type == TypeSegment && tour % 500 == 0 ? TypeDroite : type;
}

std::unique_ptr<EltGeo> EltMesure(int type, Tirage& tirage, int tour) {
    auto elt = CreeElement(type);
    const PointVek p = tirage.Place(), v = tirage.Taille(), w = tirage.Taille();
    elt->Style.Hachure = tour % 3 == 0;
    elt->Style.Remplissage = tour % 6 == 0;
    if (auto* profil = dynamic_cast<EltProfil*>(elt.get())) {
        profil->Debut(p);
        for (int i = 0; i < 6; ++i)
            profil->Ajoute(p + PointVek(40.0 * std::cos(i), 40.0 * std::sin(i)));
    } else if (auto* segment = dynamic_cast<EltSegment*>(elt.get())) {
        segment->SetPoints(p, p + v);
    } else if (auto* arc = dynamic_cast<EltArc*>(elt.get())) {
        arc->Position = p;
        arc->Rayon = Norme(v);
        if (tour % 2) arc->Ouverture = v.x / 20.0;
    } else if (auto* cote = dynamic_cast<EltCote*>(elt.get())) {
        cote->SetPoint1(p);
        cote->SetPoint2(p + v);
        cote->PlaceLigne(p + w);
        if (auto* angle = dynamic_cast<EltCoteAng*>(cote)) angle->PlaceExtremite2(p + v + w);
        if (tour % 2) cote->Texte = "*";
    } else {
        elt->Position = p;
        if (auto* txt = dynamic_cast<EltTxt*>(elt.get())) txt->SetTexte("Bride tournée");
        if (auto* image = dynamic_cast<EltImage*>(elt.get())) image->SetIdentificateur("vis");
    }
    return elt;
}

/// The group that the images of a sheet show.
std::unique_ptr<EltBDD> GroupeMesure() {
    BDDGeoBase contenu;
    for (int i = 0; i < 4; ++i)
        contenu.AjouteFin(std::make_unique<EltArc>(PointVek(), 2.0 + i, 0.0, DeuxPi, 0));
    auto groupe = std::make_unique<EltBDD>();
    groupe->CopieListe(contenu);
    groupe->SetIdentificateur("vis");
    return groupe;
}

}  // namespace

std::string TexteFeuille(int nombre) {
    Tirage tirage;
    BDDGeoBase bdd;
    bdd.AjouteFin(GroupeMesure());
    int faits = 0;
    for (int tour = 0; faits < nombre; ++tour)
        for (const auto& [type, combien] : Proportions)
            for (int i = 0; i < combien; ++i, ++faits)
                bdd.AjouteFin(EltMesure(TypeVarie(type, tour), tirage, tour));
    return bdd.SauveTexte();
}

std::string FichierMesure(const std::string& genre, const std::string& texte) {
    const std::string nom = std::string(g_get_tmp_dir()) + "/krvek-mesure-" + genre + ".vek";
    EcritFichier(nom, texte);
    return nom;
}

const std::string& FichierMesure(int nombre) {
    static std::map<int, std::string> fichiers;
    std::string& nom = fichiers[nombre];
    if (nom.empty()) nom = FichierMesure(std::to_string(nombre), TexteMesure(nombre));
    return nom;
}

const std::string& FichierFeuille(int nombre) {
    static std::map<int, std::string> fichiers;
    std::string& nom = fichiers[nombre];
    if (nom.empty()) nom = FichierMesure("feuille-" + std::to_string(nombre), TexteFeuille(nombre));
    return nom;
}
