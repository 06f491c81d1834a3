#pragma once

#include <glibmm/spawn.h>
#include <gtkmm/actiongroup.h>
#include <gtkmm/alignment.h>
#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/pagesetup.h>
#include <gtkmm/printoperation.h>
#include <gtkmm/table.h>
#include <gtkmm/uimanager.h>
#include <gtkmm/window.h>

#include <optional>
#include <string>

#include "model/recuperation.h"
#include "view3d/window3d.h"
#include "window/lignesaisie.h"
#include "zone/bandeau.h"
#include "zone/zonedessin.h"

class BDDGeo;
class PrintFormOperation;
struct GenreFichier;

/// The main window: menus and tool bar, the drawing area, the status row; and the commands that
/// talk to the user in dialogs.
class DessinWindow : public Gtk::Window {
  public:
    DessinWindow();
    ~DessinWindow() override;

    /// Reads a drawing before the window is shown; nothing else changes.
    void OuvreFichier(const std::string& nom);

    /// The program's name and the drawing's.
    void MetTitre();

    /// Asks whether to save, and saves. False: the command is given up, and the drawing stays.
    bool DemandeEnregistrement();

    /// Asks whether to save a modified drawing, and saves. False: the window stays.
    bool ConfirmeFermeture();

    // The commands of the table that are neither tools nor the area's.

    void New();
    void Open();
    void RecentFiles();
    void Save();
    void SaveAs();
    void Dxf();
    void Ve9();

    /// Asks nothing about a modified drawing, unlike the other imports: users of old drawings open
    /// one after the other.
    void Vek();
    void PageSetup();
    void Preview();
    void PrintDialog();
    void Print();
    void ExportPDF();
    void ExportDxf();
    void Quit();
    void CalqueCourant();
    void CalquesAfficher();
    void GrillePas();
    void GrilleCouleur();
    void Couleur();
    void Trait();
    void CollerRotation();
    void CollerK();
    void PrefTxt();
    void PrefCote();
    void SurfacePref();
    void CouleurFond();
    void BoiteAOutil();
    void Etat();
    void Vue3D();
    void APropos();
    void Aide();

    /// Opens the help at a command, given by its action; at the beginning for an empty name.
    void AideSur(const std::string& action);

    /// Chooses a command by its action.
    void Choisit(const std::string& action);

    /// Shows all copies of drawings that were not saved, and takes one back.
    void RecupereDessin();

    /// The same with what an earlier run left behind when it ended in disorder; nothing when there
    /// is none.
    void ProposeRecuperation();

    ZoneDessin Zone;
    Recuperation Secours;
    Bandeau Messages;
    LigneSaisie Frappe;

  protected:
    bool on_delete_event(GdkEventAny* evenement) override;
    bool on_configure_event(GdkEventConfigure* evenement) override;
    bool on_key_press_event(GdkEventKey* evenement) override;
    bool on_key_release_event(GdkEventKey* evenement) override;
    bool on_focus_out_event(GdkEventFocus* evenement) override;

  private:
    void RangeEtat();
    void AffichePosition(const PointVek& p);
    void AfficheInvite(const LigneEtat& ligne);

    /// Says where a click acts while it is not where the pointer is.
    void AfficheClic();

    /// Shows the place of the click in that width, or with 0 the margin that stands there else.
    void MontreClic(int largeur);

    /// Margin in pixels of a label of the status row where there is room.
    int MargeVoulue(const Gtk::Widget* libelle) const;

    /// Suits the margins to a row of that width in pixels: they shrink before a label is cut.
    void AjusteMarges(int largeur);
    void AfficheCalques();

    Glib::RefPtr<PrintFormOperation> PrepareImpression(const Glib::ustring& travail);
    void Imprime(Gtk::PrintOperationAction action);

    /// Lets what is being sent to a printer go out before the program ends, for a while.
    void AttendImpression() const;

    /// Says that the printing failed, unless annonce tells that the user knows already.
    void AnnonceEchec(bool& annonce);

    /// What showed the help page, or failed to, has ended.
    void NavigateurFini(Glib::Pid navigateur, int etat);

    /// Tells where the help page is, for want of something that shows it.
    void MontreOuEstLAide();

    void ConstruitMenus();
    void AjouteComplements();

    /// From now on the work is kept while it goes on, until `LaisseTravail`.
    void SurveilleTravail();
    void LaisseTravail();
    void PrevoitSecours();
    bool FaitSecoursPrevu();
    void PasseSecours();

    /// Says, once, that no copy can be kept; errno says why.
    void DitSansSecours();

    /// After a drawing was written, or not, errno saying why: shows and says it. Answers ecrit.
    /// autre tells that another program had changed the file.
    bool ApresEcriture(bool ecrit, bool autre = false);
    void DitOriginalGarde(bool autre);

    /// Whether the drawing may be replaced; where demande is true the user is asked about what is
    /// not saved.
    bool PeutRemplacer(bool demande);

    /// The drawing is about to be replaced: keeps a copy of what is not saved. demande tells that
    /// the user was asked about it. Whether there is a copy; nothing when the drawing is not to be
    /// replaced after all.
    std::optional<bool> Abandonne(bool demande);
    void Importe(const GenreFichier& genre, void (*importeur)(BDDGeo&, std::string), bool demande);

    /// Says what the reading of a file has left out; with garde also that the drawing before it
    /// was not saved, of which there is a copy.
    void DitLecture(bool garde = false);
    void Reprend(const CopieSecours& copie);

    Window3D Fenetre3D;
    Gtk::Table Cadre;        ///< The drawing area with the strip over its upper edge.
    Gtk::Alignment Bord;     ///< Of the strip.
    Gtk::Alignment BordBas;  ///< Of the line.
    std::string NomPropose;  ///< For the first save of a drawing that was taken back.
    bool SecoursPrevu = false;
    bool SansSecoursDit = false;
    Gtk::VBox BoiteVerticale;
    Gtk::VBox BoiteMenu;
    Gtk::HBox BoiteEtat;
    Gtk::Label LabelX;
    Gtk::Label LabelY;
    Gtk::Alignment CadreAction;  ///< Its margins are the prompt's, or the free place's.
    Gtk::HBox BoiteAction;
    Gtk::Label LabelClic;
    Gtk::Label LabelAction;
    int MargeAction = 0;
    Gtk::Label LabelCalques;
    Gtk::Label LabelTravail;
    Gtk::Label LabelAffiche;
    Glib::RefPtr<Gtk::UIManager> GestionnaireUI;
    Glib::RefPtr<Gtk::ActionGroup> Actions;
    Glib::RefPtr<Gtk::PageSetup> MiseEnPage;
    Glib::RefPtr<Gtk::PrintSettings> ReglagesImpression;  ///< Those of the last printing.
    Glib::RefPtr<PrintFormOperation> Impression;          ///< The last one, maybe still going on.
    Gtk::Widget* BarreOutils = nullptr;                   ///< The user interface manager's.
};
