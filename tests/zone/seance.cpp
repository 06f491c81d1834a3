#include "zone/seance.h"

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>
#include <gtkmm/clipboard.h>
#include <gtkmm/entry.h>
#include <gtkmm/table.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <map>
#include <sstream>

#include "exchange/dxf.h"
#include "exchange/lignes.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "zone/etats.h"
#include "zone/ligneetat.h"

namespace {

using Mots = std::istream;
using Lignes = std::vector<std::string>;

template <class Type>
Type Lu(Mots& mots) {
    Type valeur = {};
    mots >> valeur;
    return valeur;
}

PointVek LuPoint(Mots& mots) {
    const double x = Lu<double>(mots);
    return {x, Lu<double>(mots)};
}

std::string Suite(Mots& mots) {
    std::string suite;
    std::getline(mots >> std::ws, suite);
    return suite;
}

Lignes LignesDuDessin() {
    Lignes lignes;
    for (const EltGeo* elt : BddCourante.Elements)
        lignes.push_back(EnLigne(*elt));
    return lignes;
}

/// The elements with what each holds, whatever their order: a deletion undone brings them on top.
Lignes Tout() {
    Lignes lignes;
    for (const EltGeo* elt : BddCourante.Elements) {
        lignes.push_back(EnLigne(*elt));
        for (const EltGeo* fils : elt->Fils)
            lignes.back() += " > " + EnLigne(*fils);
    }
    std::sort(lignes.begin(), lignes.end());
    return lignes;
}

/// The table of children as the file has it.
std::string TableFils() {
    const std::string texte = BddCourante.SauveTexte();
    std::string table = texte.substr(texte.find("\n10000\n") + 7);
    std::replace(table.begin(), table.end(), '\n', ' ');
    return table.substr(0, table.find("-1") + 2);
}

std::string LaVue() {
    std::ostringstream texte;
    texte << EchelleCourante.Facteur << " about " << EchelleCourante.Origine.x << ' '
          << EchelleCourante.Origine.y;
    return texte.str();
}

/// What is in one list and not in the other.
Lignes Sans(Lignes lignes, const Lignes& autres) {
    for (const std::string& autre : autres)
        if (const auto ou = std::find(lignes.begin(), lignes.end(), autre); ou != lignes.end())
            lignes.erase(ou);
    return lignes;
}

/// Waits for what the clipboard answers.
void Laisse(int etat, Banc& banc) {
    for (int tour = 0; tour < 20 && banc.Zone.Outils.EtatCourant() != etat; ++tour)
        LaisseTourner();
}

/// As `Capture::Ecart`, quicker where nothing differs.
int Ecart(const Capture& a, const Capture& b) {
    const auto taille = static_cast<std::size_t>(a.Image->get_rowstride() * a.Image->get_height());
    if (std::memcmp(a.Image->get_pixels(), b.Image->get_pixels(), taille) == 0) return 0;
    return a.Ecart(b);
}

std::string Couleur(const PointVek& pixel, const Capture& vue) {
    char texte[16];
    std::snprintf(
        texte, sizeof texte, "    %06x\n",
        vue.Pixel(static_cast<int>(std::lround(pixel.x)), static_cast<int>(std::lround(pixel.y))));
    return texte;
}

using Effet = void (*)(Banc& banc, Mots& mots);

/// The gestures and the commands of menus. A key that is not taken leaves the words bad.
const std::map<std::string, Effet> Ordres = {
    {"etat", [](Banc& b, Mots& m) { b.Zone.Outils.Entre(Lu<int>(m)); }},
    {"pose",
     [](Banc& b, Mots& m) {
         BddCourante.Ajoute(DepuisLigne(Suite(m)));
         b.Zone.Vue.Redessine();
     }},
    {"bouge", [](Banc& b, Mots& m) { b.Souris.BougeA(LuPoint(m)); }},
    {"clic", [](Banc& b, Mots& m) { b.Souris.ClicA(LuPoint(m)); }},
    {"touche",
     [](Banc& b, Mots& m) {
         auto nom = Lu<std::string>(m);
         unsigned modificateurs = 0;
         for (; nom == "Ctrl" || nom == "Maj"; nom = Lu<std::string>(m))
             modificateurs |= nom == "Maj" ? GDK_SHIFT_MASK : GDK_CONTROL_MASK;
         GdkEventKey evenement = {};
         evenement.keyval = gdk_keyval_from_name(nom.c_str());
         evenement.state = modificateurs;
         if (!b.Zone.ToucheEnfoncee(&evenement)) m.setstate(std::ios::badbit);
     }},
    {"ouvre", [](Banc& b, Mots& m) { b.Zone.OuvreZone(KRVEK_ESSAIS "/" + Suite(m)); }},
    {"importe", [](Banc& b, Mots& m) { b.Zone.Importe(&ImporteDxf, KRVEK_ESSAIS "/" + Suite(m)); }},
    {"nouveau", [](Banc& b, Mots&) { b.Zone.Nouveau(); }},
    {"relache", [](Banc& b, Mots&) { b.Zone.ToucheRelachee(); }},
    {"molette",
     [](Banc& b, Mots& m) {
         const int sens = Lu<int>(m);
         const PointVek p = EchelleCourante.VersEcran(LuPoint(m));
         b.Souris.Tourne(p.x, p.y, static_cast<GdkScrollDirection>(sens));
     }},
    {"menu",
     [](Banc& b, Mots& m) {
         const auto nom = Lu<std::string>(m);
         const PointVek p = EchelleCourante.VersEcran(LuPoint(m));
         for (Gtk::MenuItem* entree : b.Souris.MenuDroit(p.x, p.y))
             if (NomAction(*entree) == nom) entree->activate();
     }},
    {"bouton",
     [](Banc& b, Mots& m) {
         const int bouton = Lu<int>(m), type = Lu<int>(m);
         const PointVek p = EchelleCourante.VersEcran(LuPoint(m));
         b.Souris.Presse(p.x, p.y, bouton, static_cast<GdkEventType>(type));
     }},
    {"style",
     [](Banc& b, Mots& m) {
         std::string texte = Suite(m);
         std::replace(texte.begin(), texte.end(), '|', '\n');
         Lecteur entree(texte);
         Trait trait;
         entree >> trait;
         b.Zone.Outils.Protos.SetTrait(trait);
     }},
    {"calque", [](Banc& b, Mots& m) { b.Zone.Outils.Protos.SetCalque(Lu<int>(m)); }},
    {"montre", [](Banc& b, Mots& m) { b.Zone.Outils.SetCalqueAffiche(Lu<int>(m)); }},
    {"annule", [](Banc& b, Mots&) { b.Zone.AnnuleAction(); }},
    {"tourne",
     [](Banc&, Mots& m) {
         TransformeColle& t = BddCourante.Transforme;
         m >> t.Cos >> t.Sin >> t.Agrandissement;
     }},
    {"presse",
     [](Banc&, Mots& m) { Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD)->set_text(Suite(m)); }},
    {"copie", [](Banc& b, Mots&) { b.Zone.Presse.Copie(); }},
    {"coupe", [](Banc& b, Mots&) { b.Zone.Presse.Coupe(); }},
    {"colle",
     [](Banc& b, Mots&) {
         b.Zone.Presse.Colle();
         Laisse(ETAT_COLLER, b);
     }},
    {"groupe",
     [](Banc& b, Mots&) {
         b.Zone.Presse.ColleCommeBDD();
         Laisse(ETAT_COLLER_BDD, b);
     }},
    {"symetrie",
     [](Banc& b, Mots& m) {
         if (Lu<char>(m) == 'X')
             b.Zone.Presse.ChangeSymetrieX();
         else
             b.Zone.Presse.ChangeSymetrieY();
         Laisse(ETAT_COLLER, b);
     }},
    {"trait", [](Banc& b, Mots&) { b.Zone.ZoneTrait(); }},
    {"efface", [](Banc& b, Mots&) { b.Zone.Vue.AnnuleSelection(); }},
    {"zoom",
     [](Banc& b, Mots& m) {
         const char sens = Lu<char>(m);
         if (sens == '+') b.Zone.ZoomPlusAction();
         if (sens == '-') b.Zone.ZoomMoinsAction();
         if (sens == '0') b.Zone.ZoomInitAction();
     }},
    {"grille",
     [](Banc& b, Mots& m) {
         const char ordre = Lu<char>(m);
         if (ordre == '+') b.Zone.Vue.GrillePlus();
         if (ordre == '-') b.Zone.Vue.GrilleMoins();
         if (ordre == '0') b.Zone.Vue.ChangeGrille();
         if (ordre == '#') b.Zone.Vue.SetCouleurGrille(Gdk::Color("#" + Suite(m)));
     }},
    {"accroche",
     [](Banc& b, Mots& m) {
         static const std::map<std::string, bool OptionsAccrochage::*> options = {
             {"actif", &OptionsAccrochage::Actif},
             {"croisements", &OptionsAccrochage::Intersections},
             {"supports", &OptionsAccrochage::Supports},
             {"extremites", &OptionsAccrochage::Extremites}};
         b.Zone.Souris.Bascule(options.at(Lu<std::string>(m)));
     }},
    {"groupes", [](Banc& b, Mots&) { b.Zone.Vue.ChangeAfficheBDD(); }},
    {"fond", [](Banc& b, Mots& m) { b.Zone.Vue.SetFond(Gdk::Color(Suite(m))); }},
    {"taille",
     [](Banc& b, Mots& m) {
         const int largeur = Lu<int>(m);
         b.Zone.set_size_request(largeur, Lu<int>(m));
     }},
};

}  // namespace

