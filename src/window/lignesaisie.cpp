#include "window/lignesaisie.h"

#include <gdk/gdkkeysyms.h>

#include <cstring>

#include "window/motscommandes.h"
#include "zone/ligneetat.h"

namespace {

constexpr char Conseil[] =
    "x;y   r<angle   @ depuis le dernier point   une longueur   ou le début d'une commande";

constexpr char MotAide[] = "aide";

/// How many commands show at most.
constexpr std::size_t PropositionsMax = 8;

/// Whether a key begins a number or a point.
bool Commence(const GdkEventKey& evenement) {
    if (evenement.state & (GDK_CONTROL_MASK | GDK_MOD1_MASK)) return false;
    const guint32 c = gdk_keyval_to_unicode(evenement.keyval);
    return c > 0 && c < 128 && std::strchr("0123456789@-+(.,", static_cast<int>(c));
}

Glib::ustring Presente(const MotCommande& commande) {
    Glib::ustring texte = "<b>" + Glib::Markup::escape_text(commande.Mot) + "</b>";
    if (EnCle(commande.Mot) != EnCle(commande.Action))
        texte += "  " + Glib::Markup::escape_text(commande.Action);
    if (!commande.Conseil.empty())
        texte += "   <i>" + Glib::Markup::escape_text(commande.Conseil) + "</i>";
    return texte;
}

/// What stands behind "aide"; none where the line does not begin with it.
bool DemandeAide(const Glib::ustring& texte, Glib::ustring& mot) {
    const std::size_t blanc = texte.find(' ');
    if (EnCle(texte.substr(0, blanc)) != MotAide) return false;
    mot = blanc == Glib::ustring::npos ? "" : texte.substr(blanc + 1);
    return true;
}

}  // namespace

LigneSaisie::LigneSaisie(ZoneDessin& zone) : Zone(zone), Boite(false, 2) {
    for (Gtk::Label* libelle : {&Propositions, &Note}) {
        libelle->set_alignment(Gtk::ALIGN_LEFT);
        libelle->set_ellipsize(Pango::ELLIPSIZE_END);
        libelle->modify_fg(Gtk::STATE_NORMAL, Gdk::Color("#000000"));
    }
    Entree.modify_text(Gtk::STATE_NORMAL, Gdk::Color("#000000"));
    modify_bg(Gtk::STATE_NORMAL, Gdk::Color("#FFFFEA"));
    Boite.set_border_width(3);
    Boite.pack_start(Propositions, Gtk::PACK_SHRINK);
    Boite.pack_start(Entree, Gtk::PACK_SHRINK);
    Boite.pack_start(Note, Gtk::PACK_SHRINK);
    add(Boite);
    show_all_children();
    Propositions.hide();
    set_no_show_all(true);
    Entree.signal_changed().connect(sigc::mem_fun(*this, &LigneSaisie::Change));
    // A length leads toward the pointer.
    Zone.Souris.SignalPosition().connect(sigc::hide(sigc::mem_fun(*this, &LigneSaisie::Apercoit)));
    Zone.Outils.SignalEtat().connect(sigc::hide(sigc::mem_fun(*this, &LigneSaisie::Apercoit)));
}

void LigneSaisie::on_size_request(Gtk::Requisition* demande) {
    Gtk::EventBox::on_size_request(demande);
    // It follows the width of the drawing area, and never keeps the window from becoming narrower.
    demande->width = 1;
}

void LigneSaisie::Ouvre() {
    if (!EstOuverte()) {
        show();
        if (const auto fenetre = get_window()) fenetre->raise();
        Rang = Passees.size();
        Remplace("");
    }
    Entree.grab_focus();
    Apercoit();
}

void LigneSaisie::Ferme() {
    Zone.Outils.Impose(std::nullopt);
    Zone.Souris.MontreReference(false);
    hide();
    if (auto* fenetre = dynamic_cast<Gtk::Window*>(get_toplevel())) fenetre->unset_focus();
}

bool LigneSaisie::Touche(GdkEventKey* evenement) {
    if (!EstOuverte()) {
        if (!Commence(*evenement)) return false;
        Ouvre();
    }
    switch (evenement->keyval) {
        case GDK_Escape:
            Ferme();
            break;
        case GDK_Return:
        case GDK_KP_Enter:
            Valide();
            break;
        case GDK_Up:
        case GDK_KP_Up:
            Remonte(-1);
            break;
        case GDK_Down:
        case GDK_KP_Down:
            Remonte(1);
            break;
        case GDK_Tab:
        case GDK_ISO_Left_Tab:
            Complete();
            break;
        case GDK_F2:
            Entree.select_region(0, -1);
            break;
        default:
            Entree.event(reinterpret_cast<GdkEvent*>(evenement));
    }
    return true;
}

