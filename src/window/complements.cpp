// What the menu `Compléments` holds.

#include "window/complements.h"

#include "window/dessinwindow.h"

const std::vector<Commande<DessinWindow>>& TableComplements() {
    static const std::vector<Commande<DessinWindow>> table = {};
    return table;
}
