#include "window/lignes.h"

#include "window/dessinwindow.h"

Ligne Menu(const char* nom, const char* libelle, std::vector<Ligne> entrees) {
    return Ligne(Ligne::Menu, nom, libelle).Contient(std::move(entrees));
}

Ligne Simple(const char* nom, const char* libelle, Ligne::Effet effet) {
    return {Ligne::Simple, nom, libelle, std::move(effet)};
}

Ligne Stock(const char* nom, const Gtk::StockID& stock, const char* mot, Ligne::Effet effet) {
    return Ligne(Ligne::Stock, nom, "", std::move(effet))
        .AvecImage(stock.get_string())
        .Appelee(mot);
}

Ligne Icone(const char* nom, const char* libelle, const char* bulle, Ligne::Effet effet) {
    return Ligne(Ligne::Icone, nom, libelle, std::move(effet)).AvecBulle(bulle).AvecImage(nom);
}

Ligne Outil(const char* nom, const char* libelle, const char* bulle, int etat) {
    return Icone(nom, libelle, bulle,
                 [etat](DessinWindow& fenetre) { fenetre.Zone.Outils.Entre(etat); });
}

Ligne OutilSimple(const char* nom, const char* libelle, const char* bulle, int etat) {
    return Simple(nom, libelle, Outil(nom, libelle, bulle, etat).Execute).AvecBulle(bulle);
}

Ligne Bascule(const char* nom, const char* libelle, Ligne::Effet effet, Ligne::Etat active) {
    return Ligne(Ligne::Bascule, nom, libelle, std::move(effet)).SelonEtat(std::move(active));
}

Ligne Accroche(const char* nom, const char* libelle, const char* bulle,
               bool OptionsAccrochage::*option) {
    return Bascule(
               nom, libelle,
               [option](DessinWindow& fenetre) { fenetre.Zone.Souris.Bascule(option); },
               [option](const DessinWindow& fenetre) {
                   return fenetre.Zone.Souris.Options.*option;
               })
        .AvecBulle(bulle);
}

Ligne::Effet Zone(void (ZoneDessin::*operation)()) {
    return [operation](DessinWindow& fenetre) { (fenetre.Zone.*operation)(); };
}

Ligne::Effet Vue(void (VueZone::*operation)()) {
    return [operation](DessinWindow& fenetre) { (fenetre.Zone.Vue.*operation)(); };
}

Ligne::Effet Presse(void (PressePapier::*operation)()) {
    return [operation](DessinWindow& fenetre) { (fenetre.Zone.Presse.*operation)(); };
}
