// Sittings at the program: command after command, with their questions answered, and what each of
// them shows and changes.

#include <glibmm/main.h>
#include <glibmm/miscutils.h>
#include <gtest/gtest.h>
#include <gtkmm/button.h>
#include <gtkmm/filechooserdialog.h>
#include <gtkmm/toolbar.h>

#include <filesystem>
#include <map>
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
#include "model/fichier.h"
#include "window/donnees.h"

namespace fs = std::filesystem;

namespace {

/// Values on one line, those of the program's own types as a file keeps them.
template <class... Valeurs>
std::string Ligne(const Valeurs&... valeurs) {
    Ecrivain sortie;
    ((sortie << valeurs << ' '), ...);
    const std::string texte = Remplace(sortie.Texte(), "\\s+$", "");
    return Remplace(texte, "\\s*\n\\s*", " ");
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

bool FermeParLeGestionnaire(Bureau& bureau) {
    GdkEvent evenement = {};
    evenement.any.type = GDK_DELETE;
    evenement.any.window = bureau.Fenetre.get_window()->gobj();
    return !gtk_widget_event(GTK_WIDGET(bureau.Fenetre.gobj()), &evenement);
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
        {"focus", Ligne(bureau.Fenetre.get_focus() != nullptr)},
        {"dit", bureau.Fenetre.Messages.Texte()},
        {"titre", bureau.Fenetre.get_title()},
        {"fichier", BddCourante.NomFichier + Ligne("", BddCourante.Nomme)},
        {"copies", Ligne(static_cast<int>(bureau.Fenetre.Secours.Gardees().size()))},
    };
}

/// Plays a file of lines. A line is "clic" or "touche" with what follows, an action or a word of
/// `Fait`, with the answers to its dialogs in braces: gestures, a button's answer, or ">name" for a
/// chooser of files. Below the line stands what came of it.
class Seance {
  public:
    Seance() {
        for (const CopieSecours& copie : Lieu.Fenetre.Secours.Gardees())
            Recuperation::Jette(copie);
    }
    ~Seance() {
        fs::remove_all(Dossier);
        if (!fs::is_directory(DossierSecours())) fs::remove(DossierSecours());
    }

    void Joue(const std::string& nom) {
        std::string tout;
        auto avant = Tout(Lieu);
        std::istringstream lignes(Contenu(std::string(KRVEK_ESSAIS "/") + nom));
        for (std::string ligne; std::getline(lignes, ligne);) {
            if (ligne.empty() || ligne[0] == ' ') continue;
            tout += ligne + Repondu(ligne) + '\n';
            const auto apres = Tout(Lieu);
            for (const auto& [cle, valeur] : apres)
                if (valeur != avant[cle]) tout += "  " + cle + ": " + valeur + '\n';
            avant = apres;
        }
        for (const auto& [dossier, signe] :
             {std::pair(Dossier, "$"), std::pair(std::string(KRVEK_ESSAIS), "(tests)"),
              std::pair(Glib::get_current_dir(), "(here)")})
            for (std::size_t place; (place = tout.find(dossier)) != std::string::npos;)
                tout.replace(place, dossier.size(), signe);
        ExigeFichier(nom, tout);
    }

    const std::string Dossier = DossierProvisoire();

  private:
    /// Does what the line asks for; what dialogs showed meanwhile, and what was answered.
    std::string Repondu(const std::string& ligne) {
        Vu.clear();
        Valide = nullptr;
        Attente = 0;
        Reponses.clear();
        if (const std::size_t debut = ligne.find('{'); debut != std::string::npos)
            Reponses = Decoupe(ligne.substr(debut + 1, ligne.size() - debut - 2), "; ");
        Arme();
        std::istringstream mots(ligne.substr(0, ligne.find(" {")));
        Fait(mots);
        for (int tour = 0; tour < 5; ++tour)
            LaisseTourner();
        Minuterie.disconnect();
        for (const std::string& reponse : Reponses)
            if (reponse[0] != '>') Vu += "\n    never asked: " + reponse;
        return Vu;
    }

    void Fait(std::istringstream& mots) {
        std::string mot, reste;
        mots >> mot >> std::ws;
        std::getline(mots, reste);
        if (mot == "clic") {
            PointVek p;
            std::istringstream(reste) >> p.x >> p.y;
            Lieu.Souris.ClicA(p);
        } else if (mot == "touche") {
            Lieu.Frappe(gdk_keyval_from_name(reste.c_str()));
        } else if (mot == "issue") {
            std::vector<Gtk::Button*> boutons;
            Recolte(Lieu.Fenetre.Messages, boutons);
            for (Gtk::Button* bouton : boutons)
                if (bouton->get_label() == reste) return bouton->clicked();
        } else if (mot == "ferme") {
            Vu += FermeParLeGestionnaire(Lieu) ? "\n    closed" : "\n    open";
        } else if (mot == "ouvre") {
            Lieu.Fenetre.OuvreFichier(Dossier + '/' + reste);
        } else if (mot == "lit") {
            const std::string texte = Contenu(Dossier + '/' + reste);
            BDDGeoBase bdd;
            bdd.ChargeTexte(texte);
            Vu += "\n   " + Ligne("", bdd.Elements.Nombre(), static_cast<int>(texte.size()));
        } else if (mot == "change") {
            EcritFichier(Dossier + '/' + reste, Contenu(Dossier + "/c.vek"));
        } else if (mot == "enleve") {
            fs::remove_all(Dossier + '/' + reste);
        } else if (mot == "sansfilet") {
            fs::remove_all(DossierSecours());
            EcritFichier(DossierSecours(), "");
        } else {
            Lieu.Choisit(mot);
        }
    }