Seance::~Seance() {
    Finit();
}

void Seance::Commence() {
    Finit();
    Table = std::make_unique<Banc>();
    Table->Zone.Outils.SignalEtat().connect(
        [this](const LigneEtat& ligne) { EtatDit = ligne.Numero; });
    Table->Zone.Presse.SignalDit().connect(
        [this](const Glib::ustring& phrase) { Reponse = "    " + phrase.raw() + '\n'; });
    BddCourante.Transforme = TransformeColle();
    EtatDit = EtatAvant = ETAT_REPOS;
    Dessin.clear();
    Tenu.clear();
    Fils = "-1";
    VueDite = LaVue();
}

void Seance::Finit() {
    if (!Table) return;
    EXPECT_EQ(Attendues, 0) << "a dialog did not come";
    Table->Zone.Outils.RazEtat();
    for (; !Etapes.empty(); Etapes.pop_back()) {
        Table->Zone.AnnuleAction();
        EXPECT_EQ(Tout(), Etapes.back());
    }
    if (Depart) {
        EXPECT_EQ(Ecart(Table->Image(), *Depart), 0) << "pixels differ after all undos";
    }
    Depart.reset();
    Table.reset();
}

void Seance::Attend(const std::string& saisies, int reponse) {
    ++Attendues;
    RepondDialogue(reponse, [this, saisies](Gtk::Dialog& dialogue) {
        --Attendues;
        std::vector<Gtk::Entry*> champs;
        Recolte(dialogue, champs);
        // A table has its rows from the last to the first.
        if (PremierDe<Gtk::Table>(dialogue)) std::reverse(champs.begin(), champs.end());
        std::istringstream textes(saisies);
        std::string texte;
        for (Gtk::Entry* champ : champs)
            if (std::getline(textes, texte, ';') && !texte.empty()) champ->set_text(texte);
    });
}

