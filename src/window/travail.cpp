// What keeps the work: the net, what is said when something could not be written or read, and what
// happens before a drawing is replaced.

#include <glib-unix.h>
#include <glibmm/convert.h>
#include <glibmm/main.h>
#include <glibmm/miscutils.h>
#include <gtkmm/main.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "dialogs/raisons.h"
#include "model/bddgeo.h"
#include "window/dessinwindow.h"
#include "window/recuperationdialog.h"

namespace {

/// The net of the window that stands, for what ends the program from outside; null for none.
Recuperation* SecoursEnCours = nullptr;

void GardeAvantLaFin() {
    if (SecoursEnCours) SecoursEnCours->Ecrit("Arrêt du programme");
    SecoursEnCours = nullptr;
}

/// The user data is the number of the signal, which then does what it does by itself.
gboolean Termine(gpointer donnees) {
    GardeAvantLaFin();
    const int signal = GPOINTER_TO_INT(donnees);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    return FALSE;
}

/// Once for the program. The toolkit leaves by `exit` when the display is lost.
void PrepareFin() {
    static const bool faite = [] {
        // Where files may not grow, a write fails, and the program goes on.
        std::signal(SIGXFSZ, SIG_IGN);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            g_unix_signal_add(signal, &Termine, GINT_TO_POINTER(signal));
        return std::atexit(&GardeAvantLaFin) == 0;
    }();
    static_cast<void>(faite);
}

}  // namespace

void DessinWindow::SurveilleTravail() {
    SecoursEnCours = &Secours;
    PrepareFin();
    Zone.Presse.SignalDit().connect([this](const Glib::ustring& texte) { Messages.Dit(texte); });
    BddCourante.SignalChangement().connect(sigc::mem_fun(*this, &DessinWindow::PrevoitSecours));
    // A change that came too soon after a copy is kept by a later motion.
    Zone.Souris.SignalPosition().connect(
        sigc::hide(sigc::mem_fun(*this, &DessinWindow::PasseSecours)));
}

void DessinWindow::LaisseTravail() {
    Zone.Presse.Remet();
    Secours.Oublie();
    SecoursEnCours = nullptr;
}

void DessinWindow::PrevoitSecours() {
    if (SecoursPrevu) return;
    SecoursPrevu = true;
    // Behind the event that made the change, and what it repaints.
    Glib::signal_idle().connect(sigc::mem_fun(*this, &DessinWindow::FaitSecoursPrevu));
}

bool DessinWindow::FaitSecoursPrevu() {
    SecoursPrevu = false;
    PasseSecours();
    return false;
}

void DessinWindow::PasseSecours() {
    if (!Secours.Passe())
        DitSansSecours();
    else if (Secours.AJour())
        SansSecoursDit = false;
}

void DessinWindow::DitSansSecours() {
    if (SansSecoursDit) return;
    SansSecoursDit = true;
    const Glib::ustring raison = Raison(errno);
    Messages.Dit("Aucune copie de secours ne peut être gardée" +
                 (raison.empty() ? "." : " : " + raison + ".") +
                 " Enregistrez souvent votre travail.");
}

bool DessinWindow::ApresEcriture(bool ecrit, bool autre) {
    const int erreur = errno;
    MetTitre();
    if (ecrit) {
        Secours.Enregistre();
        NomPropose.clear();
        // What was said of the file or of a save before this one is over.
        Messages.Cache();
        DitOriginalGarde(autre);
        return true;
    }
    NomPropose = Glib::path_get_basename(BddCourante.NomFichier);
    const Glib::ustring raison = Raison(erreur);
    const bool garde = Secours.Garde("Enregistrement impossible");
    Messages.Dit(EntreGuillemets(BddCourante.NomFichier) + " n'a pas pu être écrit" +
                     (raison.empty() ? ". " : " : " + raison + ". ") +
                     (garde ? "Une copie est gardée." : "Aucune copie n'a pu être gardée."),
                 {{"Enregistrer sous…", sigc::mem_fun(*this, &DessinWindow::SaveAs)},
                  {"Récupérer un dessin…", sigc::mem_fun(*this, &DessinWindow::RecupereDessin)}});
    return false;
}

void DessinWindow::DitOriginalGarde(bool autre) {
    if (BddCourante.OriginalGarde.empty()) return;
    const Glib::ustring nom = EntreGuillemets(BddCourante.NomFichier);
    Messages.Dit((autre ? nom + " avait été changé par un autre programme : ce qu'il contenait"
                        : "Ce que " + nom + " contenait") +
                 " est gardé sous " + Glib::filename_display_basename(BddCourante.OriginalGarde) +
                 ".");
}

bool DessinWindow::PeutRemplacer(bool demande) {
    // A chain in hand is drawn, too.
    Zone.Outils.Finit();
    if (!BddCourante.AEnregistrer()) return true;
    return !demande || DemandeEnregistrement();
}

std::optional<bool> DessinWindow::Abandonne(bool demande) {
    const bool enSuspens = BddCourante.AEnregistrer() && BddCourante.Elements.Nombre() > 0;
    const bool garde = enSuspens && Secours.Garde("Remplacé sans être enregistré");
    if (enSuspens && !garde) {
        DitSansSecours();
        // Without a net nothing is let go unasked.
        if (!demande && !DemandeEnregistrement()) return std::nullopt;
    }
    Secours.Oublie();
    NomPropose.clear();
    return garde;
}

void DessinWindow::RecupereDessin() {
    RecuperationDialog dialogue(*this, Secours.Gardees());
    if (const auto copie = dialogue.Demande()) {
        dialogue.hide();
        Reprend(*copie);
    }
}

void DessinWindow::ProposeRecuperation() {
    const std::vector<CopieSecours> copies = Secours.Orphelines();
    if (copies.empty()) return;
    {
        RecuperationDialog dialogue(*this, copies);
        if (const auto copie = dialogue.Demande()) {
            dialogue.hide();
            Reprend(*copie);
        }
    }
    Secours.RangeOrphelines();
    if (Secours.EnGardeDAutres())
        Messages.Dit(
            "D'autres copies sont gardées : Compléments / Récupérer un dessin…",
            {{"Récupérer un dessin…", sigc::mem_fun(*this, &DessinWindow::RecupereDessin)}});
}

void DessinWindow::Reprend(const CopieSecours& copie) {
    const std::string texte = Recuperation::Texte(copie);
    if (texte.compare(0, 7, "VERSION") != 0) {
        Messages.Dit("Cette copie ne peut pas être lue.");
        return;
    }
    const auto garde = PeutRemplacer(true) ? Abandonne(true) : std::nullopt;
    if (!garde) return;
    BddCourante.Recupere(texte, copie.Nom);
    if (!copie.Nom.empty()) NomPropose = Glib::path_get_basename(copie.Nom);
    Secours.Reprend(copie);
    Zone.Outils.Recommence();
    MetTitre();
    DitLecture(*garde);
    if (!Secours.Ecrit("Travail non enregistré")) DitSansSecours();
}
