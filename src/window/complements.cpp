// What the menu `Compléments` holds.

#include "window/complements.h"

#include "window/dessinwindow.h"

const std::vector<Commande<DessinWindow>>& TableComplements() {
    using Ligne = Commande<DessinWindow>;
    static const std::vector<Ligne> table = {
        Ligne(Ligne::Menu, "MenuComplements", "Co_mpléments")
            .Contient({
                Ligne(Ligne::Simple, "RecupereDessin", "_Récupérer un dessin…",
                      &DessinWindow::RecupereDessin)
                    .AvecBulle("Reprendre un dessin qui n'était pas enregistré"),
            }),
    };
    return table;
}
