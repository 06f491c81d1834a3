#include "window/actions.h"

#include <gtkmm/recentaction.h>
#include <gtkmm/recentfilter.h>
#include <gtkmm/stock.h>
#include <gtkmm/toggleaction.h>

#include "model/bddgeo.h"
#include "window/dessinwindow.h"
#include "zone/etats.h"

namespace {

LigneAction SousMenu(const char* nom, const char* libelle) {
    return {LigneAction::SousMenu, nom, libelle, "", {}};
}

LigneAction Simple(const char* nom, const char* libelle, Effet effet = {},
                   const char* touche = "") {
    return {LigneAction::Simple, nom, libelle, "", effet, touche};
}

LigneAction Recents(const char* nom, const char* libelle, Effet effet) {
    return {LigneAction::Recents, nom, libelle, "", effet};
}

LigneAction Stock(const char* nom, const Gtk::StockID& stock, Effet effet = {},
                  const char* touche = "") {
    return {LigneAction::Stock, nom, "", "", effet, touche, stock.get_string()};
}

/// The icon bears the name of the command, unless it is given.
LigneAction Icone(const char* nom, const char* libelle, const char* bulle, Effet effet = {},
                  const char* touche = "", const char* image = nullptr) {
    return {LigneAction::Icone, nom, libelle, bulle, effet, touche, image ? image : nom};
}

LigneAction Bascule(const char* nom, const char* libelle, const char* bulle, Effet effet,
                    bool (*active)(const ZoneDessin&), const char* touche = "") {
    return {LigneAction::Bascule, nom, libelle, bulle, effet, touche, "", active};
}

LigneAction Accroche(const char* nom, const char* libelle, const char* bulle,
                     bool OptionsAccrochage::*option, const char* image = "") {
    return {LigneAction::Bascule, nom, libelle, bulle, option, "", image};
}

bool GrilleAffichee(const ZoneDessin& zone) {
    return zone.GrilleDuMoment().Affichee;
}

bool BDDAffichee(const ZoneDessin&) {
    return BddCourante.AfficheBDD;
}

bool Toujours(const ZoneDessin&) {
    return true;
}

bool ActiveAuDepart(const LigneAction& ligne, const ZoneDessin& zone) {
    if (const auto* option = std::get_if<bool OptionsAccrochage::*>(&ligne.Execute))
        return zone.Accrochage().**option;
    return ligne.Active && ligne.Active(zone);
}

Glib::RefPtr<Gtk::Action> CreeAction(const LigneAction& ligne, const ZoneDessin& zone) {
    const bool active = ActiveAuDepart(ligne, zone);
    switch (ligne.Forme) {
        case LigneAction::Stock:
            return Gtk::Action::create(ligne.Nom, Gtk::StockID(ligne.Image));
        case LigneAction::Icone:
            return Gtk::Action::create_with_icon_name(ligne.Nom, ligne.Image, ligne.Libelle,
                                                      ligne.Bulle);
        case LigneAction::Bascule:
            if (ligne.Image.empty())
                return Gtk::ToggleAction::create(ligne.Nom, ligne.Libelle, ligne.Bulle, active);
            return Gtk::ToggleAction::create_with_icon_name(ligne.Nom, ligne.Image, ligne.Libelle,
                                                            ligne.Bulle, active);
        case LigneAction::Recents:
            return Gtk::RecentAction::create(ligne.Nom, ligne.Libelle);
        default:
            return Gtk::Action::create(ligne.Nom, ligne.Libelle, ligne.Bulle);
    }
}

}  // namespace

