#include <gtkmm/toolbar.h>

#include "window/dessinwindow.h"

namespace {

constexpr char Menus[] = R"(
<ui>
  <menubar name='MenuBar'>
    <menu action='MenuFile'>
      <menuitem action='New'/>
      <menuitem action='Open'/>
      <menuitem action='RecentFiles'/>
      <menuitem action='Save'/>
      <menuitem action='SaveAs'/>
      <menu action='MenuImportation'>
        <menuitem action='Dxf'/>
        <menuitem action='Ve9'/>
        <menuitem action='Vek'/>
      </menu>
      <menuitem action='PrintDialog'/>
      <menuitem action='Preview'/>
      <menuitem action='PageSetup'/>
      <separator/>
      <menuitem action='ExportPDF'/>
      <menuitem action='ExportDxf'/>
      <separator/>
      <menuitem action='Quit'/>
    </menu>
    <menu action='MenuEdit'>
      <menuitem action='Select'/>
      <menuitem action='Sup'/>
      <menuitem action='Annulation'/>
      <separator/>
      <menuitem action='ZoneSelection'/>
      <menuitem action='AnnuleSelection'/>
      <separator/>
      <menuitem action='CopierBitmap'/>
      <menuitem action='CopierVek'/>
      <menuitem action='CouperVek'/>
      <menuitem action='CollerVek'/>
      <menu action='OptionColler'>
        <menuitem action='CollerSymX'/>
        <menuitem action='CollerSymY'/>
        <menuitem action='CollerRotation'/>
        <menuitem action='CollerK'/>
      </menu>
      <menuitem action='CollerVekCommeBDD'/>
      <separator/>
      <menuitem action='ZoneTrait'/>
    </menu>
    <menu action='MenuCreation'>
      <menuitem action='Segment'/>
      <menuitem action='Cercle'/>
      <menuitem action='Disque'/>
      <menuitem action='Texte'/>
      <menuitem action='Point'/>
      <menuitem action='Droite'/>
      <separator/>
      <menuitem action='SegmentCE'/>
      <menuitem action='SegmentAE'/>
      <menuitem action='SegmentAEAnti'/>
      <menuitem action='SegmentAA'/>
      <menuitem action='SegmentParaDist'/>
      <menuitem action='SegmentOrtho'/>
      <separator/>
      <menuitem action='ArcCDF'/>
      <menuitem action='ArcDFC'/>
      <menuitem action='ArcTE'/>
      <menuitem action='ArcTT'/>
      <menuitem action='ArcRayon'/>
      <menuitem action='CercleRayon'/>
      <separator/>
      <menuitem action='Rectangle'/>
      <menuitem action='Profil'/>
      <menuitem action='ProfilElt'/>
      <separator/>
      <menuitem action='Image'/>
    </menu>
    <menu action='MenuCote'>
      <menuitem action='Cote'/>
      <menuitem action='CoteVert'/>
      <menuitem action='CoteHori'/>
      <separator/>
      <menuitem action='CoteAng'/>
      <separator/>
      <menuitem action='CoteDia'/>
      <menuitem action='CoteDiaArc'/>
      <menuitem action='CoteRayon'/>
      <menuitem action='CoteRayonArc'/>
    </menu>
    <menu action='MenuCalques'>
      <menuitem action='CalqueCourant'/>
      <menuitem action='CalquesAfficher'/>
    </menu>
    <menu action='MenuOption'>
      <menuitem action='Grille'/>
      <menuitem action='GrillePlus'/>
      <menuitem action='GrilleMoins'/>
      <menuitem action='GrillePas'/>
      <menuitem action='GrilleCouleur'/>
      <separator/>
      <menuitem action='PointParticulier'/>
      <menuitem action='PointParticulierI'/>
      <menuitem action='PointParticulierIP'/>
      <menuitem action='PointParticulierE'/>
      <separator/>
      <menuitem action='Couleur'/>
      <menuitem action='Trait'/>
      <separator/>
      <menuitem action='PrefTxt'/>
      <menuitem action='PrefCote'/>
    </menu>
    <menu action='MenuAffichage'>
      <menuitem action='ZoomPlus'/>
      <menuitem action='ZoomMoins'/>
      <menuitem action='ZoomOrigine'/>
      <menuitem action='Zoom'/>
      <menuitem action='ZoomInit'/>
      <menuitem action='BoiteAOutil'/>
      <menuitem action='Etat'/>
      <menuitem action='CouleurFond'/>
      <separator/>
      <menuitem action='AfficheBDD'/>
      <separator/>
      <menuitem action='Vue3D'/>
    </menu>
    <menu action='MenuCreation3D'>
      <menuitem action='Pave'/>
      <menuitem action='Sphere'/>
      <menuitem action='Cylindre'/>
      <menu action='Profil3D'>
        <menuitem action='ProfilElevation'/>
        <menuitem action='ProfilTourne'/>
        <menuitem action='ProfilEltElevation'/>
        <menuitem action='ProfilEltTourne'/>
      </menu>
      <menuitem action='Jonc'/>
      <menuitem action='Boa'/>
      <menuitem action='ProfilSurface'/>
      <separator/>
      <menuitem action='SurfacePref'/>
      <separator/>
      <menuitem action='Image3d'/>
      <menuitem action='Percage'/>
      <menuitem action='Rainure'/>
      <menuitem action='RainureP'/>
      <menuitem action='RainurePElt'/>
      <menuitem action='EnvBoule'/>
    </menu>
    <menu action='MenuAide'>
      <menuitem action='APropos'/>
      <menuitem action='Aide'/>
    </menu>
  </menubar>
  <toolbar name='ToolBar'>
    <toolitem action='New'/>
    <toolitem action='Open'/>
    <toolitem action='Save'/>
    <toolitem action='Print'/>
    <separator/>
    <toolitem action='Sup'/>
    <toolitem action='Select'/>
    <toolitem action='Annulation'/>
    <toolitem action='ZoneSelection'/>
    <toolitem action='AnnuleSelection'/>
    <toolitem action='CopierVek'/>
    <toolitem action='CouperVek'/>
    <toolitem action='CollerVek'/>
    <separator/>
    <toolitem action='PointParticulier'/>
    <separator/>
    <toolitem action='Segment'/>
    <toolitem action='Cercle'/>
    <toolitem action='Texte'/>
    <toolitem action='Point'/>
    <toolitem action='Droite'/>
    <toolitem action='Rectangle'/>
    <toolitem action='Profil'/>
    <toolitem action='Cote'/>
  </toolbar>
</ui>
)";

