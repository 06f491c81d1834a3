#pragma once

#include "zone/ligneetat.h"

/// The row of a state. The table is made and checked at the first call: every number stands in it
/// once, all from 0 to `NOMBRE_ETATS` - 1 are there, and every state that a row leads to exists.
const LigneEtat& LigneDe(int etat);
