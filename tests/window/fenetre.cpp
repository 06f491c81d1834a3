// The window itself: its status row, the window that a dialog belongs over, small pictures, and
// what an end without warning leaves behind.

#include <gtest/gtest.h>

#include <algorithm>

#include "bureau.h"
#include "dialogs/intdialog.h"
#include "dialogues.h"
#include "elements/eltrectangle.h"
#include "model/bddgeo.h"
#include "model/eltbdd.h"
#include "window/vignette.h"

namespace {

/// Left, top, right and bottom of what the small picture of one element blackens.
std::vector<int> Noircie(const EltGeo& elt) {
    BDDGeoBase dessin;
    dessin.AjouteFin(elt.Clone());
    const auto image = Vignette(dessin.SauveTexte(), 160, 110);
    std::vector<int> etendue = {999, 999, -1, -1};
    for (int y = 0; y < 110; ++y)
        for (int x = 0; x < 160; ++x) {
            const int canaux = image->get_n_channels();
            if (image->get_pixels()[y * image->get_rowstride() + x * canaux] > 230) continue;
            etendue = {std::min(etendue[0], x), std::min(etendue[1], y), std::max(etendue[2], x),
                       std::max(etendue[3], y)};
        }
    return etendue;
}

void ExigeProche(const std::vector<int>& vus, const std::vector<int>& attendus) {
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(vus[i], attendus[i], 1) << i;
}

}  // namespace

TEST(Fenetre, SurLaquelleVientUnDialogue) {
    int valeur = 0;
    const auto parente = [&valeur] { return IntDialog("?", &valeur).get_transient_for(); };
    EXPECT_EQ(parente(), nullptr);
    Gtk::Window ancienne, recente, menu(Gtk::WINDOW_POPUP), cachee;
    for (Gtk::Window* fenetre : {&ancienne, &recente, &menu})
        fenetre->show();
    EXPECT_EQ(parente(), &ancienne);
    {
        const FenetreDesDialogues une(&recente);
        EXPECT_EQ(parente(), &recente);
        {
            const FenetreDesDialogues autre(&ancienne);
            EXPECT_EQ(parente(), &ancienne);
        }
        EXPECT_EQ(parente(), &recente);
    }
    EXPECT_EQ(parente(), &ancienne);
    recente.set_modal();
    EXPECT_EQ(parente(), &recente);
}

TEST(Vignette, MontreToutLeDessin) {
    // 150 by 100 pixels within the margins.
    ExigeProche(Noircie(EltSegment({1000, -50}, {1100, -50}, 0)), {5, 55, 155, 55});
    ExigeProche(Noircie(EltSegment({7, 0}, {7, 3}, 0)), {80, 5, 80, 105});
    ExigeProche(Noircie(EltRectangle({-500, 400}, {-400, 300}, 0)), {30, 5, 130, 105});
    ExigeProche(Noircie(EltRectangle({0, 10}, {60, 0}, 0)), {5, 42, 155, 67});
    EXPECT_EQ(Noircie(EltBDD())[2], -1) << "white";
    // As in the drawing, a wide line is wide, and its caps reach beyond its ends.
    EltSegment bas({0, 0}, {100, 0}, 0);
    bas.Style.Epaisseur = 5;
    ExigeProche(Noircie(bas), {2, 51, 157, 58});
}

TEST(Travail, UneFinSansPrevenirLaisseUneCopieQuiEstProposee) {
    Bureau bureau;
    for (const CopieSecours& copie : bureau.Fenetre.Secours.Gardees())
        Recuperation::Jette(copie);
    BddCourante.Ajoute(EltSegment({-10, 0}, {10, 0}, 0));
    EXPECT_EXIT(std::exit(0), testing::ExitedWithCode(0), "");
    BddCourante.Vide();
    for (const int nombre : {0, 1}) {
        RepondDialogue(nombre == 0 ? Gtk::RESPONSE_CANCEL : Gtk::RESPONSE_OK);
        if (nombre == 0)
            bureau.Fenetre.ProposeRecuperation();
        else
            bureau.Fenetre.RecupereDessin();
        EXPECT_EQ(BddCourante.Elements.Nombre(), nombre);
        EXPECT_EQ(bureau.Fenetre.Secours.Gardees().size(), 1u) << "those put off are kept";
    }
    bureau.Fenetre.ProposeRecuperation();
    EXPECT_TRUE(BddCourante.AEnregistrer());
}
