#pragma once

#include <vector>

#include "dialogs/commande.h"

class DessinWindow;

/// The commands of the menu bar and of the tool bar.
const std::vector<Commande<DessinWindow>>& TableCommandes();
