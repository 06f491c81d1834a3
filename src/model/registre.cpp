#include "model/registre.h"

#include "elements/eltarc.h"
#include "elements/eltcote.h"
#include "elements/eltcoteang.h"
#include "elements/eltcotedia.h"
#include "elements/eltcotehori.h"
#include "elements/eltcoterayon.h"
#include "elements/eltcotevert.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltpoint.h"
#include "elements/eltprofil.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"
#include "model/eltbdd.h"
#include "model/eltimage.h"

std::unique_ptr<EltGeo> CreeElement(int type) {
    static constexpr ClasseElt classes[] = {
        {TypeGeo, NouvelElt<EltGeo>},           {TypeSegment, NouvelElt<EltSegment>},
        {TypePoint, NouvelElt<EltPoint>},       {TypeArc, NouvelElt<EltArc>},
        {TypeProfil, NouvelElt<EltProfil>},     {TypeTxt, NouvelElt<EltTxt>},
        {TypeCote, NouvelElt<EltCote>},         {TypeCoteAng, NouvelElt<EltCoteAng>},
        {TypeCoteVert, NouvelElt<EltCoteVert>}, {TypeCoteHori, NouvelElt<EltCoteHori>},
        {TypeCoteDia, NouvelElt<EltCoteDia>},   {TypeCoteRayon, NouvelElt<EltCoteRayon>},
        {TypeDisque, NouvelElt<EltDisque>},     {TypeRectangle, NouvelElt<EltRectangle>},
        {TypeDroite, NouvelElt<EltDroite>},     {TypeBDD, NouvelElt<EltBDD>},
        {TypeImage, NouvelElt<EltImage>},
    };
    auto elt = CreeParmi(classes, type);
    return elt ? std::move(elt) : CreeSolide(type);
}
