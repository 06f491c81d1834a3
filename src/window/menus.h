#pragma once

#include <string>

/// The menu bar and the tool bar of `TableCommandes`, for the toolkit's user interface manager.
std::string DefinitionMenus();