Capture Seance::ExigeRepeinte(bool enBande) {
    Capture vue = Table->Image();
    if (enBande) {
        Table->Zone.queue_draw_area(150, 100, 77, 63);
        EXPECT_EQ(Ecart(Table->Image(), vue), 0) << "pixels differ after the repaint of a part";
    }
    Table->Zone.Vue.Redessine();
    EXPECT_EQ(Ecart(Table->Image(), vue), 0) << "pixels differ after a repaint";
    return vue;
}

void Seance::ExigeBande(const Capture& bande, const Capture& element, bool autre) {
    // Since the area has another size it was not seen without a band.
    if (Vide->Image->get_height() != bande.Image->get_height()) return;
    EXPECT_GT(Ecart(bande, *Vide), 0) << "there is no band";
    const int ecart = autre ? 0 : bande.EcartSur(*Vide, element);
    if (ecart == 0) return;
    ADD_FAILURE() << ecart << " pixels differ between band and element";
    bande.Garde("bande");
    element.Garde("element");
}

std::string Seance::Joue(const std::string& ligne) {
    SCOPED_TRACE(ligne);
    std::istringstream mots(ligne);
    const auto ordre = Lu<std::string>(mots);
    if (ordre == "*") Commence();
    if (ordre == "saisie") Attend(Suite(mots), Gtk::RESPONSE_OK);
    if (ordre == "refus") Attend(Suite(mots), Gtk::RESPONSE_CANCEL);
    if (ordre == "oublie") Oublie();
    if (ordre == "?") return Couleur(EchelleCourante.VersEcran(LuPoint(mots)), Table->Image());
    if (ordre == "image") return Image(LuPoint(mots));
    if (ordre == "ferme") return FermeMenu(Suite(mots));
    const auto effet = Ordres.find(ordre);
    if (effet == Ordres.end()) return {};
    if (ordre == "etat" && !Depart) Vide = Depart = std::make_shared<Capture>(Table->Image());
    if (ordre == "clic") {
        std::istringstream clic(Suite(mots));
        const PointVek p = LuPoint(clic);
        Table->Souris.BougeA(p + PointVek(13, 7));
        Table->Souris.BougeA(p);
        mots.clear();
        mots.seekg(4);
    }
    const Bandes& dessus = Table->Zone.Vue.Dessus;
    const auto marques = [&dessus] {
        return std::pair(dessus.Visible(Bandes::Poignees), dessus.Visible(Bandes::Repere));
    };
    const auto marquesAvant = marques();
    const bool enBande = dessus.Visible(Bandes::Outil);
    const auto avant = enBande ? std::make_shared<Capture>(Table->Image()) : nullptr;
    effet->second(*Table, mots);
    if (mots.bad()) Reponse = "    not taken\n";
    if (!Depart) return Dit();
    auto apres = std::make_shared<Capture>(ExigeRepeinte(dessus.Visible(Bandes::Outil)));
    const std::size_t nombre = Dessin.size();
    const std::string dit = Dit();
    if (enBande && Dessin.size() > nombre && marques() == marquesAvant)
        ExigeBande(*avant, *apres, Lu<std::string>(mots) == "autre");
    if (!dessus.Visible(Bandes::Outil) && marques() == std::pair(false, false))
        Vide = std::move(apres);
    return dit;
}

