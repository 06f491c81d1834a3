// All commands of the menus and of the tool bar, in the order of the menus.

#include <gtkmm/stock.h>

#include "model/bddgeo.h"
#include "window/dessinwindow.h"
#include "window/lignes.h"
#include "zone/etats.h"

namespace {

bool GrilleAffichee(const DessinWindow& fenetre) {
    return fenetre.Zone.Vue.GrilleCourante.Affichee;
}

bool BDDAffichee(const DessinWindow&) {
    return BddCourante.AfficheBDD;
}

bool Toujours(const DessinWindow&) {
    return true;
}

Ligne MenuFichier() {
    return Menu(
        "MenuFile", "_Fichier",
        {
            Stock("New", Gtk::Stock::NEW, "Nouveau", &DessinWindow::New).DansLaBarre(1, 1),
            Stock("Open", Gtk::Stock::OPEN, "Ouvrir", &DessinWindow::Open).DansLaBarre(1, 2),
            Ligne(Ligne::Recents, "RecentFiles", "_Fichiers récents", &DessinWindow::RecentFiles),
            Stock("Save", Gtk::Stock::SAVE, "Enregistrer", &DessinWindow::Save).DansLaBarre(1, 3),
            Stock("SaveAs", Gtk::Stock::SAVE_AS, "Enregistrer sous", &DessinWindow::SaveAs),
            Menu("MenuImportation", "_Importation",
                 {
                     Simple("Dxf", "D_xf", &DessinWindow::Dxf),
                     Simple("Ve9", "Ve_9", &DessinWindow::Ve9),
                     Simple("Vek", "Ve_k Com2", &DessinWindow::Vek),
                 }),
            Stock("PrintDialog", Gtk::Stock::PRINT, "Imprimer", &DessinWindow::PrintDialog),
            Stock("Preview", Gtk::Stock::PRINT_PREVIEW, "Aperçu avant impression",
                  &DessinWindow::Preview),
            Stock("PageSetup", Gtk::Stock::PAGE_SETUP, "Mise en page", &DessinWindow::PageSetup),
            Ligne::Trait(),
            Simple("ExportPDF", "Export _PDF", &DessinWindow::ExportPDF),
            Simple("ExportDxf", "Export D_xf", &DessinWindow::ExportDxf),
            Ligne::Trait(),
            Stock("Quit", Gtk::Stock::QUIT, "Quitter", &DessinWindow::Quit),
        });
}

Ligne MenuEdition() {
    return Menu(
        "MenuEdit", "_Edition",
        {
            Outil("Select", "_Modifier", "Cliquer puis déplacer", ETAT_MODIFIE).DansLaBarre(2, 2),
            Outil("Sup", "Supprimer", "Cliquer sur l'élément à supprimer", ETAT_SUPPRIME)
                .AvecTouche("S")
                .DansLaBarre(2, 1),
            Stock("Annulation", Gtk::Stock::UNDO, "Annuler", Zone(&ZoneDessin::AnnuleAction))
                .AvecTouche("A")
                .AussiPar("Ctrl+Z")
                .DansLaBarre(2, 3),
            Ligne::Trait(),
            Outil("ZoneSelection", "Sélection", "Donner la zone à sélectionner", ETAT_SELECTION_1)
                .DansLaBarre(2, 4),
            Icone("AnnuleSelection", "Annuler Sélection", "Annule la sélection",
                  Vue(&VueZone::AnnuleSelection))
                .DansLaBarre(2, 5),
            Ligne::Trait(),
            Stock("CopierBitmap", Gtk::Stock::COPY, "Copier",
                  [](DessinWindow& fenetre) {
                      // The strip lies over what is copied.
                      fenetre.Messages.Cache();
                      fenetre.Zone.Presse.CopieBitmap();
                  }),
            Icone("CopierVek", "Copier _Vek", "Copier la zone sélectionnée",
                  Presse(&PressePapier::Copie))
                .DansLaBarre(2, 6),
            Icone("CouperVek", "Couper _Vek", "Couper la zone sélectionnée",
                  Presse(&PressePapier::Coupe))
                .DansLaBarre(2, 7),
            Icone("CollerVek", "Coller _Vek", "Où Coller le presse Papier",
                  Presse(&PressePapier::Colle))
                .DansLaBarre(2, 8),
            Menu("OptionColler", "_Option Collage",
                 {
                     Bascule("CollerSymX", "Symétrie X", Presse(&PressePapier::ChangeSymetrieX), {})
                         .AvecTouche("X"),
                     Bascule("CollerSymY", "Symétrie Y", Presse(&PressePapier::ChangeSymetrieY), {})
                         .AvecTouche("Y"),
                     Simple("CollerRotation", "Angle de rotation", &DessinWindow::CollerRotation),
                     Simple("CollerK", "Coef d'homothétie", &DessinWindow::CollerK),
                 }),
            Simple("CollerVekCommeBDD", "Coller Comme BDD", Presse(&PressePapier::ColleCommeBDD)),
            Ligne::Trait(),
            Icone("ZoneTrait", "Change _Trait", "Changer le trait des éléments sélectionnés",
                  Zone(&ZoneDessin::ZoneTrait)),
        });
}

Ligne MenuCreation() {
    return Menu(
        "MenuCreation", "_Creation",
        {
            Outil("Segment", "_Segment", "Cliquer sur les deux extrémités", ETAT_SEGMENT_1)
                .DansLaBarre(4, 1),
            Outil("Cercle", "_Cercle", "Cliquer sur le centre et un point du cercle", ETAT_CERCLE_1)
                .DansLaBarre(4, 2),
            Outil("Disque", "_Disque", "Cliquer sur le centre et un point du périmètre disque",
                  ETAT_DISQUE_1),
            Outil("Texte", "_Texte", "Cliquer sur la position du texte", ETAT_TEXTE)
                .DansLaBarre(4, 3),
            Outil("Point", "_Point", "Cliquer sur la position du point", ETAT_POINT)
                .DansLaBarre(4, 4),
            Outil("Droite", "_Droite", "Cliquer sur la position de 2 points", ETAT_DROITE_1)
                .DansLaBarre(4, 5),
            Ligne::Trait(),
            Outil("SegmentCE", "_Segment C E", "Cliquer sur le centre et une extrémité",
                  ETAT_SEGMENT_CE_1),
            Outil("SegmentAE", "_Segment A E", "Cliquer sur un élément et une extrémité",
                  ETAT_SEGMENT_AE_1),
            Outil("SegmentAEAnti", "_Segment A E Anti", "Cliquer sur un élément et une extrémité",
                  ETAT_SEGMENT_AEANTI_1),
            Outil("SegmentAA", "_Segment tgt 2 Arcs", "Cliquer sur 2 arcs", ETAT_SEGMENT_AA_1),
            Outil("SegmentParaDist", "_Segment //", "Cliquer sur un segment", ETAT_SEGMENT_PARA),
            Outil("SegmentOrtho", "_Segment Ortho", "Cliquer sur un segment puis placer le segment",
                  ETAT_SEGMENT_ORTHO_1),
            Ligne::Trait(),
            Outil("ArcCDF", "_Arc C D F", "Cliquer sur le centre, le début et la fin de l'arc",
                  ETAT_ARC_CDF_1),
            Outil("ArcDFC", "_Arc D F C", "Cliquer sur le début, la fin  et le centre de l'arc",
                  ETAT_ARC_DFC_1),
            Outil("ArcTE", "_Arc Tgt Element C", "Cliquer sur un élément et le centre",
                  ETAT_ARC_TE_1),
            Outil("ArcTT", "_Arc Tgt 2 Elements", "Cliquer sur deux éléments et le centre",
                  ETAT_ARC_TT_1),
            Outil("ArcRayon", "_Arc Rayon Tgt 2 Elements",
                  "Donner un rayon Cliquer sur deux éléments", ETAT_ARC_RAYON_1),
            Outil("CercleRayon", "_Cercle Rayon",
                  "Donner un rayon Cliquer sur la position du centre", ETAT_CERCLE_RAYON),
            Ligne::Trait(),
            Outil("Rectangle", "_Rectangle", "Cliquer sur les deux extrémités", ETAT_RECTANGLE_1)
                .DansLaBarre(4, 6),
            Outil("Profil", "_Profil", "Cliquer sur le centre puis les positions des sommets",
                  ETAT_PROFIL_1)
                .DansLaBarre(4, 7),
            Outil("ProfilElt", "_Profil sur éléments",
                  "Cliquer sur le centre, une position de début puis des Arcs ou Segments",
                  ETAT_PROFIL_ELT_1),
            Ligne::Trait(),
            Outil("Image", "_Image de BDD", "Cliquer sur la position de l'image de la BDD",
                  ETAT_IMAGE),
        });
}

Ligne MenuCote() {
    return Menu(
        "MenuCote", "_Cotes",
        {
            Outil("Cote", "_Cote", "Cliquer sur deux extrémité", ETAT_COTE_1).DansLaBarre(4, 8),
            Outil("CoteVert", "_Verticale", "Cliquer sur deux extrémité et un point",
                  ETAT_COTE_VERT_1),
            Outil("CoteHori", "_Horizontale", "Cliquer sur deux extrémité et un point",
                  ETAT_COTE_HORI_1),
            Ligne::Trait(),
            Outil("CoteAng", "_Angle", "Cliquer sur 4 points", ETAT_COTE_ANG_1),
            Ligne::Trait(),
            Outil("CoteDia", "_Diamètre", "Cliquer sur 3 points", ETAT_COTE_DIA_1),
            Outil("CoteDiaArc", "_Diamètre Arc", "Cliquer sur un arc et la position",
                  ETAT_COTE_DIA_ARC_1),
            Outil("CoteRayon", "_Rayon", "Cliquer sur 3 points", ETAT_COTE_RAYON_1),
            Outil("CoteRayonArc", "_Rayon Arc", "Cliquer sur un arc et la position",
                  ETAT_COTE_RAYON_ARC_1),
        });
}

Ligne MenuCalques() {
    return Menu("MenuCalques", "_Calques",
                {
                    Simple("CalqueCourant", "_Courant", &DessinWindow::CalqueCourant),
                    Simple("CalquesAfficher", "_Affichés", &DessinWindow::CalquesAfficher),
                });
}

Ligne MenuOption() {
    return Menu(
        "MenuOption", "_Option",
        {
            Bascule("Grille", "_Grille", Vue(&VueZone::ChangeGrille), GrilleAffichee)
                .AvecTouche("G"),
            Simple("GrillePlus", "Grille Plus", Vue(&VueZone::GrillePlus)).AvecTouche("P"),
            Simple("GrilleMoins", "Grille Moins", Vue(&VueZone::GrilleMoins)).AvecTouche("M"),
            Simple("GrillePas", "_pas de Grille", &DessinWindow::GrillePas),
            Simple("GrilleCouleur", "_Couleur de la Grille", &DessinWindow::GrilleCouleur),
            Ligne::Trait(),
            Accroche("PointParticulier", "_Point Particulier",
                     "Accroche sur des points Particuliers", &OptionsAccrochage::Actif)
                .AvecImage("PointParticulier")
                .DansLaBarre(3, 1),
            Accroche("PointParticulierI", "_Intersection",
                     "Intersection dans les points Particuliers",
                     &OptionsAccrochage::Intersections),
            Accroche("PointParticulierIP", "_Possible",
                     "centre et intersection avec droite support dans les points Particuliers",
                     &OptionsAccrochage::Supports),
            Accroche("PointParticulierE", "_des éléments",
                     "centre et extrémités dans les points Particuliers",
                     &OptionsAccrochage::Extremites),
            Ligne::Trait(),
            Simple("Couleur", "_Couleur", &DessinWindow::Couleur),
            Simple("Trait", "_Trait", &DessinWindow::Trait),
            Ligne::Trait(),
            Simple("PrefTxt", "_Préférences Textes", &DessinWindow::PrefTxt),
            Simple("PrefCote", "_Préférences Cotes", &DessinWindow::PrefCote),
        });
}

Ligne MenuAffichage() {
    return Menu(
        "MenuAffichage", "_Affichage",
        {
            Simple("ZoomPlus", "Zoom _Plus", Zone(&ZoneDessin::ZoomPlusAction)).AvecTouche("O"),
            Simple("ZoomMoins", "Zoom _Moins", Zone(&ZoneDessin::ZoomMoinsAction)).AvecTouche("L"),
            OutilSimple("ZoomOrigine", "Zoom _Origine", "", ETAT_ZOOM_ORIGINE),
            OutilSimple("Zoom", "Zoom", "", ETAT_ZOOM_1),
            Simple("ZoomInit", "Zoom _Init", Zone(&ZoneDessin::ZoomInitAction)),
            Bascule("BoiteAOutil", "B_oite A Outil", &DessinWindow::BoiteAOutil, Toujours),
            Bascule("Etat", "Barre d'_état", &DessinWindow::Etat, Toujours),
            Simple("CouleurFond", "_Couleur du fond d'écran", &DessinWindow::CouleurFond),
            Ligne::Trait(),
            Bascule("AfficheBDD", "Affiche _BDD", Vue(&VueZone::ChangeAfficheBDD), BDDAffichee)
                .AvecBulle("Affiche ou non les bdd"),
            Ligne::Trait(),
            Icone("Vue3D", "_Vue 3D", "ouverture/fermeture de la fenêtre 3D", &DessinWindow::Vue3D),
        });
}

Ligne MenuCreation3D() {
    return Menu(
        "MenuCreation3D", "_Creation3D",
        {
            Outil("Pave", "_Pavé", "Cliquer sur les extrémités de diagonale", ETAT_PAVE_1),
            Outil("Sphere", "_Sphère", "Cliquer sur le centre et un point de la Sphère",
                  ETAT_SPHERE_1),
            Outil("Cylindre", "_Cylindre", "Cliquer sur le centre et un point de la base",
                  ETAT_CYLINDRE_1),
            Menu(
                "Profil3D", "_Profil3D",
                {
                    Outil("ProfilElevation", "_Profil Elevation", "Cliquer sur le centre",
                          ETAT_ELEVATION_1),
                    Outil("ProfilTourne", "_Profil Tourne", "Cliquer sur le centre", ETAT_TOURNE_1),
                    Outil("ProfilEltElevation", "_Profil Elevation Sur élements",
                          "Cliquer sur le centre", ETAT_ELEVATION_ELT_1)
                        .AvecImage("ProfilElevation"),
                    Outil("ProfilEltTourne", "_Profil Tourne sur éléments", "Cliquer sur le centre",
                          ETAT_TOURNE_ELT_1)
                        .AvecImage("ProfilTourne"),
                }),
            Outil("Jonc", "_Jonc", "Cliquer sur le centre et un profil", ETAT_JONC_1),
            Outil("Boa", "_Boa", "Cliquer sur le centre, le profil tracé, le profil enveloppe",
                  ETAT_BOA_1),
            Outil("ProfilSurface", "_Profil Surface", "Cliquer sur le centre", ETAT_SURFACE_1),
            Ligne::Trait(),
            Icone("SurfacePref", "_Surface Pref", "dimension du tableau de points",
                  &DessinWindow::SurfacePref),
            Ligne::Trait(),
            Outil("Image3d", "_Image 3d de BDD", "Cliquer sur la position de l'image de la BDD",
                  ETAT_IMAGE3D),
            Outil("Percage", "_Percage",
                  "Cliquer sur l'élément à percer, sur le centre et un point de la base",
                  ETAT_PERCAGE_1),
            Outil("Rainure", "_Rainure",
                  "Cliquer sur l'élément à percer, sur le centre et un point de la base",
                  ETAT_RAINURE_1),
            Outil("RainureP", "_Rainure Profil",
                  "Cliquer sur l'élément à percer, sur le centre et les points de la base",
                  ETAT_RAINURE_P_1),
            Outil("RainurePElt", "_Rainure Profil sur éléments",
                  "Cliquer sur l'élément à percer, sur le centre et les points de la base",
                  ETAT_RAINURE_P_ELT_1)
                .AvecImage("RainureP"),
            Outil("EnvBoule", "_EnvBoule",
                  "Cliquer sur l'élément à percer, sur le centre et un point de la base",
                  ETAT_ENVBOULE_1),
        });
}

Ligne MenuAide() {
    return Menu("MenuAide", "_Aide",
                {
                    Simple("APropos", "A _Propos", &DessinWindow::APropos),
                    Simple("Aide", "Aide", &DessinWindow::Aide),
                });
}

/// In no menu: the printing of the tool bar, and actions that nothing chooses.
std::vector<Ligne> HorsMenus() {
    return {
        Stock("Print", Gtk::Stock::PRINT, "Imprimer", &DessinWindow::Print)
            .HorsMenu()
            .DansLaBarre(1, 4),
        Outil("ProfilRuban", "_Profil Ruban", "Cliquer sur le centre", ETAT_RUBAN_1).HorsMenu(),
        Outil("ProfilEvantail", "_Profil Evantail", "Cliquer sur le centre", ETAT_EVANTAIL_1)
            .HorsMenu(),
        Menu("Enlevement3D", "_Enlévement", {}).HorsMenu(),
    };
}

}  // namespace

const std::vector<Ligne>& TableCommandes() {
    static const std::vector<Ligne> table = [] {
        std::vector<Ligne> lignes = {
            MenuFichier(), MenuEdition(),   MenuCreation(),   MenuCote(), MenuCalques(),
            MenuOption(),  MenuAffichage(), MenuCreation3D(), MenuAide(),
        };
        for (Ligne& ligne : HorsMenus())
            lignes.push_back(std::move(ligne));
        return lignes;
    }();
    return table;
}
