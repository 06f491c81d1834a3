#pragma once

#include <memory>

#include "elements/eltgeo.h"

/// A new element of the class that writes this type code in a file, with its default values; null
/// for a code that no file holds.
std::unique_ptr<EltGeo> CreeElement(int type);
