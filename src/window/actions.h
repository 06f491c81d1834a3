#pragma once

#include <string>
#include <variant>
#include <vector>

#include "zone/accrochage.h"

class DessinWindow;
class ZoneDessin;

/// What a command does: enter the tool whose first state has this number, call the window or the
/// drawing area, or toggle a snap option. Nothing yet: the command is shown insensitive.
using Effet = std::variant<std::monostate, int, void (DessinWindow::*)(), void (ZoneDessin::*)(),
                           bool OptionsAccrochage::*>;

/// One command of the program, or one submenu.
struct LigneAction {
    enum Genre { SousMenu, Simple, Icone, Stock, Bascule, Recents };

    Genre Forme;
    const char* Nom;
    const char* Libelle;  ///< Empty: the stock item's.
    const char* Bulle;
    Effet Execute;
    const char* Touche = "";  ///< Accelerator: a bare letter.
    std::string Image = {};   ///< Name of an icon, or of a stock item.

    /// Start value of a toggle that is no snap option; none: false.
    bool (*Active)(const ZoneDessin& zone) = nullptr;
};

/// All commands and submenus. The menus and the tool bar name them.
const std::vector<LigneAction>& TableActions();