void Seance::Oublie() {
    Etapes.clear();
    Depart.reset();
}

std::string Seance::Image(const PointVek& pixel) {
    const auto presse = Gtk::Clipboard::get(GDK_SELECTION_CLIPBOARD);
    presse->set_text("rien");
    Table->Zone.Presse.CopieBitmap();
    const auto image = presse->wait_for_image();
    if (!image) return "    none\n";
    Capture vue = Table->Image();
    vue.Image = image;
    return "    " + std::to_string(image->get_width()) + " x " +
           std::to_string(image->get_height()) + '\n' + Couleur(pixel, vue);
}

std::string Seance::FermeMenu(const std::string& choix) {
    std::string noms = "    menu";
    for (Gtk::MenuItem* entree : Table->Souris.FermeMenu()) {
        noms += ' ' + NomAction(*entree);
        if (NomAction(*entree) == choix) entree->activate();
    }
    LaisseTourner();
    return noms + '\n' + Dit();
}

std::string Seance::Dit() {
    std::string dit = std::exchange(Reponse, {});
    const Lignes avant = std::exchange(Dessin, LignesDuDessin());
    for (const std::string& elt : Sans(avant, Dessin))
        dit += "    - " + elt + '\n';
    for (const std::string& elt : Sans(Dessin, avant))
        dit += "    + " + elt + '\n';
    // The same ones in another order.
    if (dit.empty() && Dessin != avant)
        for (const std::string& elt : Dessin)
            dit += "    = " + elt + '\n';
    if (const std::string autres = TableFils(); Fils != autres)
        dit += "    fils " + (Fils = autres) + '\n';
    if (const std::string autre = LaVue(); VueDite != autre)
        dit += "    vue " + (VueDite = autre) + '\n';
    EXPECT_EQ(EtatDit, Table->Zone.Outils.EtatCourant());
    if (EtatDit != EtatAvant) dit += "    -> " + std::to_string(EtatAvant = EtatDit) + '\n';
    const Lignes contenu = std::exchange(Tenu, Tout());
    if (Depart && contenu != Tenu) {
        if (!Etapes.empty() && Etapes.back() == Tenu)
            Etapes.pop_back();
        else
            Etapes.push_back(contenu);
    }
    return dit;
}
