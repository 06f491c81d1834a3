#pragma once

#include <string>
#include <string_view>

#include "model/bilanlecture.h"

class BDDGeo;
class BDDGeoBase;

// The exchange with other programs in ASCII DXF. `docs/dxf.md` tells what goes out, what comes in,
// and what cannot come back the same.

/// The drawing as a DXF text. Its bytes are fixed by what the files have always been, oddities
/// included.
std::string EcritDxf(const BDDGeoBase& bdd);

/// Writes that text to a file, silently. The drawing, its name and `Modifie` stay as they are.
void ExporteDxf(const BDDGeoBase& bdd, const std::string& nom);

/// Appends the elements of a DXF text to the target. What is not understood is skipped, and counted
/// by the names of its entities where it would show.
BilanLecture LitDxf(std::string_view texte, BDDGeoBase& cible);

/// Replaces the drawing by that of a DXF file, silently: what cannot be read leaves an empty or
/// partly read one. It bears the file's name, but the next save asks for another.
void ImporteDxf(BDDGeo& bdd, std::string nom);
