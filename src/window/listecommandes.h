#pragma once

#include <string>

/// The help page with the list of all commands between its two marks; empty when it lacks them.
std::string AvecListeCommandes(const std::string& page);

/// Where the page tells of a command, given by its action.
std::string AncreAide(const std::string& action);
