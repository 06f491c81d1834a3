#pragma once

#include "elements/liste.h"

class EcrivainDxf;
class EltCote;
class EltGeo;

/// Whether the element is one of the three linear dimensions, which have a block each.
bool EstCoteLineaire(const EltGeo& elt);

/// Writes the block of a linear dimension: its lines, its arrows and its text.
void EcritBlocCote(EcrivainDxf& sortie, const EltCote& cote);

/// Writes an element, a group as a block with its content; nothing for what DXF does not take.
void EcritEntite(EcrivainDxf& sortie, const EltGeo& elt);

/// Writes all of a list but the groups.
void EcritEntites(EcrivainDxf& sortie, const Liste<EltGeo>& elements);
