#pragma once

#include <string>

namespace Gtk {
class Widget;
}

/// Writes a label dark whatever the theme, for the light backgrounds that the window has whatever
/// the theme.
void EcritEnSombre(Gtk::Widget& libelle);

/// The menu bar and the tool bar of `TableCommandes`, for the toolkit's user interface manager.
std::string DefinitionMenus();