void LigneSaisie::Change() {
    if (!EnCompletion) Debut.clear();
    Entree.modify_base(Gtk::STATE_NORMAL, Gdk::Color("#FFFFFF"));
    Note.set_text(Entree.get_text().empty() ? Conseil : "");
    Apercoit();
}

Saisie LigneSaisie::Lue() const {
    const PointVek& reference = Zone.Souris.Reference;
    const Saisie saisie = LitSaisie(Entree.get_text(), reference);
    if (saisie.Sorte != Saisie::Longueur) return saisie;
    return PointVers(saisie.Valeur, reference, Zone.Souris.Position());
}

void LigneSaisie::Apercoit() {
    if (!EstOuverte()) return;
    const Saisie saisie = Lue();
    if (saisie.Sorte == Saisie::Point)
        Zone.Outils.Impose(saisie.Lieu);
    else
        Zone.Outils.Impose(std::nullopt);
    Zone.Souris.MontreReference(true);
    Propose(saisie.Sorte == Saisie::Mot ? Entree.get_text() : Glib::ustring());
}

void LigneSaisie::Propose(const Glib::ustring& texte) {
    Glib::ustring mot = Debut.empty() ? texte : Debut;
    DemandeAide(mot, mot);
    const auto commandes = CommandesPour(mot);
    Glib::ustring lignes;
    for (std::size_t rang = 0; rang < commandes.size() && rang < PropositionsMax; ++rang)
        lignes += (rang ? "\n" : "") + Presente(*commandes[rang]);
    if (commandes.size() > PropositionsMax) lignes += "\n…";
    Propositions.set_markup(lignes);
    Propositions.set_visible(!lignes.empty());
}

void LigneSaisie::Valide() {
    const Saisie saisie = Lue();
    switch (saisie.Sorte) {
        case Saisie::Rien:
            return Ferme();
        case Saisie::Mot:
            return ValideMot(Entree.get_text());
        case Saisie::Point:
            return ValidePoint(saisie.Lieu);
        default:
            return Refuse(saisie.Remarque);
    }
}

void LigneSaisie::ValidePoint(const PointVek& p) {
    if (!Zone.Outils.Ligne().Clic) return Refuse("Aucun outil n'attend de point.");
    Passees.push_back(Entree.get_text());
    Ferme();
    Zone.Outils.Clique(p);
}

void LigneSaisie::ValideMot(const Glib::ustring& texte) {
    Glib::ustring mot = texte;
    const bool aide = DemandeAide(texte, mot);
    const auto commandes = CommandesPour(mot);
    const MotCommande* const voulue = CommandeVoulue(commandes);
    if (!voulue && !(aide && mot.empty()))
        return Refuse(commandes.empty() ? "Aucune commande ne commence ainsi."
                                        : "Plusieurs commandes commencent ainsi.");
    Passees.push_back(texte);
    Ferme();
    const std::string action = voulue ? voulue->Action : "";
    (aide ? Aides : Commandes).emit(action);
}

void LigneSaisie::Refuse(const Glib::ustring& remarque) {
    Entree.modify_base(Gtk::STATE_NORMAL, Gdk::Color("#FFC4C4"));
    Note.set_text(remarque);
}

void LigneSaisie::Remonte(int pas) {
    if (pas < 0 && Rang > 0)
        --Rang;
    else if (pas > 0 && Rang < Passees.size())
        ++Rang;
    Remplace(Rang < Passees.size() ? Passees[Rang] : Glib::ustring());
}

void LigneSaisie::Complete() {
    if (Debut.empty()) {
        if (LitSaisie(Entree.get_text(), {}).Sorte != Saisie::Mot) return;
        Debut = Entree.get_text();
        RangMot = 0;
    }
    Glib::ustring mot = Debut;
    const bool aide = DemandeAide(Debut, mot);
    const auto commandes = CommandesPour(mot);
    if (commandes.empty()) return;
    EnCompletion = true;
    Remplace((aide ? "aide " : "") + commandes[RangMot++ % commandes.size()]->Mot);
    EnCompletion = false;
}

void LigneSaisie::Remplace(const Glib::ustring& texte) {
    Entree.set_text(texte);
    Entree.set_position(-1);
    Change();
}
