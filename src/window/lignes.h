#pragma once

#include <gtkmm/stockid.h>

#include <vector>

#include "dialogs/commande.h"
#include "zone/accrochage.h"

class DessinWindow;
class PressePapier;
class VueZone;
class ZoneDessin;

// What the tables of commands are written with.

using Ligne = Commande<DessinWindow>;

Ligne Menu(const char* nom, const char* libelle, std::vector<Ligne> entrees);
Ligne Simple(const char* nom, const char* libelle, Ligne::Effet effet);

/// mot: what the toolkit's label says in French.
Ligne Stock(const char* nom, const Gtk::StockID& stock, const char* mot, Ligne::Effet effet);

/// Has an icon of its name.
Ligne Icone(const char* nom, const char* libelle, const char* bulle, Ligne::Effet effet);

/// A tool, which begins in that state.
Ligne Outil(const char* nom, const char* libelle, const char* bulle, int etat);

/// The same without an icon.
Ligne OutilSimple(const char* nom, const char* libelle, const char* bulle, int etat);

Ligne Bascule(const char* nom, const char* libelle, Ligne::Effet effet, Ligne::Etat active);

/// Toggles a snap option.
Ligne Accroche(const char* nom, const char* libelle, const char* bulle,
               bool OptionsAccrochage::*option);

// What the drawing area or one of its rooms does.

Ligne::Effet Zone(void (ZoneDessin::*operation)());
Ligne::Effet Vue(void (VueZone::*operation)());
Ligne::Effet Presse(void (PressePapier::*operation)());
