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

    BilanLecture Lit();

  private:
    void Prend();
    void PrendHorsPolyligne();

    /// Follows the sections and the blocks.
    void Situe();

    /// Counts an entity of that name as left out, where entities show.
    void Laisse(std::string_view genre);

    /// Whether the entity shows nothing of its own, wherever it stands.
    bool EstInvisible() const;

    /// Gives the style of the entity to an element that will stand in the drawing itself.
    void Habille(EltGeo& elt) const;

    void OuvreGroupe();
    void FermeGroupe();

    /// Adds the element, made of entities of that name, to the innermost open group, else to the
    /// drawing, unless it is not finite.
    void Range(std::unique_ptr<EltGeo> elt, std::string_view genre);

    PairesDxf Paires;
    BDDGeoBase& Cible;
    EntiteDxf Entite;
    std::vector<std::unique_ptr<EltBDD>> Groupes;  ///< Open ones, the innermost last.
    std::size_t TropProfonds = 0;                  ///< Open ones that are not kept.
    std::unique_ptr<EltProfil> Polyligne;          ///< One that waits for its vertices.

    BilanLecture Bilan;
    bool Structure = false;   ///< Some section has begun.
    bool EnDessin = true;     ///< Among entities that show. A text without sections has no others.
    bool EnBlocCote = false;  ///< In the picture of a dimension, which comes in by itself.
    bool Fini = false;        ///< The end mark of the file has come.
};

BilanLecture LectureDxf::Lit() {
    bool suite = false;
    while (!suite && Paires.Suivante())
        suite = Paires.Code() == 0;
    while (suite) {
        suite = Entite.Lit(Paires);
        Prend();
    }
    if (Polyligne) Laisse("POLYLINE");
    while (!Groupes.empty())
        FermeGroupe();
    if (!Structure && !Fini && Bilan.Lus == 0)
        return BilanLecture::Refus(BilanLecture::PasUnDessin);
    Bilan.Entier = Fini;
    return std::move(Bilan);
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
        Range(std::move(polyligne), "POLYLINE");
    else if (polyligne)
        Laisse("POLYLINE");
    Situe();
    PrendHorsPolyligne();
}

void LectureDxf::Situe() {
    if (Entite.Genre == "SECTION") {
        Structure = true;
        EnDessin = Entite.Nom == "ENTITIES" || Entite.Nom == "BLOCKS";
        EnBlocCote = false;
    } else if (Entite.Genre == "ENDSEC") {
        EnDessin = false;
    } else if (Entite.Genre == "EOF") {
        Fini = true;
    } else if (Entite.Genre == "BLOCK") {
        EnBlocCote = Entite.Nom.substr(0, 2) == "*D";
    } else if (Entite.Genre == "ENDBLK") {
        EnBlocCote = false;
    }
}

void LectureDxf::Laisse(std::string_view genre) {
    if (EnDessin && !EnBlocCote) Bilan.Laisse(genre);
}

bool LectureDxf::EstInvisible() const {
    for (const char* cadre : {"SECTION", "ENDSEC", "EOF", "VERTEX", "SEQEND", "VIEWPORT"})
        if (Entite.Genre == cadre) return true;
    // What a block asks of its inserts, and what these answer without showing it.
    return (Entite.Genre == "ATTDEF" && !Groupes.empty()) ||
           (Entite.Genre == "ATTRIB" && (Entite.Drapeaux & 1) != 0);
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
        Range(std::move(elt), Entite.Genre);
    } else if (!EstInvisible()) {
        Laisse(Entite.Genre);
    }
}

void LectureDxf::Habille(EltGeo& elt) const {
    if (Groupes.empty()) AppliqueStyle(elt, Entite);
}

void LectureDxf::OuvreGroupe() {
    if (Groupes.size() == ProfondeurMax) {
        ++TropProfonds;
        Laisse(Entite.Genre);
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
        Range(std::move(groupe), "BLOCK");
    }
}

void LectureDxf::Range(std::unique_ptr<EltGeo> elt, std::string_view genre) {
    if (!elt->EstFini()) {
        Laisse(genre);
    } else if (Groupes.empty()) {
        Cible.AjouteFin(std::move(elt));
        ++Bilan.Lus;
    } else {
        Groupes.back()->Contenu.AjouteDebut(std::move(elt));
    }
}

}  // namespace

BilanLecture LitDxf(std::string_view texte, BDDGeoBase& cible) {
    return LectureDxf(texte, cible).Lit();
}

void ImporteDxf(BDDGeo& bdd, std::string nom) {
    std::string texte;
    const BilanLecture::Etat etat = LitFichierOuDit(nom, texte);
    bdd.Vide();
    bdd.NomFichier = std::move(nom);
    bdd.Lecture = LitDxf(texte, bdd);
    if (etat != BilanLecture::Lu) bdd.Lecture = BilanLecture::Refus(etat);
    // No file of the program's own format holds it.
    bdd.Modifie = bdd.Elements.Nombre() > 0;
}
