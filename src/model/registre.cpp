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

namespace {

template <class Elt>
std::unique_ptr<EltGeo> Cree() {
    return std::make_unique<Elt>();
}

struct Classe {
    int Type;
    std::unique_ptr<EltGeo> (*Cree)();
};

const Classe Classes[] = {
    {TypeGeo, Cree<EltGeo>},           {TypeSegment, Cree<EltSegment>},
    {TypePoint, Cree<EltPoint>},       {TypeArc, Cree<EltArc>},
    {TypeProfil, Cree<EltProfil>},     {TypeTxt, Cree<EltTxt>},
    {TypeCote, Cree<EltCote>},         {TypeCoteAng, Cree<EltCoteAng>},
    {TypeCoteVert, Cree<EltCoteVert>}, {TypeCoteHori, Cree<EltCoteHori>},
    {TypeCoteDia, Cree<EltCoteDia>},   {TypeCoteRayon, Cree<EltCoteRayon>},
    {TypeDisque, Cree<EltDisque>},     {TypeRectangle, Cree<EltRectangle>},
    {TypeDroite, Cree<EltDroite>},     {TypeBDD, Cree<EltBDD>},
    {TypeImage, Cree<EltImage>},
};

}  // namespace

std::unique_ptr<EltGeo> CreeElement(int type) {
    for (const Classe& classe : Classes)
        if (classe.Type == type) return classe.Cree();
    return nullptr;
}
