#include "model/registre.h"

#include "elements/eltarc.h"
#include "elements/eltdisque.h"
#include "elements/eltdroite.h"
#include "elements/eltpoint.h"
#include "elements/eltrectangle.h"
#include "elements/eltsegment.h"
#include "elements/elttxt.h"

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
    {TypeGeo, Cree<EltGeo>},
    {TypeSegment, Cree<EltSegment>},
    {TypePoint, Cree<EltPoint>},
    {TypeArc, Cree<EltArc>},
    {TypeTxt, Cree<EltTxt>},
    {TypeDisque, Cree<EltDisque>},
    {TypeRectangle, Cree<EltRectangle>},
    {TypeDroite, Cree<EltDroite>},
};

}  // namespace

std::unique_ptr<EltGeo> CreeElement(int type) {
    for (const Classe& classe : Classes)
        if (classe.Type == type) return classe.Cree();
    return nullptr;
}