const std::vector<LigneAction>& TableActions() {
    static const std::vector<LigneAction> table = {
        Recents("RecentFiles", "_Fichiers récents", &DessinWindow::RecentFiles),
        SousMenu("MenuFile", "_Fichier"),
        Stock("New", Gtk::Stock::NEW, &DessinWindow::New),
        Stock("Open", Gtk::Stock::OPEN, &DessinWindow::Open),
        Stock("Save", Gtk::Stock::SAVE, &DessinWindow::Save),
        Stock("SaveAs", Gtk::Stock::SAVE_AS, &DessinWindow::SaveAs),
        SousMenu("MenuImportation", "_Importation"),
        Simple("Dxf", "D_xf", &DessinWindow::Dxf),
        Simple("Ve9", "Ve_9", &DessinWindow::Ve9),
        Simple("Vek", "Ve_k Com2", &DessinWindow::Vek),
        Stock("Print", Gtk::Stock::PRINT, &DessinWindow::Print),
        Stock("PrintDialog", Gtk::Stock::PRINT, &DessinWindow::PrintDialog),
        Stock("Preview", Gtk::Stock::PRINT_PREVIEW, &DessinWindow::Preview),
        Stock("PageSetup", Gtk::Stock::PAGE_SETUP, &DessinWindow::PageSetup),
        Simple("ExportPDF", "Export _PDF", &DessinWindow::ExportPDF),
        Simple("ExportDxf", "Export D_xf", &DessinWindow::ExportDxf),
        Stock("Quit", Gtk::Stock::QUIT, &DessinWindow::Quit),
        SousMenu("MenuEdit", "_Edition"),
        Icone("Sup", "Supprimer", "Cliquer sur l'élément à supprimer", ETAT_SUPPRIME, "S"),
        Stock("Annulation", Gtk::Stock::UNDO, &ZoneDessin::AnnuleAction, "A"),
        Stock("CopierBitmap", Gtk::Stock::COPY, &ZoneDessin::CopieBitmap),
        Icone("ZoneSelection", "Sélection", "Donner la zone à sélectionner", ETAT_SELECTION_1),
        Icone("AnnuleSelection", "Annuler Sélection", "Annule la sélection",
              &ZoneDessin::AnnuleSelection),
        Icone("CopierVek", "Copier _Vek", "Copier la zone sélectionnée", &ZoneDessin::CopieAction),
        Icone("CouperVek", "Couper _Vek", "Couper la zone sélectionnée", &ZoneDessin::CoupeAction),
        Icone("CollerVek", "Coller _Vek", "Où Coller le presse Papier", &ZoneDessin::CollerAction),
        SousMenu("OptionColler", "_Option Collage"),
        Bascule("CollerSymX", "Symétrie X", "", &ZoneDessin::ChangeSymetrieX, nullptr, "X"),
        Bascule("CollerSymY", "Symétrie Y", "", &ZoneDessin::ChangeSymetrieY, nullptr, "Y"),
        Simple("CollerRotation", "Angle de rotation", &DessinWindow::CollerRotation),
        Simple("CollerK", "Coef d'homothétie", &DessinWindow::CollerK),
        Simple("CollerVekCommeBDD", "Coller Comme BDD", &ZoneDessin::CollerBDDAction),
        Icone("ZoneTrait", "Change _Trait", "Changer le trait des éléments sélectionnés",
              &ZoneDessin::ZoneTrait),
        Icone("Select", "_Modifier", "Cliquer puis déplacer", ETAT_MODIFIE),
        SousMenu("MenuCreation", "_Creation"),
        Icone("Segment", "_Segment", "Cliquer sur les deux extrémités", ETAT_SEGMENT_1),
        Icone("Cercle", "_Cercle", "Cliquer sur le centre et un point du cercle", ETAT_CERCLE_1),
        Icone("Disque", "_Disque", "Cliquer sur le centre et un point du périmètre disque",
              ETAT_DISQUE_1),
        Icone("Texte", "_Texte", "Cliquer sur la position du texte", ETAT_TEXTE),
        Icone("Point", "_Point", "Cliquer sur la position du point", ETAT_POINT),
        Icone("Droite", "_Droite", "Cliquer sur la position de 2 points", ETAT_DROITE_1),
        Icone("SegmentCE", "_Segment C E", "Cliquer sur le centre et une extrémité",
              ETAT_SEGMENT_CE_1),
        Icone("SegmentAE", "_Segment A E", "Cliquer sur un élément et une extrémité",
              ETAT_SEGMENT_AE_1),
        Icone("SegmentAEAnti", "_Segment A E Anti", "Cliquer sur un élément et une extrémité",
              ETAT_SEGMENT_AEANTI_1),
        Icone("SegmentParaDist", "_Segment //", "Cliquer sur un segment", ETAT_SEGMENT_PARA),
        Icone("SegmentOrtho", "_Segment Ortho", "Cliquer sur un segment puis placer le segment",
              ETAT_SEGMENT_ORTHO_1),
        Icone("SegmentAA", "_Segment tgt 2 Arcs", "Cliquer sur 2 arcs", ETAT_SEGMENT_AA_1),
        Icone("ArcCDF", "_Arc C D F", "Cliquer sur le centre, le début et la fin de l'arc",
              ETAT_ARC_CDF_1),
        Icone("ArcDFC", "_Arc D F C", "Cliquer sur le début, la fin  et le centre de l'arc",
              ETAT_ARC_DFC_1),
        Icone("ArcTE", "_Arc Tgt Element C", "Cliquer sur un élément et le centre", ETAT_ARC_TE_1),
        Icone("ArcTT", "_Arc Tgt 2 Elements", "Cliquer sur deux éléments et le centre",
              ETAT_ARC_TT_1),
        Icone("ArcRayon", "_Arc Rayon Tgt 2 Elements", "Donner un rayon Cliquer sur deux éléments",
              ETAT_ARC_RAYON_1),
        Icone("CercleRayon", "_Cercle Rayon", "Donner un rayon Cliquer sur la position du centre",
              ETAT_CERCLE_RAYON),
        Icone("Rectangle", "_Rectangle", "Cliquer sur les deux extrémités", ETAT_RECTANGLE_1),
        Icone("Profil", "_Profil", "Cliquer sur le centre puis les positions des sommets",
              ETAT_PROFIL_1),
        Icone("ProfilElt", "_Profil sur éléments",
              "Cliquer sur le centre, une position de début puis des Arcs ou Segments",
              ETAT_PROFIL_ELT_1),
        Icone("Image", "_Image de BDD", "Cliquer sur la position de l'image de la BDD", ETAT_IMAGE),
        SousMenu("MenuCote", "_Cotes"),
        Icone("Cote", "_Cote", "Cliquer sur deux extrémité", ETAT_COTE_1),
        Icone("CoteVert", "_Verticale", "Cliquer sur deux extrémité et un point", ETAT_COTE_VERT_1),
        Icone("CoteHori", "_Horizontale", "Cliquer sur deux extrémité et un point",
              ETAT_COTE_HORI_1),
        Icone("CoteAng", "_Angle", "Cliquer sur 4 points", ETAT_COTE_ANG_1),
        Icone("CoteDia", "_Diamètre", "Cliquer sur 3 points", ETAT_COTE_DIA_1),
        Icone("CoteDiaArc", "_Diamètre Arc", "Cliquer sur un arc et la position",
              ETAT_COTE_DIA_ARC_1),
        Icone("CoteRayon", "_Rayon", "Cliquer sur 3 points", ETAT_COTE_RAYON_1),
        Icone("CoteRayonArc", "_Rayon Arc", "Cliquer sur un arc et la position",
              ETAT_COTE_RAYON_ARC_1),
        SousMenu("MenuCalques", "_Calques"),
        Simple("CalqueCourant", "_Courant", &DessinWindow::CalqueCourant),
        Simple("CalquesAfficher", "_Affichés", &DessinWindow::CalquesAfficher),
        SousMenu("MenuOption", "_Option"),
        Bascule("Grille", "_Grille", "", &ZoneDessin::ChangeGrille, GrilleAffichee, "G"),
        Simple("GrillePlus", "Grille Plus", &ZoneDessin::GrillePlus, "P"),
        Simple("GrilleMoins", "Grille Moins", &ZoneDessin::GrilleMoins, "M"),
        Simple("GrillePas", "_pas de Grille", &DessinWindow::GrillePas),
        Simple("GrilleCouleur", "_Couleur de la Grille", &DessinWindow::GrilleCouleur),
        Accroche("PointParticulier", "_Point Particulier", "Accroche sur des points Particuliers",
                 &OptionsAccrochage::Actif, "PointParticulier"),
        Accroche("PointParticulierI", "_Intersection", "Intersection dans les points Particuliers",
                 &OptionsAccrochage::Intersections),
        Accroche("PointParticulierIP", "_Possible",
                 "centre et intersection avec droite support dans les points Particuliers",
                 &OptionsAccrochage::Supports),
        Accroche("PointParticulierE", "_des éléments",
                 "centre et extrémités dans les points Particuliers",
                 &OptionsAccrochage::Extremites),
        Simple("Couleur", "_Couleur", &DessinWindow::Couleur),
        Simple("Trait", "_Trait", &DessinWindow::Trait),
        Simple("PrefTxt", "_Préférences Textes", &DessinWindow::PrefTxt),
        Simple("PrefCote", "_Préférences Cotes", &DessinWindow::PrefCote),
        SousMenu("MenuAffichage", "_Affichage"),
        Simple("ZoomPlus", "Zoom _Plus", &ZoneDessin::ZoomPlusAction, "O"),
        Simple("ZoomMoins", "Zoom _Moins", &ZoneDessin::ZoomMoinsAction, "L"),
        Simple("ZoomOrigine", "Zoom _Origine", ETAT_ZOOM_ORIGINE),
        Simple("Zoom", "Zoom", ETAT_ZOOM_1),
        Simple("ZoomInit", "Zoom _Init", &ZoneDessin::ZoomInitAction),
        Bascule("BoiteAOutil", "B_oite A Outil", "", &DessinWindow::BoiteAOutil, Toujours),
        Bascule("Etat", "Barre d'_état", "", &DessinWindow::Etat, Toujours),
        Simple("CouleurFond", "_Couleur du fond d'écran", &DessinWindow::CouleurFond),
        Bascule("AfficheBDD", "Affiche _BDD", "Affiche ou non les bdd",
                &ZoneDessin::ChangeAfficheBDD, BDDAffichee),
        SousMenu("MenuAide", "_Aide"),
        Simple("APropos", "A _Propos", &DessinWindow::APropos),
        Simple("Aide", "Aide", &DessinWindow::Aide),
        SousMenu("MenuCreation3D", "_Creation3D"),
        Icone("Pave", "_Pavé", "Cliquer sur les extrémités de diagonale", ETAT_PAVE_1),
        Icone("Sphere", "_Sphère", "Cliquer sur le centre et un point de la Sphère", ETAT_SPHERE_1),
        Icone("Cylindre", "_Cylindre", "Cliquer sur le centre et un point de la base",
              ETAT_CYLINDRE_1),
        SousMenu("Profil3D", "_Profil3D"),
        Icone("ProfilElevation", "_Profil Elevation", "Cliquer sur le centre", ETAT_ELEVATION_1),
        Icone("ProfilTourne", "_Profil Tourne", "Cliquer sur le centre", ETAT_TOURNE_1),
        Icone("ProfilEltElevation", "_Profil Elevation Sur élements", "Cliquer sur le centre",
              ETAT_ELEVATION_ELT_1, "", "ProfilElevation"),
        Icone("ProfilEltTourne", "_Profil Tourne sur éléments", "Cliquer sur le centre",
              ETAT_TOURNE_ELT_1, "", "ProfilTourne"),
        Icone("ProfilSurface", "_Profil Surface", "Cliquer sur le centre", ETAT_SURFACE_1),
        Icone("ProfilRuban", "_Profil Ruban", "Cliquer sur le centre", ETAT_RUBAN_1),
        Icone("ProfilEvantail", "_Profil Evantail", "Cliquer sur le centre", ETAT_EVANTAIL_1),
        Icone("Image3d", "_Image 3d de BDD", "Cliquer sur la position de l'image de la BDD",
              ETAT_IMAGE3D),
        SousMenu("Enlevement3D", "_Enlévement"),
        Icone("Percage", "_Percage",
              "Cliquer sur l'élément à percer, sur le centre et un point de la base",
              ETAT_PERCAGE_1),
        Icone("Rainure", "_Rainure",
              "Cliquer sur l'élément à percer, sur le centre et un point de la base",
              ETAT_RAINURE_1),
        Icone("RainureP", "_Rainure Profil",
              "Cliquer sur l'élément à percer, sur le centre et les points de la base",
              ETAT_RAINURE_P_1),
        Icone("RainurePElt", "_Rainure Profil sur éléments",
              "Cliquer sur l'élément à percer, sur le centre et les points de la base",
              ETAT_RAINURE_P_ELT_1, "", "RainureP"),
        Icone("EnvBoule", "_EnvBoule",
              "Cliquer sur l'élément à percer, sur le centre et un point de la base",
              ETAT_ENVBOULE_1),
        Icone("Jonc", "_Jonc", "Cliquer sur le centre et un profil", ETAT_JONC_1),
        Icone("Boa", "_Boa", "Cliquer sur le centre, le profil tracé, le profil enveloppe",
              ETAT_BOA_1),
        Icone("Vue3D", "_Vue 3D", "ouverture/fermeture de la fenêtre 3D", &DessinWindow::Vue3D),
        Icone("SurfacePref", "_Surface Pref", "dimension du tableau de points",
              &DessinWindow::SurfacePref),
    };
    return table;
}

