// What the menu `Compléments` holds.

#include "window/complements.h"

#include "window/dessinwindow.h"
#include "window/lignes.h"

const std::vector<Commande<DessinWindow>>& TableComplements() {
    static const std::vector<Ligne> table = {
        Menu("MenuComplements", "Co_mpléments",
             {
                 Simple("RecupereDessin", "_Récupérer un dessin…", &DessinWindow::RecupereDessin)
                     .AvecBulle("Reprendre un dessin qui n'était pas enregistré"),
             }),
    };
    return table;
}
