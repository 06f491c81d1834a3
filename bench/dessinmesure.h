#pragma once

#include <string>

/// The text of a drawing of nombre segments, circles and arcs in equal parts, spread over a square
/// of 10,000 units around the origin; the same at every call.
std::string TexteMesure(int nombre);

/// The same in a file of its own under the temporary folder; answers its name.
std::string FichierMesure(int nombre);
