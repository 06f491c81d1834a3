// A sitting at the program: command after command of the menus, with their questions answered, and
// what each of them changes.

#include <gtest/gtest.h>
#include <gtkmm/toolbar.h>

#include <map>
#include <regex>
#include <sstream>

#include "bureau.h"
#include "commun/record.h"
#include "dialogs/nombres.h"
#include "dialogues.h"
#include "elements/angles.h"
#include "elements/ecrivain.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/feuille.h"

namespace {

/// Values on one line, those of the program's own types as a file keeps them.
template <class... Valeurs>
std::string Ligne(const Valeurs&... valeurs) {
    Ecrivain sortie;
    ((sortie << valeurs << ' '), ...);
    const std::string texte = std::regex_replace(sortie.Texte(), std::regex("\\s+$"), "");
    return std::regex_replace(texte, std::regex("\\s*\n\\s*"), " ");
}

/// The words of the status row that are shown.
std::string LigneEtat(Bureau& bureau) {
    std::vector<Gtk::Label*> libelles;
    Recolte(*bureau.LibelleCommencant("Travail").get_parent(), libelles);
    std::string texte;
    for (Gtk::Label* libelle : libelles)
        if (libelle->get_mapped()) texte += " / " + libelle->get_text();
    return texte;
}

bool Est3DVisible() {
    for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
        if (dynamic_cast<Window3D*>(fenetre) && fenetre->get_visible()) return true;
    return false;
}

/// All that commands may change, by name.
std::map<std::string, std::string> Tout(Bureau& bureau) {
    const Prototypes& protos = bureau.Zone.Outils.Protos;
    const VueZone& vue = bureau.Zone.Vue;
    const OptionsAccrochage& accroche = bureau.Zone.Souris.Options;
    const TransformeColle& colle = BddCourante.Transforme;
    const EltProfilSurface& surface = protos.ProfilSurface;
    const auto texte = [](const EltTxt& t) {
        return t.Texte + ' ' + Ligne(EnDegres(t.Angle), t.Taille) + ' ' + t.Police;
    };
    return {
        {"état", LigneEtat(bureau)},
        {"trait", Ligne(protos.Trait())},
        {"textes", texte(protos.Txt)},
        {"cotes", texte(protos.Cote) + Ligne(", ", protos.CoteDia.Taille, NbDecimales)},
        {"surface", Ligne(surface.nbX, surface.nbY)},
        {"rayon", Ligne(bureau.Zone.Outils.Rayon)},
        {"grille", Ligne(vue.GrilleCourante.Affichee, vue.GrilleCourante.Pas) + ' ' +
                       vue.GrilleCourante.Style.Couleur.to_string()},
        {"fond", vue.Fond().to_string()},
        {"vue", Ligne(EchelleCourante.Facteur, EchelleCourante.Origine)},
        {"accroche",
         Ligne(accroche.Actif, accroche.Intersections, accroche.Supports, accroche.Extremites)},
        {"colle",
         Ligne(colle.SymetrieX, colle.SymetrieY, colle.Agrandissement, EnDegres(colle.Angle),
               TexteNombre(colle.Cos).raw(), TexteNombre(colle.Sin).raw())},
        {"groupes", Ligne(BddCourante.AfficheBDD)},
        {"sélection", Ligne(vue.SelectionVisible)},
        {"outils", Ligne(PremierDe<Gtk::Toolbar>(bureau.Fenetre)->get_mapped())},
        {"3D", Ligne(Est3DVisible())},
        {"page",
         Ligne(FeuilleCourante.ApercuPage, FeuilleCourante.Papier, FeuilleCourante.EchellePapier(),
               FeuilleCourante.OrigineFeuille, FeuilleCourante.ImpressionNoir)},
        {"dessin", Ligne(BddCourante.Elements.Nombre(), BddCourante.AEnregistrer())},
        {"dernier",
         BddCourante.Elements.Nombre() ? Ligne(Record(*BddCourante.Elements.Premier())) : ""},
        {"dit", bureau.Fenetre.Messages.Texte()},
        {"titre", bureau.Fenetre.get_title()},
    };
}

/// Does what a line of the sitting asks for: "clic" and "touche" with what follows, or an action
/// with the gestures in its dialog in braces. What the dialog showed and said.
std::string Fait(Bureau& bureau, const std::string& ligne) {
    std::istringstream mots(ligne);
    std::string mot;
    mots >> mot;
    const std::size_t accolade = ligne.find('{');
    Reponse reponse;
    if (accolade != std::string::npos)
        RepondGestes(ligne.substr(accolade + 1, ligne.find('}') - accolade - 1), reponse);
    if (mot == "clic") {
        PointVek p;
        mots >> p.x >> p.y;
        bureau.Souris.ClicA(p);
    } else if (mot == "touche") {
        mots >> mot;
        bureau.Frappe(gdk_keyval_from_name(mot.c_str()));
    } else {
        bureau.Choisit(mot);
        for (int tour = 0; tour < 5; ++tour)
            LaisseTourner();
    }
    if (!reponse.Refus.empty()) reponse.Vu += " ! " + reponse.Refus;
    return reponse.Vu.empty() ? "" : "\n    " + reponse.Vu;
}

}  // namespace

TEST(Seance, ChaqueCommande) {
    Bureau bureau;
    std::string vu;
    auto avant = Tout(bureau);
    std::istringstream lignes(Contenu(KRVEK_ESSAIS "/window/data/seance.txt"));
    for (std::string ligne; std::getline(lignes, ligne);) {
        if (ligne.empty() || ligne[0] == ' ') continue;
        vu += ligne + Fait(bureau, ligne) + '\n';
        const auto apres = Tout(bureau);
        for (const auto& [nom, valeur] : apres)
            if (valeur != avant[nom]) vu += "  " + nom + ": " + valeur + '\n';
        avant = apres;
    }
    ExigeFichier("window/data/seance.txt", vu);
}
