#pragma once

#include <string>

/// The help page with the list of all commands between its two marks; empty when it lacks them.
std::string AvecListeCommandes(const std::string& page);
