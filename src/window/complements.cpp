// What the menu `Compléments` holds.

#include "window/complements.h"

#include "window/dessinwindow.h"
#include "window/lignes.h"

namespace {

/// Toggles a setting of the drawing area.
Ligne Reglage(const char* nom, const char* libelle, const char* bulle,
              bool& (*reglage)(ZoneDessin& zone)) {
    return Bascule(
               nom, libelle,
               [reglage](DessinWindow& fenetre) {
                   fenetre.Zone.BasculeReglage(reglage(fenetre.Zone));
               },
               [reglage](const DessinWindow& fenetre) {
                   return reglage(const_cast<DessinWindow&>(fenetre).Zone);
               })
        .AvecBulle(bulle);
}

template <bool OptionsSpeciales::*Option>
Ligne Speciale(const char* nom, const char* libelle, const char* bulle) {
    return Reglage(nom, libelle, bulle,
                   [](ZoneDessin& zone) -> bool& { return zone.Souris.Speciales.*Option; });
}

Ligne MenuAccrochage() {
    using O = OptionsSpeciales;
    return Menu(
        "MenuComplementsAccrochage", "_Accrochage",
        {
            Speciale<&O::BoutsDevant>("AccrocheBouts", "_Bout proche devant croisement éloigné",
                                      "Un croisement éloigné ne cache pas le bout voisin"),
            Speciale<&O::Milieux>("AccrocheMilieux", "_Milieux",
                                  "Milieux des arcs et des côtés de rectangles et de profils"),
            Speciale<&O::Quadrants>("AccrocheQuadrants", "_Quadrants",
                                    "Points des cercles à droite, en haut, à gauche et en bas"),
            Speciale<&O::Pieds>("AccrochePieds", "_Perpendiculaires",
                                "Pied de la perpendiculaire depuis le point de référence"),
            Speciale<&O::Tangentes>("AccrocheTangentes", "_Tangentes",
                                    "Contact de la tangente depuis le point de référence"),
            Speciale<&O::Proches>("AccrocheProches", "Point le plus _proche",
                                  "Le point de l'élément le plus proche du pointeur"),
        });
}

}  // namespace

const std::vector<Commande<DessinWindow>>& TableComplements() {
    static const std::vector<Ligne> table = {
        Menu("MenuComplements", "Co_mpléments",
             {
                 Simple("Refaire", "R_efaire", Zone(&ZoneDessin::RefaitAction))
                     .AvecBulle("Refaire ce qui vient d'être annulé")
                     .AvecTouche("<control>Y")
                     .AussiPar("Ctrl+Maj+Z"),
                 Simple("LigneSaisie", "_Ligne de saisie",
                        [](DessinWindow& fenetre) { fenetre.Frappe.Ouvre(); })
                     .AvecBulle("Taper un point, une longueur ou une commande")
                     .AvecTouche("F2"),
                 Ligne::Trait(),
                 Simple("ToutVoir", "_Tout voir", Zone(&ZoneDessin::ToutVoir))
                     .AvecBulle("Montrer tout ce qui est visible")
                     .AvecTouche("Home"),
                 Simple("VuePrecedente", "_Vue précédente", Zone(&ZoneDessin::VuePrecedente))
                     .AvecBulle("Revenir à la vue d'avant")
                     .AvecTouche("BackSpace"),
                 Reglage("MoletteProgressive", "_Molette progressive",
                         "La molette agrandit d'un quart, autour du pointeur",
                         [](ZoneDessin& zone) -> bool& { return zone.MoletteProgressive; }),
                 MenuAccrochage(),
                 Ligne::Trait(),
                 Simple("RecupereDessin", "_Récupérer un dessin…", &DessinWindow::RecupereDessin)
                     .AvecBulle("Reprendre un dessin qui n'était pas enregistré"),
             }),
    };
    return table;
}