    /// The next dialog gets the next answer, and one that nobody foresaw is given up.
    void Arme() {
        Minuterie = Glib::signal_timeout().connect(sigc::mem_fun(*this, &Seance::Repond), 10);
    }

    bool Repond() {
        Gtk::Dialog* dialogue = nullptr;
        for (Gtk::Window* fenetre : Gtk::Window::list_toplevels())
            if (auto* autre = dynamic_cast<Gtk::Dialog*>(fenetre))
                if (autre->get_mapped()) dialogue = autre;
        auto* choix = dynamic_cast<Gtk::FileChooserDialog*>(dialogue);
        // A chooser reads folders in its own time.
        if (!dialogue || (choix && choix->get_current_folder().empty())) return true;
        if (choix && choix == Valide && Reponses.empty() && ++Attente < 200) return true;
        const std::string reponse = Reponses.empty() ? "Annuler" : Reponses.front();
        const bool duToolkit = dialogue->get_widget_for_response(Gtk::RESPONSE_ACCEPT);
        if (Enonce != dialogue)
            Vu += "\n    " + (duToolkit ? "Replace the file?" : Ecran(*dialogue));
        Enonce = dialogue;
        if (reponse[0] == '>') {
            // The chooser has asked about it in its own time.
            if (!choix) Reponses.erase(Reponses.begin());
            if (!choix || !Designe(*choix, reponse.substr(1)) || ++Attente % 6 != 0) return true;
        }
        Enonce = nullptr;
        if (!Reponses.empty()) Reponses.erase(Reponses.begin());
        static const std::map<std::string, int> boutons = {{"OK", Gtk::RESPONSE_OK},
                                                           {"Remplacer", Gtk::RESPONSE_ACCEPT},
                                                           {"Non", Gtk::RESPONSE_NO},
                                                           {"Annuler", Gtk::RESPONSE_CANCEL},
                                                           {"Echap", Gtk::RESPONSE_DELETE_EVENT},
                                                           {"Jeter", 1}};
        if (choix && reponse[0] == '>') {
            Arme();
            Accepte(*choix, reponse);
            return false;
        }
        if (const auto bouton = boutons.find(reponse); bouton != boutons.end()) {
            Arme();
            dialogue->response(bouton->second);
            return false;
        }
        Reponse suite;
        Soumet(*dialogue, reponse, suite);
        if (!suite.Refus.empty()) Vu += " ! " + suite.Refus;
        Arme();
        return false;
    }

    /// A chooser that is still reading its folder takes no answer: it gets it again.
    void Accepte(Gtk::Dialog& choix, const std::string& reponse) {
        Valide = &choix;
        const std::size_t restent = Reponses.size();
        const auto pris = std::make_shared<bool>(false);
        choix.signal_response().connect([pris](int) { *pris = true; });
        choix.response(Gtk::RESPONSE_OK);
        if (*pris || Reponses.size() != restent) return;
        Reponses.insert(Reponses.begin(), reponse);
        Enonce = &choix;
    }

    /// Whether the chooser has taken the name, of the folder or of the tests.
    bool Designe(Gtk::FileChooser& choix, const std::string& nom) {
        const std::string chemin = (nom[0] == '/' ? KRVEK_ESSAIS : Dossier + '/') + nom;
        if (choix.get_filename() == chemin) return true;
        if (choix.get_action() == Gtk::FILE_CHOOSER_ACTION_SAVE) {
            choix.set_current_folder(g_path_get_dirname(chemin.c_str()));
            choix.set_current_name(g_path_get_basename(chemin.c_str()));
        } else {
            choix.set_filename(chemin);
        }
        return false;
    }

    Bureau Lieu;
    std::string Vu;
    std::vector<std::string> Reponses;
    Gtk::Dialog* Enonce = nullptr;  ///< The chooser that is still at its folder.
    Gtk::Dialog* Valide = nullptr;  ///< The chooser that was answered last.
    int Attente = 0;                ///< Rounds since the chooser took its name.
    sigc::connection Minuterie;
};

}  // namespace

TEST(Seance, ChaqueCommande) {
    Seance().Joue("window/data/seance.txt");
}

TEST(Seance, RienNEstPerdu) {
    Seance seance;
    const std::string& dossier = seance.Dossier;
    std::string coupe = Contenu(KRVEK_ESSAIS "/model/data/feuille.vek");
    coupe.resize(coupe.size() / 2);
    ASSERT_TRUE(EcritFichier(dossier + "/photo.png", std::string("\x89PNG\r\n\x1a\n\0\0", 10)));
    ASSERT_TRUE(EcritFichier(dossier + "/c.vek", coupe));
    ASSERT_TRUE(
        EcritFichier(dossier + "/plan.ve9",
                     std::string("\0V", 2) + Contenu(KRVEK_ESSAIS "/exchange/data/version23.vek")));
    fs::create_directory(dossier + "/disque");
    seance.Joue("window/data/fichiers.txt");
}
