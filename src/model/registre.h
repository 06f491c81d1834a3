#pragma once

#include <memory>

#include "elements/eltgeo.h"

/// A new element of the class that writes this type code in a file, with its default values; null
/// for a code that no file holds.
std::unique_ptr<EltGeo> CreeElement(int type);

/// The same among the solids alone. Defined beside them.
std::unique_ptr<EltGeo> CreeSolide(int type);

/// One class that files hold.
struct ClasseElt {
    int Type;
    std::unique_ptr<EltGeo> (*Cree)();
};

template <class Elt>
std::unique_ptr<EltGeo> NouvelElt() {
    return std::make_unique<Elt>();
}

/// A new element of the class with that code; null when there is none.
template <class Classes>
std::unique_ptr<EltGeo> CreeParmi(const Classes& classes, int type) {
    for (const ClasseElt& classe : classes)
        if (classe.Type == type) return classe.Cree();
    return nullptr;
}