Gtk::Action::SlotActivate DessinWindow::Execution(const Effet& effet) {
    if (const auto* etat = std::get_if<int>(&effet))
        return sigc::bind(sigc::mem_fun(Zone, &ZoneDessin::Entre), *etat);
    if (const auto* commande = std::get_if<void (DessinWindow::*)()>(&effet))
        return sigc::mem_fun(*this, *commande);
    if (const auto* commande = std::get_if<void (ZoneDessin::*)()>(&effet))
        return sigc::mem_fun(Zone, *commande);
    const auto option = std::get<bool OptionsAccrochage::*>(effet);
    return sigc::bind(sigc::mem_fun(Zone, &ZoneDessin::Bascule), option);
}

void DessinWindow::AjouteRecents(const LigneAction& ligne) {
    ActionRecents = Glib::RefPtr<Gtk::RecentAction>::cast_dynamic(CreeAction(ligne, Zone));
    Gtk::RecentFilter filtre;
    filtre.add_pattern("*.vek");
    ActionRecents->add_filter(filtre);
    ActionRecents->set_sort_type(Gtk::RECENT_SORT_MRU);
    ActionRecents->signal_item_activated().connect(Execution(ligne.Execute));
    Actions->add(ActionRecents);
}

void DessinWindow::AjouteAction(const LigneAction& ligne) {
    if (ligne.Forme == LigneAction::Recents) return AjouteRecents(ligne);
    const auto action = CreeAction(ligne, Zone);
    const bool faite = !std::holds_alternative<std::monostate>(ligne.Execute);
    if (faite)
        action->signal_activate().connect(Execution(ligne.Execute));
    else
        action->set_sensitive(ligne.Forme == LigneAction::SousMenu);
    if (*ligne.Touche)
        Actions->add(action, Gtk::AccelKey(ligne.Touche));
    else
        Actions->add(action);
}

void DessinWindow::ConstruitActions() {
    set_title("KR VEK 1.0");
    Actions = Gtk::ActionGroup::create();
    for (const LigneAction& ligne : TableActions())
        AjouteAction(ligne);
}
