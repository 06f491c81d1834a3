#pragma once

#include <string>

/// The text of a drawing of nombre segments, circles and arcs in equal parts, spread over a square
/// of 10,000 units around the origin; the same at every call.
std::string TexteMesure(int nombre);

/// The text of a sheet of nombre elements of every class on the same square: a tenth texts, a tenth
/// dimensions, a third of what takes it hatched, and images of a group.
std::string TexteFeuille(int nombre);

/// The text of the first drawing, every tenth element of it a text of a height of its own. Each is
/// large enough to be read where the whole drawing fills a window.
std::string TexteHauteurs(int nombre);

/// Writes a text to a file of that kind under the temporary folder; answers its name.
std::string FichierMesure(const std::string& genre, const std::string& texte);

// The files of these texts, written once.
const std::string& FichierMesure(int nombre);
const std::string& FichierFeuille(int nombre);
