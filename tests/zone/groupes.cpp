// Groups that hold themselves, or others without end.

#include <gtest/gtest.h>

#include "commun/banc.h"
#include "model/bddgeo.h"
#include "model/eltimage.h"

TEST(Groupes, QuiSeContiennentOuSEmboitentSansFin) {
    Banc banc;
    BDDGeoClipboard contenu;
    for (int i = 0; i < 3; ++i) {
        auto image = std::make_unique<EltImage>();
        image->SetIdentificateur("soi");
        image->Place({i * 10.0, 5.0});
        image->Agrandissement = 0.9;
        contenu.AjouteFin(std::move(image));
    }
    BddCourante.CollerCommeBDD(contenu, {0, 0}, "soi");
    EltImage image;
    image.SetIdentificateur("soi");
    BddCourante.Ajoute(image);
    banc.Zone.Vue.Redessine();
    banc.Image();

    std::string texte;
    for (int i = 0; i < 10000; ++i)
        texte += "VERSION3.3\n2\n15 1 0\n#000000000000\n#ffffffffffff\n 0 1 0 0 1 0  0\n0 0 0\nx\n";
    BddCourante.ChargeTexte(texte);
    const std::string lu = BddCourante.SauveTexte();
    BddCourante.ChargeTexte(lu);
    EXPECT_EQ(BddCourante.SauveTexte(), lu);
}
