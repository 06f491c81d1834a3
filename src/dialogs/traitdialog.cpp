#include "dialogs/traitdialog.h"

#include "dialogs/demandecouleur.h"
#include "dialogs/nombres.h"

TraitDialog::TraitDialog(const Glib::ustring& titre, Trait* trait)
    : SaisieDialog(titre),
      Valeur(trait),
      Fond(trait->CouleurFond),
      Epaisseur(TexteNombre(trait->Epaisseur)),
      AngleHachure(TexteNombre(trait->AngleHachureDegres())),
      PasHachure(TexteNombre(trait->PasHachure)),
      LigneStyles(false, 12),
      LigneSurface(false, 12),
      Plein("Continu"),
      EnTirets("Tirets"),
      EnAxe("Axe"),
      EnPointille("Pointillé"),
      Remplissage("Remplissage"),
      Contour("Contour"),
      Hachure("Hachure"),
      BoutonFond("Couleur Fond") {
    AjouteChamp("Épaisseur", Epaisseur, UnNombre());
    AjouteChamp("Angle hachure", AngleHachure, UnNombre());
    AjouteChamp("Pas hachure", PasHachure, UnNombre());
    RangeStyles();
    RangeSurface();
    for (Gtk::Widget* ligne : {&LigneStyles, &LigneSurface})
        get_vbox()->pack_start(*ligne, Gtk::PACK_SHRINK);
    show_all_children();
}

void TraitDialog::RangeStyles() {
    Gtk::RadioButton::Group groupe = Plein.get_group();
    for (Gtk::RadioButton* bouton : {&EnTirets, &EnAxe, &EnPointille})
        bouton->set_group(groupe);
    EnTirets.set_active(Valeur->StyleLigne == Tirets);
    EnAxe.set_active(Valeur->StyleLigne == Axe);
    EnPointille.set_active(Valeur->StyleLigne == Pointille);
    for (Gtk::RadioButton* bouton : {&Plein, &EnTirets, &EnAxe, &EnPointille})
        LigneStyles.pack_start(*bouton, Gtk::PACK_SHRINK);
}

void TraitDialog::RangeSurface() {
    Remplissage.set_active(Valeur->Remplissage);
    Contour.set_active(Valeur->Contour);
    Hachure.set_active(Valeur->Hachure == 1);
    for (Gtk::CheckButton* coche : {&Remplissage, &Contour, &Hachure})
        LigneSurface.pack_start(*coche, Gtk::PACK_SHRINK);
    LigneSurface.pack_end(BoutonFond, Gtk::PACK_SHRINK);
    BrancheQuestion(BoutonFond, sigc::mem_fun(*this, &TraitDialog::DemandeFond));
}

void TraitDialog::DemandeFond() {
    DemandeCouleur(this, "Couleur Fond", Fond);
}

int TraitDialog::StyleChoisi() const {
    if (EnTirets.get_active()) return Tirets;
    if (EnAxe.get_active()) return Axe;
    return EnPointille.get_active() ? Pointille : Continu;
}

void TraitDialog::Prend() {
    if (const auto epaisseur = Epaisseur.Nombre()) Valeur->Epaisseur = EnEntier(*epaisseur);
    if (const auto degres = AngleHachure.Nombre()) Valeur->SetAngleHachureDegres(*degres);
    if (const auto pas = PasHachure.Nombre()) Valeur->SetPasHachure(*pas);
    Valeur->StyleLigne = StyleChoisi();
    Valeur->Remplissage = Remplissage.get_active();
    Valeur->Contour = Contour.get_active();
    Valeur->Hachure = Hachure.get_active() ? 1 : 0;
    Valeur->CouleurFond = Fond;
}
