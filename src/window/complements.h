#pragma once

#include <vector>

#include "dialogs/commande.h"

class DessinWindow;

/// The commands of the menu `Compléments`, which goes beyond those of `TableCommandes`. It is put
/// at the right end of the menu bar once it has a row.
const std::vector<Commande<DessinWindow>>& TableComplements();
