// From a DXF text to a drawing, entity by entity, whatever the section.

#include <utility>
#include <vector>

#include "elements/eltprofil.h"
#include "exchange/dxf.h"
#include "exchange/dxfcreation.h"
#include "exchange/dxfentite.h"
#include "exchange/dxfpaires.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "model/fichier.h"

namespace {

/// Groups within groups that a drawing file can hold. The content of deeper ones goes to the last.
constexpr std::size_t ProfondeurMax = 100;

class LectureDxf {
  public:
    LectureDxf(std::string_view texte, BDDGeoBase& cible) : Paires(texte), Cible(cible) {}

    void Lit();

  private:
    void Prend();
    void PrendHorsPolyligne();

    /// Gives the style of the entity to an element that will stand in the drawing itself.
    void Habille(EltGeo& elt) const;

    void OuvreGroupe();
    void FermeGroupe();

    /// Adds the element to the innermost open group, else to the drawing, unless it is not finite.
    void Range(std::unique_ptr<EltGeo> elt);

    PairesDxf Paires;
    BDDGeoBase& Cible;
    EntiteDxf Entite;
    std::vector<std::unique_ptr<EltBDD>> Groupes;  ///< Open ones, the innermost last.
    std::size_t TropProfonds = 0;                  ///< Open ones that are not kept.
    std::unique_ptr<EltProfil> Polyligne;          ///< One that waits for its vertices.
};

void LectureDxf::Lit() {
    bool suite = false;
    while (!suite && Paires.Suivante())
        suite = Paires.Code() == 0;
    while (suite) {
        suite = Entite.Lit(Paires);
        Prend();
    }
    while (!Groupes.empty())
        FermeGroupe();
}

void LectureDxf::Prend() {
    if (Polyligne && Entite.Genre == "VERTEX") {
        if (Polyligne->Sommets.empty()) Polyligne->Debut(Entite.Points[0]);
        Polyligne->Ajoute(Entite.Points[0]);
        return;
    }
    // Without its end mark, or without vertices, it is dropped.
    auto polyligne = std::move(Polyligne);
    if (polyligne && Entite.Genre == "SEQEND" && !polyligne->Sommets.empty())
        Range(std::move(polyligne));
    PrendHorsPolyligne();
}

void LectureDxf::PrendHorsPolyligne() {
    if (Entite.Genre == "BLOCK") {
        OuvreGroupe();
    } else if (Entite.Genre == "ENDBLK") {
        FermeGroupe();
    } else if (Entite.Genre == "POLYLINE") {
        Polyligne = CreePolyligne(Entite);
        Habille(*Polyligne);
    } else if (auto elt = CreeElement(Entite)) {
        Habille(*elt);
        Range(std::move(elt));
    }
}

void LectureDxf::Habille(EltGeo& elt) const {
    if (Groupes.empty()) AppliqueStyle(elt, Entite);
}

void LectureDxf::OuvreGroupe() {
    if (Groupes.size() == ProfondeurMax) {
        ++TropProfonds;
        return;
    }
    auto groupe = CreeGroupe(Entite);
    Habille(*groupe);
    Groupes.push_back(std::move(groupe));
}

void LectureDxf::FermeGroupe() {
    if (TropProfonds > 0) {
        --TropProfonds;
    } else if (!Groupes.empty()) {
        auto groupe = std::move(Groupes.back());
        Groupes.pop_back();
        Range(std::move(groupe));
    }
}

void LectureDxf::Range(std::unique_ptr<EltGeo> elt) {
    if (!elt->EstFini()) return;
    if (Groupes.empty())
        Cible.AjouteFin(std::move(elt));
    else
        Groupes.back()->Contenu.AjouteDebut(std::move(elt));
}

}  // namespace

void LitDxf(std::string_view texte, BDDGeoBase& cible) {
    LectureDxf(texte, cible).Lit();
}

void ImporteDxf(BDDGeo& bdd, std::string nom) {
    std::string texte;
    LitFichier(nom, texte);
    bdd.Vide();
    bdd.NomFichier = std::move(nom);
    LitDxf(texte, bdd);
    // No file of the program's own format holds it.
    bdd.Modifie = bdd.Elements.Nombre() > 0;
}