/// Keys go to the drawing: no button of the tool bar takes the focus, or Return and Space would
/// fire it.
void RetireFocus(Gtk::Widget& outil) {
    outil.set_can_focus(false);
    if (auto* boite = dynamic_cast<Gtk::Container*>(&outil))
        boite->foreach (sigc::ptr_fun(&RetireFocus));
}

}  // namespace

void DessinWindow::ConstruitMenus() {
    GestionnaireUI = Gtk::UIManager::create();
    GestionnaireUI->insert_action_group(Actions, 0);
    add_accel_group(GestionnaireUI->get_accel_group());
    GestionnaireUI->add_ui_from_string(Menus);

    Gtk::Widget* menu = GestionnaireUI->get_widget("/MenuBar");
    menu->modify_bg(Gtk::STATE_NORMAL, Gdk::Color("#FFFFEA"));
    BoiteMenu.pack_start(*menu, Gtk::PACK_SHRINK);

    auto* outils = dynamic_cast<Gtk::Toolbar*>(GestionnaireUI->get_widget("/ToolBar"));
    BarreOutils = outils;
    outils->set_toolbar_style(Gtk::TOOLBAR_ICONS);
    outils->modify_bg(Gtk::STATE_NORMAL, Gdk::Color("#F0F0D0"));
    RetireFocus(*outils);
    BoiteMenu.pack_start(*outils, Gtk::PACK_SHRINK);
}
